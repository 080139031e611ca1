// Real drags from and to a combo: the toolkit's drag loop runs, fed by the window's
// mouse events.

#include "widgets/combo/ImageComboFixture.h"
#include "widgets/input/DragEvents.h"

#include "support/InTurn.h"
#include "support/TestProgram.h"

#include <QtCore/QMimeData>
#include <QtCore/QRegularExpression>
#include <QtGui/QDropEvent>

#include <utility>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// The six events of a combo as text, repetitions left out.
class DragLog : public QObject
{
public:
    explicit DragLog(ImageCombo *combo)
    {
        connect(&combo->drags(), &DragEvents::OLEStartDrag, this,
                [this](DataObject *, qint32 &effects) { note(u"start %1"_s.arg(effects)); });
        connect(&combo->drags(), &DragEvents::OLEDragOver, this,
                [this](DataObject *, qint32 &effect, qint16, qint16, float, float, qint16 state) {
                    note(u"over %1 state %2"_s.arg(effect).arg(state));
                });
        connect(
            &combo->drags(), &DragEvents::OLEDragDrop, this,
            [this](DataObject *data, qint32 &effect, qint16, qint16, float, float) {
                note(u"drop %1 %2"_s.arg(effect).arg(data->GetData(DataObject::Text).toString()));
            });
        connect(&combo->drags(), &DragEvents::OLEGiveFeedback, this,
                [this](qint32 effect, bool &) { note(u"feedback %1"_s.arg(effect)); });
        connect(&combo->drags(), &DragEvents::OLESetData, this,
                [this](DataObject *, qint16) { note(u"set"_s); });
        connect(&combo->drags(), &DragEvents::OLECompleteDrag, this,
                [this](qint32 effect) { note(u"complete %1"_s.arg(effect)); });
    }

    QString text() const { return log.join(u", "_s); }
    QStringList log;

private:
    void note(const QString &entry)
    {
        if (log.isEmpty() || log.last() != entry)
            log.append(entry);
    }
};

} // namespace

class ImageComboDragTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { QTest::failOnWarning(QRegularExpression(u".?"_s)); }

    void dragsThePictureOfTheSelectedEntry();
    void dragsNothingUnlessAsked();
    void tellsADragOverItAndTheDrop();
    void makesPromisedData();
    void leavesTheTextToTheHost();
    void bearsAnythingInADragEvent_data();
    void bearsAnythingInADragEvent();

private:
    // Presses, moves in small steps, and lets go at the end; then waits for the drag
    // loop to end.
    void drag(const ShownCombo &shown, const QList<QPoint> &way);
};

void ImageComboDragTest::initTestCase()
{
    QVERIFY2(QGuiApplication::platformName() != u"offscreen"_s, "needs a display that can drag");
}

void ImageComboDragTest::drag(const ShownCombo &shown, const QList<QPoint> &way)
{
    QList<InTurn::Step> steps;
    QPoint from = way.first();
    steps.append([&, from] { QTest::mousePress(shown.window, Qt::LeftButton, {}, from); });
    for (const QPoint &to : way.mid(1)) {
        for (int i = 1; i <= 8; ++i) {
            const QPoint point = from + (to - from) * i / 8;
            steps.append([&, point] { QTest::mouseMove(shown.window, point); });
        }
        from = to;
    }
    steps.append([&, from] { QTest::mouseRelease(shown.window, Qt::LeftButton, {}, from); });
    InTurn::take(std::move(steps));
}

void ImageComboDragTest::dragsThePictureOfTheSelectedEntry()
{
    const ShownCombo shown;
    shown->setSelectedIndex(2);
    shown->setDragsEntry(true);
    const DragLog log(shown.combo);
    drag(shown, {shown.picture(), shown.after->geometry().center()});
    QVERIFY2(log.text().startsWith(u"start 1, "_s), qPrintable(log.text()));
    QVERIFY2(log.text().endsWith(u"complete 1"_s), qPrintable(log.text()));
    QVERIFY(!log.text().contains(u"over"_s));
    QCOMPARE(shown.after->text(), u"Humidity"_s);
    QCOMPARE(shown->selectedIndex(), 2);
}

void ImageComboDragTest::dragsNothingUnlessAsked()
{
    const ShownCombo shown;
    shown->setSelectedIndex(2);
    const DragLog log(shown.combo);
    drag(shown, {shown.picture(), shown.after->geometry().center()});
    QCOMPARE(log.text(), QString());
    shown->setDragsEntry(true);
    shown->setSelectedIndex(0);
    drag(shown, {shown.picture(), shown.after->geometry().center()});
    QCOMPARE(log.text(), QString());
}

