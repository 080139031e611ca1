// What calls hand out, called on by name: rows, columns, nodes, the editor's view, the grid.

#include "ObjectCalls.h"

#include "support/TestFolder.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/CodeView.h>
#include <ORVTListview/DataObject.h>
#include <ORVTListview/ListGrid.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ORVDataCombo.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVTreeview.h>
#include <ORVTListview/PointCollection.h>
#include <ORVTListview/ReportList.h>
#include <ORVTListview/RichTextBox.h>
#include <ORVTListview/SettingsStore.h>

#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>
#include <QtCore/QMimeData>
#include <QtCore/QSet>

using namespace ORVTListview;
using namespace ObjectCalls;
using namespace Qt::StringLiterals;

namespace {

QString withoutSet(const QByteArray &name)
{
    const QString text = QString::fromLatin1(name);
    if (!text.startsWith(u"set"_s))
        return text.toLower();
    return text.mid(3).toLower();
}

// What a class itself lets scripts and forms reach; signals that tell of a property are
// named there.
QSet<QString> reachable(const QMetaObject &meta)
{
    QSet<QString> names;
    QSet<QString> changes;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        names.insert(QString::fromLatin1(meta.property(i).name()).toLower());
        if (meta.property(i).hasNotifySignal())
            changes.insert(QString::fromLatin1(meta.property(i).notifySignal().name()));
    }
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        const bool isPublished = method.access() == QMetaMethod::Public;
        if (isPublished && !changes.contains(QString::fromLatin1(method.name())))
            names.insert(withoutSet(method.name()));
    }
    return names;
}

} // namespace

class ObjectMembersTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;

    void haveAllThatAClassLetsReach_data();
    void haveAllThatAClassLetsReach();
    void reachRowsAndColumns();
    void tellThatARowIsGone();
    void reachNodes();
    void takeTheLibrarysOwnCollections();
    void takeAndGiveRecordsAsMaps();
    void reachTheEditorsView();
    void reachTheGrid();
    void reachTheDataOfADrag();

private:
    TestFolder m_settings;
};

void ObjectMembersTest::init()
{
    WidgetTest::init();
    setSettingsFile(m_settings.path(u"settings"_s));
}

void ObjectMembersTest::haveAllThatAClassLetsReach_data()
{
    QTest::addColumn<QMetaType>("type");
    for (const QMetaType type : typesWithMembers()) {
        if (type.flags().testFlag(QMetaType::PointerToQObject))
            QTest::newRow(type.name()) << type;
    }
}

// Of a box the signal is for the control around it.
void ObjectMembersTest::haveAllThatAClassLetsReach()
{
    QFETCH(QMetaType, type);
    QSet<QString> rest = reachable(*type.metaObject()) - QSet<QString>{u"edited"_s};
    for (const Member &member : membersOf(type)->members()) {
        rest.remove(withoutSet(member.name.toLatin1()));
        rest.remove(member.name.toLower() + u"changed"_s);
    }
    QCOMPARE(QStringList(rest.cbegin(), rest.cend()).join(u' '), QString());
}

void ObjectMembersTest::reachRowsAndColumns()
{
    ORVListView control;
    const QVariant table = QVariant::fromValue(&control);
    const QVariant rows = call(table, u"ListItems"_s);
    const QVariant row = call(rows, u"Item"_s, {2});
    call(row, u"setSubItem"_s, {1, u"SupplyTemp"_s});
    QCOMPARE(control.ListItems()->Item(2)->SubItem(1), u"SupplyTemp"_s);
    QCOMPARE(call(row, u"subitem"_s, {1}).toString(), u"SupplyTemp"_s);
    call(row, u"Tag"_s, {u"101"_s});
    QCOMPARE(call(row, u"Tag"_s).toString(), u"101"_s);
    QCOMPARE(call(rows, u"Item"_s, {u"Inputs2"_s}), row);
    const QVariant columns = call(table, u"ColumnHerders"_s);
    const QVariant column = call(columns, u"Item"_s, {u"Value"_s});
    QCOMPARE(call(column, u"Text"_s).toString(), u"Value"_s);
    call(column, u"Width"_s, {2880});
    QCOMPARE(call(column, u"Width"_s).toFloat(), 2880.0F);
    QCOMPARE(status(columns, u"Item"_s, {99}), SubscriptOutOfRange);
    QCOMPARE(status(column, u"Width"_s, {-1}), InvalidCall);
    call(table, u"SelectedItem"_s, {row});
    QCOMPARE(call(table, u"SelectedItem"_s), row);
}

