// The user at the project tree: events, and categories that move by keyboard.

#include "tree/ProjectTree.h"

#include "support/PseudoTexts.h"
#include "support/TestProgram.h"
#include "widgets/look/Twips.h"
#include "widgets/nodes/NodeTreeEvents.h"

#include <QtWidgets/QLineEdit>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

constexpr auto moving = Qt::AltModifier | Qt::ShiftModifier;

} // namespace

class TreeArrangingTest : public ProjectTreeTest
{
    Q_OBJECT

private Q_SLOTS:
    void eventsReachTheHost();
    void nodeCheckReachesTheHost();
    void changesReachTheTree();
    void updatePagesIsNeverRaised();
    void movesDownAndUp();
    void takesItsPlaceByType();
    void movedCategoriesKeepEverything();
    void makesPagesWhileThereAreNames();
    void newPagesAreWholePages();
    void makesNoPageOfAKeyInUse();
    void movesOnlyCategories();
    void aCollapsedPageOpens();
    void theHostMaySwallowTheKey();
    void plainArrowsOnlyWalk();
    void theHostMayMoveThemselves();
    void isFoundAfterARestart();
    void bearsItsEndInAnyEvent_data();
    void bearsItsEndInAnyEvent();
};

void TreeArrangingTest::eventsReachTheHost()
{
    ShownProject shown;
    NodeTreeEvents<ORVTreeview> events(shown.tree);
    QTest::mouseClick(shown.window, Qt::LeftButton, {}, shown.place(u"Logs"_s));
    QCOMPARE(events.take(), u"MouseDown 1 0, NodeClick Logs, MouseUp 1 0, Click Logs"_s);
    QTest::mouseDClick(shown.window, Qt::LeftButton, {}, shown.place(u"Page0"_s));
    QVERIFY(events.take().contains(u"DblClick Page0, Collapse Page0"_s));
    shown.key(Qt::Key_Right);
    QVERIFY(events.take().contains(u"Expand Page0"_s));
    shown.key(Qt::Key_N);
    QCOMPARE(events.take(), u"KeyDown 78 0, KeyPress 110, NodeClick Network Var Inputs, "
                            "KeyUp 78 0"_s);
    shown.key(Qt::Key_F2);
    auto *editor = shown.view->viewport()->findChild<QLineEdit *>();
    QVERIFY(editor);
    QTest::keyClicks(editor, u"x"_s);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(events.log.contains(u"AfterLabelEdit x"_s));
    QVERIFY(events.take().contains(u"BeforeLabelEdit"_s));
    QCOMPARE(shown.node(u"Network Var Inputs"_s)->Text(), u"x"_s);

    QPointF moved;
    connect(shown.tree, &ORVTreeview::MouseMove, this,
            [&](qint16, qint16, float x, float y) { moved = QPointF(x, y); });
    QTest::mouseMove(shown.window, QPoint(60, 60));
    QTRY_VERIFY(!moved.isNull());
    QCOMPARE(moved, QPointF(Twips::fromPixelsX(50, *shown.tree),
                            Twips::fromPixelsY(50, *shown.tree))); // of the tree's corner
}

void TreeArrangingTest::nodeCheckReachesTheHost()
{
    const ShownProject shown;
    shown->setSelectedItem(shown.node(u"Logs"_s));
    NodeTreeEvents<ORVTreeview> events(shown.tree);
    shown.key(Qt::Key_Space);
    QVERIFY(!events.take().contains(u"NodeCheck"_s));
    QVERIFY(shown->findChild<QWidget *>(u"TreeView1"_s)->setProperty("checkBoxes", true));
    shown.key(Qt::Key_Space);
    QVERIFY(events.take().contains(u"NodeCheck Logs 1"_s));
    shown.key(Qt::Key_Space);
    QVERIFY(events.take().contains(u"NodeCheck Logs 0"_s));
}

