// What a form keeps of an ORVListView beside the design-time properties.

#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <ORVTListview/ORVTListview.h>

#include <QtGui/QTextCursor>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QHeaderView>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const QString light =
    u"BackColor:#ffffff;VariableColor:#000000;ConstantColor:#000000;InputColor:#c00000;"
    "OutputColor:#000000;ReservedWordColor:#0000ff;CommentColor:#000000;nviFPAColor:#000000;"
    "nvoFPAColor:#000000"_s;
const QString grey = QString(light).replace(u"#ffffff"_s, u"#808080"_s);

QColor ground(const ORVListView &list)
{
    return list.RTextBox()->palette().color(QPalette::Base);
}

QList<int> widths(const ORVListView &list)
{
    QList<int> twips;
    for (qint32 i = 1; i <= list.ColumnHerders()->Count(); ++i)
        twips << qRound(list.ColumnHerders()->Item(i)->Width() / 30);
    return twips;
}

} // namespace

class ListViewFormTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void columnsAreThoseOfTheType();
    void anEmptyLayoutGivesOrderAndWidthBack();
    void anEditorHasNoColumns();
    void columnsByTheUserAreTold();
    void coloursComeWithTheEditor();
    void coloursWaitForTheEditor();
    void coloursThatAreIncompleteAreIgnored();
    void noColoursAreTheSystems();
    void theFontStays();
};

void ListViewFormTest::columnsAreThoseOfTheType()
{
    ORVListView list;
    QCOMPARE(list.columnLayout(), QString());
    list.setListviewType(dsTimer);
    list.setColumnLayout(u"Value:720;Data:-1440"_s);
    QCOMPARE(list.listView()->grid()->columnLayout(u"Timers"_s), u"Value:720;Data:-1440"_s);
    list.setListviewType(dsInput);
    QCOMPARE(list.columnLayout(), QString());
    list.setListviewType(dsTimer);
    QCOMPARE(list.columnLayout(), u"Value:720;Data:-1440"_s);
}

void ListViewFormTest::anEmptyLayoutGivesOrderAndWidthBack()
{
    ORVListView list;
    list.setListviewType(dsTimer);
    const QList<int> before = widths(list);
    list.setColumnLayout(u"Value:720;Data:-2880"_s);
    QVERIFY(widths(list) != before);
    list.setColumnLayout(QString());
    QCOMPARE(widths(list), before);
    QVERIFY(!list.listView()->isColumnHidden(1));
    QCOMPARE(list.listView()->horizontalHeader()->visualIndex(3), 3);
}

void ListViewFormTest::anEditorHasNoColumns()
{
    ORVListView list;
    list.setListviewType(dsCode);
    list.setColumnLayout(u"Value:720"_s);
    QCOMPARE(list.columnLayout(), QString());
}

void ListViewFormTest::columnsByTheUserAreTold()
{
    ORVListView list;
    list.listView()->grid()->setArrangesColumns(true);
    QSignalSpy told(&list, &ORVListView::columnLayoutChanged);
    list.resize(900, 300);
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list));
    const QHeaderView &header = *list.listView()->horizontalHeader();
    const QPoint edge(header.sectionViewportPosition(2) - 1, header.height() / 2);
    QTest::mousePress(header.viewport(), Qt::LeftButton, {}, edge);
    QTest::mouseMove(header.viewport(), edge + QPoint(30, 0));
    QTest::mouseRelease(header.viewport(), Qt::LeftButton, {}, edge + QPoint(30, 0));
    QTRY_COMPARE(told.count(), 1);
    QVERIFY(list.columnLayout().contains(u"Label:"_s));
}

void ListViewFormTest::coloursComeWithTheEditor()
{
    PointList inputs;
    inputs.Add(u"Temp1"_s);
    ORVTreeview tree;
    tree.SetCollectionRenamable(nullptr, nullptr, nullptr, &inputs, nullptr, nullptr);
    ORVListView list;
    list.setListviewType(dsCode);
    list.setProgramColours(grey);
    QCOMPARE(ground(list), QColor(0x80, 0x80, 0x80));
    list.openProgram(u"IF Temp1"_s);
    QTextCursor end(list.RTextBox()->document());
    end.movePosition(QTextCursor::End);
    list.RTextBox()->setTextCursor(end);
    qint32 at = 4;
    qint32 start = 0;
    qint32 colour = 0;
    QCOMPARE(list.GetWholeWord(at, start, colour), u"Temp1"_s);
    QCOMPARE(colour, 0x0000C0); // blue first
}

void ListViewFormTest::coloursWaitForTheEditor()
{
    ORVListView list;
    list.setProgramColours(grey);
    QVERIFY(ground(list) != QColor(0x80, 0x80, 0x80));
    list.setListviewType(dsCode);
    QCOMPARE(ground(list), QColor(0x80, 0x80, 0x80));
    RichTextSettings own;
    own.BackColor = 0xFFFFFF;
    list.Init_RichTextBox(own); // the host's word is the last one
    list.setListviewType(dsInput);
    list.setListviewType(dsCode);
    QCOMPARE(ground(list), QColor(Qt::white));
}

void ListViewFormTest::coloursThatAreIncompleteAreIgnored()
{
    ORVListView list;
    list.setListviewType(dsCode);
    list.setProgramColours(grey);
    QSignalSpy told(&list, &ORVListView::programColoursChanged);
    list.setProgramColours(u"BackColor:#ffffff"_s);
    QCOMPARE(list.programColours(), grey);
    QCOMPARE(told.count(), 0);
    list.setProgramColours(light);
    QCOMPARE(told.count(), 1);
}

void ListViewFormTest::noColoursAreTheSystems()
{
    ORVListView list;
    list.setListviewType(dsCode);
    const QColor before = ground(list);
    list.setProgramColours(grey);
    list.setProgramColours(QString());
    QCOMPARE(ground(list), before);
}

void ListViewFormTest::theFontStays()
{
    ORVListView list;
    list.setListviewType(dsCode);
    RichTextSettings own;
    own.FontSize = 17;
    own.FontStyle = u"b1"_s;
    list.Init_RichTextBox(own);
    list.setProgramColours(light);
    QCOMPARE(list.RTextBox()->font().pointSize(), 17);
    QVERIFY(list.RTextBox()->font().bold());
}

ORVT_TEST(ListViewFormTest)
#include "ListViewFormTest.moc"