void ObjectMembersTest::tellThatARowIsGone()
{
    ORVListView control;
    const QVariant rows = call(QVariant::fromValue(&control), u"ListItems"_s);
    const QVariant row = call(rows, u"Item"_s, {1});
    call(rows, u"Remove"_s, {1});
    QCOMPARE(call(row, u"isAlive"_s), QVariant(false));
    QCOMPARE(status(row, u"Text"_s), ObjectNotSet);
    QCOMPARE(status(QVariant::fromValue<ListItem *>(nullptr), u"Text"_s), ObjectNotSet);
}

void ObjectMembersTest::reachNodes()
{
    ORVTreeview control;
    const QVariant nodes = call(QVariant::fromValue(&control), u"Nodes"_s);
    const QVariant device = call(nodes, u"Item"_s, {u"Device"_s});
    const QVariant page = call(device, u"Child"_s);
    QCOMPARE(call(page, u"Key"_s).toString(), u"Page0"_s);
    QCOMPARE(call(call(page, u"Parent"_s), u"Index"_s).toInt(), 1);
    const int child = int(NodeRelationship::Child);
    const QVariant extra = call(nodes, u"Add"_s, {u"Page0"_s, child, u"Extra"_s, u"More"_s});
    QCOMPARE(call(extra, u"Text"_s).toString(), u"More"_s);
    call(nodes, u"Add"_s, {extra, child, u"Below"_s});
    QCOMPARE(call(extra, u"Children"_s).toInt(), 1);
    call(nodes, u"Add"_s, {QVariant(), child, u"Top"_s});
    QCOMPARE(status(nodes, u"Add"_s, {3.5, child}), TypeMismatch);
    call(extra, u"MoveTo"_s, {device});
    QCOMPARE(call(call(extra, u"Parent"_s), u"Key"_s).toString(), u"Device"_s);
    call(extra, u"Tag"_s, {7});
    QCOMPARE(call(extra, u"Tag"_s).toInt(), 7);
}

void ObjectMembersTest::takeTheLibrarysOwnCollections()
{
    ORVTreeview tree;
    ORVDataCombo combo;
    PointList inputs;
    const QVariant list = QVariant::fromValue(&inputs);
    call(list, u"Add"_s, {u"SupplyTemp"_s, 101});
    call(QVariant::fromValue(&tree), u"SetCollectionRenamable"_s,
         {QVariant(), QVariant(), QVariant(), list, QVariant(), QVariant()});
    call(QVariant::fromValue(&combo), u"FillDataListview"_s, {u"dsInput"_s, QVariant(), QString()});
    QCOMPARE(call(QVariant::fromValue(&combo), u"ListCount"_s).toInt(), 1);
    QCOMPARE(call(QVariant::fromValue(&combo), u"ItemData"_s, {0}).toInt(), 101);
    const QVariant keys = call(QVariant::fromValue(&tree), u"GetLWTypeKeyCollection"_s);
    QCOMPARE(call(keys, u"Item"_s, {u"Key3"_s}).toString(), u"Inputs"_s);
}

void ObjectMembersTest::takeAndGiveRecordsAsMaps()
{
    ORVListView control;
    const QVariant editor = QVariant::fromValue(&control);
    call(editor, u"ListviewType"_s, {u"dsCode"_s});
    call(editor, u"Init_RichTextBox"_s,
         {QVariantMap{{u"BackColor"_s, 0xFFFFFF}, {u"FontSize"_s, 11}}});
    const QVariant box = call(editor, u"RTextBox"_s);
    QCOMPARE(call(box, u"FontSize"_s).toInt(), 11);
    QCOMPARE(status(editor, u"Init_RichTextBox"_s, {QVariantMap{{u"Colour"_s, 1}}}),
             WrongArgumentType);
    ORVTreeview tree;
    const QVariantList pages = call(QVariant::fromValue(&tree), u"GetPageSettings"_s).toList();
    QCOMPARE(pages.size(), 1);
    const QVariantMap page = pages.at(0).toMap();
    QCOMPARE(page.value(u"Key"_s).toStringList().size(), 13);
    QCOMPARE(page.value(u"Index"_s).toList().size(), 13);
}

