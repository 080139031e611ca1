// The events of ORVListView, raised by what a user does with mouse and keys.

#include "listview/ShownListView.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <QtGui/QClipboard>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include <functional>
#include <stdexcept>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class ListViewEventsTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setDoubleClickInterval(20); } // what clicks wait for

    void mousePlacesAreTheTables();
    void aClickTellsRowAndButton();
    void aDoubleClickIsTold();
    void movesTellTheButtonsHeld();
    void aHeaderClickTellsTheColumn();
    void aCheckTellsTheRow();
    void keysAreTold();
    void aSwallowedKeyDoesNothing();
    void aReplacedKeyIsUsed();
    void aLabelIsEdited();
    void aLabelEditCanBeCancelled();
    void anEnteredLabelCanBeRefusedOrChanged();
    void theEditorTellsPressesAndF1Only();
    void theWordListKeepsItsKeys();
    void theWordListBearsRowsOfTheHost();
    void neverRaisedEventsAreNotRaised();
    void callsOfTheHostRaiseNothing();
    void rowsAreCopied();
    void lettersGoToRows();
    void homeAndEndGoThroughTheRows();
    void bearsAnythingInAnEvent_data();
    void bearsAnythingInAnEvent();

private:
    using Act = std::function<void()>;
    void onEvent(const ShownListView &shown, const QString &event, const Act &act);
    static void provoke(const ShownListView &shown, const QString &event);
};

void ListViewEventsTest::mousePlacesAreTheTables()
{
    const ShownListView shown;
    QList<float> places;
    connect(shown.list, &ORVListView::MouseDown, this,
            [&](qint16, qint16, float x, float y) { places << x << y; });
    connect(shown.list, &ORVListView::MouseUp, this,
            [&](qint16, qint16, float x, float y) { places << x << y; });
    const QPoint at = shown.cell(3, 2);
    shown.click(at);
    const QPoint inTable = shown.table().mapFrom(&shown.form, at);
    const auto x = static_cast<float>(inTable.x() * 15);
    const auto y = static_cast<float>(inTable.y() * 15);
    QCOMPARE(places, QList<float>({x, y, x, y}));
    QCOMPARE(shown->HitTest(x, y), shown.item(3));
}

void ListViewEventsTest::aClickTellsRowAndButton()
{
    const ShownListView shown;
    ListViewEvents events(shown.list);
    shown.click(shown.cell(2));
    QCOMPARE(events.take(), u"MouseDown 1 0, ItemClick Inputs2, MouseUp 1 0, Click"_s);
    QCOMPARE(shown->SelectedItem(), shown.item(2));
    shown.click(shown.cell(4), Qt::RightButton, Qt::ShiftModifier | Qt::ControlModifier);
    QCOMPARE(events.take(), u"MouseDown 2 3, ItemClick Inputs4, MouseUp 2 3"_s);
    shown.click(shown.cell(5), Qt::MiddleButton, Qt::AltModifier);
    QCOMPARE(events.take(), u"MouseDown 4 4, MouseUp 4 4"_s);
}

void ListViewEventsTest::aDoubleClickIsTold()
{
    const ShownListView shown(dsLog);
    ListViewEvents events(shown.list);
    QTest::mouseDClick(shown.window, Qt::LeftButton, {}, shown.cell(3));
    QVERIFY(events.take().contains(u"DblClick"_s));
}

void ListViewEventsTest::movesTellTheButtonsHeld()
{
    const ShownListView shown;
    QStringList moves;
    connect(shown.list, &ORVListView::MouseMove, this,
            [&](qint16 button, qint16 shift, float x, float y) {
                moves << u"%1 %2"_s.arg(button).arg(shift);
                QVERIFY(shown->HitTest(x, y));
            });
    shown.move(shown.cell(2));
    shown.move(shown.cell(3));
    QCOMPARE(moves.last(), u"0 0"_s);
    shown.press(shown.cell(3));
    shown.move(shown.cell(4));
    QCOMPARE(moves.last(), u"1 0"_s);
    shown.release(shown.cell(4));
}

void ListViewEventsTest::aHeaderClickTellsTheColumn()
{
    const ShownListView shown;
    ListViewEvents events(shown.list);
    shown.click(shown.header(3));
    QCOMPARE(events.take(), u"ColumnClick Mode"_s);
}

