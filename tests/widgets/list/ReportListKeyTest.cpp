#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/list/ReportListEvents.h"
#include "widgets/list/ReportListFixture.h"

#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QLineEdit>

#include <utility>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class ReportListKeyTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void raisesKeysInOrder();
    void tellsClassicNumbersAndShift();
    void swallowsAKeySetToNothing();
    void swallowsACharacterSetToNothing();
    void typesAnotherCharacterInstead();
    void letsUnusedKeysPass();
    void tellsTheRowReachedByKey();
    void goesThroughTheRows();
    void goesToRowsByTheirFirstLetters();
    void staysInTheListWithHomeAndEnd();
    void leavesTheListWithTab();
    void checksWithSpace();
    void copiesSelectedRows();
    void copiesNothingWhenSwitchedOff();
    void selectsManyRowsByKey();
    void togglesTheCurrentRow();
    void goesToRowsByTheirLabels();
    void goesToRowsByLettersWithAltGr();
    void bearsAnythingInAKeyEvent_data();
    void bearsAnythingInAKeyEvent();
    void keepsErrorsFromTheEventLoop();
};

void ReportListKeyTest::raisesKeysInOrder()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(1));
    ListEvents events(shown.list);
    shown.key(Qt::Key_Down);
    QCOMPARE(events.take(), u"KeyDown 40 0, ItemClick Row2, KeyUp 40 0"_s);
    shown.key(Qt::Key_X);
    QCOMPARE(events.take(), u"KeyDown 88 0, KeyPress 120, KeyUp 88 0"_s);
    shown.key(Qt::Key_Return);
    QCOMPARE(events.take(), u"KeyDown 13 0, KeyPress 13, KeyUp 13 0"_s);
    shown.key(Qt::Key_Delete);
    QCOMPARE(events.take(), u"KeyDown 46 0, KeyUp 46 0"_s);
    shown.key(Qt::Key_F6);
    QCOMPARE(events.take(), u"KeyDown 117 0, KeyUp 117 0"_s);
}

void ReportListKeyTest::tellsClassicNumbersAndShift()
{
    const ShownList shown;
    ListEvents events(shown.list);
    shown.key(Qt::Key_F1, Qt::ShiftModifier);
    QVERIFY(events.take().contains(u"KeyDown 112 1"_s));
    shown.key(Qt::Key_F6, Qt::ControlModifier);
    QVERIFY(events.take().contains(u"KeyDown 117 2"_s));
    shown.key(Qt::Key_F6, Qt::AltModifier | Qt::ShiftModifier);
    QVERIFY(events.take().contains(u"KeyDown 117 5"_s));
}

void ReportListKeyTest::swallowsAKeySetToNothing()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(1));
    connect(shown.list, &ReportList::KeyDown, this, [](qint16 &code, qint16) { code = 0; });
    ListEvents events(shown.list);
    shown.key(Qt::Key_Down);
    QCOMPARE(shown->SelectedItem(), shown.item(1));
    shown.key(Qt::Key_X);
    QVERIFY(!events.take().contains(u"KeyPress"_s));
    shown.key(Qt::Key_F2);
    QVERIFY(!events.take().contains(u"BeforeLabelEdit"_s));
}

void ReportListKeyTest::swallowsACharacterSetToNothing()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(1));
    shown.item(4)->setText(u"x"_s);
    const auto swallow =
        connect(shown.list, &ReportList::KeyPress, this, [](qint16 &code) { code = 0; });
    shown.key(Qt::Key_X);
    QCOMPARE(shown->SelectedItem(), shown.item(1));
    disconnect(swallow);
    shown.key(Qt::Key_X);
    QCOMPARE(shown->SelectedItem(), shown.item(4));
}

void ReportListKeyTest::typesAnotherCharacterInstead()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(1));
    shown.item(3)->setText(u"y"_s);
    shown.item(4)->setText(u"x"_s);
    connect(shown.list, &ReportList::KeyPress, this, [](qint16 &code) { code = 'y'; });
    shown.key(Qt::Key_X);
    QCOMPARE(shown->SelectedItem(), shown.item(3));
}

