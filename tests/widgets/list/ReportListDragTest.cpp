// Real drags: the toolkit's drag loop runs, fed by the window's mouse events.

#include "widgets/list/ReportListFixture.h"

#include "support/FreshDrag.h"
#include "support/InTurn.h"
#include "support/TestProgram.h"

#include <QtCore/QMimeData>
#include <QtCore/QRegularExpression>
#include <QtCore/QTimer>
#include <QtTest/QTest>

#include <utility>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// The six events of a list as text.
class DragLog : public QObject
{
public:
    explicit DragLog(ReportList *list)
    {
        connect(list, &ReportList::OLEStartDrag, this,
                [this](DataObject *, qint32 &effects) { log.append(u"start %1"_s.arg(effects)); });
        connect(list, &ReportList::OLEDragOver, this,
                [this](DataObject *, qint32 &effect, qint16 button, qint16 shift, float, float,
                       qint16 state) {
                    const QString entry =
                        u"over %1 %2 %3 state %4"_s.arg(effect).arg(button).arg(shift).arg(state);
                    if (log.isEmpty() || log.last() != entry)
                        log.append(entry);
                });
        connect(list, &ReportList::OLEDragDrop, this,
                [this](DataObject *, qint32 &effect, qint16, qint16, float, float) {
                    log.append(u"drop %1"_s.arg(effect));
                });
        connect(list, &ReportList::OLEGiveFeedback, this, [this](qint32 effect, bool &cursors) {
            log.append(u"feedback %1 %2"_s.arg(effect).arg(cursors));
        });
        connect(list, &ReportList::OLESetData, this,
                [this](DataObject *, qint16 format) { log.append(u"set %1"_s.arg(format)); });
        connect(list, &ReportList::OLECompleteDrag, this,
                [this](qint32 effect) { log.append(u"complete %1"_s.arg(effect)); });
    }

    QString text() const { return log.join(u", "_s); }

    // Whether nothing can be done at the very start depends on the display's speed.
    QString textWithoutFirstRefusal() const
    {
        return text().replace(u"start 1, feedback 0 1, "_s, u"start 1, "_s);
    }

    QStringList log;
};

} // namespace

class ReportListDragTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u".?"_s));
        forgetFormerDrags();
    }

    void dragsTheSelectedRows();
    void dragsSeveralRows();
    void raisesAllSixEvents();
    void tellsWhereItIsDragged();
    void tellsEnterAndLeave();
    void letsTheSourceChooseDataAndEffects();
    void startsNothingWithoutDataOrEffects();
    void makesPromisedDataWhenTheyAreWanted();
    void letsTheTargetRefuse();
    void letsTheTargetChooseTheEffect();
    void showsTheListsOwnCursor();
    void startsForTheProgram();
    void startsNothingWithoutAButton();
    void isCalledOffByTheProgram();
    void isCalledOffByEscape();
    void isCalledOffAtItsFirstFeedback();
    void aHostThatFailsHasTakenNothing();
    void tellsNobodyOfALeaveWhenItGoes();
    void doesNotDragUnlessAsked();
    void bearsAnythingInADragEvent_data();
    void bearsAnythingInADragEvent();

private:
    // Presses on row 2, moves, and lets go at the end; then waits for the drag loop
    // to end. Each step is one of the event loop.
    void drag(const ShownList &shown, const QList<QPoint> &way, bool letGo = true);
};

void ReportListDragTest::initTestCase()
{
    QVERIFY2(QGuiApplication::platformName() != u"offscreen"_s, "needs a display that can drag");
}

void ReportListDragTest::drag(const ShownList &shown, const QList<QPoint> &way, bool letGo)
{
    QList<InTurn::Step> steps;
    steps.append([&] { shown.press(shown.cell(2)); });
    QList<QPoint> points;
    QPoint from = shown.cell(2);
    for (const QPoint &to : way) { // in small steps, as a hand does
        for (int i = 1; i <= 8; ++i)
            points.append(from + (to - from) * i / 8);
        from = to;
    }
    for (const QPoint &point : std::as_const(points))
        steps.append([&shown, point] { QTest::mouseMove(shown.window, point); });
    if (letGo)
        steps.append([&shown, from] { shown.release(from); });
    InTurn::take(std::move(steps));
}

