#include "base/ColouredText.h"
#include "support/RandomSeed.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QTextDocument>
#include <QtTest/QSignalSpy>

#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class RtfInBoxTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void theSampleHasItsSettingsOnTheSecondLine();
    void coloursAndTextComeThrough();
    void aLineEndBeforeTheEndIsKept();
    void theCaretStandsBehindWhatWasInserted();
    void theRestOfTheTextStays();
    void whatIsNoRtfIsPlainText_data();
    void whatIsNoRtfIsPlainText();
    void outAndInAgainIsTheSame_data();
    void outAndInAgainIsTheSame();
    void randomTextSurvivesTheWayThroughRtf();
    void theBoxesFontIsNotStated();
    void anotherFontIsStatedAndKept();
    void textFollowsTheBoxesFont();
    void linesEndWithoutAColour();
    void aBrokenDocumentGivesWhatItHad();
    void pendingColoursAreDropped();
    void furtherFontsAreTheBoxes();
    void fontsCountAnewInAnEmptyBox_data();
    void fontsCountAnewInAnEmptyBox();
    void manySoftHyphensAreNotKerned();
};

namespace {

QString colourTable()
{
    return u"{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}}\r\n"
           "{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green128\\blue0;}\r\n"
           "\\viewkind4\\uc1\\pard "_s;
}

ColouredText all(const RichTextBox &box)
{
    return box.coloured(0, box.TextLength());
}

// As many fonts as a box takes, each name in eight sizes.
constexpr int fontCount = 512;

// A letter in each of the fonts from `first` on, all bold and red.
QString lettersInFonts(int first, int count)
{
    const auto name = [](int font) { return font / 8; };
    QString table, letters;
    for (int font = first; font < first + count; ++font) {
        if (font == first || font % 8 == 0)
            table += u"{\\f%1 Font %1;}"_s.arg(name(font));
        letters += u"\\f%1\\fs%2 a"_s.arg(name(font)).arg(40 + font % 8);
    }
    return u"{\\rtf1{\\fonttbl%1}{\\colortbl ;\\red255\\green0\\blue0;}\\b\\cf1 %2}"_s.arg(table,
                                                                                           letters);
}

QTextCharFormat formatOfLetter(const RichTextBox &box, int index)
{
    QTextCursor cursor(box.document());
    cursor.setPosition(index + 1);
    return cursor.charFormat();
}

} // namespace

void RtfInBoxTest::theSampleHasItsSettingsOnTheSecondLine()
{
    RichTextBox box;
    box.setFontName(u"Arial"_s);
    box.setFontSize(8.5F);
    box.setFontBold(true);
    box.setText({});
    box.setSelText(u"#GetInfo#\r\n#Another word"_s);
    box.setSelStart(0);
    box.setSelLength(box.TextLength());
    const QStringList lines = box.SelRTF().split(u"\r\n"_s);
    QVERIFY(lines.size() >= 3);
    QVERIFY(lines.at(0).startsWith(u"{\\rtf1"_s));
    QVERIFY(lines.at(0).contains(u"Arial"_s));
    QVERIFY(!lines.at(0).contains(u'#'));
    const qsizetype mark = lines.at(1).indexOf(u'#');
    QVERIFY(mark > 0);
    const QString settings = lines.at(1).first(mark);
    QVERIFY2(settings.contains(u"\\fs17"_s), qPrintable(settings));
    QVERIFY2(settings.contains(u"\\b"_s), qPrintable(settings));
    QVERIFY(lines.at(1).sliced(mark).startsWith(u"#GetInfo#"_s));

    // With that head, coloured text shows in the box's font and states none.
    box.setTextRTF(lines.at(0) + u"\r\n{\\colortbl ;\\red255\\green0\\blue0;}\r\n"_s + settings +
                   u"\\cf1 IF \\cf0 x}"_s);
    QCOMPARE(box.Text(), u"IF x"_s);
    QVERIFY(all(box) == (ColouredText{u"IF x"_s, {{3, 0xff}, {1, -1}}}));
    QTextCursor cursor(box.document());
    cursor.setPosition(4);
    QVERIFY(cursor.charFormat().properties().isEmpty());
}

