// An editor with a ring of its own beside one that uses the thread's.

#include "editor/EditorHost.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QTextDocument>
#include <QtTest/QSignalSpy>

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