void ReportListDragTest::dragsTheSelectedRows()
{
    const ShownList shown;
    shown->setDragEnabled(true);
    shown->setAcceptDrops(true);
    QString text;
    bool html = false;
    connect(shown.list, &ReportList::OLEDragDrop, this, [&](DataObject *data, qint32 &) {
        text = data->GetData(DataObject::Text).toString();
        html = data->GetFormat(DataObject::FormatNumber(u"text/html"_s));
        QCOMPARE(errorOf([data] { data->SetData(u"x"_s); }), qint32{InvalidCall});
        QCOMPARE(errorOf([data] { data->Clear(); }), qint32{InvalidCall});
    });
    drag(shown, {shown.cell(4)});
    QCOMPARE(text, u"Text 2\t\t\n"_s);
    QVERIFY(html);
}

void ReportListDragTest::dragsSeveralRows()
{
    const ShownList shown;
    shown->setMultiSelect(true);
    shown->setDragEnabled(true);
    shown->setAcceptDrops(true);
    for (const int row : {2, 3, 5})
        shown.item(row)->setSelected(true);
    QString text;
    connect(shown.list, &ReportList::OLEDragDrop, this,
            [&](DataObject *data, qint32 &) { text = data->GetData(DataObject::Text).toString(); });
    drag(shown, {shown.cell(4)});
    QCOMPARE(text, u"Text 2\t\t\nText 3\t\t\nText 5\t\t\n"_s);
    QVERIFY(shown.item(2)->Selected() && shown.item(3)->Selected() && shown.item(5)->Selected());
}

void ReportListDragTest::raisesAllSixEvents()
{
    const ShownList shown;
    shown->setDragEnabled(true);
    shown->setAcceptDrops(true);
    connect(shown.list, &ReportList::OLEStartDrag, this, [](DataObject *data, qint32 &) {
        data->SetData({}, DataObject::FormatNumber(u"application/x-points"_s));
    });
    connect(shown.list, &ReportList::OLEDragDrop, this, [](DataObject *data, qint32 &) {
        data->GetData(DataObject::FormatNumber(u"application/x-points"_s));
    });
    const DragLog log(shown.list);
    drag(shown, {shown.cell(4)});
    const QString promised = QString::number(DataObject::FormatNumber(u"application/x-points"_s));
    QCOMPARE(log.textWithoutFirstRefusal(),
             u"start 1, over 1 1 0 state 0, feedback 1 1, over 1 1 0 state 2, set %1, "
             "drop 1, complete 1"_s.arg(promised));
}

void ReportListDragTest::tellsWhereItIsDragged()
{
    const ShownList shown;
    shown->setDragEnabled(true);
    shown->setAcceptDrops(true);
    QList<ListItem *> over;
    ListItem *dropped = nullptr;
    connect(shown.list, &ReportList::OLEDragOver, this,
            [&](DataObject *, qint32 &, qint16, qint16, float x, float y) {
                over.append(shown->HitTest(x, y));
            });
    connect(shown.list, &ReportList::OLEDragDrop, this,
            [&](DataObject *, qint32 &, qint16, qint16, float x, float y) {
                dropped = shown->HitTest(x, y);
            });
    drag(shown, {shown.cell(4, 2)});
    QVERIFY(over.contains(shown.item(3)));
    QCOMPARE(over.last(), shown.item(4));
    QCOMPARE(dropped, shown.item(4));
}

void ReportListDragTest::tellsEnterAndLeave()
{
    const ShownList shown;
    shown->setDragEnabled(true);
    shown->setAcceptDrops(true);
    const DragLog log(shown.list);
    drag(shown, {shown.cell(4), QPoint(5, 5), shown.cell(1)});
    QCOMPARE(log.textWithoutFirstRefusal(),
             u"start 1, over 1 1 0 state 0, feedback 1 1, over 1 1 0 state 2, over 0 1 0 state 1, "
             "feedback 0 1, over 1 1 0 state 0, feedback 1 1, over 1 1 0 state 2, drop 1, "
             "complete 1"_s);
}