void ReportListKeyTest::letsUnusedKeysPass()
{
    class Parent : public QWidget
    {
    public:
        int keys = 0;

    protected:
        void keyPressEvent(QKeyEvent *) override { ++keys; }
    } parent;
    auto *list = new ReportList(&parent);
    parent.show();
    QVERIFY(QTest::qWaitForWindowActive(&parent));
    list->setFocus();
    QTest::keyClick(parent.windowHandle(), Qt::Key_Escape);
    QCOMPARE(parent.keys, 1); // as the Esc of a dialog
    const auto swallow =
        connect(list, &ReportList::KeyDown, this, [](qint16 &code, qint16) { code = 0; });
    QTest::keyClick(parent.windowHandle(), Qt::Key_Escape);
    QCOMPARE(parent.keys, 1);
    disconnect(swallow);
}

void ReportListKeyTest::tellsTheRowReachedByKey()
{
    const ShownList shown;
    ListEvents events(shown.list);
    shown->setSelectedItem(shown.item(2)); // by the program: no event
    QCOMPARE(events.take(), QString());
    shown.key(Qt::Key_End);
    QVERIFY(events.take().contains(u"ItemClick Row5"_s));
    shown.key(Qt::Key_End); // there already
    QVERIFY(!events.take().contains(u"ItemClick"_s));
    shown.key(Qt::Key_Right); // another cell of the same row
    QVERIFY(!events.take().contains(u"ItemClick"_s));
}

void ReportListKeyTest::goesThroughTheRows()
{
    const ShownList shown(200);
    shown->setSelectedItem(shown.item(1));
    shown.key(Qt::Key_PageDown);
    const int page = shown->SelectedItem()->Index();
    QVERIFY(page > 3 && page < 50);
    QVERIFY(shown->GetFirstVisible()->Index() <= page);
    shown.key(Qt::Key_PageUp);
    QCOMPARE(shown->SelectedItem()->Index(), 1);
    shown.key(Qt::Key_End);
    QCOMPARE(shown->SelectedItem()->Index(), 200);
    QVERIFY(shown->GetFirstVisible()->Index() > 100);
    shown.key(Qt::Key_Home);
    QCOMPARE(shown->SelectedItem()->Index(), 1);
    shown.key(Qt::Key_Right);
    QCOMPARE(shown->currentIndex().column(), 1);
    shown.key(Qt::Key_End);
    QCOMPARE(shown->currentIndex().column(), 1);
}

void ReportListKeyTest::goesToRowsByTheirFirstLetters()
{
    const ShownList shown(3);
    shown.item(1)->setText(u"Alpha"_s);
    shown.item(2)->setText(u"Beta"_s);
    shown.item(3)->setText(u"Bravo"_s);
    shown->setSelectedItem(shown.item(1));
    shown.key(Qt::Key_B);
    shown.key(Qt::Key_R);
    QCOMPARE(shown->SelectedItem(), shown.item(3));
    // in the column that has the focus
    shown.item(2)->setSubItem(1, u"zone"_s);
    shown.key(Qt::Key_Right);
    QTest::qWait(1 + QApplication::keyboardInputInterval());
    shown.key(Qt::Key_Z);
    QCOMPARE(shown->SelectedItem(), shown.item(2));
}

void ReportListKeyTest::staysInTheListWithHomeAndEnd()
{
    const ShownList shown;
    shown.item(1)->setVisible(false);
    shown.item(5)->setVisible(false);
    shown->setSelectedItem(shown.item(3));
    shown.key(Qt::Key_Home);
    QCOMPARE(shown->SelectedItem(), shown.item(2));
    shown.key(Qt::Key_End);
    QCOMPARE(shown->SelectedItem(), shown.item(4));
    shown->Clear();
    shown.key(Qt::Key_End);
    QCOMPARE(shown->SelectedItem(), nullptr);
}

void ReportListKeyTest::leavesTheListWithTab()
{
    QWidget window;
    auto *before = new QLineEdit(&window);
    auto *list = new ReportList(&window);
    auto *behind = new QLineEdit(&window);
    list->ColumnHeaders()->Add();
    list->ColumnHeaders()->Add();
    list->Add();
    list->Add();
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    before->setFocus();
    QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    QVERIFY(list->hasFocus());
    QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    QVERIFY(behind->hasFocus());
    QTest::keyClick(window.windowHandle(), Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(list->hasFocus());
    QTest::keyClick(window.windowHandle(), Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(before->hasFocus());
}

void ReportListKeyTest::checksWithSpace()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(2));
    ListEvents events(shown.list);
    shown.key(Qt::Key_Space);
    QVERIFY(!shown.item(2)->Checked());
    QVERIFY(!events.take().contains(u"ItemCheck"_s));
    shown->setCheckBoxes(true);
    shown.key(Qt::Key_Space);
    QVERIFY(shown.item(2)->Checked());
    QVERIFY(events.take().contains(u"ItemCheck Row2 1"_s));
    shown.key(Qt::Key_Space);
    QVERIFY(events.take().contains(u"ItemCheck Row2 0"_s));
    shown.item(2)->setChecked(true); // by the program: no event
    QCOMPARE(events.take(), QString());
}