void ObjectMembersTest::reachTheEditorsView()
{
    ORVListView control;
    control.setListviewType(dsCode);
    const QVariant view = call(QVariant::fromValue(&control), u"codeView"_s);
    call(view, u"lineNumbersVisible"_s, {true});
    QVERIFY(control.codeView()->lineNumbersVisible());
    call(view, u"openProgram"_s, {u"IF A = 1\nENDIF"_s});
    call(view, u"setProblems"_s,
         {QVariantList{QVariantMap{{u"line"_s, 2}, {u"severity"_s, 1}, {u"text"_s, u"Odd"_s}}}});
    QCOMPARE(control.codeView()->problems().size(), 1);
    QCOMPARE(control.codeView()->problems().at(0).severity, ProblemSeverity::Warning);
    const QVariantList problems = call(view, u"problems"_s).toList();
    QCOMPARE(problems.at(0).toMap().value(u"text"_s).toString(), u"Odd"_s);
    call(view, u"setMarks"_s, {QVariantList{QVariantMap{{u"line"_s, 2}, {u"text"_s, u"On"_s}}}});
    QCOMPARE(call(view, u"marks"_s).toList().at(0).toMap().value(u"line"_s).toInt(), 2);
    call(view, u"setLiveValues"_s, {QVariantMap{{u"A"_s, u"1"_s}}});
    call(view, u"zoom"_s, {150});
    QCOMPARE(call(view, u"Zoom"_s).toInt(), 150);
}

void ObjectMembersTest::reachTheGrid()
{
    ORVListView control;
    const QVariant list = call(QVariant::fromValue(&control), u"listView"_s);
    const QVariant grid = call(list, u"grid"_s);
    call(grid, u"editsCells"_s, {true});
    call(grid, u"setRules"_s,
         {u"Inputs"_s,
          QVariantMap{{u"Value"_s, QVariantMap{{u"kind"_s, u"Number"_s}, {u"maximum"_s, 40}}}}});
    QCOMPARE(control.listView()->grid()->rules(u"Inputs"_s).value(u"Value"_s).maximum, 40.0);
    const QVariant row = call(QVariant::fromValue(&control), u"GetFirstVisible"_s);
    QCOMPARE(call(grid, u"enterText"_s, {row, int(Sep_Input), u"21.5"_s}), QVariant(true));
    QCOMPARE(call(row, u"SubItem"_s, {int(Sep_Input)}).toString(), u"21.5"_s);
    call(grid, u"setCellState"_s, {row, int(Sep_Input), int(CellState::Alarm)});
    QCOMPARE(call(grid, u"cellState"_s, {row, int(Sep_Input)}).toInt(), int(CellState::Alarm));
    call(grid, u"sortsRows"_s, {true});
    const QVariantList keys{QVariant(QVariantList{int(Sep_Input), 1})};
    call(grid, u"sortKeys"_s, {QVariant(keys)});
    QCOMPARE(call(grid, u"sortKeys"_s).toList().at(0).toList().at(0).toInt(), int(Sep_Input));
    QCOMPARE(status(grid, u"sortKeys"_s, {QVariant(QVariantList{5})}), TypeMismatch);
}

void ObjectMembersTest::reachTheDataOfADrag()
{
    QMimeData mime;
    DataObject data(&mime, DataObject::Side::Source);
    const QVariant object = QVariant::fromValue(&data);
    call(object, u"SetData"_s, {u"SupplyTemp"_s});
    QCOMPARE(call(object, u"GetFormat"_s, {1}), QVariant(true));
    QCOMPARE(call(object, u"GetData"_s, {1}).toString(), u"SupplyTemp"_s);
    QCOMPARE(mime.text(), u"SupplyTemp"_s);
    QCOMPARE(status(object, u"GetData"_s, {2}), InvalidCall);
}

ORVT_TEST(ObjectMembersTest)
#include "ObjectMembersTest.moc"
