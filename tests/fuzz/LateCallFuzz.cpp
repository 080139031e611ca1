// Late-bound calls with any arguments: a member gets numbers that are those of the
// host, or is not called; arguments and result change only when it went well.

#include "fuzz/FuzzBytes.h"

#include "members/MemberEntries.h"
#include <ORVTListview/LateCall.h>
#include <ORVTListview/Types.h>

#include <QtCore/QObject>

#include <cmath>
#include <limits>

using namespace ORVTListview;
using namespace ORVTListview::Fuzzing;

namespace {

// Notes what it is called with.
class Recorder : public QObject
{
public:
    qint8 tiny(qint8 value) { return note(value); }
    qint16 small(qint16 value) { return note(value); }
    quint16 smallUp(quint16 value) { return note(value); }
    qint32 whole(qint32 value) { return note(value); }
    quint32 wholeUp(quint32 value) { return note(value); }
    qint64 large(qint64 value) { return note(value); }
    LwType type(LwType value) { return note(value); }
    float single(float value)
    {
        isLost = !std::isfinite(value);
        return value;
    }
    double real(double value) { return value; }
    bool truth(bool value) { return value; }
    QString text(const QString &value) { return value; }
    QVariant any(const QVariant &value) { return value; }
    QObject *object(Recorder *value) { return value; }
    void both(qint16 &value, QString &text, double &half)
    {
        half = value / 2.0;
        text += u'x';
        note(value);
    }
    QString Caption() const { return m_caption; }
    void setCaption(const QString &caption) { m_caption = caption; }
    void fail(qint32 number) { throw Error(number, QStringLiteral("fail"), QString()); }

    static const MemberTable &members();

    qint64 noted = 0;
    bool isNoted = false;
    bool isLost = false; // infinite or no number

private:
    template <typename Number>
    Number note(Number value)
    {
        noted = static_cast<qint64>(value);
        isNoted = true;
        return value;
    }

    QString m_caption;
};

const MemberTable &Recorder::members()
{
    using namespace MemberEntries;
    static const MemberTable table(
        QStringLiteral("Recorder"),
        {method<&Recorder::tiny>(u"tiny", u"Value"), method<&Recorder::small>(u"small", u"Value"),
         method<&Recorder::smallUp>(u"smallUp", u"Value"),
         method<&Recorder::whole>(u"whole", u"Value"),
         method<&Recorder::wholeUp>(u"wholeUp", u"Value"),
         method<&Recorder::large>(u"large", u"Value"), method<&Recorder::type>(u"type", u"Value"),
         method<&Recorder::single>(u"single", u"Value"), method<&Recorder::real>(u"real", u"Value"),
         method<&Recorder::truth>(u"truth", u"Value"), method<&Recorder::text>(u"text", u"Value"),
         method<&Recorder::any>(u"any", u"Value"), method<&Recorder::object>(u"object", u"Value"),
         method<&Recorder::both>(u"both", u"Value", optional(u"Text"), optional(out(u"Half"))),
         method<&Recorder::fail>(u"fail", u"Number"),
         readWrite<&Recorder::Caption, &Recorder::setCaption>(u"Caption")});
    return table;
}

double realFrom(FuzzBytes &bytes)
{
    using Limits = std::numeric_limits<double>;
    constexpr double odd[] = {Limits::quiet_NaN(),
                              Limits::infinity(),
                              -Limits::infinity(),
                              9223372036854775807.0,
                              -9223372036854775808.0,
                              32767.5,
                              -0.5,
                              1e300};
    if (bytes.coin())
        return odd[bytes.below(8)];
    return static_cast<double>(static_cast<qint64>(bytes.number())) / (1 << bytes.below(16));
}

// A number near one of the bounds of the types there are.
quint64 numberFrom(FuzzBytes &bytes)
{
    if (bytes.coin())
        return bytes.number();
    const quint64 bound = Q_UINT64_C(1) << bytes.below(64);
    const auto offset = static_cast<quint64>(bytes.below(5)) - 2;
    return bytes.coin() ? bound + offset : offset - bound;
}

QVariant argumentFrom(FuzzBytes &bytes, Recorder &recorder)
{
    switch (bytes.below(18)) {
    case 0:
        return QVariant();
    case 1:
        return static_cast<qint32>(numberFrom(bytes));
    case 2:
        return static_cast<qint64>(numberFrom(bytes));
    case 3:
        return numberFrom(bytes);
    case 4:
        return static_cast<quint32>(numberFrom(bytes));
    case 5:
        return QVariant::fromValue(static_cast<qint16>(numberFrom(bytes)));
    case 6:
        return QVariant::fromValue(static_cast<quint8>(bytes.byte()));
    case 7:
        return realFrom(bytes);
    case 8:
        return static_cast<float>(realFrom(bytes));
    case 9:
        return bytes.coin();
    case 10:
        return bytes.text();
    case 11:
        return QString::number(numberFrom(bytes));
    case 12:
        return QString::number(static_cast<qint64>(numberFrom(bytes)));
    case 13:
        return bytes.bytes();
    case 14:
        return QVariantList{1, bytes.text()};
    case 15:
        return QVariant::fromValue<QObject *>(&recorder);
    case 16:
        return QVariant::fromValue(nullptr);
    default:
        return QVariant::fromValue(static_cast<LwType>(bytes.below(16)));
    }
}

// The number that the host has given, when there is no doubt which; a real one is
// rounded.
bool isGiven(const QVariant &argument, qint64 got)
{
    switch (argument.metaType().id()) {
    case QMetaType::ULongLong:
        return got >= 0 && argument.toULongLong() == static_cast<quint64>(got);
    case QMetaType::Double:
    case QMetaType::Float:
        return std::abs(argument.toDouble() - static_cast<double>(got)) <= 1;
    case QMetaType::QString:
    case QMetaType::QByteArray:
        return true;
    default:
        return argument.toLongLong() == got;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Recorder recorder;
    FuzzBytes bytes(data, size);
    const QList<Member> &members = Recorder::members().members();
    for (int calls = 0; calls < 16 && !bytes.isEmpty(); ++calls) {
        const int chosen = bytes.below(static_cast<int>(members.size()) + 1);
        const QString name = chosen < members.size() ? members[chosen].name : bytes.text();
        QVariantList arguments;
        for (int count = bytes.below(4) % 3; count >= 0 && !bytes.isEmpty(); --count)
            arguments.append(argumentFrom(bytes, recorder));
        const QVariantList given = arguments;
        QVariant result = QStringLiteral("before");
        recorder.isNoted = recorder.isLost = false;
        const auto error = callLate(recorder, Recorder::members(), name, arguments, result);
        demand(arguments.size() == given.size(), "arguments stay as many");
        if (error) {
            demand(result == QVariant(QStringLiteral("before")), "a call that fails has no result");
            demand(!recorder.isNoted, "a member that is refused is not called");
        } else if (recorder.isNoted) {
            demand(isGiven(given.constFirst(), recorder.noted), "a number is not cut off");
        } else if (recorder.isLost) {
            demand(!std::isfinite(given.constFirst().toDouble()), "a number is not lost");
        }
    }
    return 0;
}