void ReportListDragTest::letsTheSourceChooseDataAndEffects()
{
    const ShownList shown;
    shown->setDragEnabled(true);
    shown->setAcceptDrops(true);
    connect(shown.list, &ReportList::OLEStartDrag, this, [](DataObject *data, qint32 &effects) {
        data->Clear();
        data->SetData(u"mine"_s);
        effects = 2;
    });
    QString text;
    connect(shown.list, &ReportList::OLEDragDrop, this,
            [&](DataObject *data, qint32 &) { text = data->GetData(DataObject::Text).toString(); });
    const DragLog log(shown.list);
    drag(shown, {shown.cell(4)});
    QCOMPARE(text, u"mine"_s);
    QVERIFY(log.text().endsWith(u"drop 2, complete 2"_s));
}

void ReportListDragTest::startsNothingWithoutDataOrEffects()
{
    for (const bool withoutData : {true, false}) {
        const ShownList shown;
        shown->setDragEnabled(true);
        shown->setAcceptDrops(true);
        connect(shown.list, &ReportList::OLEStartDrag, this,
                [withoutData](DataObject *data, qint32 &effects) {
                    if (withoutData)
                        data->Clear();
                    else
                        effects = 0;
                });
        const DragLog log(shown.list);
        drag(shown, {shown.cell(4)});
        QVERIFY(log.text().startsWith(u"start "_s));
        QVERIFY(!log.text().contains(u"over"_s));
        QVERIFY(!log.text().contains(u"complete"_s));
    }
}

void ReportListDragTest::makesPromisedDataWhenTheyAreWanted()
{
    const ShownList shown;
    shown->setDragEnabled(true);
    shown->setAcceptDrops(true);
    const qint16 points = DataObject::FormatNumber(u"application/x-points"_s);
    int asked = 0;
    connect(shown.list, &ReportList::OLEStartDrag, this, [points](DataObject *data, qint32 &) {
        data->SetData({}, points);
        data->SetData({}, DataObject::RichText);
    });
    connect(shown.list, &ReportList::OLESetData, this, [&](DataObject *data, qint16 format) {
        ++asked;
        if (format == points)
            data->SetData(QByteArray("made"), points);
    });
    QVariant made;
    QVariant notMade;
    connect(shown.list, &ReportList::OLEDragDrop, this, [&](DataObject *data, qint32 &) {
        QVERIFY(data->GetFormat(points));
        QVERIFY(data->GetFormat(DataObject::RichText));
        QCOMPARE(asked, 0);
        made = data->GetData(points);
        data->GetData(points); // there by now
        QCOMPARE(asked, 1);
        notMade = data->GetData(DataObject::RichText);
        QCOMPARE(asked, 2);
    });
    drag(shown, {shown.cell(4)});
    QCOMPARE(made.toByteArray(), QByteArray("made"));
    QCOMPARE(notMade.toString(), QString());
}

void ReportListDragTest::letsTheTargetRefuse()
{
    const ShownList shown;
    shown->setDragEnabled(true);
    shown->setAcceptDrops(true);
    connect(shown.list, &ReportList::OLEDragOver, this,
            [](DataObject *, qint32 &effect) { effect = 0; });
    const DragLog log(shown.list);
    drag(shown, {shown.cell(4)});
    QVERIFY(!log.text().contains(u"drop"_s));
    QVERIFY(log.text().endsWith(u"complete 0"_s));
}

void ReportListDragTest::letsTheTargetChooseTheEffect()
{
    const ShownList shown;
    shown->setDragEnabled(true);
    shown->setAcceptDrops(true);
    connect(shown.list, &ReportList::OLEStartDrag, this,
            [](DataObject *, qint32 &effects) { effects = 1 + 2; });
    connect(shown.list, &ReportList::OLEDragOver, this,
            [](DataObject *, qint32 &effect) { effect = 2; });
    connect(shown.list, &ReportList::OLEDragDrop, this,
            [](DataObject *, qint32 &effect) { effect = 2; });
    const DragLog log(shown.list);
    drag(shown, {shown.cell(4)});
    QVERIFY2(log.text().contains(u"feedback 2"_s), qPrintable(log.text()));
    QVERIFY2(log.text().endsWith(u"complete 2"_s), qPrintable(log.text()));
}

