// The point table of ORVListView as its host drives it.

#include "pointtable/rules/ColumnLayouts.h"
#include "shared/points/DisplayNames.h"
#include "support/PseudoTexts.h"
#include "support/Raised.h"
#include "support/RandomSeed.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/look/PictureBox.h"
#include "widgets/look/PictureButton.h"

#include <ORVTListview/ORVTListview.h>

#include <QtTest/QAbstractItemModelTester>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollBar>

#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

constexpr LwType tableTypes[] = {dsVariable,   dsConst, dsInput,      dsOutput,
                                 dsController, dsLog,   dsTimer,      dsOs,
                                 dsNvi,        dsNvo,   dsInputParam, dsOutputParam};

template <typename Part>
Part &partOf(const ORVListView &list, const QString &name)
{
    auto *part = list.findChild<Part *>(name);
    if (!part)
        qFatal("there is no %s", qPrintable(name));
    return *part;
}

QStringList headerKeys(const ORVListView &list)
{
    QStringList keys;
    for (int index = 1; index <= list.ColumnHerders()->Count(); ++index)
        keys << list.ColumnHerders()->Item(index)->Key();
    return keys;
}

QStringList headerTexts(const ORVListView &list)
{
    QStringList texts;
    for (int index = 1; index <= list.ColumnHerders()->Count(); ++index)
        texts << list.ColumnHerders()->Item(index)->Text();
    return texts;
}

// Key, text and sub-items of each row.
QStringList rowsOf(const ORVListView &list)
{
    QStringList rows;
    for (int index = 1; index <= list.ListItems()->Count(); ++index) {
        const ListItem &item = *list.ListItems()->Item(index);
        QString row = item.Key() + u':' + item.Text();
        for (int column = 1; column < list.ColumnHerders()->Count(); ++column)
            row += u'|' + item.SubItem(column);
        rows << row;
    }
    return rows;
}

QStringList emptyRows(const ORVListView &list, int count)
{
    QStringList rows;
    const int columns = list.ColumnHerders()->Count();
    for (int number = 1; number <= count; ++number)
        rows << rowKey(list.Key(), number) + u':' + rowText(number) + QString(columns - 1, u'|') +
                    (columns > 1 ? u" "_s : QString());
    return rows;
}

} // namespace

class PointTableTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void aFreshControlIsAnInputTableWithoutCaption();
    void everyTypeBuildsItsTable_data();
    void everyTypeBuildsItsTable();
    void aTypeOutsideTheRangeChangesNothing_data();
    void aTypeOutsideTheRangeChangesNothing();
    void aTypeBringsItsOwnNumberOfItems();
    void aNumberOfItemsBuildsTheTypeAnew();
    void aNumberOfItemsIsKeptAndUsed_data();
    void aNumberOfItemsIsKeptAndUsed();
    void theCodeLeavesOneColumn();
    void hardwareOverridesComeWithTheNextSwitch();
    void waitingKeepsTheRows();
    void waitingDoesNotHoldBackACount();
    void aCountRebuildsTheRowsIfItDiffers();
    void aCountLeavesTheRowsAlone();
    void aCountReachesColumnsOfTheHost();
    void aCountDoesNothingInCodeMode();
    void theStatusPictureTellsWhetherItIsBusy();
    void aSwitchIsIdleAgain();
    void subItemsAreSetInEveryRow();
    void subItemsKeepSelectionAndScroll();
    void subItemsOutsideTheColumnsChangeNothing_data();
    void subItemsOutsideTheColumnsChangeNothing();
    void rowsAreAddedAndFound();
    void theRowsInViewAndAtAPlaceAreTold();
    void aRowIsSelectedByTheHost();
    void clearTakesTheRowsOnly();
    void clearInCodeModeLeavesTheList();
    void widthsAreTold();
    void widthsFitTheirContents();
    void widthsFitAHiddenControl();
    void widthsFitWithoutColumns();
    void handlesOfFormerRowsFail();
    void textsChangeInPlace();
    void captionTakesTheDisplayFont();
    void captionGivesAWithdrawnFontBack();
    void bearsRandomCalls();
};

