#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/grid/GridFixture.h"
#include <ORVTListview/ColumnHeader.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>

#include <QtGui/QAccessible>
#include <QtGui/QClipboard>
#include <QtGui/QUndoStack>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>
#include <QtTest/QtTest>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolButton>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// A grid with filters; in the second column Fan1, Fan2, Pump, nothing, Fan10.
class FilteredGrid : public ShownGrid
{
public:
    explicit FilteredGrid(ListGrid::FilterPlace place = ListGrid::FilterInColumns)
    {
        grid->setFilterPlace(place);
        const QStringList names{u"Fan1"_s, u"Fan2"_s, u"Pump"_s, u""_s, u"Fan10"_s};
        for (int row = 1; row <= 5; ++row)
            set(row, 1, names.at(row - 1));
        QCoreApplication::processEvents();
    }
    QList<QLineEdit *> fields() const
    {
        return list->horizontalHeader()->findChildren<QLineEdit *>(u"FilterField"_s);
    }
    QLineEdit *field(int column) const
    {
        for (QLineEdit *each : fields()) {
            const QPoint middle = each->geometry().center();
            if (each->isVisible() && list->horizontalHeader()->logicalIndexAt(middle.x()) == column)
                return each;
        }
        return nullptr;
    }
    // By mouse and keys.
    void typeInto(const QLineEdit *into, const QString &text) const
    {
        click(into->mapTo(&form, into->rect().center()));
        key(Qt::Key_A, Qt::ControlModifier);
        key(Qt::Key_Delete);
        type(text);
        QCoreApplication::processEvents();
    }
    QString count() const
    {
        const auto *label = list->findChild<QLabel *>(u"FilterCount"_s);
        return label ? label->text() : QString();
    }
};

} // namespace

class GridFilterTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void theButtonThatEmptiesAFieldHasAName()
    {
        const FilteredGrid shown;
        shown.typeInto(shown.field(1), u"Fan"_s);
        auto *button = shown.field(1)->findChild<QToolButton *>();
        QVERIFY(button);
        QCOMPARE(QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name),
                 u"Empty the filter"_s);
    }

    void aFieldOverTheRowsLooksIntoAllColumns()
    {
        FilteredGrid shown(ListGrid::FilterAbove);
        const QAbstractItemModelTester tester(shown->model());
        QCOMPARE(shown.fields().size(), 1);
        shown.typeInto(shown.fields().first(), u"fAN1"_s);
        QCOMPARE(shown.texts(0), u"Text 1|Text 5"_s);
        QCOMPARE(shown.count(), u"2 of 5"_s);
        QCOMPARE(shown.fields().first()->accessibleDescription(), u"2 of 5"_s);
        QCOMPARE(shown.grid->rowsShown(), 2);
        shown.typeInto(shown.fields().first(), u"text 3"_s);
        QCOMPARE(shown.texts(0), u"Text 3"_s);
        shown.key(Qt::Key_Escape);
        QTRY_COMPARE(shown.grid->rowsShown(), 5);
        QCOMPARE(shown.count(), QString());
        shown.key(Qt::Key_Escape);
        QVERIFY(shown->hasFocus());
    }

    void columnsHaveFieldsOfTheirOwn_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("names");

        QTest::newRow("a part") << u"an1"_s << u"Fan1|Fan10"_s;
        QTest::newRow("differs") << u"<>fan2"_s << u"Fan1|Pump||Fan10"_s;
        QTest::newRow("empty") << u"="_s << u""_s;
        QTest::newRow("not empty") << u"<>"_s << u"Fan1|Fan2|Pump|Fan10"_s;
        QTest::newRow("blanks") << u"  "_s << u"Fan1|Fan2|Pump||Fan10"_s;
    }
    void columnsHaveFieldsOfTheirOwn()
    {
        QFETCH(const QString, typed);
        QFETCH(const QString, names);
        FilteredGrid shown;
        QCOMPARE(shown.fields().size(), 6);
        shown.typeInto(shown.field(1), typed);
        QCOMPARE(shown.texts(1), names);
        QCOMPARE(shown.grid->filterText(1), typed);
    }

    void allCellsSelectedAndFiltered()
    {
        ShownGrid shown(300);
        shown->setMultiSelect(true);
        shown.grid->setSelectsCells(true);
        shown->selectAll();
        shown.grid->setFilterText(0, u"Text 29"_s);
        for (const QItemSelectionRange &range : shown->selectionModel()->selection())
            QVERIFY(range.isValid() && range.top() <= range.bottom());
        QCOMPARE(shown->selectionModel()->selectedRows(1).size(), 11);
        shown.grid->setFilterText(0, {});
        QCOMPARE(shown->selectionModel()->selectedRows(1).size(), 11);
        QVERIFY(shown.item(29)->Selected() && !shown.item(1)->Selected());
    }

    void whatTheProgramSelectsUnseenIsSelectedWhenItIsSeen()
    {
        ShownGrid shown;
        shown->setMultiSelect(true);
        shown.grid->setSelectsCells(true);
        shown.grid->setFilterText(0, u"Text 2"_s);
        shown.item(4)->setSelected(true);
        shown.grid->setFilterText(0, {});
        QCoreApplication::processEvents();
        QVERIFY(shown.item(4)->Selected() && shown->selectionModel()->isRowSelected(3));
    }

    void sortingTellsOfNoOtherSelection()
    {
        ShownGrid shown;
        shown.goTo(2, 0);
        QSignalSpy changed(shown->selectionModel(), &QItemSelectionModel::selectionChanged);
        shown.grid->setSortKeys({{0, Qt::DescendingOrder}});
        QCoreApplication::processEvents();
        QCOMPARE(changed.size(), 0);
        QVERIFY(shown->selectionModel()->isRowSelected(3));
    }

    void theCountFollowsARowThatIsNotSeen()
    {
        FilteredGrid shown(ListGrid::FilterAbove);
        shown.typeInto(shown.fields().first(), u"Fan1"_s);
        QCOMPARE(shown.count(), u"2 of 5"_s);
        shown->ListItems()->Remove(3);
        QCOMPARE(shown.count(), u"2 of 4"_s);
    }

    void aRefilledTableIsArrangedOnce()
    {
        FilteredGrid shown;
        shown.grid->setSortKeys({{0, Qt::DescendingOrder}});
        shown->Clear();
        QSignalSpy arranged(shown.grid, &ListGrid::rowsArranged);
        for (int row = 1; row <= 3; ++row)
            shown->ListItems()->Add(row, QString(), QString::number(row));
        QCoreApplication::processEvents();
        QCOMPARE(shown.texts(0), u"3|2|1"_s);
        QCOMPARE(arranged.size(), 1);
    }

    void whatIsSeenIsFound()
    {
        FilteredGrid shown;
        shown->setLocale(QLocale(QLocale::German, QLocale::Germany));
        shown.set(2, 2, u"21.5 K"_s);
        shown.set(3, 2, u"20"_s);
        shown.grid->setShowsLocalNumbers(true);
        for (const QString &typed : {u"21,5"_s, u"21.5"_s}) {
            shown.grid->setFilterText(2, typed);
            QCOMPARE(shown.texts(2), u"21.5 K"_s);
        }
    }

    void aRowHiddenByTheHostDoesNotBecomeCurrent()
    {
        ShownGrid shown;
        shown->setRowHidden(1, true);
        shown.goTo(5, 0);
        shown.grid->setFilterText(ListGrid::anyColumn, u"Text"_s);
        shown->setRowHidden(0, true);
        shown.set(5, 1, u"gone"_s);
        shown.item(5)->setText(u"Other"_s);
        shown.grid->arrangeRows();
        QVERIFY(shown->currentIndex().isValid());
        QVERIFY(!shown->isRowHidden(shown->currentIndex().row()));
    }

    void aHiddenColumnIsNotEdited()
    {
        FilteredGrid shown;
        shown.goTo(1, 1);
        shown->setColumnHidden(1, true);
        shown.key(Qt::Key_Delete);
        QCOMPARE(shown.text(1, 1), u"Fan1"_s);
        QVERIFY(!shown.grid->editCell(shown.item(1), 1));
        QTRY_VERIFY(!shown->isColumnHidden(shown->currentIndex().column()));
    }

    void allFiltersCount()
    {
        FilteredGrid shown;
        shown.typeInto(shown.field(1), u"Fan"_s);
        shown.typeInto(shown.field(0), u"5"_s);
        QCOMPARE(shown.texts(1), u"Fan10"_s);
        QCOMPARE(shown.count(), u"1 of 5"_s);
        shown.grid->setFilterText(0, {});
        QCOMPARE(shown.texts(1), u"Fan1|Fan2|Fan10"_s);
        QCOMPARE(shown.field(0)->text(), QString());
    }

    void fieldsStandUnderTheirHeaders()
    {
        FilteredGrid shown;
        const QHeaderView &header = *shown->horizontalHeader();
        for (int column = 0; column < 5; ++column) {
            const QRect place = shown.field(column)->geometry();
            QCOMPARE(place.left(), header.sectionViewportPosition(column));
            QCOMPARE(place.width(), header.sectionSize(column));
            QVERIFY(place.top() >= header.viewport()->geometry().bottom());
            QVERIFY(place.bottom() < header.height());
        }
        shown->setColumnWidth(0, 100);
        QCOMPARE(shown.field(0)->width(), 100);
        QCOMPARE(shown.field(1)->x(), 100);
        shown->setColumnHidden(1, true);
        QCOMPARE(shown.field(2)->x(), 100);
        QVERIFY(shown->viewport()->y() >= header.geometry().bottom());
    }

    void withoutFiltersTheHeaderIsAsBefore()
    {
        ShownGrid shown;
        const int height = shown->horizontalHeader()->height();
        shown.grid->setFilterPlace(ListGrid::FilterInColumns);
        QVERIFY(shown->horizontalHeader()->height() > height);
        shown.grid->setFilterText(0, u"5"_s);
        QCOMPARE(shown.grid->rowsShown(), 1);
        shown.grid->setFilterPlace(ListGrid::NoFilter);
        QCOMPARE(shown->horizontalHeader()->height(), height);
        QCOMPARE(shown.grid->rowsShown(), 5);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!shown->findChild<QLineEdit *>());
    }

    void enterAndDownGoToTheRows()
    {
        FilteredGrid shown;
        shown.typeInto(shown.field(1), u"Fan"_s);
        shown.key(Qt::Key_Return);
        QVERIFY(shown->hasFocus());
        shown.key(Qt::Key_Down);
        shown.key(Qt::Key_End);
        QCOMPARE(shown->SelectedItem(), shown.item(5));
    }

    void fieldsAreReachedByTab()
    {
        FilteredGrid shown;
        shown.grid->setEditsCells(false);
        shown->setFocus();
        shown.key(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), shown.field(0));
        shown.key(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), shown.field(1));
        QCOMPARE(shown.field(1)->accessibleName(), u"Filter: Header 2"_s);
    }

    void rowsThatAreNotSeenAreNotSelected()
    {
        FilteredGrid shown;
        shown->setMultiSelect(true);
        shown.click(shown.cell(2));
        shown.click(shown.cell(3), Qt::LeftButton, Qt::ControlModifier);
        shown.grid->setFilterText(1, u"Fan"_s);
        QVERIFY(shown.item(2)->Selected() && !shown.item(3)->Selected());
        QCOMPARE(shown.current(), u"1 0"_s); // the current one has gone
        shown.grid->setFilterText(1, {});
        QVERIFY(shown.item(2)->Selected() && !shown.item(3)->Selected());
        QTRY_COMPARE(shown->selectionModel()->selectedRows().size(), 1);
    }

    void theProgramHasAllRows()
    {
        FilteredGrid shown;
        shown.grid->setFilterText(1, u"Pump"_s);
        QCOMPARE(shown->ListItems()->Count(), 5);
        shown.set(1, 1, u"changed"_s);
        shown.item(1)->setForeground(Qt::red);
        shown.item(1)->setChecked(true);
        QCOMPARE(shown.item(1)->SubItem(1), u"changed"_s);
        shown->UpdateSubItems(u"v"_s, {}, 2);
        shown->setSelectedItem(shown.item(1));
        QVERIFY(shown.item(1)->Selected());
        QCOMPARE(shown->SelectedItem(), shown.item(1));
        shown.item(1)->EnsureVisible();
        shown->StartLabelEdit();
        shown.click(shown.cell(1));
        QVERIFY(!shown.item(1)->Selected() && shown.item(3)->Selected());
        shown->setSelectedItem(shown.item(1));
        shown->ListItems()->Remove(1);
        QCOMPARE(shown->ListItems()->Count(), 4);
        QCOMPARE(shown->SelectedItem(), nullptr);
        shown.grid->setFilterText(1, {});
        QCOMPARE(shown.texts(1), u"Fan2|Pump||Fan10"_s);
        QCOMPARE(shown.text(1, 2), u"v"_s);
    }

    void rowsHiddenByTheHostStaySo()
    {
        FilteredGrid shown;
        shown.item(2)->setVisible(false);
        shown.item(3)->setVisible(false);
        shown->setRowHeight(4, 40);
        shown.grid->setFilterText(1, u"Pump"_s);
        QCOMPARE(shown->verticalHeader()->count(), 1);
        QVERIFY(!shown.item(2)->Visible() && !shown.item(3)->Visible());
        shown.item(2)->setVisible(true);
        shown.item(1)->setVisible(false);
        shown.grid->setFilterText(1, {});
        QCOMPARE(shown->verticalHeader()->count(), 5);
        QVERIFY(!shown.item(1)->Visible() && shown.item(2)->Visible());
        QVERIFY(!shown.item(3)->Visible() && shown.item(4)->Visible());
    }

    void undoReachesRowsThatAreNotSeen()
    {
        FilteredGrid shown;
        shown.goTo(1, 1);
        shown.type(u"Zone"_s);
        shown.key(Qt::Key_Return);
        shown.grid->setFilterText(1, u"Fan"_s);
        shown.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(shown.item(1)->SubItem(1), u"Fan1"_s);
        QCOMPARE(shown.grid->rowsShown(), 2);
        QVERIFY(shown.grid->enterText(shown.item(3), 1, u"Air"_s));
        QCOMPARE(shown.item(3)->SubItem(1), u"Air"_s);
    }

    void whatIsPastedGoesIntoRowsThatAreSeen()
    {
        FilteredGrid shown;
        shown->setMultiSelect(true);
        shown.grid->setSelectsCells(true);
        shown.grid->setFilterText(1, u"Fan"_s);
        shown.goTo(2, 1);
        QGuiApplication::clipboard()->setText(u"A\nB\n"_s);
        shown.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(shown.item(2)->SubItem(1) + shown.item(5)->SubItem(1), u"AB"_s);
        QCOMPARE(shown.item(3)->SubItem(1), u"Pump"_s);
    }

    void newRowsAreFiltered()
    {
        FilteredGrid shown;
        shown.typeInto(shown.field(0), u"a"_s);
        shown->setRows({{.text = u"b"_s}, {.text = u"a"_s}, {.text = u"Ab"_s}});
        QCOMPARE(shown.texts(0), u"a|Ab"_s);
        QCOMPARE(shown.count(), u"2 of 3"_s);
        shown->Add(0, {}, u"new"_s);
        QCOMPARE(shown.texts(0), u"a|Ab|new"_s);
        QCOMPARE(shown.count(), u"3 of 4"_s);
        shown->Clear();
        QCOMPARE(shown.count(), u"0 of 0"_s);
    }

    void otherColumnsHaveOtherFields()
    {
        FilteredGrid shown;
        shown.typeInto(shown.field(1), u"Fan"_s);
        shown->ColumnHeaders()->Remove(1);
        QCoreApplication::processEvents();
        QCOMPARE(shown.grid->filterText(0), u"Fan"_s);
        QCOMPARE(shown.field(0)->text(), u"Fan"_s);
        shown->ColumnHeaders()->Remove(1);
        QTRY_COMPARE(shown.grid->rowsShown(), 5);
        shown->ColumnHeaders()->Clear();
        shown->ColumnHeaders()->Add(0, u"x"_s, u"X"_s);
        QCoreApplication::processEvents();
        QVERIFY(shown.field(0));
    }

    void sortedColumnsGoWithFieldsInTheHeader()
    {
        FilteredGrid shown;
        shown.grid->setSortKeys({{0, Qt::AscendingOrder}, {1, Qt::AscendingOrder}});
        shown->ColumnHeaders()->Remove(1);
        QCoreApplication::processEvents();
        QCOMPARE(shown.grid->sortKeys(), (ListGrid::SortKeys{{0, Qt::AscendingOrder}}));
        QVERIFY(shown.field(4));
    }

    void keysInAFieldAreNoKeysOfTheRows()
    {
        FilteredGrid shown;
        shown.grid->setEditsRows(true);
        shown.goTo(2, 1);
        shown.click(shown.field(1)->mapTo(&shown.form, shown.field(1)->rect().center()));
        shown.key(Qt::Key_Minus, Qt::ControlModifier);
        shown.key(Qt::Key_D, Qt::ControlModifier);
        shown.key(Qt::Key_F2);
        QCOMPARE(shown->ListItems()->Count(), 5);
        QCOMPARE(shown.text(2, 1), u"Fan2"_s);
        QCOMPARE(QApplication::focusWidget(), shown.field(1));
    }

    void aHostsOwnHeaderHasNoFields()
    {
        ShownGrid shown;
        shown->setHorizontalHeader(new QHeaderView(Qt::Horizontal, shown.list));
        shown.grid->setFilterPlace(ListGrid::FilterInColumns);
        shown.grid->setFilterText(0, u"5"_s);
        QCOMPARE(shown.grid->rowsShown(), 1);
        QVERIFY(!shown->findChild<QLineEdit *>(u"FilterField"_s));
        FilteredGrid other;
        other->setHorizontalHeader(new QHeaderView(Qt::Horizontal, other.list));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        other.grid->setFilterText(0, u"5"_s);
        other->ColumnHeaders()->Add(0, u"x"_s, u"X"_s);
        QCoreApplication::processEvents();
        QCOMPARE(other.grid->rowsShown(), 1);
    }

    void fieldsKeepTheirRoomInALargerFont()
    {
        FilteredGrid shown;
        QFont font = shown->font();
        font.setPixelSize(40);
        shown->setFont(font);
        QCoreApplication::processEvents();
        QVERIFY(shown.field(0)->y() >= shown->horizontalHeader()->viewport()->geometry().bottom());
    }

    void aRowThatIsNotShownIsRemovedAlone()
    {
        FilteredGrid shown;
        shown.grid->setFilterText(1, u"Fan"_s);
        QCOMPARE(shown.grid->rowsShown(), 3);
        shown->ListItems()->Remove(3); // Pump
        QCOMPARE(shown.grid->rowsShown(), 3);
        QCOMPARE(shown->ListItems()->Count(), 4);
        QCOMPARE(shown.item(4)->Key(), u"Row5"_s);
        shown.grid->setFilterText(1, {});
        QCOMPARE(shown.texts(1), u"Fan1|Fan2||Fan10"_s);
        QCOMPARE(shown.texts(0), u"Text 1|Text 2|Text 4|Text 5"_s);
    }

    void theFieldForAnyCellScrollsNothing()
    {
        FilteredGrid shown(ListGrid::FilterAbove);
        for (int column = 0; column < 6; ++column)
            shown->setColumnWidth(column, 150);
        QCoreApplication::processEvents();
        QScrollBar &bar = *shown->horizontalScrollBar();
        bar.setValue(bar.maximum());
        const int scrolled = bar.value();
        QVERIFY(scrolled > 0);
        shown.fields().constFirst()->setFocus();
        QVERIFY(shown.fields().constFirst()->hasFocus());
        QCOMPARE(bar.value(), scrolled);
    }

    void aFieldThatIsReachedIsSeen()
    {
        FilteredGrid shown;
        for (int column = 0; column < 6; ++column)
            shown->setColumnWidth(column, 150);
        QLineEdit *last = shown.fields().constLast();
        QVERIFY(last->x() > shown->horizontalHeader()->width());
        QCoreApplication::processEvents();
        last->setFocus();
        QVERIFY(shown->horizontalHeader()->rect().contains(last->geometry()));
    }

    void filtersWorkOnSortedRows()
    {
        FilteredGrid shown;
        shown.grid->setSortKeys({{1, Qt::DescendingOrder}});
        shown.typeInto(shown.field(1), u"Fan"_s);
        QCOMPARE(shown.texts(1), u"Fan10|Fan2|Fan1"_s);
        shown.grid->setSortKeys({});
        QCOMPARE(shown.texts(1), u"Fan1|Fan2|Fan10"_s);
    }

    void theHostMayDestroyTheListAsTheUserTypes()
    {
        FilteredGrid shown;
        QObject::connect(shown.grid, &ListGrid::rowsArranged, shown.grid,
                         [&shown] { delete shown.list.data(); });
        shown.typeInto(shown.field(1), u"Fan"_s);
        QVERIFY(!shown.list);
    }
};

ORVT_TEST(GridFilterTest)
#include "GridFilterTest.moc"
