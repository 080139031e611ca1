// Real drags of an ORVListView: the toolkit's drag loop runs, fed by mouse events.

#include "listview/ShownListView.h"
#include "support/FreshDrag.h"
#include "support/InTurn.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <utility>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class ListViewDragTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() override
    {
        WidgetTest::init();
        forgetFormerDrags();
    }

    void aDragRaisesAllSixEvents();
    void whatTheHostChangesComesBack();
    void theHostStartsADrag();
    void theHostCallsADragOff_data();
    void theHostCallsADragOff();
    void otherActionsDoNothing();
    void bearsAnythingInADrag_data();
    void bearsAnythingInADrag();

private:
    // Presses on row 2, moves in small steps, and lets go at the end.
    void drag(const ShownListView &shown, const QList<QPoint> &way);
};

void ListViewDragTest::initTestCase()
{
    QVERIFY2(QGuiApplication::platformName() != u"offscreen"_s, "needs a display that can drag");
}

void ListViewDragTest::drag(const ShownListView &shown, const QList<QPoint> &way)
{
    QList<InTurn::Step> steps;
    QPoint from = shown.cell(2);
    steps.append([&shown, from] { shown.press(from); });
    for (const QPoint &to : way) {
        for (int i = 1; i <= 8; ++i) {
            const QPoint point = from + (to - from) * i / 8;
            steps.append([&shown, point] { shown.move(point); });
        }
        from = to;
    }
    steps.append([&shown, from] { shown.release(from); });
    InTurn::take(std::move(steps));
}

void ListViewDragTest::aDragRaisesAllSixEvents()
{
    const ShownListView shown;
    shown.table().setDragEnabled(true);
    shown.table().setAcceptDrops(true);
    const qint16 promised = DataObject::FormatNumber(u"application/x-points"_s);
    connect(shown.list, &ORVListView::OLEStartDrag, this,
            [promised](DataObject *data, qint32 &) { data->SetData({}, promised); });
    QString text;
    ListItem *target = nullptr;
    connect(shown.list, &ORVListView::OLEDragDrop, this,
            [&](DataObject *data, qint32 &, qint16, qint16, float x, float y) {
                text = data->GetData(DataObject::Text).toString();
                data->GetData(promised);
                target = shown->HitTest(x, y);
            });
    ListViewEvents events(shown.list);
    const QPoint to = shown.cell(5);
    drag(shown, {to});
    const QStringList log = events.log.filter(u"OLE"_s);
    QCOMPARE(log.first(), u"OLEStartDrag 1"_s);
    QVERIFY(log.contains(u"OLEDragOver 1 1 0 0"_s));
    QVERIFY(log.contains(u"OLEDragOver 1 1 0 2"_s));
    QVERIFY(log.contains(u"OLEGiveFeedback 1 1"_s));
    QVERIFY(log.contains(u"OLESetData %1"_s.arg(promised)));
    QVERIFY(log.filter(u"OLEDragDrop 1"_s).size() == 1);
    QCOMPARE(log.last(), u"OLECompleteDrag 1"_s);
    QCOMPARE(text, u"02\t\t\t\t\t\t \n"_s);
    QCOMPARE(target, shown.item(5));
}

void ListViewDragTest::whatTheHostChangesComesBack()
{
    const ShownListView shown;
    shown.table().setDragEnabled(true);
    shown.table().setAcceptDrops(true);
    connect(shown.list, &ORVListView::OLEStartDrag, this, [](DataObject *data, qint32 &effects) {
        data->Clear();
        data->SetData(u"mine"_s);
        effects = 1 + 2;
    });
    connect(shown.list, &ORVListView::OLEDragOver, this,
            [](DataObject *, qint32 &effect) { effect = 2; });
    QString text;
    connect(shown.list, &ORVListView::OLEDragDrop, this, [&](DataObject *data, qint32 &effect) {
        text = data->GetData(DataObject::Text).toString();
        effect = 2;
    });
    ListViewEvents events(shown.list);
    drag(shown, {shown.cell(5)});
    QCOMPARE(text, u"mine"_s);
    QVERIFY(events.log.contains(u"OLEGiveFeedback 2 1"_s));
    QCOMPARE(events.log.filter(u"OLE"_s).last(), u"OLECompleteDrag 2"_s);
}

