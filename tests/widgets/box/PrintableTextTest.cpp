// A text that can be printed never becomes an empty document, whichever way it comes in.

#include "base/ColouredText.h"
#include "rtf/RtfReader.h"
#include "rtf/RtfWriter.h"
#include "support/RandomText.h"
#include "support/Shrunk.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/box/ShownBoxTest.h"

#include <QtCore/QMimeData>

#include <algorithm>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

using Letters = std::vector<QChar>;
using Way = void (*)(OpenBox &box, const QString &text);

QString textOf(const Letters &letters)
{
    return QString(letters.data(), static_cast<qsizetype>(letters.size()));
}

// Printable, of what formats trip over; in scripts for which there surely is a font.
Letters someLetters(RandomText &random)
{
    static const QString markup = u"{}\\\\'*;rtfuc0d123 -"_s;
    Letters letters;
    for (int i = 1 + random.number(30); i > 0; --i) {
        QString text = random.text(1);
        if (random.number(3) == 0)
            text = markup.at(random.number(static_cast<int>(markup.size())));
        const QChar letter = text.isEmpty() ? QChar() : text.front();
        if (letter.isPrint() && letter.script() <= QChar::Script_Cyrillic)
            letters.push_back(letter);
    }
    return letters;
}

// What a document writes for it.
QString escaped(const QString &text)
{
    QString rtf = u"{\\rtf1\\ansi "_s;
    for (const QChar letter : text) {
        if (letter == u'\\' || letter == u'{' || letter == u'}')
            rtf += u'\\';
        rtf += letter;
    }
    return rtf + u'}';
}

QString written(const QString &text)
{
    RtfWriter writer({});
    writer.text(text, {});
    return writer.finish();
}

struct NamedWay
{
    const char *name;
    Way show;
};

const NamedWay ways[] = {
    {"as text", [](OpenBox &box, const QString &text) { box.setText(text); }},
    {"as the selection", [](OpenBox &box, const QString &text) { box.setSelText(text); }},
    {"as what may be RTF",
     [](OpenBox &box, const QString &text) { box.setTextRTF(isRtf(text) ? u' ' + text : text); }},
    {"as a document", [](OpenBox &box, const QString &text) { box.setTextRTF(escaped(text)); }},
    {"as the writer writes it",
     [](OpenBox &box, const QString &text) { box.setTextRTF(written(text)); }},
    {"in colours",
     [](OpenBox &box, const QString &text) {
         box.setColoured({text, {{text.size(), 0xff}}});
     }},
    {"as a drop",
     [](OpenBox &box, const QString &text) {
         QMimeData data;
         data.setText(text);
         box.insertFromMimeData(&data);
     }},
};

} // namespace

class PrintableTextTest : public ShownBoxTest
{
    Q_OBJECT

private Q_SLOTS:
    void isNeverLost_data();
    void isNeverLost();
};

void PrintableTextTest::isNeverLost_data()
{
    QTest::addColumn<Way>("show");
    for (const NamedWay &way : ways)
        QTest::newRow(way.name) << way.show;
}

void PrintableTextTest::isNeverLost()
{
    QFETCH(const Way, show);
    RandomText random;
    OpenBox box;
    const auto isLost = [&](const Letters &letters) {
        box.setText({});
        if (!letters.empty())
            show(box, textOf(letters));
        return !letters.empty() && box.Text().isEmpty();
    };
    for (int i = randomSteps(10'000); i > 0; --i) {
        const Letters letters = someLetters(random);
        if (isLost(letters))
            QFAIL(qPrintable(textOf(shrunk(letters, isLost))));
    }
}

ORVT_TEST(PrintableTextTest)
#include "PrintableTextTest.moc"
