// What a host does with the rows of ORVListView's point table.

#include "pointtable/PointTableTexts.h"
#include "pointtable/rules/ColumnLayouts.h"
#include "support/PseudoTexts.h"
#include "support/Raised.h"
#include "support/RandomSeed.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/look/PictureBox.h"

#include <ORVTListview/ORVTListview.h>

#include <QtTest/QAbstractItemModelTester>
#include <QtWidgets/QScrollBar>

#include <random>

using namespace ORVTListview;
using namespace PointTable;
using namespace Qt::StringLiterals;

class PointTableRowsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void subItemsAreSetInEveryRow();
    void subItemsKeepSelectionAndScroll();
    void subItemsOutsideTheColumnsChangeNothing_data();
    void subItemsOutsideTheColumnsChangeNothing();
    void rowsAreAddedAndFound();
    void theRowsInViewAndAtAPlaceAreTold();
    void aRowIsSelectedByTheHost();
    void clearTakesTheRowsOnly();
    void clearInCodeModeLeavesTheList();
    void handlesOfFormerRowsFail();
    void textsChangeInPlace();
    void bearsRandomCalls();
};

void PointTableRowsTest::subItemsAreSetInEveryRow()
{
    ORVListView list;
    list.UpdateSubItems(u"off"_s, u"7"_s, 3);
    for (int index = 1; index <= 12; ++index) {
        const ListItem &item = *list.ListItems()->Item(index);
        QCOMPARE(item.SubItem(3), u"off"_s);
        QCOMPARE(item.SubItemTag(3), u"7"_s);
        QCOMPARE(item.SubItem(2), QString());
        QCOMPARE(item.SubItem(6), u" "_s);
    }
    list.UpdateSubItems(QString(), QString(), 3);
    QCOMPARE(list.ListItems()->Item(12)->SubItem(3), QString());
    QCOMPARE(list.ListItems()->Item(12)->SubItemTag(3), QString());
    list.UpdateSubItems(u"last"_s, u"t"_s, 6);
    QCOMPARE(list.ListItems()->Item(1)->SubItem(6), u"last"_s);
}

void PointTableRowsTest::subItemsKeepSelectionAndScroll()
{
    ORVListView list;
    list.setListviewType(dsVariable);
    list.resize(300, 200);
    list.show();
    list.ListItems()->Item(40)->EnsureVisible();
    list.setSelectedItem(list.ListItems()->Item(33));
    const ListItem *top = list.GetFirstVisible();
    QVERIFY(top->Index() > 1);
    list.listView()->horizontalScrollBar()->setValue(50);
    list.UpdateSubItems(u"x"_s, u"y"_s, 2);
    QCoreApplication::processEvents();
    QCOMPARE(list.GetFirstVisible(), top);
    QCOMPARE(list.SelectedItem(), list.ListItems()->Item(33));
    QCOMPARE(list.listView()->horizontalScrollBar()->value(), 50);
}

void PointTableRowsTest::subItemsOutsideTheColumnsChangeNothing_data()
{
    QTest::addColumn<int>("index");
    for (const int index : {0, -1, 7, 32767, -32768})
        QTest::addRow("%d", index) << index;
}

void PointTableRowsTest::subItemsOutsideTheColumnsChangeNothing()
{
    QFETCH(int, index);
    ORVListView list;
    const QStringList rows = rowsOf(list);
    list.UpdateSubItems(u"x"_s, u"y"_s, static_cast<qint16>(index));
    QCOMPARE(rowsOf(list), rows);
}

void PointTableRowsTest::rowsAreAddedAndFound()
{
    ORVListView list;
    ListItem *added = list.Add(0, u"Mine"_s, u"Pump"_s);
    QCOMPARE(added->Index(), 13);
    added->setTag(u"spare"_s);
    added->setSubItem(3, u"Supply air"_s);
    QCOMPARE(list.Add(1)->Index(), 1);
    QCOMPARE(added->Index(), 14);
    QCOMPARE(list.ListItems()->Item(u"Mine"_s), added);
    QCOMPARE(list.FindItem(u"pump"_s), added);
    QCOMPARE(list.FindItem(u"PU"_s, 0, 1, 1), added);
    QCOMPARE(list.FindItem(u"pu"_s), nullptr);
    QCOMPARE(list.FindItem(u"supply AIR"_s, 1), added);
    QCOMPARE(list.FindItem(u"Supply"_s, 1, 1, 1), added);
    QCOMPARE(list.FindItem(u"spare"_s, 2), added);
    QCOMPARE(list.FindItem(u"spare"_s, 2, 15), nullptr);
    QCOMPARE(list.FindItem(u"0"_s, 0, 3, 1), list.ListItems()->Item(3));
    QCOMPARE(raisedBy([&] { list.Add(0, u"Mine"_s); })->Number(), qint32{InvalidCall});
    QCOMPARE(raisedBy([&] { list.Add(99); })->Number(), qint32{SubscriptOutOfRange});
    QCOMPARE(list.ListItems()->Count(), 14);
    QVERIFY(raisedBy([&] { list.FindItem(u"x"_s, 3); }));
    QVERIFY(list.Add(0, u"mine"_s)); // another key
}