void PointTableTest::aFreshControlIsAnInputTableWithoutCaption()
{
    const ORVListView list;
    QCOMPARE(list.ListviewType(), dsInput);
    QCOMPARE(list.CurrentType(), dsInput);
    QCOMPARE(list.Key(), u"Inputs"_s);
    QCOMPARE(list.Caption(), QString());
    QCOMPARE(list.NumberItems(), 12);
    QCOMPARE(headerKeys(list), columnKeys(dsInput, false));
    QCOMPARE(rowsOf(list), emptyRows(list, 12));
    QVERIFY(list.Enabled());
    QVERIFY(!list.MultiSelect());
    QVERIFY(!list.IsHOASupported());
    QVERIFY(!list.listView()->isHidden());
    QVERIFY(list.RTextBox()->isHidden());
    QCOMPARE(partOf<PictureButton>(list, u"ImgRead"_s).PictureKey(), u"Inputs"_s);
    QCOMPARE(partOf<PictureBox>(list, u"ImgWrite"_s).PictureKey(), u"BallGreen"_s);
    for (const QString &name : {u"ListView1"_s, u"LblCaption"_s, u"ImgRead"_s, u"ImgWrite"_s})
        QVERIFY(partOf<QWidget>(list, name).isEnabled());
}

void PointTableTest::everyTypeBuildsItsTable_data()
{
    QTest::addColumn<int>("type");
    for (const LwType type : tableTypes)
        QTest::newRow(qPrintable(displayName(type))) << int{type};
}

void PointTableTest::everyTypeBuildsItsTable()
{
    QFETCH(int, type);
    PseudoTexts pseudo;
    setTextProvider(&pseudo);
    ORVListView list;
    list.setListviewType(type == dsInput ? dsTimer : dsInput); // something to be discarded
    list.ListItems()->Item(1)->setSubItem(1, u"old"_s);
    const auto lwType = static_cast<LwType>(type);
    list.setListviewType(lwType);
    const QString name = displayName(type);
    QCOMPARE(list.ListviewType(), lwType);
    QCOMPARE(list.Key(), name);
    QCOMPARE(list.Caption(), PseudoTexts::inBrackets(name));
    QCOMPARE(headerKeys(list), columnKeys(type, false));
    QStringList texts{u"#"_s};
    for (const QString &key : columnKeys(type, false).mid(1))
        texts << PseudoTexts::inBrackets(key);
    QCOMPARE(headerTexts(list), texts);
    QCOMPARE(list.NumberItems(), defaultNumberItems(type));
    QCOMPARE(rowsOf(list), emptyRows(list, defaultNumberItems(type)));
    QCOMPARE(partOf<PictureButton>(list, u"ImgRead"_s).PictureKey(), name);
    QCOMPARE(partOf<PictureButton>(list, u"ImgRead"_s).Tag(), name);
    QVERIFY(list.GetImage()->Contains(name) && list.GetImage()->Contains(name + u"Down"_s));
    for (int index = 1; index <= list.ColumnHerders()->Count(); ++index)
        QCOMPARE(list.ColumnHerders()->Item(index)->Width(), ColumnHeaders::defaultWidth);
}

void PointTableTest::aTypeOutsideTheRangeChangesNothing_data()
{
    QTest::addColumn<int>("type");
    for (const int type : {-1, 13, 1000, -2147483647})
        QTest::addRow("%d", type) << type;
}

void PointTableTest::aTypeOutsideTheRangeChangesNothing()
{
    QFETCH(int, type);
    ORVListView list;
    list.setListviewType(dsLog);
    list.setNumberItems(3);
    list.SetImage(true);
    list.setCaption(u"mine"_s);
    list.ListItems()->Item(2)->setSubItem(1, u"kept"_s);
    const QStringList rows = rowsOf(list);
    list.setListviewType(static_cast<LwType>(type));
    QCOMPARE(list.ListviewType(), dsLog);
    QCOMPARE(list.NumberItems(), 3);
    QCOMPARE(list.Caption(), u"mine"_s);
    QCOMPARE(rowsOf(list), rows);
    QCOMPARE(partOf<PictureBox>(list, u"ImgWrite"_s).PictureKey(), u"BallRed"_s);
}

