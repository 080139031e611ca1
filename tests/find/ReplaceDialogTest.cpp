// Replacing from the dialog, with its colours, its snapshot and its repaint.

#include "base/TextPiece.h"
#include "editor/rules/colouring/LineColouring.h"
#include "editor/rules/colouring/ThreadColouring.h"
#include "find/FindFixture.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/box/PlainCommands.h"
#include <ORVTListview/Error.h>

#include <QtGui/QPaintEvent>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

class PaintCount final : public QObject
{
public:
    explicit PaintCount(QWidget &painted) { painted.installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

class ReplaceDialogTest : public WidgetTest
{
    Q_OBJECT

private:
    // Shows the program in its colours, as hosts do.
    static void openColoured(FindHost &host, const QString &program)
    {
        host.list->setCodeText(program);
        host.list->Init_RichTextBox(host.settings);
        host.reopen(FindHost::Replace);
    }

    static void replaceAll(FindHost &host, const QString &wanted, const QString &by)
    {
        host.enter(wanted, by);
        host.replaceAll();
    }

    // Whether every word has the colour that colouring the whole text gives it.
    static bool isColouredThroughout(FindHost &host)
    {
        const QString text = host.box().Text();
        const ColouredText expected = finishedText(threadColouring(), text, host.settings);
        RichTextBox other;
        other.setColoured(expected);
        return host.box().coloured(0, host.box().TextLength()) ==
               other.coloured(0, other.TextLength());
    }

private Q_SLOTS:
    void replacesWhatIsSelectedAndFindsTheNext()
    {
        FindHost host;
        host.open(u"|x T1 t1 T1"_s, FindHost::Replace);
        host.enter(u"T1"_s, u"Valve"_s);
        host.replace(); // nothing is selected yet
        QCOMPARE(host.marked(), u"x |T1| t1 T1"_s);
        host.replace();
        QCOMPARE(host.marked(), u"x Valve |t1| T1"_s);
        QCOMPARE(host.status(), u"Found in Row: 1, Col: 9"_s);
        host.replace();
        host.replace();
        QCOMPARE(host.box().Text(), u"x Valve Valve Valve"_s);
        QCOMPARE(host.status(), u"Not found!"_s);
        QCOMPARE(host.box().SelLength(), 0);
    }

    void aSelectionIsReplacedWhateverItsLetterCase()
    {
        FindHost host;
        host.open(u"x |t1| y"_s, FindHost::Replace);
        host.enter(u"T1"_s, u"v"_s);
        host.click(host.option(1)); // Match Case does not count here
        host.replace();
        QCOMPARE(host.box().Text(), u"x v y"_s);
    }

    void aMatchDirectlyBehindAReplacementIsPassedOver()
    {
        FindHost host;
        host.open(u"|aa| a"_s, FindHost::Replace);
        host.box().setSelStart(0);
        host.box().setSelLength(1);
        host.enter(u"a"_s, u"b"_s);
        host.replace();
        QCOMPARE(host.marked(), u"ba |a|"_s);
    }

    void anotherSelectionIsLeftAlone()
    {
        FindHost host;
        host.open(u"|xy| a"_s, FindHost::Replace);
        host.enter(u"a"_s, u"b"_s);
        host.replace();
        QCOMPARE(host.marked(), u"xy |a|"_s);
        QCOMPARE(host.histories().replacements.texts(), QStringList({u"b"_s}));
        QCOMPARE(host.ring().UndoNewest(), 0);
    }

    void anEmptySearchTextReplacesNothing()
    {
        FindHost host;
        host.open(u"a |b| c"_s, FindHost::Replace);
        host.enter(QString(), u"x"_s);
        host.replace();
        QCOMPARE(host.marked(), u"a |b| c"_s);
        host.replaceAll();
        QCOMPARE(host.marked(), u"a |b c"_s); // the selection is taken away
        QCOMPARE(host.status(), QString());
        QCOMPARE(host.histories().replacements.texts(), QStringList());
    }

    void anEmptyReplacementIsNoEntry()
    {
        FindHost host;
        host.open(u"|T1| b T1"_s, FindHost::Replace);
        host.enter(u"T1"_s, QString());
        host.replace();
        QCOMPARE(host.marked(), u" b |T1|"_s);
        host.replaceAll();
        QCOMPARE(host.marked(), u" b |"_s);
        QCOMPARE(host.status(), u"1 replace(s)!"_s);
        QCOMPARE(host.histories().replacements.texts(), QStringList());
    }

    void replacesAll_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("wanted");
        QTest::addColumn<QString>("by");
        QTest::addColumn<QString>("result");
        QTest::addColumn<int>("count");
        QTest::newRow("touching") << u"aa"_s << u"a"_s << u"b"_s << u"ba"_s << 1;
        QTest::newRow("three") << u"a a|\r\na"_s << u"a"_s << u"b"_s << u"b b\r\nb"_s << 3;
        QTest::newRow("none") << u"x|y"_s << u"a"_s << u"b"_s << u"xy"_s << 0;
        QTest::newRow("longer") << u"a;a"_s << u"a"_s << u"bbb"_s << u"bbb;bbb"_s << 2;
        QTest::newRow("the text itself") << u"a;a"_s << u"a"_s << u"xax"_s << u"xax;xax"_s << 2;
        QTest::newRow("at the very end") << u"x a"_s << u"a"_s << u"aa"_s << u"x aa"_s << 1;
        QTest::newRow("everything") << u"abc"_s << u"abc"_s << QString() << QString() << 1;
        QTest::newRow("letter case") << u"T1 t1"_s << u"t1"_s << u"v"_s << u"v v"_s << 2;
        QTest::newRow("before a line end") << u"a\r\na"_s << u"a"_s << u"b"_s << u"b\r\nb"_s << 2;
    }
    void replacesAll()
    {
        QFETCH(const QString, program);
        QFETCH(const QString, wanted);
        QFETCH(const QString, by);
        QFETCH(const QString, result);
        QFETCH(const int, count);
        FindHost host;
        host.open(program, FindHost::Replace);
        replaceAll(host, wanted, by);
        QCOMPARE(host.box().Text(), result);
        QCOMPARE(host.status(), u"%1 replace(s)!"_s.arg(count));
        QCOMPARE(host.box().SelLength(), 0);
    }

    void replaceAllFollowsTheOptions()
    {
        FindHost host;
        host.open(u"T1 T1_A t1 xT1"_s, FindHost::Replace);
        host.click(host.option(0));
        host.click(host.option(1));
        replaceAll(host, u"T1"_s, u"v"_s);
        QCOMPARE(host.box().Text(), u"v T1_A t1 xT1"_s);
    }

    void replaceAllLeavesTheSearchHistory()
    {
        FindHost host;
        host.open(u"a"_s, FindHost::Replace);
        replaceAll(host, u"a"_s, u"b"_s);
        QCOMPARE(host.histories().searched.texts(), QStringList());
        QCOMPARE(host.entries(0), QStringList());
        QCOMPARE(host.entries(1), QStringList({u"b"_s}));
        QCOMPARE(host.combo(1).currentText(), u"b"_s);
    }

    void aReplacementIsColoured()
    {
        FindHost host;
        openColoured(host, u"x = 1"_s);
        replaceAll(host, u"x"_s, u"temp1"_s);
        QCOMPARE(host.box().Text(), u"Temp1 = 1"_s); // in listed spelling
        QCOMPARE(host.colourAt(0), host.settings.InputColor);
        QVERIFY(isColouredThroughout(host));
    }

    void bracketsAreSetOff()
    {
        FindHost host;
        openColoured(host, u"x y x"_s);
        replaceAll(host, u"x"_s, u"(fan1)"_s);
        QCOMPARE(host.box().Text(), u"( Fan1 ) y ( Fan1 )"_s);
        QCOMPARE(host.status(), u"2 replace(s)!"_s);
        QCOMPARE(host.colourOf(u"Fan1"_s), host.settings.OutputColor);
    }

    void theSearchGoesOnBehindWhatColouringMadeLonger()
    {
        FindHost host;
        host.open(u"|x|  x"_s, FindHost::Replace);
        host.enter(u"x"_s, u"(x"_s);
        host.replace();
        QCOMPARE(host.marked(), u"( x  |x|"_s);
    }

    void onACommentLineTheCommentsColourIsTaken()
    {
        FindHost host;
        openColoured(host, u"REM x (x\r\nx"_s);
        replaceAll(host, u"x"_s, u"(temp1"_s);
        QCOMPARE(host.box().Text(), u"REM (temp1 ((temp1\r\n( Temp1"_s);
        const ColouredText comment = host.box().coloured(0, 18);
        QCOMPARE(comment.runs.size(), 1);
        QCOMPARE(comment.runs[0].colour, host.settings.CommentColor);
        QVERIFY(isColouredThroughout(host));
    }

    void touchedWordsTakeTheirNewColours_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("wanted");
        QTest::addColumn<QString>("by");
        QTest::addColumn<QString>("result");
        QTest::newRow("becomes a name") << u"Tempx y"_s << u"x"_s << u"1"_s << u"Temp1 y"_s;
        QTest::newRow("ceases to be one") << u"Temp1 y"_s << u"1"_s << u"9"_s << u"Temp9 y"_s;
        QTest::newRow("words join") << u"Temp 1 y"_s << u" 1"_s << u"1"_s << u"Temp1 y"_s;
        QTest::newRow("a word is cut") << u"Temp1xFan1"_s << u"x"_s << u" "_s << u"Temp1 Fan1"_s;
        QTest::newRow("nothing is left between")
            << u"temp-1 y"_s << u"-"_s << QString() << u"Temp1 y"_s;
        QTest::newRow("a line becomes a comment")
            << u"x Temp1 IF"_s << u"x"_s << u"REM"_s << u"REM Temp1 IF"_s;
        QTest::newRow("a comment ceases to be one")
            << u"REM Temp1 IF"_s << u"REM"_s << u"x"_s << u"x Temp1 IF"_s;
        QTest::newRow("by its blank")
            << u"REM Temp1 Fan1"_s << u"M "_s << u"M"_s << u"REMTemp1 Fan1"_s;
    }
    void touchedWordsTakeTheirNewColours()
    {
        QFETCH(const QString, program);
        QFETCH(const QString, wanted);
        QFETCH(const QString, by);
        QFETCH(const QString, result);
        FindHost host;
        openColoured(host, program);
        host.combo(0).setEditText(wanted);
        host.combo(1).setEditText(by);
        host.replaceAll();
        QCOMPARE(host.box().Text(), result);
        QVERIFY(isColouredThroughout(host));
    }