void ImageComboDragTest::tellsADragOverItAndTheDrop()
{
    const ShownCombo shown;
    shown->setSelectedIndex(2);
    shown->setDragsEntry(true);
    shown->setAcceptDrops(true);
    const DragLog log(shown.combo);
    const QPoint outside(5, 5);
    drag(shown, {shown.picture(), shown.inField(), outside, shown.inField()});
    const QString text = log.text();
    QVERIFY2(text.contains(u"over 1 state 0"_s), qPrintable(text)); // enter
    QVERIFY2(text.contains(u"over 1 state 2"_s), qPrintable(text)); // over
    QVERIFY2(text.contains(u"over 0 state 1"_s), qPrintable(text)); // leave
    QVERIFY2(text.contains(u"feedback 1"_s), qPrintable(text));
    QVERIFY2(text.endsWith(u"drop 1 Humidity, complete 1"_s), qPrintable(text));
}

void ImageComboDragTest::makesPromisedData()
{
    const ShownCombo shown;
    shown->setSelectedIndex(2);
    shown->setDragsEntry(true);
    shown->setAcceptDrops(true);
    const qint16 format = DataObject::FormatNumber(u"application/x-point"_s);
    connect(&shown.combo->drags(), &DragEvents::OLEStartDrag, this,
            [format](DataObject *data, qint32 &) { data->SetData({}, format); });
    connect(&shown.combo->drags(), &DragEvents::OLESetData, this,
            [format](DataObject *data, qint16 wanted) {
                if (wanted == format)
                    data->SetData(QByteArray("made"), format);
            });
    QVariant dropped;
    connect(&shown.combo->drags(), &DragEvents::OLEDragDrop, this,
            [&](DataObject *data, qint32 &) { dropped = data->GetData(format); });
    drag(shown, {shown.picture(), shown.inField()});
    QCOMPARE(dropped.toByteArray(), QByteArray("made"));
}

void ImageComboDragTest::leavesTheTextToTheHost()
{
    const ShownCombo shown;
    shown->setSelectedIndex(2);
    shown->setDragsEntry(true);
    drag(shown, {shown.picture(), shown.inField()}); // takes no drops
    QCOMPARE(shown->text(), u"Humidity"_s);
    shown->setAcceptDrops(true);
    connect(&shown.combo->drags(), &DragEvents::OLEDragDrop, this,
            [&] { shown->setText(u"by the host"_s); });
    drag(shown, {shown.picture(), shown.inField()});
    QCOMPARE(shown->text(), u"by the host"_s);
}

void ImageComboDragTest::bearsAnythingInADragEvent_data()
{
    QTest::addColumn<QString>("event");
    QTest::addColumn<QString>("deed");
    for (const QString &event :
         {u"start"_s, u"enter"_s, u"over"_s, u"leave"_s, u"drop"_s, u"feedback"_s, u"complete"_s}) {
        for (const QString &deed : {u"destroy"_s, u"empty"_s, u"disable"_s, u"hide"_s})
            QTest::addRow("%s, %s", qPrintable(event), qPrintable(deed)) << event << deed;
    }
}

void ImageComboDragTest::bearsAnythingInADragEvent()
{
    QFETCH(QString, event);
    QFETCH(QString, deed);
    ShownCombo shown;
    shown.form.setAcceptDrops(true); // takes over when the combo goes
    shown->setSelectedIndex(2);
    shown->setDragsEntry(true);
    shown->setAcceptDrops(true);
    bool done = false;
    const auto act = [&] {
        if (std::exchange(done, true))
            return;
        if (deed == u"destroy"_s)
            delete shown.combo;
        else if (deed == u"empty"_s)
            shown->setEntries({});
        else if (deed == u"disable"_s)
            shown->setEnabled(false);
        else
            shown->hide();
    };
    const auto overAct = [&](DataObject *, qint32 &, qint16, qint16, float, float, qint16 state) {
        if (event == (state == 0 ? u"enter"_s : state == 1 ? u"leave"_s : u"over"_s))
            act();
    };
    connect(&shown.combo->drags(), &DragEvents::OLEDragOver, this, overAct);
    if (event == u"start"_s)
        connect(&shown.combo->drags(), &DragEvents::OLEStartDrag, this, act);
    else if (event == u"drop"_s)
        connect(&shown.combo->drags(), &DragEvents::OLEDragDrop, this, act);
    else if (event == u"feedback"_s)
        connect(&shown.combo->drags(), &DragEvents::OLEGiveFeedback, this, act);
    else if (event == u"complete"_s)
        connect(&shown.combo->drags(), &DragEvents::OLECompleteDrag, this, act);
    const QPoint field = shown.inField();
    drag(shown, {shown.picture(), field, QPoint(5, 5), field});
    QVERIFY(done);
    QCOMPARE(shown.combo.isNull(), deed == u"destroy"_s);
    QVERIFY(QGuiApplication::mouseButtons() == Qt::NoButton);
}

ORVT_TEST(ImageComboDragTest)
#include "ImageComboDragTest.moc"
