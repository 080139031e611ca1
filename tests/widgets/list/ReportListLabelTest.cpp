// Labels that are edited in a list: what is entered, dropped and told.

#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/list/ReportListEvents.h"
#include "widgets/list/ReportListFixture.h"

#include <QtGui/QWheelEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

void turnWheel(const ShownList &shown, QPoint at)
{
    const QPoint global = shown.form.mapToGlobal(at);
    QWheelEvent wheel(at, global, {}, {0, -360}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(shown.window, &wheel);
}

// A place of the form in the scroll bar, where a press goes a page down.
QPoint pageDown(const ShownList &shown)
{
    const QScrollBar &bar = *shown->verticalScrollBar();
    return bar.mapTo(&shown.form, QPoint(bar.width() / 2, bar.height() - 30));
}

// What users do beside an open editor.
void doBeside(const QString &way, const ShownList &shown, const QPushButton &button)
{
    if (way == u"row"_s)
        shown.click(shown.cell(4));
    else if (way == u"header"_s)
        shown.click(shown.header(2));
    else if (way == u"scroll bar"_s)
        shown.click(pageDown(shown));
    else if (way == u"wheel"_s)
        turnWheel(shown, shown.cell(5, 2));
    else if (way == u"wheel on it"_s)
        turnWheel(shown, shown.cell(2));
    else if (way == u"Return and Down"_s) {
        shown.key(Qt::Key_Return);
        shown.key(Qt::Key_Down);
    } else
        shown.click(button.geometry().center());
}

QStringList waysBeside()
{
    return {u"row"_s,         u"header"_s, u"scroll bar"_s,     u"wheel"_s,
            u"wheel on it"_s, u"button"_s, u"Return and Down"_s};
}

} // namespace

class ReportListLabelTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setDoubleClickInterval(100); }
    void staysClosedWhenCancelled();
    void dropsWhatIsCancelledAfterwards();
    void takesTheHostsText();
    void entersWithTheFocusGone();
    void entersWhereItWasEdited();
    void tellsTheLabelBeforeAnythingElse_data();
    void tellsTheLabelBeforeAnythingElse();
    void staysOpenForItsOwnMouse();
    void keepsTheKeysToItself();
    void keepsWhatIsTypedWhenTheHostWrites();
    void swallowsAPressThatIsOver();
    void staysWhereTheHostEditsOn();
    void leavesTheLabelOnEscape();
    void doesNotGoOnToTheNextRow();
    void dropsTheLabelOfARowThatIsGone();
    void bearsAnythingInALabelEvent_data();
    void bearsAnythingInALabelEvent();
    void keepsErrorsFromTheEventLoop();
};

void ReportListLabelTest::staysClosedWhenCancelled()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(2));
    connect(shown.list, &ReportList::BeforeLabelEdit, this, [](qint16 &cancel) { cancel = 1; });
    shown.key(Qt::Key_F2);
    shown->StartLabelEdit();
    QVERIFY(!shown.showsLabelEditor());
}

void ReportListLabelTest::dropsWhatIsCancelledAfterwards()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(2));
    bool raised = false;
    connect(shown.list, &ReportList::AfterLabelEdit, this, [&](qint16 &cancel, QString &text) {
        raised = text == u"new"_s;
        cancel = -1;
    });
    shown->StartLabelEdit();
    QTest::keyClicks(shown.labelEditor(), u"new"_s);
    QTest::keyClick(shown.labelEditor(), Qt::Key_Return);
    QTRY_VERIFY(raised);
    QCOMPARE(shown.item(2)->Text(), u"Text 2"_s);
}

void ReportListLabelTest::takesTheHostsText()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(2));
    connect(shown.list, &ReportList::AfterLabelEdit, this,
            [](qint16 &, QString &text) { text = text.toUpper(); });
    shown->StartLabelEdit();
    QTest::keyClicks(shown.labelEditor(), u"new"_s);
    QTest::keyClick(shown.labelEditor(), Qt::Key_Return);
    QTRY_COMPARE(shown.item(2)->Text(), u"NEW"_s);
}

void ReportListLabelTest::entersWithTheFocusGone()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(2));
    shown->StartLabelEdit();
    QTest::keyClicks(shown.labelEditor(), u"new"_s);
    shown.click(shown.cell(4));
    QTRY_COMPARE(shown.item(2)->Text(), u"new"_s);
    QCOMPARE(shown->SelectedItem(), shown.item(4));
}