    void whatIsNotTouchedStaysAsItIs()
    {
        FindHost host;
        host.open(u"if x temp1"_s, FindHost::Replace); // without colours
        replaceAll(host, u"x"_s, u"fan1"_s);
        QCOMPARE(host.box().Text(), u"if Fan1 temp1"_s);
        QCOMPARE(host.colourAt(0), ColouredText::automatic);
        QCOMPARE(host.colourAt(4), host.settings.OutputColor);
        QCOMPARE(host.colourAt(9), ColouredText::automatic);
    }

    void charactersOfRtfGoInAsTheyAre()
    {
        FindHost host;
        openColoured(host, u"x y x"_s);
        replaceAll(host, u"x"_s, u"a\\b{c}"_s);
        QCOMPARE(host.box().Text(), u"a\\b{c} y a\\b{c}"_s);
        QCOMPARE(messages().size(), 0);
    }

    void replaceAllIsOneActionForUndo()
    {
        FindHost host;
        openColoured(host, u"a;a;a"_s);
        host.list->setCodeText(u"a;a;a"_s);
        const qint16 before = host.ring().UndoNewest();
        replaceAll(host, u"a"_s, u"b"_s);
        QCOMPARE(host.ring().UndoNewest(), before + 1);
        host.box().setFocus();
        QString errMsg;
        host.list->Undo(errMsg);
        QCOMPARE(host.box().Text(), u"a;a;a"_s);
        QCOMPARE(host.histories().replacements.texts(), QStringList({u"b"_s}));
        host.list->Redo(errMsg);
        host.list->Redo(errMsg);
        QCOMPARE(host.box().Text(), u"b;b;b"_s);
        QCOMPARE(host.histories().replacements.texts(), QStringList({u"b"_s}));
        QCOMPARE(host.histories().searched.texts(), QStringList());
    }

