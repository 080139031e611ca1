#include "support/Gauge.h"

#include "members/EventDelivery.h"
#include "support/QtPrinters.h"
#include "support/RandomSeed.h"
#include "support/TestProgram.h"

#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

#include <functional>
#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

class RecordingSink : public EventSink
{
public:
    using Act = std::function<void(qint32 number, QVariantList &arguments)>;

    explicit RecordingSink(Act act = {})
        : m_act(std::move(act))
    {
    }

    void Invoke(qint32 Number, QVariantList &Arguments) override
    {
        numbers.append(Number);
        arguments = Arguments;
        const Act act = m_act; // the sink may be gone before it returns
        if (act)
            act(Number, Arguments);
    }

    QList<qint32> numbers;
    QVariantList arguments;

private:
    Act m_act;
};

RecordingSink::Act append(const QString &text)
{
    return [text](qint32, QVariantList &arguments) {
        arguments[1] = arguments.at(1).toString() + text;
    };
}

} // namespace

class EventDeliveryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void tellsNumberAndArguments();
    void bringsChangesBack();
    void leavesWhatDoesNotFit();
    void leavesWhatGoesInOnly();
    void keepsTheOrderOfConnecting();
    void deliversOnceToASinkAdvisedTwice();
    void deliversNoMoreAfterUnadvise();
    void forgetsASinkThatTheHostDestroys();
    void survivesASinkThatUnadvisesItself();
    void passesOverASinkUnadvisedDuringTheEvent();
    void passesOverASinkAdvisedDuringTheEvent();
    void survivesASinkThatDestroysItself();
    void survivesASinkThatDestroysTheComponent();
    void survivesNestedEvents();
    void keepsExceptionsFromTheRaiser();
    void agreesWithAModel();
};

void EventDeliveryTest::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
}

void EventDeliveryTest::tellsNumberAndArguments()
{
    Gauge gauge;
    EventDelivery delivery(gauge, Gauge::members());
    RecordingSink sink;
    delivery.advise(&sink);

    Q_EMIT gauge.Click();
    QCOMPARE(sink.arguments, QVariantList());
    qint16 keyCode = 65;
    Q_EMIT gauge.KeyDown(keyCode, 2);
    QCOMPARE(sink.arguments,
             QVariantList({QVariant::fromValue<qint16>(65), QVariant::fromValue<qint16>(2)}));
    Q_EMIT gauge.Moved(1.5F, dsLog, &gauge);
    QCOMPARE(sink.arguments.at(0), QVariant(1.5F));
    QCOMPARE(sink.arguments.at(1).value<LwType>(), dsLog);
    QCOMPARE(sink.arguments.at(2).value<Gauge *>(), &gauge);
    QCOMPARE(sink.numbers, QList<qint32>({1, 4, 9}));
}

void EventDeliveryTest::bringsChangesBack()
{
    Gauge gauge;
    EventDelivery delivery(gauge, Gauge::members());
    RecordingSink sink([](qint32, QVariantList &arguments) {
        arguments[0] = true; // what hosts put into a flag
        arguments[1] = 12;
    });
    delivery.advise(&sink);
    qint16 cancel = 0;
    QString text = u"old"_s;
    Q_EMIT gauge.BeforeEdit(cancel, text);
    QCOMPARE(cancel, qint16(1));
    QCOMPARE(text, u"12"_s);
}

void EventDeliveryTest::leavesWhatDoesNotFit()
{
    Gauge gauge;
    EventDelivery delivery(gauge, Gauge::members());
    RecordingSink sink([](qint32, QVariantList &arguments) {
        arguments[0] = 70000;
        arguments[1] = QVariantList{1, 2};
    });
    RecordingSink greedy([](qint32, QVariantList &arguments) { arguments.clear(); });
    RecordingSink generous([](qint32, QVariantList &arguments) { arguments.append(1); });
    delivery.advise(&sink);
    delivery.advise(&greedy);
    delivery.advise(&generous);
    qint16 cancel = 3;
    QString text = u"old"_s;
    Q_EMIT gauge.BeforeEdit(cancel, text);
    QCOMPARE(cancel, qint16(3));
    QCOMPARE(text, u"old"_s);
}

