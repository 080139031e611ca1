#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/grid/GridFixture.h"

#include <QtCore/QPointer>
#include <QtGui/QUndoStack>

#include <stdexcept>
#include <utility>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void failUndo()
{
    QTest::ignoreMessage(QtWarningMsg, "An event handler failed: host");
    throw std::runtime_error("host");
}

} // namespace

class CellUndoTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void undoesAndRedoesByKeys()
    {
        ShownGrid shown;
        QVERIFY(shown.grid->enterText(shown.item(1), 2, u"1"_s));
        QVERIFY(shown.grid->enterText(shown.item(1), 2, u"2"_s));
        shown.goTo(1, 2);
        shown.take();
        shown.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(shown.take(), u"1 2 2>1, told"_s);
        shown.key(Qt::Key_Z, Qt::ControlModifier);
        shown.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(shown.text(1, 2), QString());
        QCOMPARE(shown.take(), u"1 2 1>, told"_s);
        shown.key(Qt::Key_Y, Qt::ControlModifier);
        shown.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(shown.text(1, 2), u"2"_s);
    }

    void aHostsHistoryTakesItsPlace()
    {
        ShownGrid shown;
        QString asked;
        QVERIFY(shown.grid->enterText(shown.item(1), 2, u"1"_s));
        shown.grid->setUndoHistory(
            UndoHistory{{}, {}, [&] { asked += u'U'; }, [&] { asked += u'R'; }});
        QCOMPARE(shown.grid->undoStack()->count(), 0);
        QVERIFY(shown.grid->enterText(shown.item(1), 2, u"2"_s));
        QCOMPARE(shown.grid->undoStack()->count(), 0);
        shown.goTo(1, 2);
        shown.key(Qt::Key_Z, Qt::ControlModifier);
        shown.grid->setEditsCells(false);
        shown.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        shown.key(Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(asked, u"URR"_s);
        QCOMPARE(shown.text(1, 2), u"2"_s);
        shown.grid->setUndoHistory(std::nullopt);
        shown.grid->setEditsCells(true);
        QVERIFY(shown.grid->enterText(shown.item(1), 2, u"3"_s));
        shown.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(shown.text(1, 2), u"2"_s);
    }

    void severalCellsAreOneStep()
    {
        ShownGrid shown;
        shown->setMultiSelect(true);
        for (int row = 1; row <= 5; ++row)
            shown.set(row, 2, QString::number(row));
        shown.goTo(1, 2);
        shown->selectAll();
        shown.key(Qt::Key_Delete);
        QCOMPARE(shown.texts(2), u"||||"_s);
        QCOMPARE(shown.grid->undoStack()->count(), 1);
        QCOMPARE(shown.grid->undoStack()->undoText(), u"Edit Cells"_s);
        shown.grid->undoStack()->undo();
        QCOMPARE(shown.texts(2), u"1|2|3|4|5"_s);
        shown.grid->undoStack()->redo();
        QCOMPARE(shown.texts(2), u"||||"_s);
    }

    void whatTheProgramHasChangedSinceStays()
    {
        ShownGrid shown;
        shown->setMultiSelect(true);
        for (int row = 1; row <= 5; ++row)
            shown.set(row, 2, u"1"_s);
        shown.goTo(1, 2);
        shown->selectAll();
        shown.key(Qt::Key_Delete);
        shown.set(2, 2, u"new"_s);
        shown->ListItems()->Remove(4);
        shown.take();
        shown.grid->undoStack()->undo();
        QCOMPARE(shown.texts(2), u"1|new|1|1"_s);
        shown.grid->undoStack()->redo();
        QCOMPARE(shown.texts(2), u"|new||"_s);
    }

    void aStepThatFindsNothingIsDropped()
    {
        ShownGrid shown;
        QUndoStack stack;
        shown.grid->setUndoStack(&stack);
        QVERIFY(shown.grid->enterText(shown.item(1), 2, u"1"_s));
        QVERIFY(shown.grid->enterText(shown.item(2), 2, u"2"_s));
        shown->ListItems()->Remove(2);
        stack.undo();
        QCOMPARE(stack.count(), 1);
        QCOMPARE(shown.text(1, 2), u"1"_s);
        stack.undo();
        QCOMPARE(shown.text(1, 2), QString());
        QVERIFY(stack.canRedo());
    }

    void listsAndHostMayShareAStack()
    {
        QUndoStack stack;
        {
            ShownGrid one;
            ShownGrid other;
            one.grid->setUndoStack(&stack);
            other.grid->setUndoStack(&stack);
            QVERIFY(one.grid->enterText(one.item(1), 2, u"1"_s));
            QVERIFY(other.grid->enterText(other.item(1), 2, u"2"_s));
            QCOMPARE(stack.count(), 2);
            one.goTo(1, 2);
            one.form.activateWindow();
            stack.undo();
            QCOMPARE(other.text(1, 2), QString());
            QCOMPARE(one.text(1, 2), u"1"_s);
        }
        stack.undo(); // the lists are gone
        QCOMPARE(stack.count(), 1);
    }

    void aStackThatGoesLeavesTheListItsOwn()
    {
        ShownGrid shown;
        auto *stack = new QUndoStack;
        shown.grid->setUndoStack(stack);
        QVERIFY(shown.grid->enterText(shown.item(1), 2, u"1"_s));
        delete stack;
        QVERIFY(shown.grid->undoStack());
        QVERIFY(shown.grid->enterText(shown.item(1), 2, u"2"_s));
        shown.grid->undoStack()->undo();
        QCOMPARE(shown.text(1, 2), u"1"_s);
    }

    void newRowsHaveNoHistory()
    {
        ShownGrid shown;
        QVERIFY(shown.grid->enterText(shown.item(1), 2, u"1"_s));
        shown->setRows({RowContent{.text = u"new"_s}});
        QCOMPARE(shown.grid->undoStack()->count(), 0);
    }

    // A host that keeps a cell up to date with another.
    void whatIsEnteredWithinAStepComesAfterIt()
    {
        ShownGrid one;
        ShownGrid other;
        QUndoStack stack;
        one.grid->setUndoStack(&stack);
        other.grid->setUndoStack(&stack);
        QVERIFY(one.grid->enterText(one.item(1), 2, u"1"_s));
        QVERIFY(one.grid->enterText(one.item(1), 2, u"2"_s));
        QVERIFY(one.grid->enterText(one.item(1), 2, u"3"_s));
        stack.undo();
        stack.undo();
        const QMetaObject::Connection follow =
            connect(one.grid, &ListGrid::cellsChanged, this, [&](const QList<CellChange> &changes) {
                if (changes.constFirst().column != 2)
                    return;
                one.grid->enterText(one.item(2), 1, u"is "_s + one.text(1, 2));
                other.grid->enterText(other.item(2), 1, u"is "_s + one.text(1, 2));
            });
        stack.redo();
        QCOMPARE(one.text(1, 2) + one.text(2, 1) + other.text(2, 1), u"2is 2is 2"_s);
        QCoreApplication::processEvents();
        QCOMPARE(stack.count(), 4); // what there was to redo is another past
        QCOMPARE(stack.index(), 4);
        disconnect(follow);
        stack.undo();
        stack.undo();
        QCOMPARE(one.text(1, 2) + one.text(2, 1) + other.text(2, 1), u"2"_s);
        stack.undo();
        QCOMPARE(one.text(1, 2), u"1"_s);
        stack.redo();
        stack.redo();
        QCOMPARE(one.text(1, 2) + one.text(2, 1), u"2is 2"_s);
    }

    void aKeyMayCauseOtherEntries()
    {
        ShownGrid shown;
        QVERIFY(shown.grid->enterText(shown.item(1), 2, u"1"_s));
        connect(shown.grid, &ListGrid::cellsChanged, this, [&](const QList<CellChange> &changes) {
            if (changes.constFirst().column == 2)
                shown.grid->enterText(shown.item(2), 1, u"is "_s + shown.text(1, 2));
        });
        shown.goTo(1, 2);
        shown.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(shown.text(2, 1), u"is "_s);
        QCOMPARE(shown.grid->undoStack()->count(), 1);
        shown.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(shown.text(2, 1), QString());
    }

    void whoFollowsTheStackMayDoAnything_data()
    {
        QTest::addColumn<QString>("deed");
        QTest::addColumn<bool>("isHosts");
        for (const char *deed : {"destroy", "rows", "remove", "throw", "enter"}) {
            QTest::addRow("%s own", deed) << deed << false;
            QTest::addRow("%s host's", deed) << deed << true;
        }
    }
    void whoFollowsTheStackMayDoAnything()
    {
        QFETCH(const QString, deed);
        QFETCH(const bool, isHosts);
        QUndoStack stack;
        ShownGrid shown;
        if (isHosts)
            shown.grid->setUndoStack(&stack);
        int alive = 0;
        connect(shown.grid, &ListGrid::cellsChanged, this, [&](const QList<CellChange> &changes) {
            for (const CellChange &change : changes)
                alive += change.item->isAlive() ? 1 : -100;
        });
        connect(shown.grid->undoStack(), &QUndoStack::indexChanged, this,
                [&shown, deed, isFirst = true]() mutable {
                    if (!std::exchange(isFirst, false))
                        return;
                    if (deed == u"destroy"_s)
                        delete shown.list.data();
                    else if (deed == u"rows"_s)
                        shown->setRows({RowContent{.text = u"new"_s}});
                    else if (deed == u"remove"_s)
                        shown->ListItems()->Remove(2);
                    else if (deed == u"throw"_s)
                        failUndo();
                    else
                        shown.grid->enterText(shown.item(3), 2, u"6"_s);
                });
        shown.goTo(2, 2);
        shown.type(u"5"_s);
        shown.key(Qt::Key_Return);
        QCoreApplication::processEvents();
        const bool isThere = deed == u"throw"_s || deed == u"enter"_s;
        QCOMPARE(alive, deed == u"enter"_s ? 2 : isThere ? 1 : 0);
        if (!isThere)
            return;
        QCOMPARE(shown.text(2, 2), u"5"_s);
        QCOMPARE(shown.grid->undoStack()->count(), deed == u"enter"_s ? 2 : 1);
    }

    void aHostMayChangeItsStackWhenItIsTold_data()
    {
        QTest::addColumn<QString>("deed");
        QTest::addColumn<bool>("isKey");
        for (const char *deed : {"clear", "push", "undo", "redo"}) {
            QTest::addRow("%s, by key", deed) << deed << true;
            QTest::addRow("%s, by the host", deed) << deed << false;
        }
        QTest::newRow("destroy, by key") << u"destroy"_s << true;
    }
    void aHostMayChangeItsStackWhenItIsTold()
    {
        QFETCH(const QString, deed);
        QFETCH(const bool, isKey);
        QPointer<QUndoStack> stack(new QUndoStack(this));
        ShownGrid shown;
        shown.grid->setUndoStack(stack);
        for (const QString &text : {u"1"_s, u"2"_s, u"3"_s})
            QVERIFY(shown.grid->enterText(shown.item(1), 2, text));
        shown.goTo(1, 2);
        int told = 0;
        connect(shown.grid, &ListGrid::cellsChanged, this, [&, isFirst = true]() mutable {
            ++told;
            if (!std::exchange(isFirst, false))
                return;
            if (deed == u"clear"_s)
                stack->clear();
            else if (deed == u"push"_s)
                stack->push(new QUndoCommand(u"the host's"_s));
            else if (deed == u"destroy"_s)
                delete stack.data();
            else if (deed == u"undo"_s)
                stack->undo();
            else
                stack->redo();
        });
        if (isKey)
            shown.key(Qt::Key_Z, Qt::ControlModifier);
        else
            stack->undo();
        const bool isTwice = deed == u"undo"_s || deed == u"redo"_s;
        QCOMPARE(told, isTwice ? 2 : 1);
        QCOMPARE(shown.text(1, 2), deed == u"undo"_s   ? u"1"_s
                                   : deed == u"redo"_s ? u"3"_s
                                                       : u"2"_s);
        if (deed == u"destroy"_s)
            QVERIFY(!stack);
        else
            QCOMPARE(stack->count(), deed == u"clear"_s ? 0 : 3);
        QCoreApplication::processEvents();
        QCOMPARE(told, isTwice ? 2 : 1);
        QVERIFY(shown.grid->enterText(shown.item(1), 2, u"9"_s));
        QVERIFY(shown.grid->undoStack()->canUndo());
    }

    void aMacroIsToldWhenItIsDone()
    {
        QUndoStack stack;
        ShownGrid shown;
        shown.grid->setUndoStack(&stack);
        stack.beginMacro(u"both"_s);
        QVERIFY(shown.grid->enterText(shown.item(1), 2, u"1"_s));
        QVERIFY(shown.grid->enterText(shown.item(2), 2, u"2"_s));
        stack.endMacro();
        shown.take();
        stack.undo();
        QCOMPARE(shown.take(), u"2 2 2>, told, 1 2 1>, told"_s);
    }

    void aListMayGoWhileItsStackTells()
    {
        ShownGrid shown;
        QVERIFY(shown.grid->enterText(shown.item(1), 2, u"1"_s));
        shown.goTo(1, 2);
        connect(shown.grid->undoStack(), &QUndoStack::indexChanged, this,
                [&shown] { delete shown.list.data(); });
        shown.key(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(!shown.list);
    }

    // In the middle of a step, which the host itself has asked the stack for.
    void allRowsMayGoWithinAStep_data()
    {
        QTest::addColumn<bool>("isRedo");
        QTest::newRow("undo") << false;
        QTest::newRow("redo") << true;
    }
    void allRowsMayGoWithinAStep()
    {
        QFETCH(const bool, isRedo);
        ShownGrid shown;
        for (const QString &text : {u"1"_s, u"2"_s, u"3"_s})
            QVERIFY(shown.grid->enterText(shown.item(1), 2, text));
        QUndoStack &stack = *shown.grid->undoStack();
        if (isRedo)
            stack.undo();
        connect(shown->model(), &QAbstractItemModel::dataChanged, this,
                [&shown, isFirst = true]() mutable {
                    if (std::exchange(isFirst, false))
                        shown->setRows({RowContent{.text = u"new"_s}});
                });
        isRedo ? stack.redo() : stack.undo();
        QCoreApplication::processEvents();
        QCOMPARE(stack.count(), 0);
        QCOMPARE(stack.index(), 0);
        QVERIFY(shown.grid->enterText(shown.item(1), 2, u"9"_s));
        stack.undo();
        QCOMPARE(shown.text(1, 2), QString());
        QCOMPARE(stack.count(), 1);
    }

    void theHostMayDoAnythingWhenItIsTold_data()
    {
        QTest::addColumn<QString>("deed");
        for (const char *deed : {"destroy", "rows", "undo", "throw"})
            QTest::newRow(deed) << deed;
    }
    void theHostMayDoAnythingWhenItIsTold()
    {
        QFETCH(const QString, deed);
        ShownGrid shown;
        QVERIFY(shown.grid->enterText(shown.item(1), 2, u"1"_s));
        QVERIFY(shown.grid->enterText(shown.item(1), 2, u"2"_s));
        shown.goTo(1, 2);
        connect(shown.grid, &ListGrid::cellsChanged, this, [&shown, deed] {
            if (deed == u"destroy"_s)
                delete shown.list.data();
            else if (deed == u"rows"_s)
                shown->setRows({RowContent{.text = u"new"_s}});
            else if (deed == u"undo"_s)
                shown.key(Qt::Key_Z, Qt::ControlModifier);
            else
                failUndo();
        });
        shown.key(Qt::Key_Z, Qt::ControlModifier);
        QCoreApplication::processEvents();
        if (deed == u"undo"_s || deed == u"throw"_s)
            QCOMPARE(shown.text(1, 2), u"1"_s);
    }
};

ORVT_TEST(CellUndoTest)
#include "CellUndoTest.moc"