void ListViewDragTest::theHostStartsADrag()
{
    const ShownListView shown; // drags nothing by itself
    shown.table().setAcceptDrops(true);
    shown->setSelectedItem(shown.item(2));
    connect(shown.list, &ORVListView::MouseDown, this, [&] { shown->Drag(dcBeginDrag); });
    ListViewEvents events(shown.list);
    drag(shown, {shown.cell(5)});
    QCOMPARE(events.log.filter(u"OLE"_s).first(), u"OLEStartDrag 1"_s);
    QCOMPARE(events.log.filter(u"OLE"_s).last(), u"OLECompleteDrag 1"_s);
}

void ListViewDragTest::theHostCallsADragOff_data()
{
    QTest::addColumn<int>("action");
    QTest::newRow("cancelled") << int{dcCancel};
    QTest::newRow("ended") << int{dcEndDrag};
}

void ListViewDragTest::theHostCallsADragOff()
{
    QFETCH(int, action);
    const ShownListView shown;
    shown.table().setDragEnabled(true);
    shown.table().setAcceptDrops(true);
    connect(shown.list, &ORVListView::OLEDragOver, this,
            [&](DataObject *, qint32 &, qint16, qint16, float x, float y) {
                if (shown->HitTest(x, y) == shown.item(4))
                    shown->Drag(static_cast<ActionIndex>(action));
            });
    ListViewEvents events(shown.list);
    drag(shown, {shown.cell(6)});
    QVERIFY(events.log.contains(u"OLECompleteDrag 0"_s));
    QVERIFY(events.log.filter(u"OLEDragDrop"_s).isEmpty());
}

void ListViewDragTest::otherActionsDoNothing()
{
    const ShownListView shown;
    shown.table().setAcceptDrops(true);
    shown->setSelectedItem(shown.item(2));
    connect(shown.list, &ORVListView::MouseDown, this, [&] {
        shown->Drag();
        for (const int action : {0, 3, -1, 1000})
            shown->Drag(static_cast<ActionIndex>(action));
    });
    ListViewEvents events(shown.list);
    drag(shown, {shown.cell(5)});
    shown->Drag(dcBeginDrag); // no button is down
    QCoreApplication::processEvents();
    QVERIFY(events.log.filter(u"OLE"_s).isEmpty());
}

void ListViewDragTest::bearsAnythingInADrag_data()
{
    QTest::addColumn<QString>("event");
    QTest::addColumn<QString>("deed");
    for (const QString &event : {u"start"_s, u"over"_s, u"drop"_s, u"feedback"_s, u"complete"_s}) {
        for (const QString &deed : {u"destroy"_s, u"clear"_s, u"code"_s, u"table"_s, u"disable"_s})
            QTest::addRow("%s, %s", qPrintable(event), qPrintable(deed)) << event << deed;
    }
}

void ListViewDragTest::bearsAnythingInADrag()
{
    QFETCH(QString, event);
    QFETCH(QString, deed);
    ShownListView shown;
    shown.form.setAcceptDrops(true); // takes over when the list goes
    shown.table().setDragEnabled(true);
    shown.table().setAcceptDrops(true);
    bool done = false;
    const auto act = [&] {
        if (std::exchange(done, true))
            return;
        if (deed == u"destroy"_s)
            delete shown.list;
        else if (deed == u"clear"_s)
            shown->Clear();
        else if (deed == u"code"_s)
            shown->setListviewType(dsCode);
        else if (deed == u"table"_s)
            shown->setListviewType(dsTimer);
        else
            shown->setEnabled(false);
    };
    if (event == u"start"_s)
        connect(shown.list, &ORVListView::OLEStartDrag, this, act);
    else if (event == u"over"_s)
        connect(shown.list, &ORVListView::OLEDragOver, this, act);
    else if (event == u"drop"_s)
        connect(shown.list, &ORVListView::OLEDragDrop, this, act);
    else if (event == u"feedback"_s)
        connect(shown.list, &ORVListView::OLEGiveFeedback, this, act);
    else
        connect(shown.list, &ORVListView::OLECompleteDrag, this, act);
    drag(shown, {shown.cell(5)});
    QVERIFY(done);
    QCOMPARE(shown.list.isNull(), deed == u"destroy"_s);
    QVERIFY(QGuiApplication::mouseButtons() == Qt::NoButton);
}

ORVT_TEST(ListViewDragTest)
#include "ListViewDragTest.moc"