void ListViewEventsTest::aCheckTellsTheRow()
{
    const ShownListView shown;
    shown.table().setCheckBoxes(true);
    shown->setSelectedItem(shown.item(4));
    ListViewEvents events(shown.list);
    shown.key(Qt::Key_Space);
    QVERIFY(shown.item(4)->Checked());
    QCOMPARE(events.take(), u"KeyDown 32 0, KeyPress 32, ItemCheck Inputs4, KeyUp 32 0"_s);
}

void ListViewEventsTest::keysAreTold()
{
    const ShownListView shown;
    shown->setSelectedItem(shown.item(1));
    ListViewEvents events(shown.list);
    shown.key(Qt::Key_Down);
    QCOMPARE(events.take(), u"KeyDown 40 0, ItemClick Inputs2, KeyUp 40 0"_s);
    QTest::keyClick(shown.window, 'k', Qt::NoModifier);
    QCOMPARE(events.take(), u"KeyDown 75 0, KeyPress 107, KeyUp 75 0"_s);
    shown.key(Qt::Key_F5, Qt::ShiftModifier | Qt::ControlModifier);
    QCOMPARE(events.take(), u"KeyDown 16 1, KeyDown 17 3, KeyDown 116 3, KeyUp 116 3, KeyUp 17 1, "
                            "KeyUp 16 0"_s);
}

void ListViewEventsTest::aSwallowedKeyDoesNothing()
{
    const ShownListView shown;
    shown->setSelectedItem(shown.item(1));
    const auto down = connect(shown.list, &ORVListView::KeyDown, this,
                              [](qint16 &code, qint16 &shift) { code = shift; }); // 0
    ListViewEvents events(shown.list);
    shown.key(Qt::Key_Down);
    QCOMPARE(shown->SelectedItem(), shown.item(1));
    QCOMPARE(events.take(), u"KeyDown 0 0, KeyUp 40 0"_s);
    disconnect(down);
    connect(shown.list, &ORVListView::KeyPress, this, [](qint16 &code) { code = 0; });
    QTest::keyClick(shown.window, '0', Qt::NoModifier);
    QCOMPARE(shown->SelectedItem(), shown.item(1));
    shown.key(Qt::Key_Down);
    QCOMPARE(shown->SelectedItem(), shown.item(2));
}

void ListViewEventsTest::aReplacedKeyIsUsed()
{
    const ShownListView shown;
    shown.item(2)->setText(u"alpha"_s);
    shown.item(5)->setText(u"beta"_s);
    shown->setSelectedItem(shown.item(1));
    connect(shown.list, &ORVListView::KeyPress, this, [](qint16 &code) { code = 'b'; });
    QTest::keyClick(shown.window, 'a', Qt::NoModifier);
    QCOMPARE(shown->SelectedItem(), shown.item(5));
}

void ListViewEventsTest::aLabelIsEdited()
{
    const ShownListView shown;
    shown->setSelectedItem(shown.item(2));
    ListViewEvents events(shown.list);
    shown->StartLabelEdit();
    QCOMPARE(events.take(), u"BeforeLabelEdit 0"_s);
    auto *field = shown.table().findChild<QLineEdit *>();
    QVERIFY(field);
    QCOMPARE(field->text(), u"02"_s);
    QTest::keyClicks(field, u"Pump"_s);
    QTest::keyClick(field, Qt::Key_Return);
    QTRY_COMPARE(shown.item(2)->Text(), u"Pump"_s);
    QCOMPARE(events.take(), u"AfterLabelEdit 0 Pump"_s);
    shown.key(Qt::Key_F2);
    QVERIFY(events.take().contains(u"BeforeLabelEdit"_s));
}

void ListViewEventsTest::aLabelEditCanBeCancelled()
{
    const ShownListView shown;
    shown->setSelectedItem(shown.item(2));
    connect(shown.list, &ORVListView::BeforeLabelEdit, this, [](qint16 &cancel) { cancel = -1; });
    shown->StartLabelEdit();
    shown.key(Qt::Key_F2);
    QVERIFY(!shown.table().findChild<QLineEdit *>());
}

