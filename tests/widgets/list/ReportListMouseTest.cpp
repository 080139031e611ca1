#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/list/ReportListEvents.h"
#include "widgets/list/ReportListFixture.h"

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class ReportListMouseTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void raisesAClickInOrder();
    void raisesADoubleClickInOrder();
    void raisesTheMouseBeforeTheListActs();
    void tellsButtonsShiftAndPlace();
    void tellsPlacesWithoutAButtonToo();
    void clicksBesideTheRows();
    void takesBackAClickThatEndsOutside();
    void clicksColumns();
    void clicksColumnsTwice();
    void doesNotTellOfTheMouseOnTheHeader();
    void checksWithTheMouse();
    void picksRowsByDragging();
    void selectsManyRowsByMouse();
    void bearsAnythingInAMouseEvent_data();
    void bearsAnythingInAMouseEvent();
    void bearsAnythingInAColumnClick_data();
    void bearsAnythingInAColumnClick();
    void keepsErrorsFromTheEventLoop();
};

void ReportListMouseTest::raisesAClickInOrder()
{
    const ShownList shown;
    ListEvents events(shown.list);
    shown.click(shown.cell(2));
    QCOMPARE(events.take(), u"MouseDown 1 0, ItemClick Row2, MouseUp 1 0, Click"_s);
    QCOMPARE(shown->SelectedItem(), shown.item(2));
    shown.click(shown.cell(2, 3)); // each click on a row is told
    QCOMPARE(events.take(), u"MouseDown 1 0, ItemClick Row2, MouseUp 1 0, Click"_s);
    shown.click(shown.cell(3), Qt::RightButton);
    QCOMPARE(events.take(), u"MouseDown 2 0, ItemClick Row3, MouseUp 2 0"_s);
    shown.click(shown.cell(4), Qt::MiddleButton);
    QCOMPARE(events.take(), u"MouseDown 4 0, MouseUp 4 0"_s);
}

void ReportListMouseTest::raisesADoubleClickInOrder()
{
    const ShownList shown;
    ListEvents events(shown.list);
    shown.doubleClick(shown.cell(2));
    QCOMPARE(events.take(),
             u"MouseDown 1 0, ItemClick Row2, MouseUp 1 0, Click, DblClick, MouseUp 1 0"_s);
}

void ReportListMouseTest::raisesTheMouseBeforeTheListActs()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(1));
    ListItem *selected = nullptr;
    connect(shown.list, &ReportList::MouseDown, this, [&] { selected = shown->SelectedItem(); });
    shown.click(shown.cell(3));
    QCOMPARE(selected, shown.item(1));
    QCOMPARE(shown->SelectedItem(), shown.item(3));
}

void ReportListMouseTest::tellsButtonsShiftAndPlace()
{
    const ShownList shown;
    QList<double> places;
    qint16 shift = -1;
    connect(shown.list, &ReportList::MouseDown, this, [&](qint16, qint16 held, float x, float y) {
        shift = held;
        places = {static_cast<double>(x), static_cast<double>(y)};
        QCOMPARE(shown->HitTest(x, y), shown.item(4));
    });
    const QPoint at = shown.cell(4, 2);
    const QPoint inList = shown->mapFrom(&shown.form, at);
    shown.click(at, Qt::LeftButton, Qt::ShiftModifier | Qt::AltModifier);
    QCOMPARE(shift, qint16{5});
    QCOMPARE(places, QList<double>({Twips::fromPixelsX(inList.x(), *shown.list),
                                    Twips::fromPixelsY(inList.y(), *shown.list)}));
    shown.click(at, Qt::LeftButton, Qt::ControlModifier);
    QCOMPARE(shift, qint16{2});
}

void ReportListMouseTest::tellsPlacesWithoutAButtonToo()
{
    const ShownList shown;
    QList<qint16> buttons;
    connect(shown.list, &ReportList::MouseMove, this,
            [&](qint16 button, qint16, float, float) { buttons.append(button); });
    shown.move(shown.cell(1));
    shown.move(shown.cell(2));
    QVERIFY(!buttons.isEmpty());
    QCOMPARE(buttons.last(), qint16{0});
    shown.press(shown.cell(2));
    shown.move(shown.cell(3));
    QCOMPARE(buttons.last(), qint16{1});
    shown.release(shown.cell(3));
}