void RtfInBoxTest::coloursAndTextComeThrough()
{
    RichTextBox box;
    box.setTextRTF(colourTable() + u"\\cf1 IF \\cf0 ( \\cf2 x\\cf0  )\r\n\\par \\cf2 REM a}"_s);
    QCOMPARE(box.Text(), u"IF ( x )\r\nREM a"_s);
    const ColouredText expected{u"IF ( x )\r\nREM a"_s,
                                {{3, 0xff}, {2, -1}, {1, 0x8000}, {4, -1}, {5, 0x8000}}};
    QVERIFY(all(box) == expected);
}

void RtfInBoxTest::aLineEndBeforeTheEndIsKept()
{
    RichTextBox box;
    box.setTextRTF(colourTable() + u"\\cf0 A\r\n\\par }"_s);
    QCOMPARE(box.Text(), u"A\r\n"_s);
    box.setTextRTF(box.TextRTF());
    QCOMPARE(box.Text(), u"A\r\n"_s);
}

void RtfInBoxTest::theCaretStandsBehindWhatWasInserted()
{
    RichTextBox box;
    box.setTextRTF(colourTable() + u"one\\par two}"_s);
    QCOMPARE(box.SelStart(), 8);
    QCOMPARE(box.SelLength(), 0);
    box.setSelStart(1);
    box.setSelLength(1);
    box.setSelRTF(colourTable() + u"\\cf1 X\\par Y}"_s);
    QCOMPARE(box.Text(), u"oX\r\nYe\r\ntwo"_s);
    QCOMPARE(box.SelStart(), 5);
    QCOMPARE(box.SelLength(), 0);
}

void RtfInBoxTest::theRestOfTheTextStays()
{
    RichTextBox box;
    box.setColoured({u"abcdef"_s, {{3, 0x11}, {3, 0x22}}});
    box.setSelStart(2);
    box.setSelLength(2);
    box.setSelRTF(colourTable() + u"\\cf1 X}"_s);
    QVERIFY(all(box) == (ColouredText{u"abXef"_s, {{2, 0x11}, {1, 0xff}, {2, 0x22}}}));
}

void RtfInBoxTest::whatIsNoRtfIsPlainText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("plain") << u"one\ntwo"_s << u"one\r\ntwo"_s;
    QTest::newRow("a brace") << u"{\\rt"_s << u"{\\rt"_s;
    QTest::newRow("a blank before") << u" {\\rtf1 x}"_s << u" {\\rtf1 x}"_s;
    QTest::newRow("RTF") << u"{\\rtf1 x}"_s << u"x"_s;
    QTest::newRow("RTF, other case") << u"{\\RTF1 x}"_s << u"x"_s;
}

void RtfInBoxTest::whatIsNoRtfIsPlainText()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    RichTextBox box;
    box.setTextRTF(text);
    QCOMPARE(box.Text(), expected);
    QCOMPARE(box.SelStart(), expected.size());
    box.setText(u"ab"_s);
    box.setSelStart(1);
    box.setSelRTF(text);
    QCOMPARE(box.Text(), u"a"_s + expected + u"b"_s);
    QCOMPARE(box.SelStart(), 1 + expected.size());
}

void RtfInBoxTest::outAndInAgainIsTheSame_data()
{
    QTest::addColumn<QString>("rtf");
    QTest::newRow("colours") << colourTable() + u"\\cf1 IF \\cf0 x\\par\\par\\cf2 REM}"_s;
    QTest::newRow("styles") << colourTable() +
                                   u"\\b a\\b0\\i b\\i0\\ul c\\ulnone\\strike d\\strike0 e}"_s;
    QTest::newRow("fonts")
        << u"{\\rtf1{\\fonttbl{\\f0 Courier;}{\\f1 Times;}}\\f1\\fs40 a\\f0\\fs20 b}"_s;
    QTest::newRow("highlight") << colourTable() + u"\\highlight2 a\\highlight0 b}"_s;
    QTest::newRow("escapes") << colourTable() + u"\\{\\}\\\\\\tab\\~\\u8232?\\u-10179?\\u-8704?}"_s;
    QTest::newRow("frame marks") << colourTable() + u"\\cf1\\u-560?\\u-559?\\u-529?x}"_s;
    QTest::newRow("empty") << colourTable() + u"}"_s;
}