void PointTableTest::aTypeBringsItsOwnNumberOfItems()
{
    ORVListView list;
    list.setNumberItems(3);
    list.setListviewType(dsLog);
    QCOMPARE(list.NumberItems(), 24);
    QCOMPARE(list.ListItems()->Count(), 24);
    QCOMPARE(list.ListItems()->Item(1)->Text(), u"01"_s);
    QCOMPARE(list.ListItems()->Item(24)->Text(), u"24"_s);
    list.setListviewType(dsCode);
    QCOMPARE(list.NumberItems(), 0);
}

void PointTableTest::aNumberOfItemsBuildsTheTypeAnew()
{
    ORVListView list;
    list.setListviewType(dsOs);
    list.ListItems()->Item(1)->setSubItem(2, u"old"_s);
    list.ColumnHerders()->Clear();
    list.setCaption(u"mine"_s);
    list.SetImage(true);
    list.setNumberItems(2);
    QCOMPARE(list.Caption(), u"Optimum Starts"_s);
    QCOMPARE(headerKeys(list), columnKeys(dsOs, false));
    QCOMPARE(rowsOf(list), emptyRows(list, 2));
    QCOMPARE(list.ListItems()->Item(2)->Key(), u"OptimumStarts2"_s);
    QCOMPARE(partOf<PictureBox>(list, u"ImgWrite"_s).PictureKey(), u"BallGreen"_s);
}

void PointTableTest::aNumberOfItemsIsKeptAndUsed_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("rows");
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("a hundred") << 100 << 100;
    QTest::newRow("negative") << -1 << 0;
    QTest::newRow("most negative") << -32768 << 0;
    QTest::newRow("most") << 32767 << 32767;
}

void PointTableTest::aNumberOfItemsIsKeptAndUsed()
{
    QFETCH(int, count);
    QFETCH(int, rows);
    ORVListView list;
    list.setNumberItems(static_cast<qint16>(count));
    QCOMPARE(list.NumberItems(), count);
    QCOMPARE(list.ListItems()->Count(), rows);
    QCOMPARE(headerKeys(list), columnKeys(dsInput, false));
    if (rows > 0) {
        QCOMPARE(list.ListItems()->Item(1)->Text(), u"01"_s);
        QCOMPARE(list.ListItems()->Item(rows)->Text(), rowText(rows));
        QCOMPARE(list.ListItems()->Item(u"Inputs%1"_s.arg(rows))->Index(), rows);
    }
}

void PointTableTest::theCodeLeavesOneColumn()
{
    ORVListView list;
    list.setListviewType(dsCode);
    QCOMPARE(headerKeys(list), QStringList(u"#"_s));
    QCOMPARE(headerTexts(list), QStringList(u"#"_s));
    QCOMPARE(list.Key(), u"Code"_s);
    QCOMPARE(list.Caption(), u"Code"_s);
    QCOMPARE(partOf<PictureButton>(list, u"ImgRead"_s).PictureKey(), u"Code"_s);
    QVERIFY(list.listView()->isHidden());
    QVERIFY(!list.RTextBox()->isHidden());
    list.setNumberItems(5); // re-applies the code
    QCOMPARE(headerKeys(list), QStringList(u"#"_s));
    QVERIFY(list.listView()->isHidden());
    list.setListviewType(dsTimer);
    QCOMPARE(headerKeys(list), columnKeys(dsTimer, false));
    QCOMPARE(rowsOf(list), emptyRows(list, 15));
    QVERIFY(!list.listView()->isHidden());
    QVERIFY(list.RTextBox()->isHidden());
    QVERIFY(!list.listView()->isWindow());
}