// Whatever column is the labels' by then, and however many columns there are.
void ReportListLabelTest::entersWhereItWasEdited()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(2));
    const QString other = shown.item(2)->SubItem(1);
    shown->StartLabelEdit();
    QTest::keyClicks(shown.labelEditor(), u"new"_s);
    shown->setLabelColumn(1);
    QTest::keyClick(shown.labelEditor(), Qt::Key_Return);
    shown->setLabelColumn(0); // before it is told
    QTRY_COMPARE(shown.item(2)->Text(), u"new"_s);
    QCOMPARE(shown.item(2)->SubItem(1), other);

    shown->setLabelColumn(1);
    shown->StartLabelEdit();
    QTest::keyClicks(shown.labelEditor(), u"second"_s);
    QTest::keyClick(shown.labelEditor(), Qt::Key_Return);
    shown->setLabelColumn(0);
    QTRY_COMPARE(shown.item(2)->SubItem(1), u"second"_s);
    QCOMPARE(shown.item(2)->Text(), u"new"_s);
}

void ReportListLabelTest::tellsTheLabelBeforeAnythingElse_data()
{
    QTest::addColumn<QString>("way");
    for (const QString &way : waysBeside())
        QTest::addRow("%s", qPrintable(way)) << way;
}

void ReportListLabelTest::tellsTheLabelBeforeAnythingElse()
{
    QFETCH(QString, way);
    ShownList shown(100);
    QPushButton button(&shown.form);
    button.setFocusPolicy(Qt::NoFocus);
    button.setGeometry(0, 0, 50, 18);
    button.show();
    shown->setSelectedItem(shown.item(2));
    shown->StartLabelEdit();
    QTest::keyClicks(shown.labelEditor(), u"new"_s);
    ListEvents events(shown.list);
    connect(&button, &QPushButton::pressed, this, [&] { events.log.append(u"pressed"_s); });
    const ListItem *selected = nullptr;
    const ListItem *top = nullptr;
    connect(shown.list, &ReportList::AfterLabelEdit, this, [&] {
        selected = shown->SelectedItem();
        top = shown->GetFirstVisible();
    });
    doBeside(way, shown, button);
    QCOMPARE(selected, shown.item(2)); // without waiting
    QCOMPARE(top, shown.item(1));
    QVERIFY(!shown.showsLabelEditor());
    QCOMPARE(shown.item(2)->Text(), u"new"_s);
    QCOMPARE(events.log.value(0), u"AfterLabelEdit new"_s);
    const QString then = events.take();
    QCOMPARE(then.count(u"AfterLabelEdit"_s), 1);
    if (way == u"row"_s)
        QCOMPARE(shown->SelectedItem(), shown.item(4));
    else if (way == u"header"_s)
        QVERIFY(then.contains(u"ColumnClick Column2"_s));
    else if (way == u"button"_s)
        QVERIFY(then.contains(u"pressed"_s));
    else if (way == u"Return and Down"_s)
        QCOMPARE(shown->SelectedItem(), shown.item(3));
    else
        QVERIFY(shown->GetFirstVisible() != shown.item(1));
}

void ReportListLabelTest::staysOpenForItsOwnMouse()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(2));
    shown->StartLabelEdit();
    QTest::keyClicks(shown.labelEditor(), u"new"_s);
    shown.click(shown.cell(2));
    QVERIFY(shown.showsLabelEditor());
    QContextMenuEvent asks(QContextMenuEvent::Mouse, QPoint(5, 5),
                           shown.labelEditor()->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(shown.labelEditor(), &asks);
    QWidget *menu = QApplication::activePopupWidget();
    QVERIFY(menu);
    QTest::mousePress(menu, Qt::LeftButton, {}, QPoint(-5, -5));
    QTRY_VERIFY(!QApplication::activePopupWidget());
    QVERIFY(shown.showsLabelEditor());
    QCOMPARE(shown.labelEditor()->text(), u"new"_s);
}