void RtfInBoxTest::outAndInAgainIsTheSame()
{
    QFETCH(QString, rtf);
    RichTextBox box;
    box.setTextRTF(rtf);
    const QString out = box.TextRTF();
    RichTextBox other;
    other.setTextRTF(out);
    QCOMPARE(other.Text(), box.Text());
    QVERIFY(all(other) == all(box));
    QCOMPARE(other.TextRTF(), out);
    box.setSelStart(0);
    box.setSelLength(box.TextLength());
    QCOMPARE(box.SelRTF(), out);
}

void RtfInBoxTest::randomTextSurvivesTheWayThroughRtf()
{
    const unsigned seed = randomSeed(7);
    std::mt19937 random(seed);
    static const QStringList pieces{u"a"_s,
                                    u" "_s,
                                    u"\t"_s,
                                    u"\r\n"_s,
                                    u"{"_s,
                                    u"}"_s,
                                    u"\\"_s,
                                    u"\u00a0"_s,
                                    u"\u2028"_s,
                                    u"\ufffc"_s,
                                    u"\ufdd0"_s,
                                    u"-"_s,
                                    u"\u20ac"_s,
                                    u"\U0001F600"_s,
                                    u"\u00e4"_s,
                                    u"7"_s,
                                    QString(QChar(0xd83d)),
                                    u"\u0007"_s};
    for (int round = 0; round < 300; ++round) {
        ColouredText text;
        for (auto i = random() % 40; i > 0; --i) {
            const QString piece = pieces.at(qsizetype(random() % unsigned(pieces.size())));
            text.text += piece;
            text.runs.append({piece.size(), qint32(random() % 4) - 1});
        }
        RichTextBox box;
        box.setColoured(text);
        RichTextBox other;
        other.setTextRTF(box.TextRTF());
        QVERIFY2(other.Text() == text.text,
                 qPrintable(u"seed %1, round %2"_s.arg(seed).arg(round)));
        QVERIFY2(all(other) == all(box), qPrintable(u"seed %1, round %2"_s.arg(seed).arg(round)));
    }
}

void RtfInBoxTest::theBoxesFontIsNotStated()
{
    RichTextBox box;
    box.setFontName(u"Arial"_s);
    box.setFontSize(8.5F);
    box.setFontBold(true);
    box.setTextRTF(u"{\\rtf1{\\fonttbl{\\f0 ARIAL;}}\\f0\\fs17\\b a\\par b}"_s);
    QTextCursor cursor(box.document());
    for (const int place : {1, 3}) {
        cursor.setPosition(place);
        QVERIFY(cursor.charFormat().properties().isEmpty());
    }
}

void RtfInBoxTest::anotherFontIsStatedAndKept()
{
    RichTextBox box;
    box.setFontName(u"Arial"_s);
    box.setFontSize(8);
    box.setTextRTF(u"{\\rtf1{\\fonttbl{\\f0 Courier;}}\\f0\\fs40\\i a}"_s);
    QTextCursor cursor(box.document());
    cursor.setPosition(1);
    const QFont font = cursor.charFormat().font();
    QCOMPARE(font.family(), u"Courier"_s);
    QCOMPARE(font.pointSizeF(), 20.0);
    QVERIFY(font.italic());
    QVERIFY(!font.bold());
    box.setFontName(u"Times"_s);
    QCOMPARE(cursor.charFormat().font().family(), u"Courier"_s);
}

void RtfInBoxTest::textFollowsTheBoxesFont()
{
    RichTextBox box;
    box.setText(u"a"_s);
    box.setFontName(u"Times"_s);
    box.setFontSize(20);
    box.setFontItalic(true);
    box.setFontUnderline(true);
    box.setFontStrikethrough(true);
    const QString rtf = box.TextRTF();
    QVERIFY(rtf.section(u"\r\n"_s, 0, 0).contains(u"Times"_s));
    const QString body = rtf.section(u"\r\n"_s, 1);
    for (const QString &word : {u"\\fs40"_s, u"\\i"_s, u"\\ul"_s, u"\\strike"_s})
        QVERIFY2(body.contains(word), qPrintable(body));
    QVERIFY2(!body.contains(u"\\b"_s), qPrintable(body));
}

void RtfInBoxTest::linesEndWithoutAColour()
{
    RichTextBox box;
    box.setTextRTF(colourTable() + u"\\cf1 IF\\par }"_s);
    QCOMPARE(box.SelStart(), 4);
    QCOMPARE(box.SelColor(), 0);
    QTest::keyClicks(&box, u"x"_s);
    QVERIFY(all(box) == (ColouredText{u"IF\r\nx"_s, {{4, 0xff}, {1, -1}}}));
}

