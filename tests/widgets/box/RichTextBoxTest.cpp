#include "base/ColouredText.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtTest/QSignalSpy>

#include <functional>
#include <vector>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class RichTextBoxTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void textComesOutAsItWentIn_data();
    void textComesOutAsItWentIn();
    void lineEndsComeOutAsCrLf_data();
    void lineEndsComeOutAsCrLf();
    void nulIsDropped();
    void settingTextPutsTheCaretAtTheStart();
    void settingTextTakesEveryFormatAway();
    void settingTheSelectionPutsTheCaretBehindIt();
    void positionsOutsideTheTextAreClamped();
    void positionsInsideAPairMoveBack();
    void settingTheStartSelectsNothing();
    void selectedTextCrossesLineEnds();
    void positionsAndLinesAgree();
    void changeIsRaisedWhenTheCaretRecoloursOnItsWay();
    void changeIsRaisedForTextOnly();
    void cursorsMadeWhileTheTextGoesLive_data();
    void cursorsMadeWhileTheTextGoesLive();
    void findSelectsTheMatch();
};

void RichTextBoxTest::textComesOutAsItWentIn_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("blanks") << u"  a   b  "_s;
    QTest::newRow("tabs") << u"\t\ta\t"_s;
    QTest::newRow("no-break space") << u"a\u00a0b"_s;
    QTest::newRow("line separator") << u"a\u2028b"_s;
    QTest::newRow("object replacement") << u"a\ufffcb\ufffc"_s;
    QTest::newRow("surrogate pair") << u"a\U0001F600b"_s;
    QTest::newRow("lone high surrogate") << u"a"_s + QChar(0xd83d) + u"b"_s;
    QTest::newRow("lone low surrogate") << u"a"_s + QChar(0xde00) + u"b"_s;
    QTest::newRow("low before high") << QString(QChar(0xde00)) + QChar(0xd83d);
    QTest::newRow("frame marks") << u"a\ufdd0\ufdd1\ufdd1b\ufdefc\ufdd0"_s;
    QTest::newRow("frame marks and lines") << u"\ufdd0\r\n\ufdef\ufdd1\r\n\ufdd1"_s;
    QTest::newRow("noncharacters") << u"\ufdef\ufffe\uffff\ufdd2"_s;
    QTest::newRow("controls") << u"\u0001\u0007\u000b\u000c\u001b\u007f\u0085"_s;
    QTest::newRow("soft hyphen, joiners, marks") << u"\u00ad\u200b\u200d\u200e\u200f\ufeff"_s;
    QTest::newRow("braces and backslash") << u"{\\rtf x}\\par"_s;
    QTest::newRow("empty lines") << u"\r\n\r\n"_s;
    QTest::newRow("one line end") << u"\r\n"_s;
}

void RichTextBoxTest::textComesOutAsItWentIn()
{
    QFETCH(QString, text);
    RichTextBox box;
    box.setText(text);
    QCOMPARE(box.Text(), text);
    QCOMPARE(box.TextLength(), text.size());
    QCOMPARE(box.textRange(0, box.TextLength()), text);

    box.setText(QString());
    box.setSelText(text);
    QCOMPARE(box.Text(), text);

    box.setText(u"xy"_s);
    box.setSelStart(1);
    box.setSelText(text);
    QCOMPARE(box.Text(), u"x"_s + text + u"y"_s);

    box.setColoured({text, {{text.size(), 0xff}}});
    QCOMPARE(box.Text(), text);
    box.setSelStart(0);
    box.setSelLength(box.TextLength());
    QCOMPARE(box.SelText(), text);
}

void RichTextBoxTest::lineEndsComeOutAsCrLf_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("LF") << u"a\nb"_s << u"a\r\nb"_s;
    QTest::newRow("CR") << u"a\rb"_s << u"a\r\nb"_s;
    QTest::newRow("CR LF") << u"a\r\nb"_s << u"a\r\nb"_s;
    QTest::newRow("LF CR") << u"a\n\rb"_s << u"a\r\n\r\nb"_s;
    QTest::newRow("paragraph separator") << u"a\u2029b"_s << u"a\r\nb"_s;
    QTest::newRow("CR CR LF") << u"\r\r\n"_s << u"\r\n\r\n"_s;
}

void RichTextBoxTest::lineEndsComeOutAsCrLf()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    RichTextBox box;
    box.setText(text);
    QCOMPARE(box.Text(), expected);
    box.setText(QString());
    box.setSelText(text);
    QCOMPARE(box.Text(), expected);
    box.setColoured({text, {{text.size(), 0xff}}});
    QCOMPARE(box.Text(), expected);
}

void RichTextBoxTest::nulIsDropped()
{
    RichTextBox box;
    box.setText(u"a"_s + QChar(u'\0') + u"b\r"_s + QChar(u'\0') + u"\nc"_s);
    QCOMPARE(box.Text(), u"ab\r\nc"_s);
}