void ListViewEventsTest::anEnteredLabelCanBeRefusedOrChanged()
{
    const ShownListView shown;
    shown->setSelectedItem(shown.item(2));
    QStringList entered;
    connect(shown.list, &ORVListView::AfterLabelEdit, this, [&](qint16 &cancel, QString &text) {
        entered << text;
        cancel = text == u"bad"_s ? 1 : 0;
        text = text.toUpper();
    });
    const auto enter = [&](const QString &text) {
        shown->StartLabelEdit();
        auto *field = shown.table().findChild<QLineEdit *>();
        field->setText(text);
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_COMPARE(entered.value(entered.size() - 1), text);
        QCoreApplication::processEvents();
    };
    enter(u"bad"_s);
    QCOMPARE(shown.item(2)->Text(), u"02"_s);
    enter(u"good"_s);
    QCOMPARE(shown.item(2)->Text(), u"GOOD"_s);
}

void ListViewEventsTest::theEditorTellsPressesAndF1Only()
{
    const ShownListView shown(dsCode);
    shown->Init_RichTextBox({});
    shown->setCodeText(u"IF x\r\nELSE"_s);
    ListViewEvents events(shown.list);
    const QPoint at = shown.middleOf(*shown->RTextBox()->viewport());
    float x = 0;
    connect(shown.list, &ORVListView::MouseDown, this,
            [&](qint16, qint16, float left, float) { x = left; });
    shown.click(at);
    QCOMPARE(events.take(), u"MouseDown 1 0"_s);
    QCOMPARE(x, static_cast<float>(shown->RTextBox()->mapFrom(&shown.form, at).x() * 15));
    shown.move(at + QPoint(3, 3));
    QTest::keyClick(shown.window, 'i');
    QTest::keyClick(shown.window, Qt::Key_Space);
    shown.key(Qt::Key_Left);
    shown.key(Qt::Key_F2);
    QCOMPARE(events.take(), QString());
    shown.key(Qt::Key_F1);
    QCOMPARE(events.take(), u"KeyDown 112 0"_s);
}

void ListViewEventsTest::theWordListKeepsItsKeys()
{
    const ShownListView shown(dsCode);
    shown->Init_RichTextBox({});
    shown->setCodeText(QString());
    shown->TryToPopupList();
    QVERIFY(shown->listView()->isVisible());
    shown->setSelectedItem(nullptr);
    ListViewEvents events(shown.list);
    QTest::keyClick(shown->listView(), Qt::Key_Down);
    QCOMPARE(shown->SelectedItem(), shown.item(1));
    QTest::keyClick(shown->listView(), Qt::Key_X);
    const QString log = events.take();
    QVERIFY2(!log.contains(u"KeyDown"_s) && !log.contains(u"KeyPress"_s), qPrintable(log));
    QTest::keyClick(shown->listView(), Qt::Key_Escape);
    QVERIFY(shown->listView()->isHidden());
}

void ListViewEventsTest::theWordListBearsRowsOfTheHost()
{
    const ShownListView shown(dsCode);
    shown->Init_RichTextBox({});
    shown->setCodeText(QString());
    shown->RTextBox()->setFocus();
    shown->Add(0, u"mine"_s, u"MyWord"_s);
    shown->TryToPopupList();
    shown.key(Qt::Key_End);
    shown.key(Qt::Key_Return);
    QCOMPARE(shown->CodeText(), u"MyWord"_s);
    shown->listView()->Clear();
    shown->setCodeText(u"i"_s);
    shown->RTextBox()->setSelStart(1);
    bool absolutely = true;
    shown->TryToPopupList(absolutely);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_F, Qt::Key_End, Qt::Key_Tab})
        shown.key(key);
    QVERIFY(shown->CodeText().startsWith(u"if"_s, Qt::CaseInsensitive));
}