void ReportListDragTest::showsTheListsOwnCursor()
{
    const ShownList shown;
    shown->setDragEnabled(true);
    shown->setAcceptDrops(true);
    QPixmap pixmap(24, 24);
    pixmap.fill(Qt::red);
    shown->setCursor(QCursor(pixmap));
    connect(shown.list, &ReportList::OLEGiveFeedback, this,
            [](qint32, bool &defaultCursors) { defaultCursors = false; });
    QSize cursor;
    connect(shown.list, &ReportList::OLEDragDrop, this, [&] {
        if (QGuiApplication::overrideCursor())
            cursor = QGuiApplication::overrideCursor()->pixmap().size();
    });
    QSize over;
    connect(shown.list, &ReportList::OLEDragOver, this, [&] {
        if (QGuiApplication::overrideCursor())
            over = QGuiApplication::overrideCursor()->pixmap().size();
    });
    drag(shown, {shown.cell(4)});
    QCOMPARE(over, QSize(24, 24));
}

void ReportListDragTest::startsForTheProgram()
{
    const ShownList shown; // drags nothing by itself
    shown->setAcceptDrops(true);
    connect(shown.list, &ReportList::MouseDown, this, [&] { shown->Drag(1); });
    const DragLog log(shown.list);
    shown->setSelectedItem(shown.item(2));
    drag(shown, {shown.cell(4)});
    QVERIFY2(log.text().startsWith(u"start 1"_s), qPrintable(log.text()));
    QVERIFY2(log.text().endsWith(u"complete 1"_s), qPrintable(log.text()));
}

void ReportListDragTest::startsNothingWithoutAButton()
{
    const ShownList shown;
    shown->setSelectedItem(shown.item(2));
    const DragLog log(shown.list);
    for (const qint32 action : {1, 0, 3, -1, 2})
        shown->Drag(action);
    QCoreApplication::processEvents();
    QCOMPARE(log.text(), QString());
}

void ReportListDragTest::isCalledOffByTheProgram()
{
    const ShownList shown;
    shown->setDragEnabled(true);
    shown->setAcceptDrops(true);
    connect(shown.list, &ReportList::OLEDragOver, this,
            [&](DataObject *, qint32 &, qint16, qint16, float x, float y) {
                if (shown->HitTest(x, y) == shown.item(3))
                    shown->Drag(2);
            });
    const DragLog log(shown.list);
    drag(shown, {shown.cell(4)});
    QVERIFY2(log.text().contains(u"complete 0"_s), qPrintable(log.text()));
    QVERIFY(!log.text().contains(u"drop"_s));
}

void ReportListDragTest::isCalledOffByEscape()
{
    const ShownList shown;
    shown->setDragEnabled(true);
    shown->setAcceptDrops(true);
    bool pressed = false;
    connect(shown.list, &ReportList::OLEDragOver, this,
            [&](DataObject *, qint32 &, qint16, qint16, float x, float y) {
                if (shown->HitTest(x, y) == shown.item(3) && !std::exchange(pressed, true))
                    QTimer::singleShot(0, this, [&] { shown.key(Qt::Key_Escape); });
            });
    const DragLog log(shown.list);
    drag(shown, {shown.cell(4)});
    QVERIFY2(log.text().contains(u"complete 0"_s), qPrintable(log.text()));
    QVERIFY(!log.text().contains(u"drop"_s));
}

void ReportListDragTest::isCalledOffAtItsFirstFeedback()
{
    const ShownList shown;
    shown->setDragEnabled(true);
    shown->setAcceptDrops(true);
    bool isDone = false;
    connect(shown.list, &ReportList::OLEGiveFeedback, this, [&] {
        if (!std::exchange(isDone, true))
            shown->Drag(2);
    });
    const DragLog log(shown.list);
    drag(shown, {shown.cell(4)});
    QVERIFY(isDone);
    QVERIFY2(log.text().endsWith(u"complete 0"_s), qPrintable(log.text()));
    QVERIFY(!log.text().contains(u"drop"_s));
}

