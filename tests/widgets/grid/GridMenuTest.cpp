#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/grid/GridFixture.h"
#include <ORVTListview/ColumnHeader.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/MemoryPropertyBag.h>

#include <QtGui/QClipboard>
#include <QtGui/QContextMenuEvent>
#include <QtTest/QtTest>
#include <QtWidgets/QMenu>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

class MenuGrid : public ShownGrid
{
public:
    MenuGrid()
    {
        grid->setHasMenu(true);
        list->setMultiSelect(true);
    }
    QMenu *open(QWidget *on, QPoint at,
                QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse) const
    {
        QContextMenuEvent event(reason, at, on->mapToGlobal(at));
        QCoreApplication::sendEvent(on, &event);
        return qobject_cast<QMenu *>(QApplication::activePopupWidget());
    }
    QMenu *openCell(int row, int column) const
    {
        goTo(row, column);
        return open(list->viewport(),
                    list->visualRect(list->model()->index(row - 1, column)).center());
    }
    QMenu *openHeader(int column) const
    {
        QHeaderView &header = *list->horizontalHeader();
        return open(header.viewport(), {header.sectionViewportPosition(column) + 5, 5});
    }
    static QString plain(QString text) { return text.remove(u'&'); }
    static QString captions(const QMenu *menu)
    {
        QStringList texts;
        for (const QAction *action : menu ? menu->actions() : QList<QAction *>()) {
            if (!action->isSeparator())
                texts.append((action->isEnabled() ? QString() : u"-"_s) + plain(action->text()));
        }
        return texts.join(u'|');
    }
    // By its keys.
    static void choose(QMenu *menu, const QString &caption)
    {
        for (QAction *action : menu->actions()) {
            if (plain(action->text()) != caption)
                continue;
            menu->setActiveAction(action);
            QTest::keyClick(menu, Qt::Key_Return);
            QCoreApplication::processEvents();
            return;
        }
        QFAIL(qPrintable(caption));
    }
};

} // namespace

class GridMenuTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        while (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void itHasWhatIsPossible()
    {
        MenuGrid shown;
        QGuiApplication::clipboard()->setText(u"x"_s);
        QCOMPARE(shown.captions(shown.openCell(1, 1)),
                 u"-Undo|-Redo|Edit|Copy|Paste|Delete|Fill Down"_s);
        cleanup();
        QCOMPARE(shown.captions(shown.openCell(1, 0)),
                 u"-Undo|-Redo|-Edit|Copy|-Paste|-Delete|-Fill Down"_s);
        cleanup();
        shown.grid->setEditsCells(false);
        shown.grid->setSelectsCells(true);
        shown.grid->setSortsRows(true);
        shown.grid->setFilterPlace(ListGrid::FilterAbove);
        shown.grid->setEditsRows(true);
        QCOMPARE(shown.captions(shown.openCell(1, 1)),
                 u"Copy|Copy with Headers|Add Row|Duplicate Rows|Remove Rows|-Move Up|Move Down|"
                 u"Sort Upwards|Sort Downwards|-Not Sorted|-All Rows"_s);
        cleanup();
        QCOMPARE(shown.captions(shown.openHeader(1)),
                 u"Sort Upwards|Sort Downwards|-Not Sorted|-All Rows"_s);
    }

    void itDoesWhatItSays()
    {
        MenuGrid shown;
        shown.grid->setSortsRows(true);
        shown.choose(shown.openCell(1, 0), u"Sort Downwards"_s);
        QCOMPARE(shown.texts(0), u"Text 5|Text 4|Text 3|Text 2|Text 1"_s);
        shown.choose(shown.openHeader(0), u"Not Sorted"_s);
        QCOMPARE(shown.text(1, 0), u"Text 1"_s);
        shown.set(1, 1, u"Fan"_s);
        shown.choose(shown.openCell(2, 1), u"Fill Down"_s);
        QCOMPARE(shown.text(2, 1), u"Fan"_s);
        shown.choose(shown.openCell(1, 1), u"Delete"_s);
        QCOMPARE(shown.texts(1), u"|Fan|||"_s);
        shown.choose(shown.openCell(1, 1), u"Undo"_s);
        QCOMPARE(shown.text(1, 1), u"Fan"_s);
        shown.choose(shown.openCell(3, 1), u"Edit"_s);
        QCOMPARE(shown.typed(), QString());
    }

    void itOpensAtTheCellByKey()
    {
        MenuGrid shown;
        shown.goTo(3, 2);
        const QMenu *menu = shown.open(shown.list, {0, 0}, QContextMenuEvent::Keyboard);
        QVERIFY(menu);
        const QRect cell = shown->visualRect(shown->currentIndex());
        QVERIFY(cell.contains(shown->viewport()->mapFromGlobal(menu->pos())));
    }

    void aHostAddsToIt()
    {
        MenuGrid shown;
        QObject::connect(shown.grid, &ListGrid::menuOpening, shown.grid,
                         [](QMenu *menu) { menu->addAction(u"Read"_s); });
        QVERIFY(shown.captions(shown.openCell(1, 1)).endsWith(u"|Read"_s));
        cleanup();
        QObject::connect(shown.grid, &ListGrid::menuOpening, shown.grid,
                         [&shown] { delete shown.list.data(); });
        shown.openCell(1, 1);
        QVERIFY(!shown.list);
    }

    void offThereIsNone()
    {
        MenuGrid shown;
        shown.grid->setHasMenu(false);
        QVERIFY(!shown.openCell(1, 1));
    }

    void columnsAreHiddenAndComeBack()
    {
        MenuGrid shown;
        shown.grid->setArrangesColumns(true);
        int told = 0;
        QObject::connect(shown.grid, &ListGrid::columnsArranged, shown.grid, [&told] { ++told; });
        shown.choose(shown.openHeader(1), u"Hide Column"_s);
        QVERIFY(shown->isColumnHidden(1));
        QTRY_COMPARE(told, 1);
        const QMenu *menu = shown.openHeader(2);
        QCOMPARE(shown.captions(menu), u"Fit Column|Fit All Columns|Hide Column|Columns"_s);
        QMenu *columns = menu->actions().constLast()->menu();
        QCOMPARE(columns->actions().at(1)->isChecked(), false);
        columns->actions().at(1)->trigger();
        QCoreApplication::processEvents();
        QVERIFY(!shown->isColumnHidden(1));
        cleanup();
        for (int column = 1; column < 6; ++column)
            shown.choose(shown.openHeader(column), u"Hide Column"_s);
        QVERIFY(shown.captions(shown.openHeader(0)).contains(u"-Hide Column"_s));
    }

    void columnsAreDragged()
    {
        MenuGrid shown;
        shown.grid->setArrangesColumns(true);
        QHeaderView &header = *shown->horizontalHeader();
        const QPoint from = shown.header(2);
        shown.press(from);
        for (int step = 1; step <= 10; ++step)
            shown.move(from + QPoint(step * 8, 0));
        shown.release(from + QPoint(80, 0));
        QCOMPARE(header.visualIndex(1), 2);
        QVERIFY(shown.grid->columnLayout(u"Points"_s).startsWith(u"Column1:1020;Column3:"_s));
        shown.grid->setArrangesColumns(false);
        shown.press(from);
        for (int step = 1; step <= 10; ++step)
            shown.move(from + QPoint(step * 8, 0));
        shown.release(from + QPoint(80, 0));
        QCOMPARE(header.visualIndex(1), 2);
    }

    void aLayoutComesBackWithItsTable()
    {
        MenuGrid shown;
        shown.grid->setArrangesColumns(true);
        shown.grid->setColumnLayout(u"Points"_s, u"Column3:750;Column1:-1500;None:3;Column2:600"_s);
        const QHeaderView &header = *shown->horizontalHeader();
        QCOMPARE(header.visualIndex(2), 0);
        QVERIFY(shown->isColumnHidden(0));
        QCOMPARE(shown->columnWidth(2), 50);
        QCOMPARE(header.visualIndex(3), 3);
        shown.grid->setTable(u"Others"_s);
        shown->ColumnHeaders()->Clear();
        QCOMPARE(shown.grid->columnLayout(u"Others"_s), QString());
        shown.grid->setTable(u"Points"_s);
        for (int column = 1; column <= 3; ++column)
            shown->ColumnHeaders()->Add(0, u"Column%1"_s.arg(column));
        QTRY_COMPARE(header.visualIndex(2), 0);
        QVERIFY(shown->isColumnHidden(0));
        shown.choose(shown.openHeader(1), u"Fit Column"_s);
        QVERIFY(shown.grid->columnLayout(u"Points"_s).contains(u"Column1:-1500"_s));
    }

    void aLayoutComesWithTheNameOfItsTable()
    {
        MenuGrid shown;
        shown.grid->setArrangesColumns(true);
        shown.grid->setColumnLayout(u"Others"_s, u"Column3:750;Column1:-1500;Column2:600"_s);
        const QHeaderView &header = *shown->horizontalHeader();
        QCOMPARE(header.visualIndex(2), 2);
        shown.grid->setTable(u"Others"_s); // with the same columns
        QTRY_COMPARE(header.visualIndex(2), 0);
        QVERIFY(shown->isColumnHidden(0));
    }

    void theHostMayDestroyTheListFromACommand()
    {
        MenuGrid shown;
        shown.grid->setEditsRows(true);
        QObject::connect(shown.grid, &ListGrid::rowsEditing, shown.grid,
                         [&shown] { delete shown.list.data(); });
        shown.choose(shown.openCell(1, 1), u"Remove Rows"_s);
        QVERIFY(!shown.list);
        MenuGrid other;
        other.set(1, 1, u"Fan"_s);
        QObject::connect(other.grid, &ListGrid::cellEntering, other.grid,
                         [&other] { delete other.list.data(); });
        other.choose(other.openCell(1, 1), u"Delete"_s);
        QVERIFY(!other.list);
    }

    void commandsAreForTheColumnWhereTheMenuWasOpened()
    {
        MenuGrid shown;
        shown.grid->setArrangesColumns(true);
        shown.grid->setSortsRows(true);
        QMenu *menu = shown.openHeader(5);
        shown->ColumnHeaders()->Remove(6);
        shown.choose(menu, u"Fit Column"_s);
        menu = shown.openHeader(2);
        shown->ColumnHeaders()->Remove(1);
        shown.choose(menu, u"Sort Downwards"_s);
        QCOMPARE(shown.grid->sortKeys(), (ListGrid::SortKeys{{1, Qt::DescendingOrder}}));
    }

    void itDoesNotCopyWhereCopyingIsOff()
    {
        MenuGrid shown;
        shown.choose(shown.openCell(2, 0), u"Copy"_s);
        QVERIFY(QGuiApplication::clipboard()->text().startsWith(u"Text 2"_s));
        shown->setCopiesRows(false);
        QVERIFY(!shown.captions(shown.openCell(1, 1)).contains(u"Copy"_s));
        cleanup();
        shown.grid->setSelectsCells(true);
        QVERIFY(!shown.captions(shown.openCell(1, 1)).contains(u"Copy"_s));
    }

    void theListOfWordsHasNone()
    {
        MenuGrid shown;
        shown.grid->setTable(u"Code"_s);
        QVERIFY(!shown.openCell(1, 1));
        shown.grid->setTable(u"Points"_s);
        QVERIFY(shown.openCell(1, 1));
    }

    void anEmptyMenuDoesNotOpen()
    {
        MenuGrid shown;
        QVERIFY(!shown.openHeader(1));
    }

    void theHostMayDestroyTheListAsColumnsAreArranged()
    {
        MenuGrid shown;
        shown.grid->setArrangesColumns(true);
        int told = 0;
        QObject::connect(shown.grid, &ListGrid::columnsArranged, shown.grid, [&] {
            ++told;
            delete shown.list.data();
        });
        const QPoint divider = shown.header(2) + QPoint(34, 0);
        shown.press(divider);
        for (int step = 1; step <= 10; ++step) {
            shown.move(divider + QPoint(step * 2, 0));
            QCoreApplication::processEvents();
        }
        QCOMPARE(told, 0);
        shown.release(divider + QPoint(20, 0));
        QTRY_COMPARE(told, 1);
        QVERIFY(!shown.list);
    }

    void whatTheProgramResizesIsNotTheUsers()
    {
        MenuGrid shown;
        shown.grid->setArrangesColumns(true);
        shown.press(shown.cell(1));
        shown->setColumnWidth(1, 100);
        shown->horizontalHeader()->moveSection(0, 2);
        shown.release(shown.cell(1));
        QCOMPARE(shown.grid->columnLayout(u"Points"_s), QString());
    }

    void aHeaderThatTheHostMakesMovableArrangesNothing()
    {
        MenuGrid shown;
        shown->horizontalHeader()->setSectionsMovable(true);
        QVERIFY(!shown.grid->arrangesColumns());
        shown.grid->setArrangesColumns(true);
        shown.grid->setArrangesColumns(false);
        QVERIFY(shown->horizontalHeader()->sectionsMovable());
    }

    void anEmptyLayoutGivesTheColumnsBack()
    {
        MenuGrid shown;
        shown.grid->setColumnLayout(u"Points"_s, u"Column3:750;Column1:-1500"_s);
        const QHeaderView &header = *shown->horizontalHeader();
        QCOMPARE(header.visualIndex(2), 0);
        shown.grid->readColumnLayouts(MemoryPropertyBag());
        QCOMPARE(shown.grid->columnLayout(u"Points"_s), QString());
        QVERIFY(!shown->isColumnHidden(0));
        for (int column = 0; column < 6; ++column)
            QCOMPARE(header.visualIndex(column), column);
    }

    void layoutsOfTheHostsTablesAreKept()
    {
        MenuGrid shown;
        shown.grid->setColumnLayout(u"My; own"_s, u"Label:1440"_s);
        MemoryPropertyBag bag;
        shown.grid->writeColumnLayouts(bag);
        MenuGrid other;
        other.grid->readColumnLayouts(bag);
        QCOMPARE(other.grid->columnLayout(u"My; own"_s), u"Label:1440"_s);
    }

    void layoutsAreKeptInABag()
    {
        MenuGrid shown;
        shown.grid->setColumnLayout(u"Inputs"_s, u"Label:1440"_s);
        MemoryPropertyBag bag;
        shown.grid->writeColumnLayouts(bag);
        QCOMPARE(bag.ReadProperty(u"ColumnLayouts.Inputs"_s, {}).toString(), u"Label:1440"_s);
        MenuGrid other;
        other.grid->readColumnLayouts(bag);
        QCOMPARE(other.grid->columnLayout(u"Inputs"_s), u"Label:1440"_s);
        QCOMPARE(other.grid->columnLayout(u"Outputs"_s), QString());
    }
};

ORVT_TEST(GridMenuTest)
#include "GridMenuTest.moc"