void PointTableTest::hardwareOverridesComeWithTheNextSwitch()
{
    ORVListView list;
    list.setListviewType(dsOutput);
    QCOMPARE(list.ColumnHerders()->Count(), 7);
    list.setIsHOASupported(true);
    QVERIFY(list.IsHOASupported());
    QCOMPARE(list.ColumnHerders()->Count(), 7);
    list.setNumberItems(4);
    QCOMPARE(list.ColumnHerders()->Count(), 9);
    QCOMPARE(headerKeys(list).mid(7), QStringList({u"Hw Override Mode"_s, u"Hw Override Value"_s}));
    QCOMPARE(rowsOf(list), emptyRows(list, 4));
    list.setListviewType(dsInput);
    QCOMPARE(list.ColumnHerders()->Count(), 7);
    list.setIsHOASupported(false);
    list.setListviewType(dsOutput);
    QCOMPARE(list.ColumnHerders()->Count(), 7);
}

void PointTableTest::waitingKeepsTheRows()
{
    ORVListView list;
    list.ListItems()->Item(3)->setSubItem(1, u"kept"_s);
    ListItem *third = list.ListItems()->Item(3);
    list.setIsWait(true);
    list.setListviewType(dsLog);
    QCOMPARE(headerKeys(list), columnKeys(dsLog, false));
    QCOMPARE(list.NumberItems(), 24);
    QCOMPARE(list.ListItems()->Count(), 12);
    QCOMPARE(list.ListItems()->Item(3), third);
    QCOMPARE(third->SubItem(1), u"kept"_s);
    list.setNumberItems(2);
    QCOMPARE(list.ListItems()->Count(), 12);
    list.setIsWait(false);
    QCOMPARE(list.ListItems()->Count(), 12);
    list.setListviewType(dsLog);
    QCOMPARE(rowsOf(list), emptyRows(list, 24));
}

void PointTableTest::waitingDoesNotHoldBackACount()
{
    ORVListView list;
    list.setIsWait(true);
    list.setListviewType(dsTimer);
    list.ChangeListviewNumber(5);
    QCOMPARE(rowsOf(list), emptyRows(list, 5));
}

void PointTableTest::aCountRebuildsTheRowsIfItDiffers()
{
    ORVListView list;
    list.setListviewType(dsNvi);
    list.ListItems()->Item(1)->setSubItem(1, u"old"_s);
    list.ChangeListviewNumber(7);
    QCOMPARE(rowsOf(list), emptyRows(list, 7));
    QCOMPARE(list.NumberItems(), 12);
    list.ListItems()->Add();
    list.ChangeListviewNumber(7);
    QCOMPARE(rowsOf(list), emptyRows(list, 7));
    for (const qint16 count : {qint16{0}, qint16{-5}}) {
        list.ChangeListviewNumber(count);
        QCOMPARE(list.ListItems()->Count(), 0);
        QCOMPARE(list.NumberItems(), 12);
        QCOMPARE(headerKeys(list), columnKeys(dsNvi, false));
    }
}

void PointTableTest::aCountLeavesTheRowsAlone()
{
    ORVListView list;
    ListItem *fifth = list.ListItems()->Item(5);
    fifth->setSubItem(1, u"kept"_s);
    fifth->setSelected(true);
    list.ChangeListviewNumber(12);
    QVERIFY(fifth->isAlive());
    QCOMPARE(fifth->SubItem(1), u"kept"_s);
    QCOMPARE(list.SelectedItem(), fifth);
}

void PointTableTest::aCountReachesColumnsOfTheHost()
{
    ORVListView list;
    list.ColumnHerders()->Add(0, u"Extra"_s, u"Extra"_s);
    list.ChangeListviewNumber(2);
    QCOMPARE(rowsOf(list), emptyRows(list, 2));
    QCOMPARE(list.ListItems()->Item(1)->SubItem(7), u" "_s);
    list.ColumnHerders()->Clear();
    list.ChangeListviewNumber(3);
    QCOMPARE(list.ListItems()->Count(), 3);
}