void EventDeliveryTest::leavesWhatGoesInOnly()
{
    Gauge gauge;
    EventDelivery delivery(gauge, Gauge::members());
    RecordingSink changing([](qint32, QVariantList &arguments) {
        arguments = {QVariant(1), QVariant(1)};
    });
    RecordingSink last;
    delivery.advise(&changing);
    delivery.advise(&last);
    qint16 keyCode = 65;
    Q_EMIT gauge.KeyDown(keyCode, 2);
    QCOMPARE(last.arguments,
             QVariantList({QVariant::fromValue<qint16>(1), QVariant::fromValue<qint16>(2)}));
}

void EventDeliveryTest::keepsTheOrderOfConnecting()
{
    Gauge gauge;
    EventDelivery delivery(gauge, Gauge::members());
    RecordingSink a(append(u"a"_s));
    RecordingSink c(append(u"c"_s));
    delivery.advise(&a);
    connect(&gauge, &Gauge::BeforeEdit, this, [](qint16 &, QString &text) { text += u'b'; });
    delivery.advise(&c);
    connect(&gauge, &Gauge::BeforeEdit, this, [](qint16 &, QString &text) { text += u'd'; });
    qint16 cancel = 0;
    QString text;
    Q_EMIT gauge.BeforeEdit(cancel, text);
    QCOMPARE(text, u"abcd"_s);
    QCOMPARE(c.arguments.at(1).toString(), u"ab"_s);
}

void EventDeliveryTest::deliversOnceToASinkAdvisedTwice()
{
    Gauge gauge;
    EventDelivery delivery(gauge, Gauge::members());
    RecordingSink a(append(u"a"_s));
    RecordingSink b(append(u"b"_s));
    delivery.advise(&a);
    delivery.advise(&b);
    delivery.advise(&a);
    delivery.advise(nullptr);
    qint16 cancel = 0;
    QString text;
    Q_EMIT gauge.BeforeEdit(cancel, text);
    QCOMPARE(text, u"ab"_s);
}

void EventDeliveryTest::deliversNoMoreAfterUnadvise()
{
    Gauge gauge;
    EventDelivery delivery(gauge, Gauge::members());
    RecordingSink sink;
    RecordingSink other;
    delivery.advise(&sink);
    delivery.advise(&other);
    delivery.unadvise(&sink);
    delivery.unadvise(&sink);
    delivery.unadvise(nullptr);
    Q_EMIT gauge.Click();
    QCOMPARE(sink.numbers, QList<qint32>());
    QCOMPARE(other.numbers, QList<qint32>({1}));
    delivery.advise(&sink);
    Q_EMIT gauge.Click();
    QCOMPARE(sink.numbers, QList<qint32>({1}));
}

void EventDeliveryTest::forgetsASinkThatTheHostDestroys()
{
    Gauge gauge;
    EventDelivery delivery(gauge, Gauge::members());
    auto sink = std::make_unique<RecordingSink>();
    RecordingSink other;
    delivery.advise(sink.get());
    delivery.advise(&other);
    sink.reset();
    Q_EMIT gauge.Click();
    QCOMPARE(other.numbers, QList<qint32>({1}));
}

void EventDeliveryTest::survivesASinkThatUnadvisesItself()
{
    Gauge gauge;
    EventDelivery delivery(gauge, Gauge::members());
    RecordingSink *self = nullptr;
    RecordingSink sink([&](qint32, QVariantList &arguments) {
        delivery.unadvise(self);
        arguments[1] = u"changed"_s;
    });
    self = &sink;
    RecordingSink last;
    delivery.advise(&sink);
    delivery.advise(&last);
    qint16 cancel = 0;
    QString text;
    Q_EMIT gauge.BeforeEdit(cancel, text);
    Q_EMIT gauge.BeforeEdit(cancel, text);
    QCOMPARE(sink.numbers, QList<qint32>({2}));
    QCOMPARE(last.numbers, QList<qint32>({2, 2}));
    QCOMPARE(text, u"changed"_s);
}

void EventDeliveryTest::passesOverASinkUnadvisedDuringTheEvent()
{
    Gauge gauge;
    EventDelivery delivery(gauge, Gauge::members());
    RecordingSink second;
    RecordingSink first([&](qint32, QVariantList &) { delivery.unadvise(&second); });
    delivery.advise(&first);
    delivery.advise(&second);
    Q_EMIT gauge.Click();
    QCOMPARE(second.numbers, QList<qint32>());
}