void RtfInBoxTest::aBrokenDocumentGivesWhatItHad()
{
    RichTextBox box;
    box.setTextRTF(u"{\\rtf1 one\\par tw"_s);
    QCOMPARE(box.Text(), u"one\r\ntw"_s);
    box.setTextRTF(u"{\\rtf"_s);
    QCOMPARE(box.Text(), QString());
    QCOMPARE(box.SelStart(), 0);
}

void RtfInBoxTest::pendingColoursAreDropped()
{
    RichTextBox box;
    box.setText(u"ab"_s);
    box.setSelColor(0xff);
    box.setTextRTF(box.TextRTF());
    QTest::keyClicks(&box, u"c"_s);
    QVERIFY(all(box) == (ColouredText{u"abc"_s, {{3, -1}}}));
    box.setSelColor(0xff);
    box.setText(u"ab"_s);
    QTest::keyClicks(&box, u"c"_s);
    QVERIFY(all(box) == (ColouredText{u"cab"_s, {{3, -1}}}));
}

void RtfInBoxTest::furtherFontsAreTheBoxes()
{
    RichTextBox box;
    box.setTextRTF(lettersInFonts(0, fontCount + 20));
    QCOMPARE(box.TextLength(), fontCount + 20);
    QVERIFY(all(box) == (ColouredText{QString(fontCount + 20, u'a'), {{fontCount + 20, 0xff}}}));
    for (int font = 0; font < fontCount + 20; ++font) {
        const QTextCharFormat format = formatOfLetter(box, font);
        const bool isKept = font < fontCount;
        QCOMPARE(format.hasProperty(QTextFormat::FontFamilies), isKept);
        QCOMPARE(format.hasProperty(QTextFormat::FontPointSize), isKept);
        QCOMPARE(format.fontWeight(), int(QFont::Bold));
    }

    // Those that are there can be put in again, others cannot.
    box.setSelStart(0);
    box.setSelRTF(lettersInFonts(fontCount - 1, 2));
    QCOMPARE(formatOfLetter(box, 0).fontPointSize(), 23.5);
    QVERIFY(!formatOfLetter(box, 1).hasProperty(QTextFormat::FontPointSize));
}

void RtfInBoxTest::fontsCountAnewInAnEmptyBox_data()
{
    QTest::addColumn<bool>("selected");
    QTest::newRow("the whole text set") << false;
    QTest::newRow("the whole text selected") << true;
}

void RtfInBoxTest::fontsCountAnewInAnEmptyBox()
{
    QFETCH(bool, selected);
    RichTextBox box;
    for (int round = 0; round < 3; ++round) {
        const QString rtf = lettersInFonts(round * fontCount, fontCount);
        if (selected) {
            box.selectAll();
            box.setSelRTF(rtf);
        } else {
            box.setTextRTF(rtf);
        }
        for (int font = 0; font < fontCount; ++font)
            QVERIFY(formatOfLetter(box, font).hasProperty(QTextFormat::FontFamilies));
    }
}

// Fonts that kern them look behind each for all that follow.
void RtfInBoxTest::manySoftHyphensAreNotKerned()
{
    const QString few = u"A"_s + QString(31, QChar::SoftHyphen) + u"V"_s;
    const QString many = u"A"_s + QString(1000, QChar::SoftHyphen) + u"V"_s;
    RichTextBox box;
    const auto isKerned = [&](int index) { return formatOfLetter(box, index).font().kerning(); };
    const auto check = [&] {
        QCOMPARE(box.Text(), few + many);
        for (const int index : {0, 1, 31, 32, 33, 33 + 1001})
            QVERIFY2(isKerned(index), qPrintable(QString::number(index)));
        for (const int index : {34, 500, 33 + 1000})
            QVERIFY2(!isKerned(index), qPrintable(QString::number(index)));
    };
    box.setText(few + many);
    check();
    box.setTextRTF(box.TextRTF());
    check();
    box.setColoured({few + many, {{600, 0xff}}});
    check();
    QVERIFY(all(box) == (ColouredText{few + many, {{600, 0xff}, {many.size() - 567, -1}}}));
    box.setSelStart(500);
    QTest::keyClicks(&box, u"x"_s);
    QVERIFY(isKerned(500));
}

ORVT_TEST(RtfInBoxTest)
#include "RtfInBoxTest.moc"
