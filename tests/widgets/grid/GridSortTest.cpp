#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/grid/GridFixture.h"
#include <ORVTListview/ColumnHeader.h>
#include <ORVTListview/ListItem.h>

#include <QtGui/QClipboard>
#include <QtGui/QUndoStack>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QtTest>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// A grid whose rows users sort; in the second column Fan10, fan2, Pump, nothing, Fan1.
class SortedGrid : public ShownGrid
{
public:
    SortedGrid()
    {
        grid->setSortsRows(true);
        const QStringList names{u"Fan10"_s, u"fan2"_s, u"Pump"_s, u""_s, u"Fan1"_s};
        const QStringList values{u"100"_s, u"9"_s, u"21.5"_s, u"-3"_s, u"9"_s};
        for (int row = 1; row <= 5; ++row) {
            set(row, 1, names.at(row - 1));
            set(row, 2, values.at(row - 1));
        }
    }
    QStringList chosen() const
    {
        QStringList rows;
        for (int row = 1; row <= list->ListItems()->Count(); ++row) {
            if (item(row)->Selected())
                rows.append(QString::number(row));
        }
        return rows;
    }
    QString spoken(int column) const
    {
        return list->model()->headerData(column, Qt::Horizontal, Qt::AccessibleTextRole).toString();
    }
};

const QString asAtFirst = u"Text 1|Text 2|Text 3|Text 4|Text 5"_s;

} // namespace

class GridSortTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void aHeaderSortsUpThenDownThenNot()
    {
        SortedGrid shown;
        const QAbstractItemModelTester tester(shown->model());
        shown.click(shown.header(2));
        QCOMPARE(shown.texts(1), u"Fan1|fan2|Fan10|Pump|"_s);
        QCOMPARE(shown.spoken(1), u"Header 2, sorted upwards"_s);
        QCOMPARE(shown.spoken(0), u"Header 1"_s);
        shown.click(shown.header(2));
        QCOMPARE(shown.texts(1), u"Pump|Fan10|fan2|Fan1|"_s);
        QCOMPARE(shown.spoken(1), u"Header 2, sorted downwards"_s);
        shown.click(shown.header(2));
        QCOMPARE(shown.texts(0), asAtFirst);
        QCOMPARE(shown.spoken(1), u"Header 2"_s);
    }

    void numbersComeByTheirValue()
    {
        SortedGrid shown;
        shown.click(shown.header(3));
        QCOMPARE(shown.texts(2), u"-3|9|9|21.5|100"_s);
    }

    void shiftSortsByAnotherColumnToo()
    {
        SortedGrid shown;
        shown.click(shown.header(3));
        shown.click(shown.header(2), Qt::LeftButton, Qt::ShiftModifier);
        QCOMPARE(shown.texts(1), u"|Fan1|fan2|Pump|Fan10"_s);
        const ListGrid::SortKeys keys{{2, Qt::AscendingOrder}, {1, Qt::AscendingOrder}};
        QCOMPARE(shown.grid->sortKeys(), keys);
        shown.click(shown.header(2), Qt::LeftButton, Qt::ShiftModifier);
        QCOMPARE(shown.texts(1), u"|fan2|Fan1|Pump|Fan10"_s);
        shown.click(shown.header(2), Qt::LeftButton, Qt::ShiftModifier);
        QCOMPARE(shown.grid->sortKeys().size(), 1);
    }

    void aSortIsShownInTheHeader()
    {
        SortedGrid shown;
        const auto picture = [&shown] { return shown->horizontalHeader()->grab().toImage(); };
        const QImage before = picture();
        shown.grid->setSortKeys({{1, Qt::AscendingOrder}});
        const QImage up = picture();
        shown.grid->setSortKeys({{1, Qt::DescendingOrder}});
        const QImage down = picture();
        shown.grid->setSortKeys({{2, Qt::AscendingOrder}, {1, Qt::DescendingOrder}});
        QVERIFY(up != before && down != before && up != down && picture() != down);
        shown.grid->setSortKeys({});
        QCOMPARE(picture(), before);
    }

    void whatTheHostKnowsOfRowsStays()
    {
        SortedGrid shown;
        ListItem *fan10 = shown.item(1);
        shown.click(shown.header(2));
        QCOMPARE(shown.item(1), fan10);
        QCOMPARE(fan10->Index(), 1);
        QCOMPARE(fan10->SubItem(1), u"Fan10"_s);
        QCOMPARE(shown->FindItem(u"Text 2"_s)->Index(), 2);
        QCOMPARE(shown->GetFirstVisible(), shown.item(5));
        QCOMPARE(shown->ListItems()->Item(u"Row3"_s)->Index(), 3);
        fan10->setText(u"changed"_s);
        QCOMPARE(shown.text(3, 0), u"changed"_s);
    }

    void selectedAndCurrentRowsStay()
    {
        SortedGrid shown;
        shown->setMultiSelect(true);
        shown.click(shown.cell(1));
        shown.click(shown.cell(3), Qt::LeftButton, Qt::ControlModifier);
        QCOMPARE(shown.chosen(), (QStringList{u"1"_s, u"3"_s}));
        shown.click(shown.header(2));
        QCOMPARE(shown.chosen(), (QStringList{u"1"_s, u"3"_s}));
        QCOMPARE(shown.current(), u"4 0"_s);
        QCOMPARE(shown->SelectedItem(), shown.item(3));
        const QItemSelectionModel &selection = *shown->selectionModel();
        QTRY_COMPARE(selection.selectedRows().size(), 2);
        QVERIFY(selection.isRowSelected(2, {}) && selection.isRowSelected(3, {}));
        shown.key(Qt::Key_Down);
        QCOMPARE(shown.chosen(), QStringList{u"4"_s});
    }

    void cellsStaySelected()
    {
        SortedGrid shown;
        shown->setMultiSelect(true);
        shown.grid->setSelectsCells(true);
        shown.press(shown.cell(1, 2));
        shown.move(shown.cell(2, 3));
        shown.release(shown.cell(2, 3));
        shown.click(shown.header(2));
        QCOMPARE(shown.chosen(), (QStringList{u"1"_s, u"2"_s}));
        shown.key(Qt::Key_Delete);
        QCOMPARE(shown.item(1)->SubItem(1) + shown.item(2)->SubItem(2), QString());
        QCOMPARE(shown.item(5)->SubItem(1), u"Fan1"_s);
    }

    void ctrlSelectsTheColumnWhereCellsAre()
    {
        SortedGrid shown;
        shown->setMultiSelect(true);
        shown.grid->setSelectsCells(true);
        shown.click(shown.header(2), Qt::LeftButton, Qt::ControlModifier);
        QCOMPARE(shown->selectionModel()->selectedIndexes().size(), 5);
        QVERIFY(shown->selectionModel()->isColumnSelected(1, {}));
        QVERIFY(shown.grid->sortKeys().isEmpty());
        shown.grid->setSortsRows(false);
        shown.click(shown.header(3));
        QVERIFY(shown->selectionModel()->isColumnSelected(2, {}));
    }

    void keysGoThroughTheRowsAsTheyAreSeen()
    {
        SortedGrid shown;
        shown.click(shown.header(2));
        shown.key(Qt::Key_Home);
        QCOMPARE(shown->SelectedItem(), shown.item(5));
        shown.key(Qt::Key_End);
        QCOMPARE(shown->SelectedItem(), shown.item(4));
        shown.goTo(1, 1);
        shown.type(u"Low"_s);
        shown.key(Qt::Key_Return);
        QCOMPARE(shown.item(5)->SubItem(1), u"Low"_s);
        QCOMPARE(shown.current(), u"2 1"_s);
    }

    void rowsAreCopiedInTheOrderInWhichTheyAreSeen()
    {
        SortedGrid shown;
        shown->setMultiSelect(true);
        shown.grid->setEditsCells(false);
        shown.click(shown.header(2));
        shown.key(Qt::Key_A, Qt::ControlModifier);
        shown.key(Qt::Key_C, Qt::ControlModifier);
        QStringList names;
        for (const QString &line : QGuiApplication::clipboard()->text().split(u'\n'))
            names.append(line.section(u'\t', 0, 0));
        QCOMPARE(names.join(u'|'), u"Text 5|Text 2|Text 1|Text 3|Text 4|"_s);
    }

    void aChangeLeavesRowsWhereTheyAre()
    {
        SortedGrid shown;
        shown.click(shown.header(2));
        shown.set(5, 1, u"Zone"_s);
        QCOMPARE(shown.texts(1), u"Zone|fan2|Fan10|Pump|"_s);
        shown->Add(1, u"New"_s, u"New"_s)->setSubItem(1, u"Air"_s);
        QCOMPARE(shown.texts(1), u"Zone|fan2|Fan10|Pump||Air"_s);
        QCOMPARE(shown.item(1)->Text(), u"New"_s);
        shown.grid->arrangeRows();
        QCOMPARE(shown.texts(1), u"Air|fan2|Fan10|Pump|Zone|"_s);
        shown->ListItems()->Remove(1);
        QCOMPARE(shown.texts(1), u"fan2|Fan10|Pump|Zone|"_s);
        shown.grid->setSortKeys({});
        QCOMPARE(shown.texts(0), asAtFirst);
    }

    void newRowsComeSorted()
    {
        SortedGrid shown;
        shown.click(shown.header(1));
        shown->setRows({{.text = u"b"_s}, {.text = u"a"_s}});
        QCOMPARE(shown.texts(0), u"a|b"_s);
        QCOMPARE(shown.item(1)->Text(), u"b"_s);
        shown->appendRows({{.text = u"0"_s}, {.text = u"1"_s}});
        QCOMPARE(shown.texts(0), u"a|b|0|1"_s);
    }

    void undoFindsItsRows()
    {
        SortedGrid shown;
        shown.goTo(1, 1);
        shown.type(u"Zone"_s);
        shown.key(Qt::Key_Return);
        shown.click(shown.header(2));
        QCOMPARE(shown.texts(1), u"Fan1|fan2|Pump|Zone|"_s);
        shown.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(shown.item(1)->SubItem(1), u"Fan10"_s);
        QCOMPARE(shown.texts(1), u"Fan1|fan2|Pump|Fan10|"_s);
    }

    void anOpenEditorIsEnteredFirst()
    {
        SortedGrid shown;
        shown.goTo(2, 1);
        shown.type(u"Alarm"_s);
        shown.grid->setSortKeys({{1, Qt::AscendingOrder}});
        QTRY_COMPARE(shown.item(2)->SubItem(1), u"Alarm"_s);
        QCOMPARE(shown.typed(), u"(closed)"_s);
    }

    void columnsTakeTheirPartWithThem()
    {
        SortedGrid shown;
        shown.grid->setSortKeys({{1, Qt::AscendingOrder}, {2, Qt::AscendingOrder}});
        shown->ColumnHeaders()->Add(1, u"First"_s, u"First"_s);
        const ListGrid::SortKeys moved{{2, Qt::AscendingOrder}, {3, Qt::AscendingOrder}};
        QCOMPARE(shown.grid->sortKeys(), moved);
        shown->ColumnHeaders()->Remove(3);
        const ListGrid::SortKeys left{{2, Qt::AscendingOrder}};
        QCOMPARE(shown.grid->sortKeys(), left);
        QTRY_COMPARE(shown.text(1, 2), u"-3"_s); // what is in that place by now
        shown->ColumnHeaders()->Clear();
        QVERIFY(shown.grid->sortKeys().isEmpty());
        QCOMPARE(shown.item(1)->Text(), u"Text 1"_s);
    }

    void hiddenRowsStayHidden()
    {
        SortedGrid shown;
        shown.item(2)->setVisible(false);
        shown->setRowHeight(4, 40);
        shown.click(shown.header(2));
        QVERIFY(!shown.item(2)->Visible() && shown->isRowHidden(1));
        QCOMPARE(shown->rowHeight(0), 40);
        QVERIFY(shown.item(1)->Visible());
        shown.item(2)->setVisible(true);
        QVERIFY(!shown->isRowHidden(1));
        shown.click(shown.header(2));
        shown.click(shown.header(2));
        QVERIFY(!shown->isRowHidden(0) && !shown->isRowHidden(1));
    }

    void theHostHearsOfTheClickAsBefore()
    {
        SortedGrid shown;
        QStringList log;
        QObject::connect(shown.list, &ReportList::ColumnClick, shown.grid,
                         [&log](const ColumnHeader *header) { log.append(header->Key()); });
        QObject::connect(shown.grid, &ListGrid::rowsArranged, shown.grid,
                         [&log] { log.append(u"arranged"_s); });
        shown.click(shown.header(2));
        QCOMPARE(log.join(u' '), u"arranged Column2"_s);
        shown.grid->setSortsRows(false);
        shown.click(shown.header(2));
        QCOMPARE(log.join(u' '), u"arranged Column2 Column2"_s);
        QCOMPARE(shown.texts(1), u"Fan1|fan2|Fan10|Pump|"_s);
    }

    void theHostMayDestroyTheList()
    {
        SortedGrid shown;
        QObject::connect(shown.grid, &ListGrid::rowsArranged, shown.grid,
                         [&shown] { delete shown.list.data(); });
        shown.click(shown.header(2));
        QVERIFY(!shown.list);
    }

    void offClicksSortNothing()
    {
        ShownGrid shown;
        shown.click(shown.header(1));
        shown.click(shown.header(1));
        QCOMPARE(shown.texts(0), asAtFirst);
        QVERIFY(!shown->isSortingEnabled() && !shown->horizontalHeader()->isSortIndicatorShown());
    }
};

ORVT_TEST(GridSortTest)
#include "GridSortTest.moc"
