// Colours and listed spelling while typing.

#include "editor/EditorHost.h"
#include "editor/rules/colouring/LineColouring.h"
#include "editor/rules/colouring/ThreadColouring.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QInputMethodEvent>

#include <functional>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

constexpr qint32 inputColour = 0x0000FF;
constexpr qint32 commentColour = 0x008000;
constexpr qint32 none = ColouredText::automatic;

} // namespace

class EditorTypingTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void aBlankFinishesTheWordBeforeIt()
    {
        EditorHost host;
        host.type(u"temp1"_s);
        QCOMPARE(host.marked(), u"temp1|"_s);
        QCOMPARE(host.colourAt(0), none);
        host.type(u" "_s);
        QCOMPARE(host.marked(), u"Temp1 |"_s);
        QCOMPARE(host.colourAt(0), inputColour);
    }

    void aClosingBracketFinishesTheWordBeforeIt()
    {
        EditorHost host;
        host.type(u"(temp1)"_s);
        QCOMPARE(host.marked(), u"(Temp1)|"_s);
        QCOMPARE(host.colourOf(u"Temp1"_s), inputColour);
        QCOMPARE(host.colourAt(0), none);
        QCOMPARE(host.colourAt(6), none);
    }

    void aWordThatFollowsStartsWithoutColour()
    {
        EditorHost host;
        host.type(u"temp1 x"_s);
        QCOMPARE(host.colourOf(u"x"_s), none);
    }

    void aWholeLineOfWords()
    {
        EditorHost host;
        host.type(u"if (temp1 > limit1) and x\n"_s);
        const QString line = u"IF (Temp1 > Limit1) AND x\r\n"_s;
        QCOMPARE(host.box().Text(), EditorHost::hasAllOfTheView() ? line + u"    "_s : line);
        QCOMPARE(host.colourOf(u"IF"_s), 0);
        QCOMPARE(host.colourOf(u"Temp1"_s), inputColour);
        QCOMPARE(host.colourOf(u"Limit1"_s), 0x000080);
        QCOMPARE(host.colourOf(u"x"_s), none);
    }

    void theLineLeftIsFinished_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Up") << int(Qt::Key_Up);
        QTest::newRow("Down") << int(Qt::Key_Down);
        QTest::newRow("Enter") << int(Qt::Key_Return);
        QTest::newRow("Page Up") << int(Qt::Key_PageUp);
        QTest::newRow("Page Down") << int(Qt::Key_PageDown);
        QTest::newRow("Home") << int(Qt::Key_Home);
        QTest::newRow("End") << int(Qt::Key_End);
    }
    void theLineLeftIsFinished()
    {
        QFETCH(const int, key);
        EditorHost host;
        host.setText(u"one\r\n|\r\nthree"_s);
        host.type(u"temp1"_s);
        QCOMPARE(host.colourOf(u"temp1"_s), none);
        host.key(key);
        QVERIFY2(host.box().Text().contains(u"Temp1"_s), qPrintable(host.box().Text()));
        QCOMPARE(host.colourOf(u"Temp1"_s), inputColour);
    }

    void aMousePressFinishesTheLineLeft()
    {
        EditorHost host;
        host.setText(u"|\r\nsecond"_s);
        host.type(u"temp1"_s);
        QTest::mouseClick(host.box().viewport(), Qt::LeftButton, {}, {5, 25});
        QCOMPARE(host.box().Text(), u"Temp1\r\nsecond"_s);
        QCOMPARE(host.box().GetLineFromChar(host.box().SelStart()), 1);
    }

    void anyWayOffTheLineFinishesIt()
    {
        EditorHost host;
        host.setText(u"one\r\n|"_s);
        host.type(u"temp1"_s);
        host.key(Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(host.box().Text(), u"one\r\nTemp1"_s);
        host.key(Qt::Key_End, Qt::ControlModifier);
        host.type(u" fan1"_s);
        host.after->setFocus();
        QCOMPARE(host.box().Text(), u"one\r\nTemp1 Fan1"_s);
    }

    void aLetterOverASelectionIsPlain_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("after");
        QTest::addColumn<qint32>("colour");
        QTest::newRow("all") << u"|IF Temp1\r\nREM x|"_s << u"x|"_s << none;
        QTest::newRow("a word") << u"IF |Temp1| > 2"_s << u"IF x| > 2"_s << none;
        QTest::newRow("the first letters") << u"IF |Tem|p1 > 2"_s << u"IF x|p1 > 2"_s << none;
        QTest::newRow("a comment") << u"|REM a|"_s << u"x|"_s << none;
        QTest::newRow("in a comment") << u"REM a |b| c"_s << u"REM a x| c"_s << commentColour;
        QTest::newRow("between comments")
            << u"REM a |b\r\nREM| c"_s << u"REM a x| c"_s << commentColour;
    }
    void aLetterOverASelectionIsPlain()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, after);
        QFETCH(const qint32, colour);
        EditorHost host;
        host.setText(text);
        const qint32 start = host.box().SelStart();
        const qint32 length = host.box().SelLength();
        host.list->setCodeTextRTF(host.list->GetColorText(host.box().Text()));
        host.box().setSelStart(start);
        host.box().setSelLength(length);
        host.type(u"x"_s);
        QCOMPARE(host.marked(), after);
        QCOMPARE(host.colourAt(start), colour);
        host.type(u"y"_s); // in the colour of the word that it is in
        QCOMPARE(host.colourAt(start + 1), colour);
    }

    void aSelectionThatGoesLeavesFinishedWords_data()
    {
        QTest::addColumn<EditorAct>("remove");
        QTest::newRow("RTextCut") << EditorAct([](EditorHost &host) { host.list->RTextCut(); });
        QTest::newRow("Ctrl+X") << EditorAct(
            [](EditorHost &host) { host.key('X', Qt::ControlModifier); });
        QTest::newRow("Delete") << EditorAct([](EditorHost &host) { host.key(Qt::Key_Delete); });
        QTest::newRow("Backspace")
            << EditorAct([](EditorHost &host) { host.key(Qt::Key_Backspace); });
    }
    void aSelectionThatGoesLeavesFinishedWords()
    {
        QFETCH(const EditorAct, remove);
        EditorHost host;
        host.setText(u"te|xx|mp1 > fan1"_s);
        remove(host);
        QCOMPARE(host.marked(), u"Te|mp1 > Fan1"_s);
        QCOMPARE(host.colourAt(0), inputColour);
        QCOMPARE(host.colourAt(4), inputColour);
        host.list->setCodeTextRTF(host.list->GetColorText(u"REM x\r\nIF"_s));
        host.box().setSelStart(0);
        host.box().setSelLength(7);
        remove(host);
        QCOMPARE(host.colourAt(0), 0); // a reserved word
        QVERIFY(host.box().Text() == u"IF"_s);
    }

    void cuttingNothingLeavesTheWordThatIsTyped()
    {
        EditorHost host;
        host.type(u"if"_s);
        host.list->RTextCut();
        QCOMPARE(host.marked(), u"if|"_s);
        host.key('X', Qt::ControlModifier);
        QCOMPARE(host.marked(), u"if|"_s);
    }

    void remMakesTheLineAComment()
    {
        EditorHost host;
        host.type(u"rem"_s);
        QCOMPARE(host.colourAt(0), none);
        host.type(u" if temp1"_s);
        QCOMPARE(host.box().Text(), u"rem if temp1"_s);
        for (qint32 i = 0; i < 12; ++i)
            QCOMPARE(host.colourAt(i), commentColour);
    }

    void aCommentThatIsNoneAnyMoreTakesItsColours()
    {
        EditorHost host;
        host.setText(u"|"_s);
        host.type(u"rem temp1\n"_s);
        host.key(Qt::Key_Home, Qt::ControlModifier);
        host.key(Qt::Key_Delete);
        host.key(Qt::Key_Down);
        QCOMPARE(host.box().Text(), u"em Temp1\r\n"_s);
        QCOMPARE(host.colourOf(u"Temp1"_s), inputColour);
        QCOMPARE(host.colourAt(0), none);
    }

    void enterInTheMiddleFinishesBothParts()
    {
        EditorHost host;
        host.setText(u"|"_s);
        host.type(u"temp1 fan1"_s);
        for (int i = 0; i < 4; ++i)
            host.key(Qt::Key_Left);
        host.key(Qt::Key_Return);
        QCOMPARE(host.colourOf(u"Temp1"_s), inputColour);
        host.key(Qt::Key_Up);
        QCOMPARE(host.box().Text(),
                 EditorHost::hasAllOfTheView() ? u"Temp1\r\nFan1"_s : u"Temp1 \r\nFan1"_s);
    }

    void blanksTabsAndBracketsStay()
    {
        EditorHost host;
        host.type(u"\t if  (temp1  )  \n"_s);
        QCOMPARE(host.box().Text(), EditorHost::hasAllOfTheView() ? u"\t IF  (Temp1  )\r\n\t     "_s
                                                                  : u"\t IF  (Temp1  )  \r\n\t "_s);
    }

    void onlyTheLineThatChangedIsTouched()
    {
        EditorHost host;
        host.setText(u"temp1\r\n|\r\ntemp2"_s);
        host.type(u"fan1 "_s);
        QCOMPARE(host.box().Text(), u"temp1\r\nFan1 \r\ntemp2"_s);
        QCOMPARE(host.colourAt(0), none);
    }

    void theCaretAndTheSelectionStay()
    {
        EditorHost host;
        host.setText(u"|"_s);
        host.type(u"x temp1 y"_s);
        host.key(Qt::Key_Left);
        host.key(Qt::Key_Left, Qt::ShiftModifier);
        host.box().setFocus();
        const QString marked = host.marked();
        host.after->setFocus(); // finishes the line
        QCOMPARE(host.marked(), QString(marked).replace(u"temp1"_s, u"Temp1"_s));
    }

    void colouringRaisesNoChange()
    {
        EditorHost host;
        host.type(u"temp1"_s);
        QSignalSpy change(&host.box(), &RichTextBox::Change);
        host.key(Qt::Key_Home);
        QCOMPARE(host.box().Text(), u"Temp1"_s);
        QCOMPARE(change.size(), 0);
        host.key(Qt::Key_End);
        host.type(u" "_s);
        QCOMPARE(change.size(), 1);
    }

    void typedBackslashesAndBracesAreKept()
    {
        EditorHost host;
        host.type(u"a\\b {if} if "_s);
        QCOMPARE(host.box().Text(), u"a\\b {if} IF "_s);
        QVERIFY(messages().isEmpty());
    }

    void everyFinishedLineHasTheColoursOfTheWholeText()
    {
        EditorHost host;
        const QString program = u"rem start\nif temp1 > 20 or (hour == 7)\n\tfan1 = limit1\n"
                                "else\nfan1 = average(temp1 , temp2 )\nendif\n x = nettemp\n"_s;
        for (const QChar c : program) {
            if (c == u'\n') {
                host.key(Qt::Key_Return);
                host.key(Qt::Key_Home, Qt::ShiftModifier);
                if (host.box().SelLength() > 0)
                    host.key(Qt::Key_Backspace); // the indent
            } else {
                QTest::keyClick(&host.box(), c.toLatin1());
            }
        }
        for (qint32 line = 0; line < host.box().lineCount(); ++line) {
            const QString text = host.box().lineText(line);
            const ColouredText expected =
                finishedLine(threadColouring(), text, threadPart<EditorState>().EditorSettings);
            QCOMPARE(text, expected.text);
            qsizetype at = 0;
            for (const ColouredText::Run &run : expected.runs) {
                for (qsizetype i = 0; i < run.length; ++i, ++at) {
                    if (text[at] != u' ' && text[at] != u'\t')
                        QCOMPARE(
                            host.colourAt(host.box().lineStart(line) + static_cast<qint32>(at)),
                            run.colour);
                }
            }
        }
    }

    void nothingIsColouredWhileAnInputMethodComposes()
    {
        EditorHost host;
        host.type(u"temp1"_s);
        QInputMethodEvent composing(u"x"_s, {});
        QApplication::sendEvent(&host.box(), &composing);
        QVERIFY(host.box().isComposing());
        host.after->setFocus();
        QCOMPARE(host.colourAt(0), none);
    }

    void committedCharactersAreTyped()
    {
        EditorHost host;
        host.type(u"temp"_s);
        QInputMethodEvent commit;
        commit.setCommitString(u"1"_s);
        QApplication::sendEvent(&host.box(), &commit);
        QInputMethodEvent blank;
        blank.setCommitString(u" "_s);
        QApplication::sendEvent(&host.box(), &blank);
        QCOMPARE(host.box().Text(), u"Temp1 "_s);
        QCOMPARE(host.ring().UndoNewest(), 1);
    }

    void committedTextWithABackslashIsRefused()
    {
        EditorHost host;
        host.setText(u"x|"_s);
        QInputMethodEvent commit;
        commit.setCommitString(u"a\\b"_s);
        QApplication::sendEvent(&host.box(), &commit);
        QCOMPARE(host.box().Text(), u"x"_s);
        QCOMPARE(messages().size(), 1);
    }
};

ORVT_TEST(EditorTypingTest)
#include "EditorTypingTest.moc"