// What is moved away from where it was is lost if nobody has taken it.
void ReportListDragTest::aHostThatFailsHasTakenNothing()
{
    const ShownList shown;
    shown->setDragEnabled(true);
    shown->setAcceptDrops(true);
    connect(shown.list, &ReportList::OLEStartDrag, this,
            [](DataObject *, qint32 &effects) { effects = 2; });
    connect(shown.list, &ReportList::OLEDragDrop, this, [] { throw 42; });
    const DragLog log(shown.list);
    QTest::ignoreMessage(QtWarningMsg, "An event handler failed");
    drag(shown, {shown.cell(4)});
    QVERIFY2(log.text().endsWith(u"complete 0"_s), qPrintable(log.text()));
}

void ReportListDragTest::tellsNobodyOfALeaveWhenItGoes()
{
    ShownList shown;
    shown.form.setAcceptDrops(true); // takes over when the list goes
    shown->setDragEnabled(true);
    shown->setAcceptDrops(true);
    bool isGone = false;
    int told = 0;
    connect(shown.list, &ReportList::OLEGiveFeedback, this, [&](qint32 effect, bool &) {
        if (effect == 0 || std::exchange(isGone, true))
            return;
        delete shown.list;
    });
    connect(shown.list, &ReportList::OLEDragOver, this, [&] { told += isGone ? 1 : 0; });
    drag(shown, {shown.cell(4)});
    QVERIFY(isGone);
    QCOMPARE(told, 0);
}

void ReportListDragTest::doesNotDragUnlessAsked()
{
    const ShownList shown;
    shown->setAcceptDrops(true);
    const DragLog log(shown.list);
    drag(shown, {shown.cell(4)});
    QCOMPARE(log.text(), QString());
}

void ReportListDragTest::bearsAnythingInADragEvent_data()
{
    QTest::addColumn<QString>("event");
    QTest::addColumn<QString>("deed");
    for (const QString &event :
         {u"start"_s, u"enter"_s, u"over"_s, u"leave"_s, u"drop"_s, u"feedback"_s, u"complete"_s}) {
        for (const QString &deed :
             {u"destroy"_s, u"clear"_s, u"columns"_s, u"disable"_s, u"hide"_s, u"refuse drops"_s})
            QTest::addRow("%s, %s", qPrintable(event), qPrintable(deed)) << event << deed;
    }
}

void ReportListDragTest::bearsAnythingInADragEvent()
{
    QFETCH(QString, event);
    QFETCH(QString, deed);
    ShownList shown;
    shown.form.setAcceptDrops(true); // takes over when the list goes
    shown->setDragEnabled(true);
    shown->setAcceptDrops(true);
    bool done = false;
    const auto act = [&] {
        if (std::exchange(done, true))
            return;
        if (deed == u"destroy"_s)
            delete shown.list;
        else if (deed == u"clear"_s)
            shown->Clear();
        else if (deed == u"columns"_s)
            shown->ColumnHeaders()->Clear();
        else if (deed == u"disable"_s)
            shown->setEnabled(false);
        else if (deed == u"hide"_s)
            shown->hide();
        else
            shown->setAcceptDrops(false);
    };
    const auto overAct = [&](DataObject *, qint32 &, qint16, qint16, float, float, qint16 state) {
        if (event == (state == 0 ? u"enter"_s : state == 1 ? u"leave"_s : u"over"_s))
            act();
    };
    connect(shown.list, &ReportList::OLEDragOver, this, overAct);
    if (event == u"start"_s)
        connect(shown.list, &ReportList::OLEStartDrag, this, act);
    else if (event == u"drop"_s)
        connect(shown.list, &ReportList::OLEDragDrop, this, act);
    else if (event == u"feedback"_s)
        connect(shown.list, &ReportList::OLEGiveFeedback, this, act);
    else if (event == u"complete"_s)
        connect(shown.list, &ReportList::OLECompleteDrag, this, act);
    const QPoint target = shown.cell(4);
    drag(shown, {target, QPoint(5, 5), target});
    QVERIFY(done);
    QCOMPARE(shown.list.isNull(), deed == u"destroy"_s);
    QVERIFY(QGuiApplication::mouseButtons() == Qt::NoButton);
}

ORVT_TEST(ReportListDragTest)
#include "ReportListDragTest.moc"