void TreeArrangingTest::changesReachTheTree()
{
    const ShownProject shown;
    shown->setSelectedItem(shown.node(u"Code"_s));
    const auto before = connect(shown.tree, &ORVTreeview::BeforeLabelEdit, this,
                                [](qint16 &cancel) { cancel = -1; });
    shown.key(Qt::Key_F2);
    QVERIFY(!shown.view->viewport()->findChild<QLineEdit *>());
    disconnect(before);
    connect(shown.tree, &ORVTreeview::AfterLabelEdit, this,
            [](qint16 &, QString &text) { text = u"changed"_s; });
    shown.key(Qt::Key_F2);
    QTest::keyClick(shown.view->viewport()->findChild<QLineEdit *>(), Qt::Key_Return);
    QTRY_COMPARE(shown.node(u"Code"_s)->Text(), u"changed"_s);
    connect(shown.tree, &ORVTreeview::KeyPress, this, [](qint16 &code) { code = 'l'; });
    shown.key(Qt::Key_X);
    QCOMPARE(shown->SelectedItem(), shown.node(u"Logs"_s));
    connect(shown.tree, &ORVTreeview::KeyDown, this, [](qint16 &code, qint16) { code = 0; });
    shown.key(Qt::Key_Down);
    QCOMPARE(shown->SelectedItem(), shown.node(u"Logs"_s));
}

void TreeArrangingTest::updatePagesIsNeverRaised()
{
    const ShownProject shown;
    int raised = 0;
    connect(shown.tree, &ORVTreeview::UpdatePages, this, [&](QList<Pages> &) { ++raised; });
    shown->setSelectedItem(shown.node(u"Code"_s));
    shown.key(Qt::Key_Down, moving);
    shown->ReInitializeStrings();
    shown->GetPageSettings();
    delete shown.tree;
    QCOMPARE(raised, 0);
}

void TreeArrangingTest::movesDownAndUp()
{
    store(u"Inputs"_s, u"2"_s);
    const ShownProject shown;
    shown->setSelectedItem(shown.node(u"Logs"_s));
    shown.key(Qt::Key_Down, moving);
    QCOMPARE(keysOn(*shown.tree, 1), QStringList{u"Logs"_s});
    shown.key(Qt::Key_Down, moving);
    QCOMPARE(keysOn(*shown.tree, 2), QStringList({u"Inputs"_s, u"Logs"_s}));
    QCOMPARE(shown->GetPageNumber(shown.node(u"Logs"_s)), qint16{2});
    shown.key(Qt::Key_Up, moving);
    shown.key(Qt::Key_Up, moving);
    QVERIFY(keysOn(*shown.tree, 0).contains(u"Logs"_s));
    shown.key(Qt::Key_Up, moving); // no page above
    QVERIFY(keysOn(*shown.tree, 0).contains(u"Logs"_s));
    QCOMPARE(shown.node(u"Device"_s)->Children(), 3);
}

void TreeArrangingTest::takesItsPlaceByType()
{
    store(u"Variables"_s, u"1"_s);
    store(u"Logs"_s, u"1"_s);
    store(u"Output Parameters"_s, u"1"_s);
    const ShownProject shown;
    for (const QString &key : {u"Timers"_s, u"Code"_s, u"Inputs"_s}) {
        shown->setSelectedItem(shown.node(key));
        shown.key(Qt::Key_Down, moving);
    }
    QCOMPARE(keysOn(*shown.tree, 1), QStringList({u"Code"_s, u"Variables"_s, u"Inputs"_s, u"Logs"_s,
                                                  u"Timers"_s, u"Output Parameters"_s}));
}

void TreeArrangingTest::movedCategoriesKeepEverything()
{
    store(u"Inputs"_s, u"1"_s);
    const ShownProject shown;
    Node *logs = shown.node(u"Logs"_s);
    shown->SetNodeForeColor(dsLog, 0x008000);
    shown->setSelectedItem(logs);
    NodeTreeEvents<ORVTreeview> events(shown.tree);
    shown.key(Qt::Key_Down, moving);
    QVERIFY(logs->isAlive());
    QCOMPARE(logs, shown.node(u"Logs"_s));
    QCOMPARE(logs->Tag().toInt(), int{dsLog});
    QCOMPARE(logs->ForeColor(), 0x008000);
    QCOMPARE(logs->Text(), u"Logs"_s);
    QCOMPARE(shown->SelectedItem(), logs);
    QVERIFY(!events.take().contains(u"NodeClick"_s)); // it was selected before
}