void RichTextBoxTest::settingTextPutsTheCaretAtTheStart()
{
    RichTextBox box;
    box.setText(u"one\r\ntwo"_s);
    QCOMPARE(box.SelStart(), 0);
    QCOMPARE(box.SelLength(), 0);
    box.setSelStart(2);
    box.setSelLength(4);
    box.setText(u"three"_s);
    QCOMPARE(box.SelStart(), 0);
    QCOMPARE(box.SelLength(), 0);
}

void RichTextBoxTest::settingTextTakesEveryFormatAway()
{
    RichTextBox box;
    box.setColoured({u"red\r\n"_s, {{5, 0xff}}});
    box.setText(u"plain\r\ntext"_s);
    const ColouredText expected{u"plain\r\ntext"_s, {{11, ColouredText::automatic}}};
    QVERIFY(box.coloured(0, 99) == expected);
}

void RichTextBoxTest::settingTheSelectionPutsTheCaretBehindIt()
{
    RichTextBox box;
    box.setText(u"one\r\ntwo"_s);
    box.setSelStart(2);
    box.setSelLength(4);
    box.setSelText(u"X\r\nY"_s);
    QCOMPARE(box.Text(), u"onX\r\nYwo"_s);
    QCOMPARE(box.SelStart(), 6);
    QCOMPARE(box.SelLength(), 0);

    box.setSelStart(0);
    box.setSelLength(2);
    box.setSelColoured({u"ab\r\nc"_s, {{5, 0xff}}});
    QCOMPARE(box.Text(), u"ab\r\ncX\r\nYwo"_s);
    QCOMPARE(box.SelStart(), 5);
    QCOMPARE(box.SelLength(), 0);

    box.setSelLength(1);
    box.setSelText(QString());
    QCOMPARE(box.Text(), u"ab\r\nc\r\nYwo"_s);
    QCOMPARE(box.SelStart(), 5);
}

void RichTextBoxTest::positionsOutsideTheTextAreClamped()
{
    RichTextBox box;
    box.setText(u"one\r\ntwo"_s);
    box.setSelStart(-1);
    QCOMPARE(box.SelStart(), 0);
    box.setSelStart(100);
    QCOMPARE(box.SelStart(), 8);
    box.setSelLength(5);
    QCOMPARE(box.SelLength(), 0);
    box.setSelStart(2);
    box.setSelLength(std::numeric_limits<qint32>::max());
    QCOMPARE(box.SelLength(), 6);
    box.setSelLength(-3);
    QCOMPARE(box.SelLength(), 0);
    QCOMPARE(box.SelStart(), 2);
    box.setSelStart(std::numeric_limits<qint32>::min());
    QCOMPARE(box.SelStart(), 0);
    QCOMPARE(box.textRange(-5, 2), u"on"_s);
    QCOMPARE(box.textRange(5, 100), u"two"_s);
    QCOMPARE(box.textRange(100, 1), QString());
    QCOMPARE(box.GetLineFromChar(-1), 0);
    QCOMPARE(box.GetLineFromChar(1000), 1);
    QCOMPARE(box.lineText(-1), u"one"_s);
    QCOMPARE(box.lineText(7), u"two"_s);
    QCOMPARE(box.lineStart(7), 5);
}

void RichTextBoxTest::positionsInsideAPairMoveBack()
{
    RichTextBox box;
    box.setText(u"a\U0001F600b\r\nc"_s); // a, pair 1-2, b 3, CR 4, LF 5, c 6
    box.setSelStart(2);
    QCOMPARE(box.SelStart(), 1);
    box.setSelStart(5);
    QCOMPARE(box.SelStart(), 4);
    box.setSelLength(1);
    QCOMPARE(box.SelLength(), 0);
    box.setSelLength(2);
    QCOMPARE(box.SelLength(), 2);
    QCOMPARE(box.SelText(), u"\r\n"_s);
    box.setSelStart(0);
    box.setSelLength(2);
    QCOMPARE(box.SelText(), u"a"_s);
    box.setSelLength(3);
    QCOMPARE(box.SelText(), u"a\U0001F600"_s);
    QCOMPARE(box.GetLineFromChar(4), 0);
    QCOMPARE(box.GetLineFromChar(5), 0);
    QCOMPARE(box.GetLineFromChar(6), 1);

    // A pair that forms around the caret.
    box.setText(QString(QChar(0xde00)));
    box.setSelText(QString(QChar(0xd83d)));
    QCOMPARE(box.SelStart(), 0);
}

void RichTextBoxTest::settingTheStartSelectsNothing()
{
    RichTextBox box;
    box.setText(u"one two"_s);
    box.setSelStart(1);
    box.setSelLength(3);
    box.setSelStart(2);
    QCOMPARE(box.SelStart(), 2);
    QCOMPARE(box.SelLength(), 0);
}

void RichTextBoxTest::selectedTextCrossesLineEnds()
{
    RichTextBox box;
    box.setText(u"one\r\n\r\ntwo"_s);
    box.setSelStart(2);
    box.setSelLength(6);
    QCOMPARE(box.SelText(), u"e\r\n\r\nt"_s);
}