void ReportListMouseTest::clicksBesideTheRows()
{
    const ShownList shown(2);
    shown->setMultiSelect(true);
    shown->setSelectedItem(shown.item(1));
    ListEvents events(shown.list);
    shown.click(shown.below());
    QCOMPARE(events.take(), u"MouseDown 1 0, MouseUp 1 0, Click"_s);
    QCOMPARE(shown->SelectedItem(), nullptr);
}

void ReportListMouseTest::takesBackAClickThatEndsOutside()
{
    const ShownList shown;
    ListEvents events(shown.list);
    shown.press(shown.cell(2));
    shown.release(QPoint(5, 5));
    QCOMPARE(events.take(), u"MouseDown 1 0, ItemClick Row2, MouseUp 1 0"_s);
}

void ReportListMouseTest::clicksColumns()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(2));
    ListEvents events(shown.list);
    shown.click(shown.header(2));
    QCOMPARE(events.take(), u"ColumnClick Column2"_s);
    QCOMPARE(shown->SelectedItem(), shown.item(2));
    shown.press(shown.header(2));
    shown.release(shown.header(3));
    QCOMPARE(events.take(), QString());
}

void ReportListMouseTest::clicksColumnsTwice()
{
    const ShownList shown;
    ListEvents events(shown.list);
    shown.doubleClick(shown.header(2));
    QCOMPARE(events.take(), u"ColumnClick Column2, ColumnClick Column2"_s);
    const int edge = shown->horizontalHeader()->sectionSize(0);
    shown.doubleClick(QPoint(shown.header(1).x() - edge / 2 + edge - 1, shown.header(1).y()));
    QCOMPARE(events.take(), QString()); // the divider
}

void ReportListMouseTest::doesNotTellOfTheMouseOnTheHeader()
{
    const ShownList shown;
    QCOMPARE(shown->HitTest(static_cast<float>(Twips::fromPixelsX(20, *shown.list)),
                            static_cast<float>(Twips::fromPixelsY(5, *shown.list))),
             nullptr);
    ListEvents events(shown.list);
    shown.click(shown.header(1));
    QVERIFY(!events.take().contains(u"Mouse"_s));
}

void ReportListMouseTest::checksWithTheMouse()
{
    const ShownList shown;
    shown->setCheckBoxes(true);
    const QModelIndex label = shown->model()->index(1, 0);
    const QRect cell = shown->visualRect(label);
    const QPoint box = shown.inForm(QPoint(cell.left() + 10, cell.center().y()));
    ListEvents events(shown.list);
    shown.click(box);
    QVERIFY(shown.item(2)->Checked());
    QCOMPARE(events.take(),
             u"MouseDown 1 0, ItemClick Row2, MouseUp 1 0, ItemCheck Row2 1, Click"_s);
    shown.click(box);
    QVERIFY(!shown.item(2)->Checked());
    shown.click(shown.cell(2)); // on the text
    QVERIFY(!shown.item(2)->Checked());
}

void ReportListMouseTest::picksRowsByDragging()
{
    const ShownList shown;
    ListEvents events(shown.list);
    shown.press(shown.cell(1));
    shown.move(shown.cell(2));
    shown.move(shown.cell(3));
    shown.release(shown.cell(3));
    QCOMPARE(shown->SelectedItem(), shown.item(3));
    QVERIFY(events.take().contains(u"ItemClick Row3"_s));
}

void ReportListMouseTest::selectsManyRowsByMouse()
{
    const ShownList shown;
    shown.click(shown.cell(1));
    shown.click(shown.cell(3), Qt::LeftButton, Qt::ControlModifier);
    QVERIFY(!shown.item(1)->Selected());
    shown->setMultiSelect(true);
    shown.click(shown.cell(1));
    shown.click(shown.cell(3), Qt::LeftButton, Qt::ControlModifier);
    QVERIFY(shown.item(1)->Selected() && shown.item(3)->Selected());
    shown.click(shown.cell(5), Qt::LeftButton, Qt::ShiftModifier);
    QVERIFY(shown.item(4)->Selected() && shown.item(5)->Selected());
}

namespace {

void addDeeds(const QStringList &events)
{
    QTest::addColumn<QString>("event");
    QTest::addColumn<QString>("deed");
    for (const QString &event : events) {
        for (const QString &deed :
             {u"destroy"_s, u"clear"_s, u"columns"_s, u"disable"_s, u"rebuild"_s})
            QTest::addRow("%s, %s", qPrintable(event), qPrintable(deed)) << event << deed;
    }
}

void perform(const QString &deed, ShownList &shown)
{
    if (!shown.list)
        return;
    if (deed == u"destroy"_s)
        delete shown.list;
    else if (deed == u"clear"_s)
        shown->Clear();
    else if (deed == u"columns"_s)
        shown->ColumnHeaders()->Clear();
    else if (deed == u"disable"_s)
        shown->setEnabled(false);
    else
        shown->setRows({RowContent{u"new"_s}, RowContent{u"other"_s}});
}

} // namespace

