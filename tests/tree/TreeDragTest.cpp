// Real drags in the project tree: the toolkit's drag loop runs, fed by the
// window's mouse events.

#include "tree/ProjectTree.h"

#include "support/InTurn.h"
#include "support/TestProgram.h"

#include <QtWidgets/QLineEdit>

#include <utility>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// The six events of a tree as text; an entry that comes again at once is left out.
class DragLog : public QObject
{
public:
    explicit DragLog(ORVTreeview *tree)
    {
        connect(tree, &ORVTreeview::OLEStartDrag, this,
                [this](DataObject *, qint32 &effects) { note(u"start %1"_s.arg(effects)); });
        connect(tree, &ORVTreeview::OLEDragOver, this,
                [this](DataObject *, qint32 &effect, qint16 button, qint16 shift, float, float,
                       qint16 state) {
                    note(u"over %1 %2 %3 state %4"_s.arg(effect).arg(button).arg(shift).arg(state));
                });
        connect(tree, &ORVTreeview::OLEDragDrop, this,
                [this](DataObject *, qint32 &effect, qint16, qint16, float, float) {
                    note(u"drop %1"_s.arg(effect));
                });
        connect(tree, &ORVTreeview::OLEGiveFeedback, this,
                [this](qint32 effect, bool &) { note(u"feedback %1"_s.arg(effect)); });
        connect(tree, &ORVTreeview::OLESetData, this,
                [this](DataObject *, qint16) { note(u"set"_s); });
        connect(tree, &ORVTreeview::OLECompleteDrag, this,
                [this](qint32 effect) { note(u"complete %1"_s.arg(effect)); });
    }

    void note(const QString &entry)
    {
        if (log.isEmpty() || log.last() != entry)
            log.append(entry);
    }
    QString text() const { return log.join(u", "_s); }

    QStringList log;
};

} // namespace

class TreeDragTest : public ProjectTreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void dragsACategoryToAPage();
    void dropsOnACategoryOfThePage();
    void raisesItsEvents();
    void takesItsPlaceByType();
    void keepsItsSelectionAndColour();
    void isSelectedAndSeenThere();
    void isNotDroppedWhereItIs();
    void makesAPageOfTheDevice();
    void marksThePageMeanwhile();
    void dragsOnlyCategories();
    void theHostRefuses_data();
    void theHostRefuses();
    void theHostTakesItOver();
    void theHostChangesTheData();
    void makesPromisedDataWhenTheyAreWanted();
    void tellsWhereItIsDragged();
    void otherDragsAreRefused();
    void otherDragsAreTheHosts();
    void programStartsADrag();
    void bearsAnythingInADragEvent_data();
    void bearsAnythingInADragEvent();

private:
    void drag(const ShownProject &shown, QPoint from, const QList<QPoint> &way);
};

void TreeDragTest::initTestCase()
{
    QVERIFY2(QGuiApplication::platformName() != u"offscreen"_s, "needs a display that can drag");
}

// Presses, moves in small steps, lets go at the end, and waits for the drag loop to
// end. Each step is one of the event loop.
void TreeDragTest::drag(const ShownProject &shown, QPoint from, const QList<QPoint> &way)
{
    QList<InTurn::Step> steps;
    QWindow *window = shown.window;
    steps.append([=] { QTest::mousePress(window, Qt::LeftButton, {}, from); });
    QPoint last = from;
    for (const QPoint &to : way) {
        for (int i = 1; i <= 8; ++i) {
            const QPoint point = last + (to - last) * i / 8;
            steps.append([=] { QTest::mouseMove(window, point); });
        }
        last = to;
    }
    steps.append([=] { QTest::mouseRelease(window, Qt::LeftButton, {}, last); });
    InTurn::take(std::move(steps));
}

