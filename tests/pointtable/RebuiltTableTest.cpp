// A table that is built anew begins afresh, whatever the old one was like.

#include "listview/ShownListView.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// The user has been everywhere in it.
void use(const ShownListView &shown)
{
    ReportList &table = shown.table();
    for (int column = 1; column <= shown->ColumnHerders()->Count(); ++column)
        shown->ColumnHerders()->Item(column)->setWidth(3000);
    QCoreApplication::processEvents(); // the scroll bar follows later
    for (const int row : {1, 2, 5})
        shown.item(row)->setVisible(false);
    table.setRowHeight(3, 70);
    table.goToRow(shown->ListItems()->Count());
    table.horizontalScrollBar()->setValue(table.horizontalScrollBar()->maximum());
    QVERIFY(table.verticalScrollBar()->value() > 0);
    QVERIFY(table.horizontalScrollBar()->value() > 0);
}

// What a user sees of it at once, before the event loop gets to work.
QString sightOf(const ShownListView &shown)
{
    const ReportList &table = shown.table();
    const ListItem *first = shown->GetFirstVisible();
    int hidden = 0;
    int heights = 0;
    for (int row = 0; row < table.model()->rowCount(); ++row) {
        hidden += table.isRowHidden(row) ? 1 : 0;
        heights += table.rowHeight(row);
    }
    return u"rows %1, hidden %2, height %3, first %4, at %5 of %6 and %7, current %8 %9, %10"_s
        .arg(shown->ListItems()->Count())
        .arg(hidden)
        .arg(heights)
        .arg(first ? first->Key() : u"none"_s)
        .arg(table.verticalScrollBar()->value())
        .arg(table.verticalScrollBar()->maximum())
        .arg(table.horizontalScrollBar()->value())
        .arg(table.currentIndex().row())
        .arg(table.currentIndex().column())
        .arg(shown->SelectedItem() ? u"selected"_s : u"none selected"_s);
}

QLineEdit *labelEditor(const ShownListView &shown)
{
    return shown.table().viewport()->findChild<QLineEdit *>();
}

} // namespace

class RebuiltTableTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void aRebuiltTableIsLikeANewOne_data();
    void aRebuiltTableIsLikeANewOne();
    void columnsAloneBeginAtTheirStart();
    void keysGoOnFromTheFirstRow();
    void anOpenLabelIsDropped();
    void anEnteredLabelIsDropped();
    void aLabelToComeIsDropped();
    void theRowAtTheTopIsTold();
    void whatIsRemovedScrollsNothing();
    void theEditorTakesNothingFromTheTable();
    void theTableComesBackAsTheHostSetIt();
    void whatIsSetMeanwhileIsTheTables();
};

void RebuiltTableTest::aRebuiltTableIsLikeANewOne_data()
{
    QTest::addColumn<QString>("way");
    for (const QString &way : {u"another type"_s, u"the same type"_s, u"number"_s, u"count"_s,
                               u"rows"_s, u"cleared and filled"_s, u"code and back"_s})
        QTest::newRow(qPrintable(way)) << way;
}

void RebuiltTableTest::aRebuiltTableIsLikeANewOne()
{
    QFETCH(QString, way);
    const auto rebuild = [&way](const ShownListView &shown) {
        if (way == u"another type"_s)
            shown->setListviewType(dsConst);
        else if (way == u"the same type"_s)
            shown->setListviewType(dsVariable);
        else if (way == u"number"_s)
            shown->setNumberItems(45);
        else if (way == u"count"_s)
            shown->ChangeListviewNumber(51);
        else if (way == u"rows"_s)
            shown.table().setRows(QList<RowContent>(50));
        else if (way == u"code and back"_s)
            shown->setListviewType(dsCode);
        if (way == u"code and back"_s)
            shown->setListviewType(dsConst);
        if (way != u"cleared and filled"_s)
            return;
        shown->Clear();
        for (int row = 0; row < 50; ++row)
            shown->Add();
    };
    const ShownListView fresh(dsVariable);
    const ShownListView used(dsVariable);
    use(used);
    const bool keepsColumns = way == u"count"_s || way == u"rows"_s || way.startsWith(u"cleared");
    if (keepsColumns) {
        for (int column = 1; column <= fresh->ColumnHerders()->Count(); ++column)
            fresh->ColumnHerders()->Item(column)->setWidth(3000);
    }
    for (int round = 0; round < 2; ++round) {
        fresh.window->requestActivate();
        QTRY_VERIFY(fresh.table().hasFocus());
        rebuild(fresh);
        const QString expected = sightOf(fresh);
        used.window->requestActivate();
        QTRY_VERIFY(used.table().hasFocus());
        rebuild(used);
        QCOMPARE(sightOf(used), expected);
        QVERIFY(expected.contains(u"hidden 0"_s) && expected.contains(u"at 0 of"_s));
        QCoreApplication::processEvents();
        QCOMPARE(sightOf(used), sightOf(fresh));
        used.table().setFocus();
        use(used);
        used->ChangeListviewNumber(30);
        use(used);
    }
}