void EventDeliveryTest::passesOverASinkAdvisedDuringTheEvent()
{
    Gauge gauge;
    EventDelivery delivery(gauge, Gauge::members());
    RecordingSink second;
    RecordingSink first([&](qint32, QVariantList &) { delivery.advise(&second); });
    delivery.advise(&first);
    Q_EMIT gauge.Click();
    QCOMPARE(second.numbers, QList<qint32>());
    Q_EMIT gauge.Click();
    QCOMPARE(second.numbers, QList<qint32>({1}));
}

void EventDeliveryTest::survivesASinkThatDestroysItself()
{
    Gauge gauge;
    EventDelivery delivery(gauge, Gauge::members());
    RecordingSink *sink = nullptr;
    sink = new RecordingSink([&](qint32, QVariantList &arguments) {
        delete sink;
        arguments[0] = 5;
    });
    RecordingSink last;
    delivery.advise(sink);
    delivery.advise(&last);
    qint16 cancel = 0;
    QString text;
    Q_EMIT gauge.BeforeEdit(cancel, text);
    QCOMPARE(cancel, qint16(5));
    QCOMPARE(last.arguments.constFirst().toInt(), 5);
}

void EventDeliveryTest::survivesASinkThatDestroysTheComponent()
{
    auto gauge = std::make_unique<Gauge>();
    auto delivery = std::make_unique<EventDelivery>(*gauge, Gauge::members());
    RecordingSink sink([&](qint32, QVariantList &arguments) {
        delivery.reset();
        gauge.reset();
        arguments[0] = 5;
    });
    RecordingSink last;
    delivery->advise(&sink);
    delivery->advise(&last);
    qint16 cancel = 0;
    QString text;
    Q_EMIT gauge->BeforeEdit(cancel, text);
    QCOMPARE(cancel, qint16(5));
    QCOMPARE(last.numbers, QList<qint32>());
}

void EventDeliveryTest::survivesNestedEvents()
{
    Gauge gauge;
    EventDelivery delivery(gauge, Gauge::members());
    qint16 inner = 0;
    RecordingSink sink([&](qint32 number, QVariantList &arguments) {
        if (number == 1) {
            QString text;
            Q_EMIT gauge.BeforeEdit(inner, text);
        } else {
            arguments[0] = 8;
        }
    });
    delivery.advise(&sink);
    Q_EMIT gauge.Click();
    QCOMPARE(sink.numbers, QList<qint32>({1, 2}));
    QCOMPARE(inner, qint16(8));
}

void EventDeliveryTest::keepsExceptionsFromTheRaiser()
{
    Gauge gauge;
    EventDelivery delivery(gauge, Gauge::members());
    RecordingSink throwing([](qint32, QVariantList &) { throw std::runtime_error("of the host"); });
    RecordingSink odd([](qint32, QVariantList &) { throw 42; });
    RecordingSink last;
    delivery.advise(&throwing);
    delivery.advise(&odd);
    delivery.advise(&last);
    QTest::ignoreMessage(QtWarningMsg, "An event handler failed: of the host");
    QTest::ignoreMessage(QtWarningMsg, "An event handler failed");
    Q_EMIT gauge.Click();
    QCOMPARE(last.numbers, QList<qint32>({1}));
}

// Receivers come and go in any order; a list of names tells who must hear.
void EventDeliveryTest::agreesWithAModel()
{
    const unsigned seed = randomSeed();
    std::mt19937 random(seed);
    Gauge gauge;
    EventDelivery delivery(gauge, Gauge::members());
    std::map<QChar, std::unique_ptr<RecordingSink>> sinks;
    QString model;
    for (int step = 0; step < 2000; ++step) {
        const QChar name(u'a' + static_cast<char16_t>(random() % 6));
        auto &sink = sinks[name];
        const auto what = random() % 4;
        if (what == 0 && sink) {
            delivery.unadvise(sink.get());
            model.remove(name);
        } else if (what == 1) {
            sink.reset();
            model.remove(name);
        } else {
            if (!sink)
                sink = std::make_unique<RecordingSink>(append(QString(name)));
            delivery.advise(sink.get());
            if (!model.contains(name))
                model.append(name);
        }
        qint16 cancel = 0;
        QString heard;
        Q_EMIT gauge.BeforeEdit(cancel, heard);
        QVERIFY2(heard == model,
                 qPrintable(u"seed %1, step %2: %3 heard, not %4"_s.arg(seed).arg(step).arg(
                     heard, model)));
    }
}

ORVT_TEST_WITHOUT_APPLICATION(EventDeliveryTest)
#include "EventDeliveryTest.moc"