void PointTableRowsTest::theRowsInViewAndAtAPlaceAreTold()
{
    ORVListView list;
    list.setListviewType(dsVariable);
    list.resize(400, 200);
    list.show();
    QCOMPARE(list.GetFirstVisible(), list.ListItems()->Item(1));
    const ReportList &table = *list.listView();
    const QPoint middle =
        table.viewport()->mapTo(&table, table.visualRect(table.model()->index(2, 0)).center());
    const auto twips = [&](int pixels) {
        return static_cast<float>(pixels * 1440 / list.logicalDpiX());
    };
    QCOMPARE(list.HitTest(twips(middle.x()), twips(middle.y())), list.ListItems()->Item(3));
    QCOMPARE(list.HitTest(0, 0), nullptr);
    QCOMPARE(list.HitTest(-100, -100), nullptr);
    QCOMPARE(list.HitTest(1e9F, 1e9F), nullptr);
    list.Clear();
    QCOMPARE(list.GetFirstVisible(), nullptr);
}

void PointTableRowsTest::aRowIsSelectedByTheHost()
{
    ORVListView list;
    QCOMPARE(list.SelectedItem(), nullptr);
    list.setSelectedItem(list.ListItems()->Item(4));
    QCOMPARE(list.SelectedItem(), list.ListItems()->Item(4));
    list.setSelectedItem(nullptr);
    QCOMPARE(list.SelectedItem(), nullptr);
    list.setMultiSelect(true);
    list.ListItems()->Item(2)->setSelected(true);
    list.ListItems()->Item(5)->setSelected(true);
    QVERIFY(list.ListItems()->Item(2)->Selected());
    list.setMultiSelect(false);
    QCOMPARE(
        int{list.ListItems()->Item(2)->Selected()} + int{list.ListItems()->Item(5)->Selected()}, 1);
    const ORVListView other;
    QVERIFY(raisedBy([&] { list.setSelectedItem(other.ListItems()->Item(1)); }));
}

void PointTableRowsTest::clearTakesTheRowsOnly()
{
    ORVListView list;
    list.Clear();
    QCOMPARE(list.ListItems()->Count(), 0);
    QCOMPARE(headerKeys(list), columnKeys(dsInput, false));
    QCOMPARE(list.NumberItems(), 12);
    list.Clear();
}

void PointTableRowsTest::clearInCodeModeLeavesTheList()
{
    ORVListView list;
    list.setListviewType(dsCode);
    list.RefillListviewWithWordList();
    list.setCodeText(u"IF x"_s);
    const QStringList words = rowsOf(list);
    QVERIFY(!words.isEmpty());
    list.Clear();
    QCOMPARE(list.CodeText(), QString());
    QCOMPARE(rowsOf(list), words);
}

void PointTableRowsTest::handlesOfFormerRowsFail()
{
    ORVListView list;
    ListItem *row = list.ListItems()->Item(1);
    ColumnHeader *column = list.ColumnHerders()->Item(2);
    list.setListviewType(dsTimer);
    QVERIFY(!row->isAlive());
    QVERIFY(!column->isAlive());
    QCOMPARE(raisedBy([&] { row->Text(); })->Number(), qint32{ObjectNotSet});
    QCOMPARE(raisedBy([&] { column->setWidth(1); })->Number(), qint32{ObjectNotSet});
    QCOMPARE(raisedBy([&] { list.setSelectedItem(row); })->Number(), qint32{ObjectNotSet});
}