void TreeDragTest::dragsACategoryToAPage()
{
    store(u"Inputs"_s, u"1"_s);
    {
        const ShownProject shown;
        drag(shown, shown.place(u"Logs"_s), {shown.place(u"Page1"_s)});
        QCOMPARE(keysOn(*shown.tree, 1), QStringList({u"Inputs"_s, u"Logs"_s}));
    }
    QCOMPARE(stored(u"Logs"_s), u"1"_s);
}

void TreeDragTest::dropsOnACategoryOfThePage()
{
    store(u"Inputs"_s, u"1"_s);
    const ShownProject shown;
    drag(shown, shown.place(u"Inputs"_s), {shown.place(u"Timers"_s)});
    QCOMPARE(keysOn(*shown.tree, 0).size(), 13);
    QCOMPARE(keysOn(*shown.tree, 1), QStringList());
}

void TreeDragTest::raisesItsEvents()
{
    store(u"Inputs"_s, u"1"_s);
    const ShownProject shown;
    const DragLog log(shown.tree);
    drag(shown, shown.place(u"Logs"_s), {shown.place(u"Page1"_s)});
    QVERIFY2(log.text().startsWith(u"start 3, "_s), qPrintable(log.text()));
    QVERIFY2(log.text().contains(u"over 0 1 0 state 0"_s), qPrintable(log.text())); // its own page
    QVERIFY2(log.text().contains(u"over 2 1 0 state 2"_s), qPrintable(log.text()));
    QVERIFY2(log.text().contains(u"feedback 2"_s), qPrintable(log.text()));
    QVERIFY2(log.text().endsWith(u"drop 2, complete 2"_s), qPrintable(log.text()));
}

void TreeDragTest::takesItsPlaceByType()
{
    store(u"Code"_s, u"1"_s);
    store(u"Timers"_s, u"1"_s);
    const ShownProject shown;
    drag(shown, shown.place(u"Inputs"_s), {shown.place(u"Timers"_s)});
    QCOMPARE(keysOn(*shown.tree, 1), QStringList({u"Code"_s, u"Inputs"_s, u"Timers"_s}));
}

void TreeDragTest::keepsItsSelectionAndColour()
{
    store(u"Inputs"_s, u"1"_s);
    const ShownProject shown;
    Node *logs = shown.node(u"Logs"_s);
    shown->SetNodeForeColor(dsLog, 0x008000);
    drag(shown, shown.place(u"Logs"_s), {shown.place(u"Page1"_s)});
    QCOMPARE(shown->SelectedItem(), logs);
    QCOMPARE(logs->ForeColor(), 0x008000);
    QCOMPARE(logs->Tag().toInt(), int{dsLog});
}

void TreeDragTest::isSelectedAndSeenThere()
{
    store(u"Inputs"_s, u"1"_s);
    const ShownProject shown;
    shown.node(u"Page1"_s)->setExpanded(false);
    connect(shown.tree, &ORVTreeview::OLEDragDrop, this,
            [&] { shown->setSelectedItem(shown.node(u"Code"_s)); });
    drag(shown, shown.place(u"Logs"_s), {shown.place(u"Page1"_s)});
    QCOMPARE(shown->SelectedItem(), shown.node(u"Logs"_s));
    QVERIFY(shown.node(u"Page1"_s)->Expanded());
    const QRect row = shown.view->visualRect(shown.view->currentIndex());
    QVERIFY(shown.view->viewport()->rect().contains(row));
}

void TreeDragTest::isNotDroppedWhereItIs()
{
    const ShownProject shown;
    const DragLog log(shown.tree);
    const QStringList before = keysOn(*shown.tree, 0);
    drag(shown, shown.place(u"Logs"_s), {shown.place(u"Code"_s)});
    QCOMPARE(keysOn(*shown.tree, 0), before);
    QVERIFY2(log.text().endsWith(u"complete 0"_s), qPrintable(log.text()));
    QVERIFY(!log.text().contains(u"drop"_s));
}

