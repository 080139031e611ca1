// One undo for program, tables and renamings, by whatever way it is asked for, and nothing
// is taken back unseen.

#include "WorkbenchTest.h"

#include "support/TestProgram.h"
#include "widgets/box/BoxCommands.h"
#include "workbench/renaming/PointRenaming.h"
#include "workbench/renaming/RenameDialog.h"

#include <ORVTListview/ListGrid.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ReportList.h>

#include <QtGui/QContextMenuEvent>
#include <QtGui/QUndoStack>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct Worked : WorkbenchWindow
{
    Worked()
        : WorkbenchWindow("Fan1 = Temp1")
    {
        choose(u"Edit Cells"_s);
    }

    ReportList &list() { return *shown().listView(); }
    ListGrid &grid() { return *list().grid(); }
    QString cell(int row, int column) { return shown().ListItems()->Item(row)->SubItem(column); }
    QString told() { return window.statusBar()->currentMessage(); }

    void show(LwType type)
    {
        window.showType(type);
        if (type == dsCode)
            box().setFocus();
        else
            list().setFocus();
    }
    // The cell behind the name of the first point.
    void enter(LwType type, const QString &text)
    {
        show(type);
        QVERIFY(grid().enterText(shown().ListItems()->Item(1), 2, text));
    }
    void rename(const QString &name)
    {
        NextDialog<RenameDialog> dialog([](RenameDialog &asked) { asked.accept(); });
        window.findChild<PointRenaming *>()->rename(dsInput, 0, name);
        QVERIFY(dialog.wasThere());
    }
    void tableKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
    {
        QTest::keyClick(&list(), key, modifiers);
    }

    // A command of the context menu of editor or table.
    static void chooseIn(QMenu &menu, const QString &caption)
    {
        for (QAction *action : menu.actions()) {
            if (action->text().remove(u'&') != caption)
                continue;
            QVERIFY2(action->isEnabled(), qPrintable(caption));
            action->trigger();
            QCoreApplication::processEvents();
            return;
        }
        QFAIL(qPrintable(caption));
    }
    void editorMenu(const QString &caption)
    {
        QMenu menu;
        box().commands().fillMenu(menu);
        chooseIn(menu, caption);
    }
    void tableMenu(const QString &caption)
    {
        const QPoint at = list().visualRect(list().model()->index(0, 2)).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, list().viewport()->mapToGlobal(at));
        QCoreApplication::sendEvent(list().viewport(), &event);
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        chooseIn(*menu, caption);
        menu->close();
    }
};

} // namespace

class HistoryTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void theEditorsMenuTakesStepsOfTheProjectBack()
    {
        Worked worked;
        worked.rename(u"Room"_s);
        QCOMPARE(worked.code().CodeText(), u"Fan1 = Room"_s);
        worked.show(dsCode);
        for (int round = 0; round < 2; ++round) {
            worked.editorMenu(u"Undo"_s);
            QCOMPARE(worked.code().CodeText(), u"Fan1 = Temp1"_s);
            QVERIFY(!worked.window.isWindowModified()); // the table, too
            worked.editorMenu(u"Redo"_s);
            QCOMPARE(worked.code().CodeText(), u"Fan1 = Room"_s);
            QVERIFY(worked.window.isWindowModified());
        }
        QCOMPARE(worked.told(), u"Redone: Inputs 1, Program"_s);
        worked.show(dsInput);
        QCOMPARE(worked.cell(1, 1), u"Room"_s);
    }

    // What was typed since the step comes first, though the text is again what it was.
    void whatIsTypedAndRemovedComesBackBeforeAStepOfATable()
    {
        Worked worked;
        worked.enter(dsInput, u"Manual"_s);
        worked.show(dsCode);
        QTest::keyClick(&worked.box(), Qt::Key_End, Qt::ControlModifier);
        QTest::keyClicks(&worked.box(), u" + Temp1"_s);
        for (int typed = 0; typed < 8; ++typed)
            QTest::keyClick(&worked.box(), Qt::Key_Left, Qt::ShiftModifier);
        QTest::keyClick(&worked.box(), Qt::Key_Delete);
        QCOMPARE(worked.code().CodeText(), u"Fan1 = Temp1"_s);
        QTest::keyClick(&worked.box(), Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(worked.code().CodeText().startsWith(u"Fan1 = Temp1 +"_s));
        QVERIFY(worked.box().hasFocus());
        worked.show(dsInput);
        QCOMPARE(worked.cell(1, 2), u"Manual"_s);
        worked.show(dsCode);
        for (int press = 0; press < 5 && worked.code().CodeText() != u"Fan1 = Temp1"_s; ++press)
            QTest::keyClick(&worked.box(), Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(&worked.box(), Qt::Key_Z, Qt::ControlModifier);
        worked.show(dsInput);
        QCOMPARE(worked.cell(1, 2), QString());
    }

    void theTablesMenuAndKeysShareOneHistory()
    {
        Worked worked;
        worked.enter(dsInput, u"Auto"_s);
        worked.enter(dsInput, u"Manual"_s);
        QCOMPARE(worked.grid().undoStack()->count(), 0); // no other one
        worked.tableMenu(u"Undo"_s);
        QCOMPARE(worked.cell(1, 2), u"Auto"_s);
        worked.tableKey(Qt::Key_Z);
        QCOMPARE(worked.cell(1, 2), QString());
        QVERIFY(!worked.window.isWindowModified());
        worked.tableKey(Qt::Key_Y);
        QCOMPARE(worked.cell(1, 2), u"Auto"_s);
        worked.tableKey(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(worked.cell(1, 2), u"Manual"_s);
        worked.choose(u"Undo"_s);
        QCOMPARE(worked.cell(1, 2), u"Auto"_s);
        worked.tableMenu(u"Redo"_s);
        QCOMPARE(worked.cell(1, 2), u"Manual"_s);
    }

    void theKeysNeedNoEditedCells()
    {
        Worked worked;
        worked.enter(dsInput, u"Auto"_s);
        worked.choose(u"Edit Cells"_s);
        QVERIFY(!worked.grid().editsCells());
        worked.tableKey(Qt::Key_Z);
        QVERIFY(!worked.window.isWindowModified());
        worked.tableKey(Qt::Key_Y);
        QVERIFY(worked.window.isWindowModified());
    }

    void aTableThatIsNotInSightIsShown_data()
    {
        QTest::addColumn<LwType>("from");
        QTest::newRow("another table") << dsOutput;
        QTest::newRow("the program") << dsCode;
    }
    void aTableThatIsNotInSightIsShown()
    {
        QFETCH(LwType, from);
        Worked worked;
        worked.enter(dsInput, u"Auto"_s);
        worked.show(from);
        worked.choose(u"Undo"_s);
        QCOMPARE(worked.shown().CurrentType(), dsInput);
        QCOMPARE(worked.cell(1, 2), QString());
        QVERIFY(worked.shown().ListItems()->Item(1)->Selected());
        QCOMPARE(worked.told(), u"Undone: Inputs 1"_s);
        QVERIFY(!worked.window.isWindowModified());
    }

    void theRowIsShownWhateverTheOrderAndTheFilter()
    {
        Worked worked;
        const QString project = worked.folder.filePath(u"one.json"_s);
        writeFile(project, readFile(project).replace("{\"name\": \"Temp1\"}",
                                                     "{\"name\": \"B\"}, {\"name\": \"C\"},"
                                                     "{\"name\": \"A\"}"));
        worked.window.openProject(project);
        worked.show(dsInput);
        QVERIFY(worked.grid().enterText(worked.shown().ListItems()->Item(2), 2, u"Auto"_s));
        worked.grid().setSortKeys({{1, Qt::DescendingOrder}});
        worked.show(dsOutput);
        worked.choose(u"Undo"_s);
        QCOMPARE(worked.shown().CurrentType(), dsInput);
        QCOMPARE(worked.shown().SelectedItem()->SubItem(1), u"C"_s);
        QCOMPARE(worked.list().currentIndex().row(), 0);
        worked.grid().setFilterText(1, u"B"_s);
        QCOMPARE(worked.grid().rowsShown(), 1);
        worked.choose(u"Redo"_s);
        QCOMPARE(worked.cell(2, 2), u"Auto"_s);
        QCOMPARE(worked.grid().rowsShown(), worked.shown().ListItems()->Count());
        QCOMPARE(worked.shown().SelectedItem()->SubItem(1), u"C"_s);
        QCOMPARE(worked.list().currentIndex().siblingAtColumn(1).data(), u"C"_s);
        worked.grid().setFilterText(1, u"C"_s);
        worked.choose(u"Undo"_s);
        QCOMPARE(worked.grid().rowsShown(), 1); // it is seen
    }

    void whatWasTypedStaysWhereNobodySeesIt()
    {
        Worked worked;
        worked.type(u"x "_s);
        worked.show(dsOutput);
        worked.tableKey(Qt::Key_Z);
        QVERIFY(!worked.command(u"Undo"_s)->isEnabled());
        QCOMPARE(worked.shown().CurrentType(), dsOutput);
        QCOMPARE(worked.code().CodeText(), u"x Fan1 = Temp1"_s);
        worked.show(dsCode);
        worked.key(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(worked.code().CodeText() != u"x Fan1 = Temp1"_s);
    }

    void withNothingToTakeBackEverythingStays()
    {
        Worked worked;
        worked.show(dsOutput);
        for (const Qt::Key key : {Qt::Key_Z, Qt::Key_Y})
            worked.tableKey(key);
        QCOMPARE(worked.shown().CurrentType(), dsOutput);
        QCOMPARE(worked.told(), QString());
        worked.show(dsCode);
        worked.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(worked.code().CodeText(), u"Fan1 = Temp1"_s);
    }

    // A key pressed twice fast, a window that goes while the list of places is open.
    void aRenamingThatComesTooLateDoesNothing()
    {
        Worked worked;
        auto *renaming = worked.window.findChild<PointRenaming *>();
        for (const qsizetype row : {qsizetype(-1), qsizetype(7)})
            renaming->rename(dsInput, row, u"Room"_s);
        QVERIFY(!worked.window.isWindowModified());

        auto window = std::make_unique<MainWindow>(worked.languages);
        window->openProject(worked.folder.filePath(u"one.json"_s));
        window->show();
        NextDialog<RenameDialog> dialog([&window](RenameDialog &asked) {
            QCOMPARE(asked.parentWidget(), window.get());
            window.reset();
        });
        window->findChild<PointRenaming *>()->rename(dsInput, 0, u"Room"_s);
        QVERIFY(!window);
    }
};

ORVT_TEST(HistoryTest)
#include "HistoryTest.moc"