void ReportListKeyTest::copiesSelectedRows()
{
    const ShownList shown;
    shown->setMultiSelect(true);
    shown.item(1)->setSubItem(1, u"a\tb\r\nc"_s);
    shown.item(1)->setSubItem(2, u"<1 & 2>"_s);
    shown.item(3)->setSelected(true);
    shown.item(1)->setSelected(true);
    QGuiApplication::clipboard()->clear();
    shown.key(Qt::Key_C, Qt::ControlModifier);
    const QMimeData &copied = *QGuiApplication::clipboard()->mimeData();
    QCOMPARE(copied.text(), u"Text 1\ta b c\t<1 & 2>\nText 3\t\t\n"_s);
    QVERIFY(copied.html().contains(
        u"<tr><td>Text 1</td><td>a b c</td><td>&lt;1 &amp; 2&gt;</td></tr>"_s));
    QVERIFY(copied.html().contains(u"<tr><td>Text 3</td><td></td><td></td></tr>"_s));
    shown->ColumnHeaders()->Item(2)->setVisible(false);
    shown.item(3)->setVisible(false);
    shown.key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"Text 1\t<1 & 2>\n"_s);
    shown->setSelectedItem(nullptr); // nothing to copy: the clipboard stays
    shown.key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"Text 1\t<1 & 2>\n"_s);
}

void ReportListKeyTest::copiesNothingWhenSwitchedOff()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(1));
    shown->setCopiesRows(false);
    QGuiApplication::clipboard()->setText(u"kept"_s);
    shown.key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"kept"_s);
}

void ReportListKeyTest::selectsManyRowsByKey()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(2));
    shown.key(Qt::Key_Down, Qt::ShiftModifier);
    QVERIFY(!shown.item(2)->Selected()); // single selection
    shown->setMultiSelect(true);
    shown.key(Qt::Key_Down, Qt::ShiftModifier);
    QVERIFY(shown.item(3)->Selected() && shown.item(4)->Selected());
    QCOMPARE(shown->SelectedItem(), shown.item(4));
    shown.key(Qt::Key_A, Qt::ControlModifier);
    for (int row = 1; row <= 5; ++row)
        QVERIFY(shown.item(row)->Selected());
}

// Ctrl+Space types the character 0 where there is a keyboard.
void ReportListKeyTest::togglesTheCurrentRow()
{
    const ShownList shown;
    shown->setMultiSelect(true);
    shown->setSelectedItem(shown.item(2));
    shown.key(Qt::Key_Down, Qt::ControlModifier);
    shown.key(Qt::Key_Down, Qt::ControlModifier);
    ListEvents events(shown.list);
    const auto toggle = [&] {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::ControlModifier, QString(QChar(0)));
        QCoreApplication::sendEvent(shown.list, &press);
    };
    toggle();
    QVERIFY(shown.item(2)->Selected());
    QVERIFY(!shown.item(3)->Selected());
    QVERIFY(shown.item(4)->Selected());
    const QString told = events.take();
    QVERIFY(told.startsWith(u"KeyDown 32 2"_s));
    QVERIFY(!told.contains(u"KeyPress"_s));
    toggle();
    QVERIFY(shown.item(2)->Selected());
    QVERIFY(!shown.item(4)->Selected());
    shown->setCheckBoxes(true);
    toggle();
    QVERIFY(shown.item(4)->Selected());
    QVERIFY(!shown.item(4)->Checked());
}