void ReportListMouseTest::bearsAnythingInAMouseEvent_data()
{
    addDeeds({u"MouseDown"_s, u"MouseMove"_s, u"MouseUp"_s, u"Click"_s, u"DblClick"_s,
              u"ItemClick"_s, u"ItemCheck"_s});
}

void ReportListMouseTest::bearsAnythingInAMouseEvent()
{
    QFETCH(QString, event);
    QFETCH(QString, deed);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        ShownList shown;
        shown->setCheckBoxes(true);
        const QRect cell = shown->visualRect(shown->model()->index(1, 0));
        const QPoint at = shown.inForm(QPoint(cell.left() + 10, cell.center().y()));
        int deeds = 0;
        const auto act = [&] {
            ++deeds;
            perform(deed, shown);
        };
        if (event == u"MouseDown"_s)
            connect(shown.list, &ReportList::MouseDown, this, act);
        else if (event == u"MouseMove"_s)
            connect(shown.list, &ReportList::MouseMove, this, act);
        else if (event == u"MouseUp"_s)
            connect(shown.list, &ReportList::MouseUp, this, act);
        else if (event == u"Click"_s)
            connect(shown.list, &ReportList::Click, this, act);
        else if (event == u"DblClick"_s)
            connect(shown.list, &ReportList::DblClick, this, act);
        else if (event == u"ItemClick"_s)
            connect(shown.list, &ReportList::ItemClick, this, act);
        else
            connect(shown.list, &ReportList::ItemCheck, this, act);
        const std::function<void()> steps[] = {
            [&] { QTest::mouseMove(shown.window, at); },
            [&] { QTest::mousePress(shown.window, button, {}, at); },
            [&] { QTest::mouseMove(shown.window, at + QPoint(0, 30)); },
            [&] { QTest::mouseMove(shown.window, at); },
            [&] { QTest::mouseRelease(shown.window, button, {}, at); },
            [&] { QTest::mouseDClick(shown.window, button, {}, at); },
        };
        for (const auto &step : steps) {
            step();
            QCoreApplication::sendPostedEvents();
        }
        const bool comes = button == Qt::LeftButton ||
                           !QStringList{u"Click"_s, u"DblClick"_s, u"ItemCheck"_s}.contains(event);
        QCOMPARE(deeds > 0, comes);
        QCOMPARE(shown.list.isNull(), comes && deed == u"destroy"_s);
    }
}

void ReportListMouseTest::bearsAnythingInAColumnClick_data()
{
    addDeeds({u"ColumnClick"_s});
}

void ReportListMouseTest::bearsAnythingInAColumnClick()
{
    QFETCH(QString, deed);
    ShownList shown;
    int clicks = 0;
    connect(shown.list, &ReportList::ColumnClick, this, [&] {
        ++clicks;
        perform(deed, shown);
    });
    shown.click(shown.header(1));
    QCOMPARE(clicks, 1);
    QCOMPARE(shown.list.isNull(), deed == u"destroy"_s);
    QTest::qWait(ShownList::betweenClicks());
    ShownList quick;
    clicks = 0;
    connect(quick.list, &ReportList::ColumnClick, this, [&] {
        if (++clicks == 2)
            perform(deed, quick);
    });
    quick.doubleClick(quick.header(1));
    QCOMPARE(clicks, 2);
    QCOMPARE(quick.list.isNull(), deed == u"destroy"_s);
}

void ReportListMouseTest::keepsErrorsFromTheEventLoop()
{
    const ShownList shown;
    const auto fail = [] { throw Error(InvalidCall, u"Host"_s, u"went wrong"_s); };
    connect(shown.list, &ReportList::MouseDown, this, fail);
    connect(shown.list, &ReportList::ColumnClick, this, fail);
    QTest::ignoreMessage(QtWarningMsg, "An event handler failed: Host: went wrong");
    shown.click(shown.cell(2));
    QTest::ignoreMessage(QtWarningMsg, "An event handler failed: Host: went wrong");
    shown.click(shown.header(2));
}

ORVT_TEST(ReportListMouseTest)
#include "ReportListMouseTest.moc"