void TreeArrangingTest::makesPagesWhileThereAreNames()
{
    const ShownProject shown;
    shown->setSelectedItem(shown.node(u"Inputs"_s));
    for (int page = 1; page <= 4; ++page) {
        shown.key(Qt::Key_Down, moving);
        QCOMPARE(shown.node(u"Device"_s)->Children(), page + 1);
        QCOMPARE(keysOn(*shown.tree, page), QStringList{u"Inputs"_s});
    }
    shown.key(Qt::Key_Down, moving);
    QCOMPARE(shown.node(u"Device"_s)->Children(), 5);
    QCOMPARE(keysOn(*shown.tree, 4), QStringList{u"Inputs"_s});
}

void TreeArrangingTest::newPagesAreWholePages()
{
    PseudoTexts texts;
    setTextProvider(&texts);
    const ShownProject shown;
    shown->setSelectedItem(shown.node(u"Inputs"_s));
    shown.key(Qt::Key_Down, moving);
    const Node *page = shown.node(u"Page1"_s);
    QCOMPARE(page->Text(), PseudoTexts::inBrackets(u"Internal Points"_s));
    QCOMPARE(page->Image(), u"Page"_s);
    QCOMPARE(page->Tag().toInt(), 14);
    QVERIFY(page->Expanded());
    QCOMPARE(shown->GetPageNumber(shown.node(u"Inputs"_s)), qint16{1});
    setTextProvider(nullptr);
    shown->ReInitializeStrings();
    QCOMPARE(page->Text(), u"Internal Points"_s);
}

void TreeArrangingTest::makesNoPageOfAKeyInUse()
{
    const ShownProject shown;
    shown->Nodes()->Add(nullptr, NodeRelationship::Child, u"Page1"_s, u"mine"_s);
    shown->setSelectedItem(shown.node(u"Inputs"_s));
    shown.key(Qt::Key_Down, moving);
    QCOMPARE(shown.node(u"Device"_s)->Children(), 1);
    QCOMPARE(shown.node(u"Inputs"_s)->Parent(), shown.node(u"Page0"_s));
}

void TreeArrangingTest::movesOnlyCategories()
{
    store(u"Inputs"_s, u"1"_s);
    const ShownProject shown;
    Node *own = shown->Nodes()->Add(shown.node(u"Page0"_s), NodeRelationship::Child, u"Mine"_s);
    own->setTag(u"no number"_s);
    for (const QString &key : {u"Device"_s, u"Page0"_s, u"Mine"_s}) {
        const Node *parent = shown.node(key)->Parent();
        shown->setSelectedItem(shown.node(key));
        shown.key(Qt::Key_Down, moving);
        QCOMPARE(shown.node(key)->Parent(), parent);
        QCOMPARE(shown->SelectedItem(), shown.node(key));
    }
    shown->setSelectedItem(nullptr);
    shown.key(Qt::Key_Down, moving);
    QCOMPARE(shown.node(u"Device"_s)->Children(), 2);
}

void TreeArrangingTest::aCollapsedPageOpens()
{
    store(u"Inputs"_s, u"1"_s);
    const ShownProject shown;
    shown.node(u"Page1"_s)->setExpanded(false);
    shown->setSelectedItem(shown.node(u"Logs"_s));
    shown.key(Qt::Key_Down, moving);
    QVERIFY(shown.node(u"Page1"_s)->Expanded());
}

void TreeArrangingTest::theHostMaySwallowTheKey()
{
    const ShownProject shown;
    connect(shown.tree, &ORVTreeview::KeyDown, this, [](qint16 &code, qint16 shift) {
        if (shift == 1 + 4 && code == 40)
            code = 0;
    });
    shown->setSelectedItem(shown.node(u"Inputs"_s));
    shown.key(Qt::Key_Down, moving);
    QCOMPARE(shown.node(u"Device"_s)->Children(), 1);
}

void TreeArrangingTest::plainArrowsOnlyWalk()
{
    const ShownProject shown;
    for (const Qt::KeyboardModifiers held :
         {Qt::KeyboardModifiers(Qt::NoModifier), Qt::KeyboardModifiers(Qt::ShiftModifier),
          Qt::KeyboardModifiers(Qt::AltModifier),
          Qt::KeyboardModifiers(Qt::ControlModifier | moving)}) {
        shown->setSelectedItem(shown.node(u"Inputs"_s));
        shown.key(Qt::Key_Down, held);
        QCOMPARE(keysOn(*shown.tree, 0).size(), 13);
    }
}