void TreeDragTest::makesAPageOfTheDevice()
{
    const ShownProject shown;
    for (int page = 1; page <= 4; ++page) {
        drag(shown, shown.place(u"Logs"_s), {shown.place(u"Device"_s)});
        QCOMPARE(keysOn(*shown.tree, page), QStringList{u"Logs"_s});
    }
    drag(shown, shown.place(u"Logs"_s), {shown.place(u"Device"_s)}); // no name left
    QCOMPARE(shown.node(u"Device"_s)->Children(), 5);
    QCOMPARE(keysOn(*shown.tree, 4), QStringList{u"Logs"_s});
}

void TreeDragTest::marksThePageMeanwhile()
{
    store(u"Inputs"_s, u"1"_s);
    const ShownProject shown;
    QStringList marked;
    connect(shown.tree, &ORVTreeview::OLEDragOver, this, [&] {
        const Node *node = shown.view->dropHighlight();
        const QString key = node ? node->Key() : u"-"_s;
        if (marked.isEmpty() || marked.last() != key)
            marked.append(key);
    });
    const QPoint page = shown.place(u"Page1"_s);
    drag(shown, shown.place(u"Logs"_s), {page, shown.place(u"Timers"_s), page});
    QVERIFY2(marked.contains(u"Page1"_s), qPrintable(marked.join(u' ')));
    QVERIFY2(marked.contains(u"-"_s), qPrintable(marked.join(u' ')));
    QVERIFY(!marked.contains(u"Page0"_s));
    QCOMPARE(shown.view->dropHighlight(), nullptr);
}

void TreeDragTest::dragsOnlyCategories()
{
    store(u"Inputs"_s, u"1"_s);
    const ShownProject shown;
    const DragLog log(shown.tree);
    for (const QString &key : {u"Device"_s, u"Page0"_s})
        drag(shown, shown.place(key), {shown.place(u"Page1"_s)});
    QCOMPARE(log.text(), QString());
}

void TreeDragTest::theHostRefuses_data()
{
    QTest::addColumn<QString>("event");
    QTest::newRow("no effect at the start") << u"start"_s;
    QTest::newRow("copies alone at the start") << u"copy"_s;
    QTest::newRow("no data at the start") << u"data"_s;
    QTest::newRow("over the page") << u"over"_s;
    QTest::newRow("at the drop") << u"drop"_s;
}

void TreeDragTest::theHostRefuses()
{
    QFETCH(QString, event);
    store(u"Inputs"_s, u"1"_s);
    const ShownProject shown;
    connect(shown.tree, &ORVTreeview::OLEStartDrag, this,
            [event](DataObject *data, qint32 &effects) {
                if (event == u"start"_s)
                    effects = 0;
                else if (event == u"copy"_s)
                    effects = 1;
                else if (event == u"data"_s)
                    data->Clear();
            });
    if (event == u"over"_s)
        connect(shown.tree, &ORVTreeview::OLEDragOver, this,
                [](DataObject *, qint32 &effect) { effect = 0; });
    if (event == u"drop"_s)
        connect(shown.tree, &ORVTreeview::OLEDragDrop, this,
                [](DataObject *, qint32 &effect) { effect = 0; });
    drag(shown, shown.place(u"Logs"_s), {shown.place(u"Page1"_s)});
    QCOMPARE(keysOn(*shown.tree, 1), QStringList{u"Inputs"_s});
    QCOMPARE(shown.view->dropHighlight(), nullptr);
}

// A host that does something of its own with a drop says so by another effect.
void TreeDragTest::theHostTakesItOver()
{
    store(u"Inputs"_s, u"1"_s);
    const ShownProject shown;
    const DragLog log(shown.tree);
    connect(shown.tree, &ORVTreeview::OLEDragDrop, this,
            [](DataObject *, qint32 &effect) { effect = 1; });
    drag(shown, shown.place(u"Logs"_s), {shown.place(u"Page1"_s)});
    QCOMPARE(keysOn(*shown.tree, 1), QStringList{u"Inputs"_s});
    QVERIFY2(log.text().endsWith(u"complete 1"_s), qPrintable(log.text()));
}