void ReportListLabelTest::keepsTheKeysToItself()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(2));
    shown->StartLabelEdit();
    QTest::keyClicks(shown.labelEditor(), u"new"_s);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_F2}) {
        shown.key(key);
        QVERIFY(shown.showsLabelEditor());
        QCOMPARE(shown->SelectedItem(), shown.item(2));
    }
    QCOMPARE(shown.labelEditor()->text(), u"new"_s);
}

void ReportListLabelTest::keepsWhatIsTypedWhenTheHostWrites()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(2));
    shown->StartLabelEdit();
    shown.item(2)->setText(u"host"_s);
    QCOMPARE(shown.labelEditor()->text(), u"host"_s); // nothing is typed yet
    QTest::keyClicks(shown.labelEditor(), u"ne"_s);
    shown.item(2)->setText(u"host's"_s);
    QTest::keyClicks(shown.labelEditor(), u"w"_s);
    QCOMPARE(shown.labelEditor()->text(), u"new"_s);
    QTest::keyClick(shown.labelEditor(), Qt::Key_Escape);
    QTRY_VERIFY(!shown.showsLabelEditor());
    QCOMPARE(shown.item(2)->Text(), u"host's"_s);
}

// A handler that shows a message takes the button's release.
void ReportListLabelTest::swallowsAPressThatIsOver()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(2));
    shown->StartLabelEdit();
    QTest::keyClicks(shown.labelEditor(), u"new"_s);
    connect(shown.list, &ReportList::AfterLabelEdit, this, [&] { shown.release(shown.cell(4)); });
    ListEvents events(shown.list);
    shown.press(shown.cell(4));
    const QString then = events.take();
    QVERIFY(then.startsWith(u"AfterLabelEdit new"_s));
    QVERIFY(!then.contains(u"MouseDown"_s));
    QCOMPARE(shown->SelectedItem(), shown.item(2));
}

// A host that refuses a name and lets the user correct it.
void ReportListLabelTest::staysWhereTheHostEditsOn()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(2));
    int refused = 0;
    connect(shown.list, &ReportList::AfterLabelEdit, this,
            [&](qint16 &cancel, const QString &text) {
                if (text != u"bad"_s)
                    return;
                ++refused;
                cancel = 1;
                shown->StartLabelEdit();
            });
    shown->StartLabelEdit();
    QTest::keyClicks(shown.labelEditor(), u"bad"_s);
    shown.click(shown.cell(4));
    QCoreApplication::processEvents();
    QCOMPARE(refused, 1);
    QCOMPARE(shown->SelectedItem(), shown.item(2));
    QVERIFY(shown.showsLabelEditor());
    QTest::keyClicks(QApplication::focusWidget(), u"good"_s);
    shown.click(shown.cell(4));
    QCOMPARE(shown.item(2)->Text(), u"good"_s);
    QCOMPARE(shown->SelectedItem(), shown.item(4));
    QVERIFY(!shown.showsLabelEditor());
}

void ReportListLabelTest::leavesTheLabelOnEscape()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(2));
    ListEvents events(shown.list);
    shown->StartLabelEdit();
    QTest::keyClicks(shown.labelEditor(), u"new"_s);
    QTest::keyClick(shown.labelEditor(), Qt::Key_Escape);
    QTRY_VERIFY(!shown.showsLabelEditor());
    QCoreApplication::processEvents();
    QCOMPARE(events.take(), u"BeforeLabelEdit"_s);
    QCOMPARE(shown.item(2)->Text(), u"Text 2"_s);
}

void ReportListLabelTest::doesNotGoOnToTheNextRow()
{
    const ShownList shown(5, 1);
    shown->setSelectedItem(shown.item(2));
    ListEvents events(shown.list);
    shown->StartLabelEdit();
    QTest::keyClicks(shown.labelEditor(), u"new"_s);
    QTest::keyClick(shown.labelEditor(), Qt::Key_Tab);
    QTRY_COMPARE(shown.item(2)->Text(), u"new"_s);
    QTRY_VERIFY(!shown.showsLabelEditor());
    QCOMPARE(events.take(), u"BeforeLabelEdit, AfterLabelEdit new"_s);
}