void ReportListKeyTest::goesToRowsByTheirLabels()
{
    const ShownList shown(3);
    shown->setLabelColumn(1);
    shown.item(1)->setSubItem(1, u"Alpha"_s);
    shown.item(2)->setSubItem(1, u"Beta"_s);
    shown.item(3)->setSubItem(1, u"Bravo"_s);
    shown->setSelectedItem(shown.item(1));
    shown.key(Qt::Key_B);
    shown.key(Qt::Key_R);
    QCOMPARE(shown->SelectedItem(), shown.item(3));
    QTest::qWait(1 + QApplication::keyboardInputInterval());
    shown.key(Qt::Key_T); // the rows' own texts
    QCOMPARE(shown->SelectedItem(), shown.item(3));
    QTest::qWait(1 + QApplication::keyboardInputInterval());
    shown.click(shown.cell(3, 3));
    shown.key(Qt::Key_A);
    QCOMPARE(shown->SelectedItem(), shown.item(1));
}

// Some systems report AltGr as Ctrl and Alt together.
void ReportListKeyTest::goesToRowsByLettersWithAltGr()
{
    const ShownList shown(3);
    shown->setLabelColumn(1);
    shown.item(3)->setSubItem(1, u"\u20ac 5"_s);
    shown->setSelectedItem(shown.item(1));
    shown.click(shown.cell(1, 3));
    QTest::sendKeyEvent(QTest::Click, shown.list, Qt::Key_E, u"\u20ac"_s,
                        Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(shown->SelectedItem(), shown.item(3));
}

// With the keys in which each event comes.
void ReportListKeyTest::bearsAnythingInAKeyEvent_data()
{
    QTest::addColumn<QString>("event");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("deed");
    const std::pair<QString, QList<Qt::Key>> events[] = {
        {u"KeyDown"_s, {Qt::Key_Down, Qt::Key_T, Qt::Key_Space, Qt::Key_F2, Qt::Key_End}},
        {u"KeyPress"_s, {Qt::Key_T, Qt::Key_Space}},
        {u"KeyUp"_s, {Qt::Key_Down, Qt::Key_T, Qt::Key_Space, Qt::Key_End}},
        {u"ItemClick"_s, {Qt::Key_Down, Qt::Key_T, Qt::Key_End}},
        {u"ItemCheck"_s, {Qt::Key_Space}},
    };
    for (const auto &[event, keys] : events) {
        for (const QString &deed : {u"destroy"_s, u"clear"_s, u"columns"_s, u"disable"_s}) {
            for (const Qt::Key key : keys)
                QTest::addRow("%s, %s, key %d", qPrintable(event), qPrintable(deed), int{key})
                    << event << int{key} << deed;
        }
    }
}

void ReportListKeyTest::bearsAnythingInAKeyEvent()
{
    QFETCH(QString, event);
    QFETCH(int, key);
    QFETCH(QString, deed);
    ShownList shown;
    shown->setCheckBoxes(true);
    shown->setSelectedItem(shown.item(1));
    int deeds = 0;
    const auto act = [&] {
        if (deeds++ > 0 && deed == u"destroy"_s)
            return;
        if (deed == u"destroy"_s)
            delete shown.list;
        else if (deed == u"clear"_s)
            shown->Clear();
        else if (deed == u"columns"_s)
            shown->ColumnHeaders()->Clear();
        else
            shown->setEnabled(false);
    };
    if (event == u"KeyDown"_s)
        connect(shown.list, &ReportList::KeyDown, this, act);
    else if (event == u"KeyPress"_s)
        connect(shown.list, &ReportList::KeyPress, this, act);
    else if (event == u"KeyUp"_s)
        connect(shown.list, &ReportList::KeyUp, this, act);
    else if (event == u"ItemClick"_s)
        connect(shown.list, &ReportList::ItemClick, this, act);
    else
        connect(shown.list, &ReportList::ItemCheck, this, act);
    shown.key(static_cast<Qt::Key>(key));
    QCoreApplication::sendPostedEvents();
    QVERIFY(deeds > 0);
    QCOMPARE(shown.list.isNull(), deed == u"destroy"_s);
}

void ReportListKeyTest::keepsErrorsFromTheEventLoop()
{
    const ShownList shown;
    connect(shown.list, &ReportList::KeyDown, this,
            [](qint16 &, qint16) { throw Error(InvalidCall, u"Host"_s, u"went wrong"_s); });
    QTest::ignoreMessage(QtWarningMsg, "An event handler failed: Host: went wrong");
    QTest::keyPress(shown.window, Qt::Key_Down);
}

ORVT_TEST(ReportListKeyTest)
#include "ReportListKeyTest.moc"