    void whatReplacesNothingTakesNoSnapshot()
    {
        FindHost host;
        host.open(u"x"_s, FindHost::Replace);
        replaceAll(host, u"a"_s, u"b"_s);
        QCOMPARE(host.ring().UndoNewest(), 0);
    }

    void replaceCanBeUndone()
    {
        FindHost host;
        host.open(u"|a| b"_s, FindHost::Replace);
        host.enter(u"a"_s, u"xyz"_s);
        host.replace();
        QCOMPARE(host.box().Text(), u"xyz b"_s);
        QString errMsg;
        host.list->Undo(errMsg);
        QCOMPARE(host.box().Text(), u"a b"_s);
    }

    void replaceAllPaintsOnceAndChangesOnceUnderTheWaitCursor()
    {
        FindHost host;
        QString program;
        for (int i = 0; i < 500; ++i)
            program += u"a line with a word\r\n"_s;
        host.open(program, FindHost::Replace);
        host.enter(u"a"_s, u"fan1"_s);
        int changes = 0;
        Qt::CursorShape shape = Qt::ArrowCursor;
        connect(&host.box(), &RichTextBox::Change, this, [&] {
            ++changes;
            shape = QGuiApplication::overrideCursor() ? QGuiApplication::overrideCursor()->shape()
                                                      : Qt::ArrowCursor;
        });
        QApplication::processEvents();
        PaintCount paints(*host.box().viewport());
        host.replaceAll();
        QApplication::processEvents();
        QCOMPARE(paints.count, 1);
        QCOMPARE(changes, 1);
        QCOMPARE(shape, Qt::WaitCursor);
        QVERIFY(!QGuiApplication::overrideCursor());
        QCOMPARE(host.status(), u"1000 replace(s)!"_s);
    }