void TreeDragTest::theHostChangesTheData()
{
    store(u"Inputs"_s, u"1"_s);
    const ShownProject shown;
    QByteArray carried;
    connect(shown.tree, &ORVTreeview::OLEStartDrag, this, [&](DataObject *data, qint32 &) {
        const qint16 format = DataObject::FormatNumber(NodeTree::nodeMimeType());
        carried = data->GetData(format).toByteArray();
        data->Clear();
        data->SetData(u"text"_s);
    });
    drag(shown, shown.place(u"Logs"_s), {shown.place(u"Page1"_s)});
    QCOMPARE(carried, QByteArray("Logs"));
    QCOMPARE(keysOn(*shown.tree, 1), QStringList{u"Inputs"_s}); // it is no category any more
}

void TreeDragTest::makesPromisedDataWhenTheyAreWanted()
{
    store(u"Inputs"_s, u"1"_s);
    const ShownProject shown;
    int asked = 0;
    connect(shown.tree, &ORVTreeview::OLEStartDrag, this,
            [](DataObject *data, qint32 &) { data->SetData({}, DataObject::Text); });
    connect(shown.tree, &ORVTreeview::OLESetData, this, [&](DataObject *data, qint16 format) {
        ++asked;
        QCOMPARE(format, qint16{DataObject::Text});
        data->SetData(u"made"_s, format);
    });
    QString text;
    connect(shown.tree, &ORVTreeview::OLEDragDrop, this, [&](DataObject *data, qint32 &) {
        QCOMPARE(asked, 0);
        text = data->GetData(DataObject::Text).toString();
    });
    drag(shown, shown.place(u"Logs"_s), {shown.place(u"Page1"_s)});
    QCOMPARE(text, u"made"_s);
    QCOMPARE(asked, 1);
    QCOMPARE(keysOn(*shown.tree, 1), QStringList({u"Inputs"_s, u"Logs"_s})); // still its key
}

void TreeDragTest::tellsWhereItIsDragged()
{
    store(u"Inputs"_s, u"1"_s);
    const ShownProject shown;
    QStringList over;
    connect(shown.tree, &ORVTreeview::OLEDragOver, this,
            [&](DataObject *, qint32 &, qint16, qint16, float x, float y) {
                const Node *node = shown->HitTest(x, y);
                over.append(node ? node->Key() : u"-"_s);
            });
    QString dropped;
    connect(shown.tree, &ORVTreeview::OLEDragDrop, this,
            [&](DataObject *, qint32 &, qint16, qint16, float x, float y) {
                dropped = shown->HitTest(x, y)->Key();
            });
    drag(shown, shown.place(u"Timers"_s), {shown.place(u"Page1"_s)});
    QVERIFY2(over.contains(u"Network Var Outputs"_s), qPrintable(over.join(u' '))); // on the way
    QCOMPARE(dropped, u"Page1"_s);
}

void TreeDragTest::otherDragsAreRefused()
{
    ShownProject shown;
    auto *field = new QLineEdit(u"precious"_s, &shown.form);
    field->setGeometry(10, 600, 200, 30);
    field->setDragEnabled(true);
    field->show();
    field->raise();
    field->selectAll();
    const DragLog log(shown.tree);
    drag(shown, field->geometry().topLeft() + QPoint(20, 15), {shown.place(u"Code"_s)});
    QVERIFY2(log.text().contains(u"over 0 1 0 state 0"_s), qPrintable(log.text()));
    QVERIFY(!log.text().contains(u"drop"_s));
    QCOMPARE(field->text(), u"precious"_s); // a move that nobody took takes nothing away
}