void TreeArrangingTest::theHostMayMoveThemselves()
{
    const ShownProject shown;
    bool done = false;
    connect(shown.tree, &ORVTreeview::NodeClick, this, [&](Node *clicked) {
        done = true;
        Node *page = shown->Nodes()->Add(u"Device"_s, NodeRelationship::Child, u"Page1"_s);
        clicked->setParent(page);
    });
    QTest::mouseClick(shown.window, Qt::LeftButton, {}, shown.place(u"Logs"_s));
    QVERIFY(done);
    delete shown.tree;
    QCOMPARE(stored(u"Logs"_s), u"1"_s);
}

void TreeArrangingTest::isFoundAfterARestart()
{
    {
        const ShownProject shown;
        shown->setSelectedItem(shown.node(u"Inputs"_s));
        shown.key(Qt::Key_Down, moving);
        shown.key(Qt::Key_Down, moving);
    }
    renewState();
    setSettingsFile(settings());
    const ORVTreeview tree;
    QCOMPARE(keysOn(tree, 2), QStringList{u"Inputs"_s});
    QCOMPARE(keysOn(tree, 0).size(), 12);
}

void TreeArrangingTest::bearsItsEndInAnyEvent_data()
{
    QTest::addColumn<QString>("event");
    for (const QString &event :
         {u"KeyDown"_s, u"KeyUp"_s, u"MouseDown"_s, u"MouseUp"_s, u"NodeClick"_s, u"Click"_s,
          u"DblClick"_s, u"Collapse"_s, u"Expand"_s, u"BeforeLabelEdit"_s})
        QTest::newRow(qPrintable(event)) << event;
}

void TreeArrangingTest::bearsItsEndInAnyEvent()
{
    QFETCH(QString, event);
    const ShownProject shown;
    shown->setSelectedItem(shown.node(u"Page0"_s));
    const auto end = [&] { delete shown.tree; };
    const std::map<QString, std::function<void()>> connects{
        {u"KeyDown"_s, [&] { connect(shown.tree, &ORVTreeview::KeyDown, this, end); }},
        {u"KeyUp"_s, [&] { connect(shown.tree, &ORVTreeview::KeyUp, this, end); }},
        {u"MouseDown"_s, [&] { connect(shown.tree, &ORVTreeview::MouseDown, this, end); }},
        {u"MouseUp"_s, [&] { connect(shown.tree, &ORVTreeview::MouseUp, this, end); }},
        {u"NodeClick"_s, [&] { connect(shown.tree, &ORVTreeview::NodeClick, this, end); }},
        {u"Click"_s, [&] { connect(shown.tree, &ORVTreeview::Click, this, end); }},
        {u"DblClick"_s, [&] { connect(shown.tree, &ORVTreeview::DblClick, this, end); }},
        {u"Collapse"_s, [&] { connect(shown.tree, &ORVTreeview::Collapse, this, end); }},
        {u"Expand"_s, [&] { connect(shown.tree, &ORVTreeview::Expand, this, end); }},
        {u"BeforeLabelEdit"_s,
         [&] { connect(shown.tree, &ORVTreeview::BeforeLabelEdit, this, end); }},
    };
    connects.at(event)();
    const QPoint place = shown.place(u"Page0"_s);
    if (event == u"BeforeLabelEdit"_s)
        shown.key(Qt::Key_F2);
    else if (event.startsWith(u"Key"_s))
        shown.key(Qt::Key_Down, moving);
    else if (event == u"Collapse"_s || event == u"Expand"_s)
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right})
            shown.key(key);
    else {
        QTest::mouseClick(shown.window, Qt::LeftButton, {}, place);
        QTest::mouseDClick(shown.window, Qt::LeftButton, {}, place);
    }
    QVERIFY(shown.tree.isNull());
    QCOMPARE(stored(u"Code"_s), u"0"_s);
}

ORVT_TEST(TreeArrangingTest)
#include "TreeArrangingTest.moc"
