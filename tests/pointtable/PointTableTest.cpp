// How the point table of ORVListView is filled: types, counts, status.

#include "pointtable/PointTableTexts.h"
#include "pointtable/rules/ColumnLayouts.h"
#include "shared/points/DisplayNames.h"
#include "support/PseudoTexts.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/look/PictureBox.h"
#include "widgets/look/PictureButton.h"

#include <ORVTListview/ORVTListview.h>

using namespace ORVTListview;
using namespace PointTable;
using namespace Qt::StringLiterals;

namespace {

constexpr LwType tableTypes[] = {dsVariable,   dsConst, dsInput,      dsOutput,
                                 dsController, dsLog,   dsTimer,      dsOs,
                                 dsNvi,        dsNvo,   dsInputParam, dsOutputParam};

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

ORVT_TEST(PointTableTest)
#include "PointTableTest.moc"