void PointTableRowsTest::textsChangeInPlace()
{
    ORVListView list;
    list.setListviewType(dsOutput);
    ListItem *row = list.ListItems()->Item(2);
    row->setSubItem(1, u"Label"_s); // a text of the host, in the language of nobody
    row->setSelected(true);
    list.ColumnHerders()->Item(3)->setWidth(1995);
    ColumnHeader *named = list.ColumnHerders()->Add(0, u"Setpoint"_s, u"mine"_s);
    ColumnHeader *unnamed = list.ColumnHerders()->Add(0, QString(), u"mine"_s);
    const QStringList rows = rowsOf(list);
    list.SetImage(true);
    PseudoTexts pseudo;
    setTextProvider(&pseudo);
    QCOMPARE(headerTexts(list).at(1), u"Label"_s); // not before it is told
    list.ReInitializeStrings();
    QCOMPARE(list.Caption(), PseudoTexts::inBrackets(u"Outputs"_s));
    QCOMPARE(list.Key(), u"Outputs"_s);
    QCOMPARE(headerTexts(list).at(0), u"#"_s);
    QCOMPARE(headerTexts(list).at(1), PseudoTexts::inBrackets(u"Label"_s));
    QCOMPARE(headerTexts(list).at(6), PseudoTexts::inBrackets(u"Commissioned"_s));
    QCOMPARE(named->Text(), PseudoTexts::inBrackets(u"Setpoint"_s));
    QCOMPARE(unnamed->Text(), u"mine"_s);
    QCOMPARE(headerKeys(list).at(1), u"Label"_s);
    QCOMPARE(rowsOf(list), rows);
    QCOMPARE(list.SelectedItem(), row);
    QCOMPARE(list.GetSubItemWidth(2), 1995);
    QCOMPARE(partOf<PictureBox>(list, u"ImgWrite"_s).accessibleName(),
             PseudoTexts::inBrackets(u"Busy"_s));
    QCOMPARE(partOf<QWidget>(list, u"ImgRead"_s).toolTip(),
             PseudoTexts::inBrackets(u"Click here to read data values"_s));
    setTextProvider(nullptr);
    list.ReInitializeStrings();
    QCOMPARE(headerTexts(list).at(1), u"Label"_s);
    QCOMPARE(list.Caption(), u"Outputs"_s);
}

void PointTableRowsTest::bearsRandomCalls()
{
    const unsigned seed = randomSeed();
    std::mt19937 random(seed);
    const auto below = [&](int limit) {
        return std::uniform_int_distribution<int>(0, limit - 1)(random);
    };
    ORVListView list;
    list.resize(500, 300);
    list.show();
    const QAbstractItemModelTester tester(list.listView()->model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    QString message;
    for (int step = 0; step < 600; ++step) {
        const auto number = static_cast<qint16>(below(40) - 5);
        const int rows = list.ListItems()->Count();
        switch (below(12)) {
        case 0:
            list.setListviewType(static_cast<LwType>(below(16) - 1));
            break;
        case 1:
            list.setNumberItems(number);
            break;
        case 2:
            list.ChangeListviewNumber(number);
            break;
        case 3:
            list.setIsWait(below(2) == 0);
            break;
        case 4:
            list.setIsHOASupported(below(2) == 0);
            break;
        case 5:
            list.UpdateSubItems(u"x"_s, u"y"_s, static_cast<qint16>(below(16) - 1));
            break;
        case 6:
            list.UpdateListViewWidth(message);
            break;
        case 7:
            list.Add(below(2) * below(rows + 2) % (rows + 2), QString(), u"new"_s);
            break;
        case 8:
            if (rows > 0)
                list.ListItems()->Remove(1 + below(rows));
            break;
        case 9:
            if (rows > 0)
                list.setSelectedItem(list.ListItems()->Item(1 + below(rows)));
            break;
        case 10:
            list.ReInitializeStrings();
            break;
        default:
            list.resize(below(900), below(500));
            QCoreApplication::processEvents();
        }
        const bool isCode = list.ListviewType() == dsCode;
        if (list.listView()->isHidden() != isCode || list.RTextBox()->isHidden() == isCode ||
            (!isCode && headerKeys(list).first() != u"#"_s))
            QFAIL(qPrintable(u"seed %1, step %2"_s.arg(seed).arg(step)));
    }
}

ORVT_TEST(PointTableRowsTest)
#include "PointTableRowsTest.moc"