void ListViewEventsTest::neverRaisedEventsAreNotRaised()
{
    const ShownListView shown;
    ListViewEvents events(shown.list);
    shown.click(shown.cell(2));
    QTest::mouseClick(shown.window, Qt::LeftButton, {}, shown.middleOf(shown.part(u"ImgRead"_s)));
    shown->setListviewType(dsCode);
    shown->Init_RichTextBox({});
    shown->setFocus();
    shown->TryToPopupList();
    shown.key(Qt::Key_Down);
    shown.key(Qt::Key_Return); // takes a word
    QVERIFY(!shown->CodeText().isEmpty());
    shown->RefillListviewWithWordList();
    shown->UpdateWordListItem(u"a"_s, u"b"_s, dsInput);
    const QString log = events.take();
    for (const QString &event : {u"QueryReload"_s, u"QuerySetWord"_s, u"UpdateWordList"_s})
        QVERIFY(!log.contains(event));
    QVERIFY(log.contains(u"QueryRead 3"_s));
}

void ListViewEventsTest::callsOfTheHostRaiseNothing()
{
    const ShownListView shown;
    ListViewEvents events(shown.list);
    QString message;
    for (int type = dsCode; type <= dsOutputParam; ++type) {
        shown->setListviewType(static_cast<LwType>(type));
        shown->setNumberItems(5);
        shown->ChangeListviewNumber(6);
        shown->UpdateSubItems(u"x"_s, u"y"_s, 1);
        shown->UpdateListViewWidth(message);
        shown->SetImage(true);
        shown->ReInitializeStrings();
        shown->Refresh();
        shown->Drag(dcBeginDrag);
        shown->Drag(dcCancel);
        shown->Drag();
        if (type != dsCode) {
            shown->setSelectedItem(shown.item(2));
            shown.item(3)->setText(u"x"_s);
            shown.item(3)->setChecked(true);
        }
        shown->Clear();
        QCoreApplication::processEvents();
    }
    QCOMPARE(events.take(), QString());
}

void ListViewEventsTest::rowsAreCopied()
{
    const ShownListView shown(dsTimer);
    shown->setMultiSelect(true);
    shown.item(2)->setSubItem(1, u"Fan <1>"_s);
    shown.item(2)->setSubItem(3, u"12"_s);
    shown.item(2)->setSelected(true);
    shown.item(4)->setSelected(true);
    shown.key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"02\tFan <1>\t\t12\n04\t\t\t \n"_s);
    QVERIFY(QGuiApplication::clipboard()->mimeData()->html().contains(u"<td>Fan &lt;1&gt;</td>"_s));
}

void ListViewEventsTest::lettersGoToRows()
{
    const ShownListView shown;
    shown.item(7)->setText(u"Boiler"_s);
    shown->setSelectedItem(shown.item(1));
    QTest::keyClick(shown.window, 'b', Qt::NoModifier);
    QCOMPARE(shown->SelectedItem(), shown.item(7));
}

void ListViewEventsTest::homeAndEndGoThroughTheRows()
{
    const ShownListView shown(dsVariable);
    shown->setSelectedItem(shown.item(7));
    shown.key(Qt::Key_End);
    QCOMPARE(shown->SelectedItem(), shown.item(50));
    QVERIFY(shown->GetFirstVisible()->Index() > 1);
    shown.key(Qt::Key_Home);
    QCOMPARE(shown->SelectedItem(), shown.item(1));
    QCOMPARE(shown->GetFirstVisible(), shown.item(1));
    shown.key(Qt::Key_PageDown);
    QVERIFY(shown->SelectedItem()->Index() > 5);
}

namespace {

const QStringList events{
    u"AfterLabelEdit"_s, u"BeforeLabelEdit"_s, u"Click"_s,    u"ColumnClick"_s, u"DblClick"_s,
    u"ItemCheck"_s,      u"KeyDown"_s,         u"KeyPress"_s, u"KeyUp"_s,       u"ItemClick"_s,
    u"MouseDown"_s,      u"MouseMove"_s,       u"MouseUp"_s};
const QStringList deeds{u"destroy"_s, u"clear"_s,   u"remove"_s, u"code"_s,  u"table"_s,
                        u"columns"_s, u"disable"_s, u"hide"_s,   u"throw"_s, u"again"_s};

} // namespace

void ListViewEventsTest::bearsAnythingInAnEvent_data()
{
    QTest::addColumn<QString>("event");
    QTest::addColumn<QString>("deed");
    for (const QString &event : events) {
        for (const QString &deed : deeds)
            QTest::addRow("%s, %s", qPrintable(event), qPrintable(deed)) << event << deed;
    }
}