void TreeDragTest::otherDragsAreTheHosts()
{
    ShownProject shown;
    auto *field = new QLineEdit(u"precious"_s, &shown.form);
    field->setGeometry(10, 600, 200, 30);
    field->setDragEnabled(true);
    field->show();
    field->raise();
    field->selectAll();
    QString text;
    connect(shown.tree, &ORVTreeview::OLEDragOver, this,
            [](DataObject *, qint32 &effect) { effect = 1; });
    connect(shown.tree, &ORVTreeview::OLEDragDrop, this,
            [&](DataObject *data, qint32 &) { text = data->GetData(DataObject::Text).toString(); });
    drag(shown, field->geometry().topLeft() + QPoint(20, 15), {shown.place(u"Code"_s)});
    QCOMPARE(text, u"precious"_s);
    QCOMPARE(shown->Nodes()->Count(), 15);
}

void TreeDragTest::programStartsADrag()
{
    store(u"Inputs"_s, u"1"_s);
    const ShownProject shown;
    connect(shown.tree, &ORVTreeview::MouseDown, this, [&] {
        shown->setSelectedItem(shown.node(u"Logs"_s));
        QVERIFY(!shown->OLEDrag().isValid());
    });
    drag(shown, shown.place(u"Page0"_s), {shown.place(u"Page1"_s)});
    QCOMPARE(keysOn(*shown.tree, 1), QStringList({u"Inputs"_s, u"Logs"_s}));

    shown->setSelectedItem(shown.node(u"Timers"_s));
    const DragLog log(shown.tree);
    shown->OLEDrag(); // no button is down
    QCoreApplication::processEvents();
    QCOMPARE(log.text(), QString());
}

void TreeDragTest::bearsAnythingInADragEvent_data()
{
    QTest::addColumn<QString>("event");
    QTest::addColumn<QString>("deed");
    for (const QString &event :
         {u"start"_s, u"enter"_s, u"over"_s, u"leave"_s, u"drop"_s, u"feedback"_s, u"complete"_s}) {
        for (const QString &deed : {u"destroy"_s, u"clear"_s, u"category"_s, u"page"_s, u"hide"_s})
            QTest::addRow("%s, %s", qPrintable(event), qPrintable(deed)) << event << deed;
    }
}

void TreeDragTest::bearsAnythingInADragEvent()
{
    QFETCH(QString, event);
    QFETCH(QString, deed);
    store(u"Inputs"_s, u"1"_s);
    ShownProject shown;
    shown.form.setAcceptDrops(true); // takes over when the tree goes
    bool done = false;
    const auto act = [&] {
        if (std::exchange(done, true))
            return;
        if (deed == u"destroy"_s)
            delete shown.tree;
        else if (deed == u"clear"_s)
            shown->Nodes()->Clear();
        else if (deed == u"hide"_s)
            shown->hide();
        else
            shown->Nodes()->Remove(deed == u"page"_s ? u"Page1"_s : u"Logs"_s);
    };
    connect(shown.tree, &ORVTreeview::OLEDragOver, this,
            [&](DataObject *, qint32 &, qint16, qint16, float, float, qint16 state) {
                if (event == (state == 0 ? u"enter"_s : state == 1 ? u"leave"_s : u"over"_s))
                    act();
            });
    if (event == u"start"_s)
        connect(shown.tree, &ORVTreeview::OLEStartDrag, this, act);
    else if (event == u"drop"_s)
        connect(shown.tree, &ORVTreeview::OLEDragDrop, this, act);
    else if (event == u"feedback"_s)
        connect(shown.tree, &ORVTreeview::OLEGiveFeedback, this, act);
    else if (event == u"complete"_s)
        connect(shown.tree, &ORVTreeview::OLECompleteDrag, this, act);
    const QPoint target = shown.place(u"Page1"_s);
    drag(shown, shown.place(u"Logs"_s), {target, QPoint(4, 4), target});
    QVERIFY(done);
    QCOMPARE(shown.tree.isNull(), deed == u"destroy"_s);
    QVERIFY(QGuiApplication::mouseButtons() == Qt::NoButton);
}

ORVT_TEST(TreeDragTest)
#include "TreeDragTest.moc"