void RichTextBoxTest::positionsAndLinesAgree()
{
    RichTextBox box;
    const QStringList lines{u"one"_s, QString(), u"two \U0001F600"_s, u"x"_s, QString()};
    box.setText(lines.join(u"\r\n"_s));
    QCOMPARE(box.lineCount(), 5);
    qint32 start = 0;
    for (qint32 line = 0; line < 5; ++line) {
        QCOMPARE(box.lineText(line), lines.at(line));
        QCOMPARE(box.lineStart(line), start);
        const auto length = static_cast<qint32>(lines.at(line).size());
        for (qint32 i = 0; i <= length; ++i)
            QCOMPARE(box.GetLineFromChar(start + i), line);
        start += length + 2;
    }
}

void RichTextBoxTest::changeIsRaisedWhenTheCaretRecoloursOnItsWay()
{
    RichTextBox box;
    box.setText(u"one\r\ntwo"_s);
    connect(&box, &RichTextBox::cursorPositionChanged, &box, [&box] {
        box.recolour(0, {u"ONE"_s, {{3, 1}}});
    });
    QSignalSpy spy(&box, &RichTextBox::Change);
    box.setSelStart(5);
    QCOMPARE(spy.count(), 0);
    box.setText(u"one\r\ntwo"_s);
    box.setSelStart(5);
    spy.clear();
    box.setSelColoured({u"a\r\nb"_s, {{4, 1}}});
    QCOMPARE(spy.count(), 1);
}

void RichTextBoxTest::changeIsRaisedForTextOnly()
{
    RichTextBox box;
    QSignalSpy spy(&box, &RichTextBox::Change);
    box.setText(u"one"_s);
    QVERIFY(spy.count() > 0);
    spy.clear();
    box.setSelText(u"x"_s);
    QCOMPARE(spy.count(), 1);
    spy.clear();
    box.setSelColoured({u"ab"_s, {{1, 1}, {1, 2}}});
    QCOMPARE(spy.count(), 1);
    spy.clear();
    box.recolour(0, {u"X"_s, {{1, 0xff}}});
    QCOMPARE(box.Text(), u"Xabone"_s);
    box.setSelStart(0);
    box.setSelLength(2);
    box.setSelColor(0xff00);
    box.setFontBold(true);
    box.setBackColor(0);
    QCOMPARE(spy.count(), 0);
}

void RichTextBoxTest::cursorsMadeWhileTheTextGoesLive_data()
{
    using Set = std::function<void(RichTextBox &)>;
    QTest::addColumn<Set>("set");
    QTest::newRow("text") << Set([](RichTextBox &box) { box.setText(u"abc"_s); });
    QTest::newRow("RTF") << Set([](RichTextBox &box) { box.setTextRTF(u"{\\rtf1 abc}"_s); });
    QTest::newRow("colours") << Set([](RichTextBox &box) {
        box.setColoured({u"abc"_s, {{3, 255}}});
    });
}

// Whoever looks at the text whenever it changes keeps places in it.
void RichTextBoxTest::cursorsMadeWhileTheTextGoesLive()
{
    QFETCH(std::function<void(RichTextBox &)>, set);
    RichTextBox box;
    box.setText(u"one\r\ntwo"_s);
    std::vector<QTextCursor> made;
    int lines = box.document()->blockCount();
    connect(box.document(), &QTextDocument::blockCountChanged, &box,
            [&](int count) { lines = count; });
    connect(box.document(), &QTextDocument::contentsChanged, &box,
            [&] { made.emplace_back(box.document()); });
    set(box);
    QCOMPARE(lines, 1);
    QVERIFY(made.size() > 1);
    for (QTextCursor &cursor : made)
        cursor.setPosition(2);
    const std::vector<QTextCursor> places = made;
    QTextCursor(box.document()).insertText(u"xy"_s);
    for (const QTextCursor &cursor : places)
        QCOMPARE(cursor.position(), 4);
}

void RichTextBoxTest::findSelectsTheMatch()
{
    RichTextBox box;
    box.setText(u"one two\r\nTWO"_s);
    QCOMPARE(box.Find(u"two"_s), 4);
    QCOMPARE(box.SelStart(), 4);
    QCOMPARE(box.SelLength(), 3);
    QCOMPARE(box.Find(u"two"_s, 5), 9);
    QCOMPARE(box.SelStart(), 9);
    QCOMPARE(box.Find(u"absent"_s), -1);
    QCOMPARE(box.SelStart(), 9);
    QCOMPARE(box.SelLength(), 3);
    QCOMPARE(box.Find(u"one"_s, 0, -1, RichTextBox::FindNoHighlight), 0);
    QCOMPARE(box.SelStart(), 9);
    QCOMPARE(box.Find(u"two"_s, 5, -1, RichTextBox::FindMatchCase), -1);
}

ORVT_TEST(RichTextBoxTest)
#include "RichTextBoxTest.moc"