void ListViewEventsTest::onEvent(const ShownListView &shown, const QString &event, const Act &act)
{
    const auto first = [act, done = std::make_shared<bool>(false)] {
        if (!std::exchange(*done, true))
            act();
    };
    if (event == u"AfterLabelEdit"_s)
        connect(shown.list, &ORVListView::AfterLabelEdit, this, first);
    else if (event == u"BeforeLabelEdit"_s)
        connect(shown.list, &ORVListView::BeforeLabelEdit, this, first);
    else if (event == u"Click"_s)
        connect(shown.list, &ORVListView::Click, this, first);
    else if (event == u"ColumnClick"_s)
        connect(shown.list, &ORVListView::ColumnClick, this, first);
    else if (event == u"DblClick"_s)
        connect(shown.list, &ORVListView::DblClick, this, first);
    else if (event == u"ItemCheck"_s)
        connect(shown.list, &ORVListView::ItemCheck, this, first);
    else if (event == u"ItemClick"_s)
        connect(shown.list, &ORVListView::ItemClick, this, first);
    else if (event == u"KeyDown"_s)
        connect(shown.list, &ORVListView::KeyDown, this, first);
    else if (event == u"KeyPress"_s)
        connect(shown.list, &ORVListView::KeyPress, this, first);
    else if (event == u"KeyUp"_s)
        connect(shown.list, &ORVListView::KeyUp, this, first);
    else if (event == u"MouseDown"_s)
        connect(shown.list, &ORVListView::MouseDown, this, first);
    else if (event == u"MouseMove"_s)
        connect(shown.list, &ORVListView::MouseMove, this, first);
    else
        connect(shown.list, &ORVListView::MouseUp, this, first);
}

void ListViewEventsTest::provoke(const ShownListView &shown, const QString &event)
{
    const QPoint at = shown.cell(3);
    if (event.endsWith(u"LabelEdit"_s)) {
        shown.key(Qt::Key_F2);
        if (QWidget *field = QApplication::focusWidget(); qobject_cast<QLineEdit *>(field))
            QTest::keyClick(field, Qt::Key_Return);
        QCoreApplication::processEvents();
    } else if (event == u"ColumnClick"_s) {
        shown.click(shown.header(2));
    } else if (event == u"DblClick"_s) {
        QTest::mouseDClick(shown.window, Qt::LeftButton, {}, at);
    } else if (event == u"ItemCheck"_s || event.startsWith(u"Key"_s)) {
        shown.key(Qt::Key_Space);
    } else {
        shown.move(shown.cell(2));
        shown.move(at);
        shown.press(at, Qt::RightButton);
        shown.release(at, Qt::RightButton);
        shown.click(at);
    }
}

void ListViewEventsTest::bearsAnythingInAnEvent()
{
    QFETCH(QString, event);
    QFETCH(QString, deed);
    const ShownListView shown;
    shown.table().setCheckBoxes(true);
    shown->setSelectedItem(shown.item(2));
    bool done = false;
    onEvent(shown, event, [&] {
        done = true;
        if (deed == u"destroy"_s)
            delete shown.list;
        else if (deed == u"clear"_s)
            shown->Clear();
        else if (deed == u"remove"_s)
            shown->ListItems()->Remove(2);
        else if (deed == u"code"_s)
            shown->setListviewType(dsCode);
        else if (deed == u"table"_s)
            shown->setListviewType(dsOs);
        else if (deed == u"columns"_s)
            shown->ColumnHerders()->Clear();
        else if (deed == u"disable"_s)
            shown->setEnabled(false);
        else if (deed == u"hide"_s)
            shown->hide();
        else if (deed == u"throw"_s)
            throw std::runtime_error("the host fails");
        else
            provoke(shown, event);
    });
    if (deed == u"throw"_s)
        QTest::ignoreMessage(QtWarningMsg, "An event handler failed: the host fails");
    provoke(shown, event);
    QTRY_VERIFY(done);
    QCOMPARE(shown.list.isNull(), deed == u"destroy"_s);
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
}

ORVT_TEST(ListViewEventsTest)
#include "ListViewEventsTest.moc"