void PointTableTest::aCountDoesNothingInCodeMode()
{
    ORVListView list;
    list.setListviewType(dsCode);
    list.RefillListviewWithWordList();
    const int words = list.ListItems()->Count();
    QVERIFY(words > 0);
    list.ChangeListviewNumber(3);
    QCOMPARE(list.ListItems()->Count(), words);
}

void PointTableTest::theStatusPictureTellsWhetherItIsBusy()
{
    PseudoTexts pseudo;
    setTextProvider(&pseudo);
    ORVListView list;
    const auto &write = partOf<PictureBox>(list, u"ImgWrite"_s);
    QCOMPARE(write.PictureKey(), u"BallGreen"_s);
    QCOMPARE(write.accessibleName(), PseudoTexts::inBrackets(u"Idle"_s));
    list.SetImage(true);
    QCOMPARE(write.PictureKey(), u"BallRed"_s);
    QCOMPARE(write.accessibleName(), PseudoTexts::inBrackets(u"Busy"_s));
    QCOMPARE(write.toolTip(), PseudoTexts::inBrackets(u"Busy"_s));
    list.SetImage(false);
    QCOMPARE(write.PictureKey(), u"BallGreen"_s);
    QCOMPARE(write.accessibleName(), PseudoTexts::inBrackets(u"Idle"_s));
}

void PointTableTest::aSwitchIsIdleAgain()
{
    ORVListView list;
    const auto &write = partOf<PictureBox>(list, u"ImgWrite"_s);
    for (const LwType type : {dsOutput, dsCode}) {
        list.SetImage(true);
        list.setListviewType(type);
        QCOMPARE(write.PictureKey(), u"BallGreen"_s);
        QCOMPARE(write.accessibleName(), u"Idle"_s);
    }
}

void PointTableTest::subItemsAreSetInEveryRow()
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

void PointTableTest::subItemsKeepSelectionAndScroll()
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

void PointTableTest::subItemsOutsideTheColumnsChangeNothing_data()
{
    QTest::addColumn<int>("index");
    for (const int index : {0, -1, 7, 32767, -32768})
        QTest::addRow("%d", index) << index;
}

void PointTableTest::subItemsOutsideTheColumnsChangeNothing()
{
    QFETCH(int, index);
    ORVListView list;
    const QStringList rows = rowsOf(list);
    list.UpdateSubItems(u"x"_s, u"y"_s, static_cast<qint16>(index));
    QCOMPARE(rowsOf(list), rows);
}

void PointTableTest::rowsAreAddedAndFound()
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

void PointTableTest::theRowsInViewAndAtAPlaceAreTold()
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

void PointTableTest::aRowIsSelectedByTheHost()
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

void PointTableTest::clearTakesTheRowsOnly()
{
    ORVListView list;
    list.Clear();
    QCOMPARE(list.ListItems()->Count(), 0);
    QCOMPARE(headerKeys(list), columnKeys(dsInput, false));
    QCOMPARE(list.NumberItems(), 12);
    list.Clear();
}

void PointTableTest::clearInCodeModeLeavesTheList()
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

void PointTableTest::widthsAreTold()
{
    ORVListView list;
    list.ColumnHerders()->Item(1)->setWidth(600);
    QCOMPARE(list.GetSubItemWidth(0), 600);
    QCOMPARE(list.GetSubItemWidth(6), 1440);
    QCOMPARE(list.GetSubItemWidth(-1), 0);
    QCOMPARE(list.GetSubItemWidth(7), 0);
    QCOMPARE(list.GetSubItemWidth(32767), 0);
    QCOMPARE(list.GetSubItemWidth(-32768), 0);
}