void RebuiltTableTest::columnsAloneBeginAtTheirStart()
{
    const ShownListView shown(dsVariable);
    shown->setIsWait(true);
    use(shown);
    constexpr int top = 20;
    shown.table().verticalScrollBar()->setValue(top);
    shown->setListviewType(dsConst);
    QCOMPARE(shown.table().horizontalScrollBar()->value(), 0);
    QCOMPARE(shown.table().verticalScrollBar()->value(), top); // the rows are the host's
    QVERIFY(!shown.item(1)->Visible());
}

void RebuiltTableTest::keysGoOnFromTheFirstRow()
{
    const ShownListView shown(dsVariable);
    shown.key(Qt::Key_Down);
    const int first = shown->SelectedItem()->Index();
    use(shown);
    shown->setNumberItems(50);
    shown.key(Qt::Key_Down);
    QCOMPARE(shown->SelectedItem()->Index(), first);
    shown->setListviewType(dsConst);
    shown.key(Qt::Key_Down);
    QCOMPARE(shown->SelectedItem()->Index(), first);
}

void RebuiltTableTest::anOpenLabelIsDropped()
{
    ShownListView shown(dsVariable);
    shown->setParent(nullptr);
    QLineEdit field(&shown.form); // gets the focus that is lost
    field.show();
    shown->setParent(&shown.form);
    shown->show();
    ListViewEvents events(shown.list);
    for (int round = 0; round < 2; ++round) {
        shown->setFocus();
        shown->setSelectedItem(shown.item(3));
        shown->StartLabelEdit();
        QVERIFY(labelEditor(shown));
        QTest::keyClicks(labelEditor(shown), u"new"_s);
        events.take();
        shown->ChangeListviewNumber(static_cast<qint16>(40 + round));
        QVERIFY(shown.table().hasFocus());
        QTRY_VERIFY(!labelEditor(shown));
        QCOMPARE(events.take(), QString());
        QCOMPARE(shown.item(3)->Text(), u"03"_s);
    }
}

// The event would name a row that is not there.
void RebuiltTableTest::anEnteredLabelIsDropped()
{
    const ShownListView shown(dsVariable);
    for (const bool byKey : {true, false}) {
        shown->setFocus();
        shown->setSelectedItem(shown.item(3));
        shown->StartLabelEdit();
        QTest::keyClicks(labelEditor(shown), u"new"_s);
        ListViewEvents events(shown.list);
        if (byKey)
            QTest::sendKeyEvent(QTest::Press, labelEditor(shown), Qt::Key_Return, QString(), {});
        else
            shown.part(u"ImgRead"_s).setFocus();
        shown->ChangeListviewNumber(byKey ? 40 : 30);
        QCoreApplication::processEvents();
        QVERIFY(!events.log.join(u' ').contains(u"AfterLabelEdit"_s));
        QCOMPARE(shown.item(3)->Text(), u"03"_s);
    }
}

// A slow second click waits for a double click.
void RebuiltTableTest::aLabelToComeIsDropped()
{
    const ShownListView shown(dsVariable);
    shown.click(shown.cell(3));
    shown.click(shown.cell(3));
    shown->ChangeListviewNumber(40);
    shown->setSelectedItem(shown.item(3));
    ListViewEvents events(shown.list);
    QTest::qWait(2 * QGuiApplication::styleHints()->mouseDoubleClickInterval());
    QCOMPARE(events.take(), QString());
    QVERIFY(!labelEditor(shown));
}

