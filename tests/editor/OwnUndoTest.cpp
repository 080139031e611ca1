// An editor with a ring of its own beside one that uses the thread's.

#include "editor/EditorHost.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QTextDocument>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QScrollBar>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class OwnUndoTest : public WidgetTest
{
    Q_OBJECT

private:
    struct Two
    {
        Two()
        {
            RichTextSettings settings = defaultColours();
            settings.FontName = u"DejaVu Sans Mono"_s;
            settings.FontSize = 10;
            for (ORVListView *list : {&one, &other}) {
                list->setListviewType(dsCode);
                list->Init_RichTextBox(settings);
                list->codeView()->setHasOwnUndo(true);
                list->openProgram(list == &one ? u"A"_s : u"B"_s);
                list->show();
            }
        }
        static void type(ORVListView &list, const QString &text)
        {
            list.RTextBox()->setSelStart(list.RTextBox()->TextLength());
            QTest::keyClicks(list.RTextBox(), text);
        }
        static void undo(ORVListView &list)
        {
            QTest::keyClick(list.RTextBox(), Qt::Key_Z, Qt::ControlModifier);
        }

        ORVListView one;
        ORVListView other;
    };
    static void redo(ORVListView &list)
    {
        QTest::keyClick(list.RTextBox(), Qt::Key_Y, Qt::ControlModifier);
    }

private Q_SLOTS:
    void isOffAtFirst()
    {
        ORVListView list;
        QVERIFY(!list.codeView()->hasOwnUndo());
        const QSignalSpy changes(list.codeView(), &CodeView::hasOwnUndoChanged);
        list.codeView()->setHasOwnUndo(true);
        list.codeView()->setHasOwnUndo(true);
        QCOMPARE(changes.size(), 1);
        QVERIFY(list.codeView()->hasOwnUndo());
    }

    void undoKeepsToItsEditor()
    {
        Two two;
        Two::type(two.one, u" = 1 "_s);
        Two::type(two.other, u" = 2 "_s);
        Two::undo(two.one);
        Two::undo(two.one);
        QCOMPARE(two.one.CodeText(), u"A"_s);
        QCOMPARE(two.other.CodeText(), u"B = 2 "_s);
        Two::undo(two.other);
        Two::undo(two.other);
        QCOMPARE(two.other.CodeText(), u"B"_s);
        QCOMPARE(two.one.CodeText(), u"A"_s);
        QTest::keyClick(two.one.RTextBox(), Qt::Key_Y, Qt::ControlModifier);
        QVERIFY(two.one.CodeText().startsWith(u"A ="_s));
        QCOMPARE(two.other.CodeText(), u"B"_s);
    }

    // Another program in one of them is none of the other's business.
    void openingLeavesTheOthersHistory()
    {
        Two two;
        Two::type(two.one, u" = 1 "_s);
        QVERIFY(two.one.IsUndoAvailable());
        two.other.openProgram(u"C"_s);
        two.other.ClearUndoHistory();
        QVERIFY(two.one.IsUndoAvailable());
        QVERIFY(!two.other.IsUndoAvailable());
    }

    void theSharedRingGoesOnWithoutIt()
    {
        EditorHost host;
        host.list->openProgram(u"S"_s);
        Two two;
        Two::type(two.one, u" = 1 "_s);
        QCOMPARE(host.ring().UndoNewest(), 0);
        two.one.codeView()->setHasOwnUndo(false);
        Two::type(two.one, u"+ 1 "_s);
        QVERIFY(host.ring().UndoNewest() > 0);
        QVERIFY(host.list->IsUndoAvailable()); // as it always was
    }

    void theSharedRingBeginsWhereNobodyHasUsedIt()
    {
        Two two;
        Two::type(two.one, u" = 1 "_s);
        threadPart<UndoStore>().ClearUndoHistory();
        const QString shown = two.one.CodeText();
        two.one.codeView()->setHasOwnUndo(false);
        Two::type(two.one, u"+ 1"_s);
        while (two.one.IsUndoAvailable())
            Two::undo(two.one);
        QCOMPARE(two.one.CodeText(), shown);
    }

    // The shared ring goes from the slot it is at, and takes two words.
    void aStepTakesBackWhatWasTypedLast()
    {
        Two two;
        Two::type(two.one, u" alpha beta gamma"_s);
        Two::undo(two.one);
        QCOMPARE(two.one.CodeText(), u"A alpha beta"_s);
        redo(two.one);
        QCOMPARE(two.one.CodeText(), u"A alpha beta gamma"_s);
        for (const QString &text : {u"A alpha beta"_s, u"A alpha"_s, u"A"_s}) {
            Two::undo(two.one);
            QCOMPARE(two.one.CodeText(), text);
        }
        QVERIFY(!two.one.IsUndoAvailable());
        for (const QString &text : {u"A alpha"_s, u"A alpha beta"_s, u"A alpha beta gamma"_s}) {
            redo(two.one);
            QCOMPARE(two.one.CodeText(), text);
        }
        QVERIFY(!two.one.IsRedoAvailable());
    }

    void theFirstLettersAreAStep()
    {
        Two two;
        Two::type(two.one, u"x"_s);
        QVERIFY(two.one.IsUndoAvailable());
        Two::undo(two.one);
        QCOMPARE(two.one.CodeText(), u"A"_s);
        redo(two.one);
        QCOMPARE(two.one.CodeText(), u"Ax"_s);
    }

    // And shows where it was.
    void whatIsDoneInAnotherLineIsAStepOfItsOwn()
    {
        Two two;
        two.one.openProgram(u"one\r\ntwo\r\nthree\r\nfour"_s);
        RichTextBox &box = *two.one.RTextBox();
        box.setSelStart(3);
        QTest::keyClicks(&box, u" REM"_s);
        box.setSelStart(box.TextLength());
        QTest::keyClicks(&box, u"x"_s);
        QTest::keyClick(&box, Qt::Key_Home);
        QTest::keyClick(&box, Qt::Key_Up);
        QTest::keyClick(&box, Qt::Key_Delete);
        QCOMPARE(two.one.CodeText(), u"one REM\r\ntwo\r\nhree\r\nfourx"_s);
        Two::undo(two.one);
        QCOMPARE(two.one.CodeText(), u"one REM\r\ntwo\r\nthree\r\nfourx"_s);
        QCOMPARE(box.GetLineFromChar(box.SelStart()), 2);
        Two::undo(two.one);
        QCOMPARE(two.one.CodeText(), u"one REM\r\ntwo\r\nthree\r\nfour"_s);
        QCOMPARE(box.GetLineFromChar(box.SelStart()), 3);
        Two::undo(two.one);
        QCOMPARE(two.one.CodeText(), u"one\r\ntwo\r\nthree\r\nfour"_s);
        QCOMPARE(box.GetLineFromChar(box.SelStart()), 0);
        redo(two.one);
        QCOMPARE(two.one.CodeText(), u"one REM\r\ntwo\r\nthree\r\nfour"_s);
        QCOMPARE(box.GetLineFromChar(box.SelStart()), 0);
        redo(two.one);
        QCOMPARE(box.GetLineFromChar(box.SelStart()), 3);
        redo(two.one);
        QCOMPARE(two.one.CodeText(), u"one REM\r\ntwo\r\nhree\r\nfourx"_s);
        QCOMPARE(box.GetLineFromChar(box.SelStart()), 2);
    }

    // Though the slot has its caret where the next change was made, far below.
    void aStepInSightDoesNotScroll()
    {
        Two two;
        two.one.resize(400, 300);
        two.one.openProgram(u"line\r\n"_s.repeated(300));
        RichTextBox &box = *two.one.RTextBox();
        box.setSelStart(4);
        QTest::keyClicks(&box, u" REM"_s);
        QTest::keyClick(&box, Qt::Key_End, Qt::ControlModifier);
        QTest::keyClicks(&box, u"x"_s);
        Two::undo(two.one);
        Two::undo(two.one);
        QCOMPARE(two.one.CodeText().first(6), u"line\r\n"_s);
        const int top = box.verticalScrollBar()->value();
        redo(two.one);
        QCOMPARE(two.one.CodeText().first(10), u"line REM\r\n"_s);
        QCOMPARE(box.verticalScrollBar()->value(), top);
    }

    void aTextThatIsDeletedAsAWholeComesBack()
    {
        Two two;
        Two::type(two.one, u" alpha"_s);
        QTest::keyClick(two.one.RTextBox(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(two.one.RTextBox(), Qt::Key_Delete);
        QCOMPARE(two.one.CodeText(), QString());
        Two::undo(two.one);
        QCOMPARE(two.one.CodeText(), u"A alpha"_s);
        redo(two.one);
        QCOMPARE(two.one.CodeText(), QString());
    }

    // Its ring is in use.
    void switchingInTheMidstOfAnUndoHasNoEffect()
    {
        Two two;
        Two::type(two.one, u" = 1 "_s);
        connect(two.one.RTextBox()->document(), &QTextDocument::contentsChanged, this,
                [&two] { two.one.codeView()->setHasOwnUndo(false); });
        Two::undo(two.one);
        QVERIFY(two.one.codeView()->hasOwnUndo());
        QVERIFY(two.one.CodeText() != u"A = 1 "_s);
    }
};

ORVT_TEST(OwnUndoTest)
#include "OwnUndoTest.moc"