void PointTableTest::widthsFitTheirContents()
{
    ORVListView list;
    list.setListviewType(dsOutput);
    list.resize(900, 300);
    list.show();
    list.ListItems()->Item(7)->setSubItem(5, u"A description that is longer than its header"_s);
    list.ListItems()->Item(12)->setText(u"Twelve"_s);
    QString message = u"untouched"_s;
    list.UpdateListViewWidth(message);
    QCOMPARE(message, u"untouched"_s);
    const QFontMetrics cells(list.listView()->font());
    const QFontMetrics headers(list.listView()->horizontalHeader()->font());
    const auto needed = [&](const QFontMetrics &metrics, const QString &text, int margin) {
        return metrics.horizontalAdvance(text) * 1440 / list.logicalDpiX() + margin;
    };
    const auto isFor = [&](int column, int twips) {
        return qAbs(list.GetSubItemWidth(static_cast<qint16>(column)) - twips) <= 8; // half a pixel
    };
    QVERIFY(isFor(0, needed(cells, u"Twelve"_s, 375)));
    QVERIFY(isFor(1, needed(headers, u"Label"_s, 200)));
    QVERIFY(isFor(5, needed(cells, list.ListItems()->Item(7)->SubItem(5), 200)));
    int sum = 0;
    for (qint16 column = 0; column < 7; ++column)
        sum += list.GetSubItemWidth(column);
    QVERIFY(sum >= list.listView()->width() * 1440 / list.logicalDpiX());
}

void PointTableTest::widthsFitAHiddenControl()
{
    ORVListView list;
    list.resize(1234, 300);
    QString message;
    list.UpdateListViewWidth(message);
    int sum = 0;
    for (qint16 column = 0; column < 7; ++column)
        sum += list.GetSubItemWidth(column);
    QCOMPARE(sum, (1234 - 2) * 15);
}

void PointTableTest::widthsFitWithoutColumns()
{
    ORVListView list;
    list.ColumnHerders()->Clear();
    QString message;
    list.UpdateListViewWidth(message);
    QCOMPARE(message, QString());
    QCOMPARE(list.GetSubItemWidth(0), 0);
}

void PointTableTest::handlesOfFormerRowsFail()
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

void PointTableTest::textsChangeInPlace()
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

void PointTableTest::captionTakesTheDisplayFont()
{
    ORVListView list;
    list.resize(500, 300);
    list.show();
    const QWidget &caption = partOf<QWidget>(list, u"LblCaption"_s);
    const QFont before = caption.font();
    TranslatedTexts texts(QLocale::c());
    setTextProvider(&texts);
    list.InitStrings();
    QCOMPARE(caption.font(), before);
    texts.setDisplayFont({u"DejaVu Serif"_s, 0});
    list.InitStrings();
    QCOMPARE(caption.font().family(), u"DejaVu Serif"_s);
    QCOMPARE(caption.font().pointSizeF(), before.pointSizeF());
    texts.setDisplayFont({u"DejaVu Serif"_s, 30});
    list.InitStrings();
    QCOMPARE(caption.font().pointSize(), 30);
    QCOMPARE(caption.height(), caption.fontMetrics().height());
    QCOMPARE(list.listView()->y(), caption.height() + 1); // 15 twips
    QCOMPARE(list.listView()->font().family(), before.family());
}

void PointTableTest::captionGivesAWithdrawnFontBack()
{
    ORVListView list;
    const QWidget &caption = partOf<QWidget>(list, u"LblCaption"_s);
    const QFont before = caption.font();
    TranslatedTexts texts(QLocale::c());
    setTextProvider(&texts);
    texts.setDisplayFont({u"DejaVu Serif"_s, 30});
    list.InitStrings();
    texts.setDisplayFont({u"DejaVu Serif"_s, 0}); // the size alone
    list.InitStrings();
    QCOMPARE(caption.font().pointSizeF(), before.pointSizeF());
    texts.setDisplayFont({});
    list.InitStrings();
    QCOMPARE(caption.font(), before);
    texts.setDisplayFont({u"DejaVu Serif"_s, 30}); // and once more, by another language
    list.InitStrings();
    setTextProvider(nullptr);
    list.ReInitializeStrings();
    QCOMPARE(caption.font(), before);
    QFont larger = before;
    larger.setPointSize(40);
    list.setFont(larger); // is followed again
    QCOMPARE(caption.font().pointSize(), 40);
}

void PointTableTest::bearsRandomCalls()
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

ORVT_TEST(PointTableTest)
#include "PointTableTest.moc"
