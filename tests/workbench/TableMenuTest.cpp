// What the context menu of a table offers for the point at which it is opened.

#include "WorkbenchTest.h"

#include "project/Project.h"
#include "project/ProjectDocument.h"
#include "support/TestProgram.h"
#include "workbench/renaming/NewPointDialog.h"
#include "workbench/renaming/PointRenaming.h"
#include "workbench/views/TableViews.h"

#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ReportList.h>

#include <QtGui/QContextMenuEvent>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct Table : WorkbenchWindow
{
    Table()
        : WorkbenchWindow("Fan1 = Temp1 + 1\n")
    {
        views().enterType(dsInput);
    }

    ReportList &list() { return *shown().findChild<ReportList *>(u"ListView1"_s); }

    // Of the row, from 1.
    QMenu *menuAt(qint32 row)
    {
        shown().setSelectedItem(shown().ListItems()->Item(row));
        const QPoint place = list().visualRect(list().currentIndex()).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                list().viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(list().viewport(), &event);
        const auto menus = list().findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly);
        return menus.isEmpty() ? nullptr : menus.constLast();
    }

    static QAction *action(const QMenu *menu, const QString &caption)
    {
        for (QAction *action : menu->actions()) {
            if (action->text().remove(u'&') == caption)
                return action;
        }
        return nullptr;
    }

    static bool isPossible(const QMenu *menu, const QString &caption)
    {
        const QAction *found = action(menu, caption);
        return found && found->isEnabled();
    }

    // After the menu, as users do it.
    static void choose(QMenu *menu, const QString &caption)
    {
        QAction *chosen = action(menu, caption);
        menu->close();
        chosen->trigger();
        QCoreApplication::processEvents();
    }
};

const QStringList ofAPoint{u"Rename"_s,          u"Duplicate Point…"_s, u"Remove Point"_s,
                           u"Go To First Use"_s, u"All Uses"_s,         u"Add To Trend"_s};

} // namespace

class TableMenuTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void aPointHasEverything()
    {
        Table table;
        const QMenu *menu = table.menuAt(1);
        QVERIFY(menu);
        for (const QString &caption : ofAPoint + QStringList{u"Add Point…"_s, u"Read Values"_s})
            QVERIFY2(Table::isPossible(menu, caption), qPrintable(caption));
    }

    void aRowWithoutAPointHasLess()
    {
        Table table;
        const QMenu *menu = table.menuAt(3);
        QVERIFY(menu);
        for (const QString &caption : ofAPoint) {
            if (caption != u"Rename"_s)
                QVERIFY2(!Table::isPossible(menu, caption), qPrintable(caption));
        }
        QVERIFY(Table::isPossible(menu, u"Add Point…"_s));
    }

    void anEmptyRowIsNamedFromTheMenuAsByItsKey()
    {
        Table table;
        QMenu *menu = table.menuAt(2);
        QVERIFY(Table::isPossible(menu, u"Rename"_s));
        Table::choose(menu, u"Rename"_s);
        QVERIFY(table.list().viewport()->findChild<QLineEdit *>()); // RenamingTest types into it
        QCOMPARE(table.shown().SelectedItem()->Index(), 2);
    }

    void aKeyRemovesThePoint()
    {
        Table table;
        table.window.findChild<PointRenaming *>()->append(dsInput, u"Unused"_s);
        table.shown().setSelectedItem(table.shown().ListItems()->Item(2));
        table.list().setFocus();
        QTest::keyClick(&table.list(), Qt::Key_Delete, Qt::ControlModifier);
        QVERIFY(table.shown().ListItems()->Item(2)->SubItem(1).trimmed().isEmpty());
        QTest::keyClick(&table.list(), Qt::Key_Delete, Qt::ControlModifier);
        QCOMPARE(table.window.statusBar()->currentMessage(), u"There is no point in this row."_s);
        const QAction *inMenu = table.command(u"Remove Point"_s);
        QCOMPARE(inMenu->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Delete));
    }

    // In the program the key has its own meaning.
    void theKeyOfATableIsNotThatOfTheProgram()
    {
        Table table;
        table.views().enterProgram(1);
        table.box().setSelStart(0);
        table.key(Qt::Key_Delete, Qt::ControlModifier);
        QVERIFY(!table.box().Text().startsWith(u"Fan1"_s));
        QCOMPARE(table.window.findChild<ProjectDocument *>()->project()->rows(dsInput).size(), 1);
    }

    void deleteSaysWhatItIsFor()
    {
        Table table;
        table.shown().setSelectedItem(table.shown().ListItems()->Item(1));
        table.list().setFocus();
        QTest::keyClick(&table.list(), Qt::Key_Delete);
        QCOMPARE(table.window.statusBar()->currentMessage(),
                 u"Del empties cells while Edit Cells is on; Ctrl+Del removes the point."_s);
        QCOMPARE(table.shown().ListItems()->Item(1)->SubItem(1), u"Temp1"_s);
    }

    void keysDoNotClashWithThoseOfTheGrid()
    {
        Table table;
        for (const bool edits : {false, true}) {
            table.views().tables().setEditsCells(edits);
            QString keys;
            for (const QAction *action : table.menuAt(1)->actions()) {
                const qsizetype mark = action->text().indexOf(u'&');
                if (mark < 0)
                    continue;
                const QString key = action->text().mid(mark + 1, 1).toUpper();
                QVERIFY2(!keys.contains(key), qPrintable(action->text()));
                keys += key;
            }
            QVERIFY(keys.size() > 6);
        }
    }

    void theFirstUseIsReachedAndTheWayBack()
    {
        Table table;
        Table::choose(table.menuAt(1), u"Go To First Use"_s);
        QVERIFY(table.window.focusWidget() == &table.box());
        QCOMPARE(table.box().SelText(), u"Temp1"_s);
        table.WorkbenchWindow::choose(u"Back"_s);
        QCOMPARE(table.shown().CurrentType(), dsInput);
    }

    void aPointThatNobodyUsesSaysSo()
    {
        Table table;
        table.views().enterProgram(1);
        table.code().RTextSelectAll();
        table.key(Qt::Key_Delete);
        table.views().enterType(dsInput);
        QTest::qWait(0);
        Table::choose(table.menuAt(1), u"Go To First Use"_s);
        QCOMPARE(table.window.statusBar()->currentMessage(), u"No program uses Temp1."_s);
    }

    void usesThatThereAreNoneOfAreTold()
    {
        Table table;
        table.views().enterProgram(1);
        table.code().RTextSelectAll();
        table.key(Qt::Key_Delete);
        table.views().enterType(dsInput);
        Table::choose(table.menuAt(1), u"All Uses"_s);
        QCOMPARE(table.window.statusBar()->currentMessage(), u"Nothing uses Temp1."_s);
    }

    // Where more points stand than the table has rows by itself.
    void removingKeepsTheRowAndLeavesNoEmptyOne()
    {
        Table table;
        const qsizetype usual = table.shown().NumberItems();
        auto &renaming = *table.window.findChild<PointRenaming *>();
        for (int more = 1; table.shown().ListItems()->Count() < usual + 2; ++more)
            renaming.append(dsInput, u"More%1"_s.arg(more));
        for (const qsizetype left : {usual + 1, usual}) {
            Table::choose(table.menuAt(3), u"Remove Point"_s);
            QCOMPARE(table.shown().ListItems()->Count(), left);
            QVERIFY(table.shown().SelectedItem());
            QCOMPARE(table.shown().SelectedItem()->Index(), 3);
        }
    }

    void aPointIsDuplicatedAsAStep()
    {
        Table table;
        QString proposed;
        QString selected;
        NextDialog<NewPointDialog> dialog([&](NewPointDialog &asked) {
            proposed = asked.name();
            selected = asked.findChild<QLineEdit *>()->selectedText();
            QVERIFY(!asked.findChild<QComboBox *>()->isEnabled());
            QTest::keyClick(&asked, Qt::Key_Return);
        });
        Table::choose(table.menuAt(1), u"Duplicate Point…"_s);
        QVERIFY(dialog.wasThere());
        QCOMPARE(proposed, u"Temp12"_s);
        QCOMPARE(selected, proposed); // so that what is typed replaces it
        QCOMPARE(table.shown().ListItems()->Item(2)->SubItem(1), u"Temp12"_s);
        table.WorkbenchWindow::choose(u"Undo"_s);
        QVERIFY(table.shown().ListItems()->Item(2)->SubItem(1).trimmed().isEmpty());
        QVERIFY(!table.window.isWindowModified());
    }
};

ORVT_TEST(TableMenuTest)
#include "TableMenuTest.moc"