void RebuiltTableTest::theRowAtTheTopIsTold()
{
    const ShownListView shown(dsVariable);
    shown.table().goToRow(50);
    shown->ChangeListviewNumber(5);
    QCOMPARE(shown->GetFirstVisible(), shown.item(1));
    shown->ChangeListviewNumber(60);
    QCOMPARE(shown->GetFirstVisible(), shown.item(1));
    shown.table().goToRow(60);
    while (shown->ListItems()->Count() > 4)
        shown->ListItems()->Remove(1);
    QCOMPARE(shown->GetFirstVisible(), shown.item(1));
    shown->ChangeListviewNumber(0);
    QCOMPARE(shown->GetFirstVisible(), nullptr);
    const ORVListView hidden;
    hidden.listView()->goToRow(12);
    QVERIFY(hidden.GetFirstVisible());
}

void RebuiltTableTest::whatIsRemovedScrollsNothing()
{
    const ShownListView shown(dsVariable);
    shown.table().goToRow(50);
    shown.table().verticalScrollBar()->setValue(3);
    shown->ListItems()->Remove(50);
    QCOMPARE(shown.table().verticalScrollBar()->value(), 3);
    shown.table().goToRow(49);
    shown.table().verticalScrollBar()->setValue(3);
    shown->ListItems()->Remove(u"Variables49"_s);
    QCOMPARE(shown.table().verticalScrollBar()->value(), 3);
    shown.table().goToRow(40);
    shown.table().verticalScrollBar()->setValue(3);
    shown->ColumnHerders()->Remove(1);
    QCOMPARE(shown.table().verticalScrollBar()->value(), 3);
}

// What a host sets on the list.
void change(ReportList &list)
{
    list.setEditsLabels(false);
    list.setHeaderVisible(false);
    list.setFrameStyle(QFrame::NoFrame);
    list.setFocusPolicy(Qt::ClickFocus);
    list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    list.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list.setCheckBoxes(true);
    list.setDragEnabled(true);
    list.setAcceptDrops(true);
}

QString mannerOf(const ReportList &list)
{
    return u"%1 %2 %3 %4 %5 %6 %7 %8 %9 %10 %11"_s.arg(list.editsLabels())
        .arg(list.isHeaderVisible())
        .arg(list.frameStyle())
        .arg(list.frameWidth())
        .arg(list.focusPolicy())
        .arg(list.horizontalScrollBarPolicy())
        .arg(list.verticalScrollBarPolicy())
        .arg(list.hasCheckBoxes())
        .arg(list.MultiSelect())
        .arg(list.dragEnabled())
        .arg(list.acceptDrops());
}

void RebuiltTableTest::theEditorTakesNothingFromTheTable()
{
    ORVListView plain;
    plain.setListviewType(dsCode);
    ORVListView list;
    list.setMultiSelect(true);
    change(*list.listView());
    list.setListviewType(dsCode);
    QCOMPARE(mannerOf(*list.listView()), mannerOf(*plain.listView()));
    QVERIFY(!list.listView()->hasCheckBoxes());
    QVERIFY(!list.listView()->MultiSelect());
    QVERIFY(list.MultiSelect()); // of the table, which is away
}

void RebuiltTableTest::theTableComesBackAsTheHostSetIt()
{
    for (const bool changed : {false, true}) {
        ORVListView list;
        if (changed) {
            list.setMultiSelect(true);
            change(*list.listView());
        }
        const QString before = mannerOf(*list.listView());
        for (int round = 0; round < 2; ++round) {
            list.setListviewType(dsCode);
            QVERIFY(mannerOf(*list.listView()) != before);
            list.setNumberItems(0); // the editor again
            list.setListviewType(round == 0 ? dsInput : dsLog);
            QCOMPARE(mannerOf(*list.listView()), before);
            QCOMPARE(list.MultiSelect(), changed);
        }
    }
}

void RebuiltTableTest::whatIsSetMeanwhileIsTheTables()
{
    ORVListView list;
    list.setListviewType(dsCode);
    list.setMultiSelect(true);
    QVERIFY(list.MultiSelect());
    QVERIFY(!list.listView()->MultiSelect());
    list.listView()->setCheckBoxes(true);
    list.setNumberItems(0);
    QVERIFY(!list.listView()->hasCheckBoxes());
    list.setListviewType(dsLog);
    QVERIFY(list.listView()->MultiSelect());
    QVERIFY(list.listView()->hasCheckBoxes());
    list.setListviewType(dsCode);
    list.setMultiSelect(false);
    list.setListviewType(dsLog);
    QVERIFY(!list.listView()->MultiSelect());
}

ORVT_TEST(RebuiltTableTest)
#include "RebuiltTableTest.moc"