    void aProgramThatCannotBeChangedIsSearchedOnly()
    {
        FindHost host;
        host.box().setReadOnly(true);
        host.open(u"|x a"_s);
        QVERIFY(host.button(2).isEnabled()); // which only shows the fields
        host.replace();
        QVERIFY(!host.button(2).isEnabled());
        QVERIFY(!host.button(3).isEnabled());
        host.enter(u"a"_s, u"b"_s);
        host.findNext();
        QCOMPARE(host.marked(), u"x |a|"_s);
        host.box().setReadOnly(false);
        QVERIFY(host.button(2).isEnabled() && host.button(3).isEnabled());
        host.box().setReadOnly(true);
        QVERIFY(!host.button(2).isEnabled() && !host.button(3).isEnabled());
    }

    void anEmptyWordListIsReportedAndReplacingGoesOn()
    {
        ORVListView bare;
        bare.setListviewType(dsCode);
        bare.setCodeText(u"a b a"_s);
        QString errMsg;
        bare.ReplaceRichTextBox(u"a"_s, u"c"_s, errMsg, true);
        QCOMPARE(bare.CodeText(), u"c b c"_s);
        QVERIFY(!messages().isEmpty());
        QCOMPARE(messages()[0].text, u"List not found!"_s);
        QCOMPARE(errMsg, QString());
    }

    void aFailureIsShownAndTheDialogStays()
    {
        FindHost host;
        host.open(u"a"_s, FindHost::Replace);
        host.enter(u"a"_s, u"b"_s);
        class Failing final : public PlainCommands
        {
        public:
            using PlainCommands::PlainCommands;
            void replace(const QList<TextPiece> &, const QString &) override
            {
                throw Error(InvalidCall, u"Failing.replace"_s, u"out of order"_s);
            }
        };
        host.box().setCommands(std::make_unique<Failing>(host.box()));
        host.replaceAll();
        QCOMPARE(messages().size(), 1);
        QCOMPARE(messages()[0].icon, Message::Icon::Exclamation);
        QCOMPARE(messages()[0].title, u"Find - Replace"_s);
        QCOMPARE(messages()[0].text, u"out of order"_s);
        QVERIFY(host.dialog().isVisible());
        QVERIFY(!QGuiApplication::overrideCursor());
    }
};

ORVT_TEST(ReplaceDialogTest)
#include "ReplaceDialogTest.moc"