void ReportListLabelTest::dropsTheLabelOfARowThatIsGone()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(2));
    shown->StartLabelEdit();
    QTest::keyClicks(shown.labelEditor(), u"new"_s);
    shown->ListItems()->Remove(2);
    QTRY_VERIFY(!shown.showsLabelEditor());
    QCoreApplication::processEvents();
    for (int row = 1; row <= 4; ++row)
        QVERIFY(shown.item(row)->Text() != u"new"_s);
}

void ReportListLabelTest::bearsAnythingInALabelEvent_data()
{
    QTest::addColumn<bool>("before");
    QTest::addColumn<QString>("deed");
    QTest::addColumn<QString>("way");
    for (const bool before : {true, false}) {
        for (const QString &deed :
             {u"destroy"_s, u"clear"_s, u"columns"_s, u"remove"_s, u"disable"_s}) {
            QStringList ways{u"F2 and Return"_s, u"click and click away"_s, u"focus"_s};
            if (!before)
                ways += waysBeside();
            for (const QString &way : std::as_const(ways))
                QTest::addRow("%s, %s, %s", before ? "before" : "after", qPrintable(deed),
                              qPrintable(way))
                    << before << deed << way;
        }
    }
}

void ReportListLabelTest::bearsAnythingInALabelEvent()
{
    QFETCH(bool, before);
    QFETCH(QString, deed);
    QFETCH(QString, way);
    ShownList shown(100);
    QLineEdit other(&shown.form);
    other.setGeometry(0, 0, 50, 18);
    other.show();
    QPushButton button(&shown.form);
    button.setGeometry(60, 0, 50, 18);
    button.show();
    int events = 0;
    const auto act = [&] {
        ++events;
        if (deed == u"destroy"_s)
            delete shown.list;
        else if (deed == u"clear"_s)
            shown->Clear();
        else if (deed == u"columns"_s)
            shown->ColumnHeaders()->Clear();
        else if (deed == u"remove"_s)
            shown->ListItems()->Remove(2);
        else
            shown->setEnabled(false);
    };
    if (before)
        connect(shown.list, &ReportList::BeforeLabelEdit, this, act);
    else
        connect(shown.list, &ReportList::AfterLabelEdit, this, act);
    shown.click(shown.cell(2));
    if (way == u"click and click away"_s)
        shown.click(shown.cell(2));
    else
        shown.key(Qt::Key_F2);
    if (!before) {
        QTRY_VERIFY(shown.showsLabelEditor());
        QTest::keyClicks(shown.labelEditor(), u"new"_s);
        if (way == u"F2 and Return"_s)
            shown.key(Qt::Key_Return);
        else if (way == u"focus"_s)
            other.setFocus();
        else if (way == u"click and click away"_s)
            shown.click(shown.cell(4));
        else
            doBeside(way, shown, button);
    }
    QTRY_COMPARE(events, 1);
    QCoreApplication::processEvents();
    QCOMPARE(shown.list.isNull(), deed == u"destroy"_s);
}

void ReportListLabelTest::keepsErrorsFromTheEventLoop()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(2));
    const auto fail = [] { throw Error(InvalidCall, u"Host"_s, u"went wrong"_s); };
    const auto before = connect(shown.list, &ReportList::BeforeLabelEdit, this, fail);
    QTest::ignoreMessage(QtWarningMsg, "An event handler failed: Host: went wrong");
    shown.key(Qt::Key_F2);
    QVERIFY(shown.showsLabelEditor()); // as if the receiver had returned
    shown.key(Qt::Key_Escape);
    QTRY_VERIFY(!shown.showsLabelEditor());
    QTest::ignoreMessage(QtWarningMsg, "An event handler failed: Host: went wrong");
    shown->StartLabelEdit(); // a member raises nothing of the receivers'
    QVERIFY(shown.showsLabelEditor());
    shown.key(Qt::Key_Escape);
    QTRY_VERIFY(!shown.showsLabelEditor());
    disconnect(before);
    connect(shown.list, &ReportList::AfterLabelEdit, this, fail);
    shown.key(Qt::Key_F2);
    QVERIFY(shown.showsLabelEditor());
    QTest::ignoreMessage(QtWarningMsg, "An event handler failed: Host: went wrong");
    shown.key(Qt::Key_Return);
    QTRY_VERIFY(!shown.showsLabelEditor());
    QCoreApplication::processEvents();
}

ORVT_TEST(ReportListLabelTest)
#include "ReportListLabelTest.moc"
