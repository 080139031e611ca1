// Keys and mouse in a tree: what happens, and which events tell of it.

#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/nodes/NodeTreeEvents.h"
#include "widgets/nodes/NodeTreeFixture.h"
#include "widgets/view/LongestText.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolTip>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

using Events = NodeTreeEvents<NodeTree>;

class NodeTreeInputTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void clicksANode();
    void clicksBesideTheNodes();
    void pressesWithTheRightButton();
    void tellsWhereTheMouseIs();
    void ctrlSpaceIsNoCharacter();
    void foldsByTheExpander();
    void foldsByDoubleClick();
    void collapsingHandsTheSelectionUp();
    void walksByKeys();
    void foldsByKeys();
    void expandsAllByKey();
    void tellsLettersAndFindsNodes();
    void keysCanBeSwallowed();
    void keysCanBeReplaced();
    void commandsComeAfterTheEvents();
    void tabLeavesTheTree();
    void checksByMouseAndKey();
    void programRaisesNothing();
    void showsCutTextsAsToolTip();
    void showsTheBeginningsOfLongTexts();
    void bearsAnythingInAnEvent_data();
    void bearsAnythingInAnEvent();
    void keepsExceptionsFromTheLoop();
};

void NodeTreeInputTest::clicksANode()
{
    const ShownTree shown;
    Events events(shown.tree);
    shown.click(shown.label("a1"));
    QCOMPARE(events.take(), u"MouseDown 1 0, NodeClick a1, MouseUp 1 0, Click a1"_s);
    QCOMPARE(shown.selected(), u"a1"_s);
    shown->setEditsLabels(false);
    shown.click(shown.label("a1")); // again
    QCOMPARE(events.take(), u"MouseDown 1 0, NodeClick a1, MouseUp 1 0, Click a1"_s);
}

void NodeTreeInputTest::clicksBesideTheNodes()
{
    const ShownTree shown;
    shown->setSelectedItem(shown.node("a"));
    Events events(shown.tree);
    shown.click(shown.below());
    QCOMPARE(events.take(), u"MouseDown 1 0, MouseUp 1 0, Click -"_s);
    shown.press(shown.below());
    shown.doubleClick(shown.below());
    QVERIFY(events.take().contains(u"DblClick -"_s));
}

void NodeTreeInputTest::pressesWithTheRightButton()
{
    const ShownTree shown;
    Events events(shown.tree);
    shown.click(shown.label("b"), Qt::RightButton);
    QCOMPARE(events.take(), u"MouseDown 2 0, NodeClick b, MouseUp 2 0"_s);
    QCOMPARE(shown.selected(), u"b"_s);
}

void NodeTreeInputTest::tellsWhereTheMouseIs()
{
    const ShownTree shown;
    QPointF down;
    QPointF moved;
    qint16 held = 0;
    connect(shown.tree, &NodeTree::MouseDown, this,
            [&](qint16, qint16, float x, float y) { down = QPointF(x, y); });
    connect(shown.tree, &NodeTree::MouseMove, this, [&](qint16 buttons, qint16, float x, float y) {
        held = buttons;
        moved = QPointF(x, y);
    });
    const QPoint at = shown.label("a1");
    shown.press(at);
    const QPoint inTree = shown->mapFrom(&shown.form, at);
    QCOMPARE(down, QPointF(Twips::fromPixelsX(inTree.x(), *shown.tree),
                           Twips::fromPixelsY(inTree.y(), *shown.tree)));
    QTest::mouseMove(shown.window, at + QPoint(2, 0));
    QTRY_COMPARE(moved, down + QPointF(Twips::fromPixelsX(2, *shown.tree), 0));
    QCOMPARE(held, qint16{1});
    shown.release(at);
}

void NodeTreeInputTest::foldsByTheExpander()
{
    const ShownTree shown;
    shown->setSelectedItem(shown.node("b1"));
    Events events(shown.tree);
    shown.click(shown.expander("a"));
    QCOMPARE(events.take(), u"MouseDown 1 0, Collapse a, MouseUp 1 0, Click a"_s);
    QVERIFY(!shown.node("a")->Expanded());
    shown.click(shown.expander("a"));
    QCOMPARE(events.take(), u"MouseDown 1 0, Expand a, MouseUp 1 0, Click a"_s);
    QCOMPARE(shown.selected(), u"b1"_s);
}

void NodeTreeInputTest::foldsByDoubleClick()
{
    const ShownTree shown;
    Events events(shown.tree);
    shown.click(shown.label("a"));
    events.take();
    shown.doubleClick(shown.label("a"));
    QVERIFY(events.take().contains(u"DblClick a, Collapse a"_s));
    QVERIFY(!shown.node("a")->Expanded());
}

void NodeTreeInputTest::collapsingHandsTheSelectionUp()
{
    const ShownTree shown;
    shown->setSelectedItem(shown.node("a1"));
    Events events(shown.tree);
    shown.click(shown.expander("r"));
    QCOMPARE(events.take(), u"MouseDown 1 0, Collapse r, NodeClick r, MouseUp 1 0, Click r"_s);
    QCOMPARE(shown.selected(), u"r"_s);
}

void NodeTreeInputTest::walksByKeys()
{
    const ShownTree shown;
    shown->setSelectedItem(shown.node("a1"));
    Events events(shown.tree);
    shown.key(Qt::Key_Down);
    QCOMPARE(events.take(), u"KeyDown 40 0, NodeClick a2, KeyUp 40 0"_s);
    shown.key(Qt::Key_End);
    QCOMPARE(events.take(), u"KeyDown 35 0, NodeClick b1, KeyUp 35 0"_s);
    shown.key(Qt::Key_Down); // no further
    QCOMPARE(events.take(), u"KeyDown 40 0, KeyUp 40 0"_s);
    shown.key(Qt::Key_Home);
    QCOMPARE(events.take(), u"KeyDown 36 0, NodeClick r, KeyUp 36 0"_s);
    shown.key(Qt::Key_F5, Qt::ShiftModifier);
    QCOMPARE(events.take(), u"KeyDown 16 1, KeyDown 116 1, KeyUp 116 1, KeyUp 16 0"_s);
}

void NodeTreeInputTest::foldsByKeys()
{
    const ShownTree shown;
    shown->setSelectedItem(shown.node("a"));
    Events events(shown.tree);
    shown.key(Qt::Key_Left);
    QCOMPARE(events.take(), u"KeyDown 37 0, Collapse a, KeyUp 37 0"_s);
    shown.key(Qt::Key_Right);
    QCOMPARE(events.take(), u"KeyDown 39 0, Expand a, KeyUp 39 0"_s);
}

void NodeTreeInputTest::expandsAllByKey()
{
    const ShownTree shown;
    shown->collapseAll();
    shown->setSelectedItem(shown.node("r"));
    Events events(shown.tree);
    shown.key(Qt::Key_Asterisk);
    QCOMPARE(events.take(),
             u"KeyDown 56 0, KeyPress 42, Expand r, Expand a, Expand b, KeyUp 56 0"_s);
    for (const char *key : {"r", "a", "b"})
        QVERIFY(shown.node(key)->Expanded());
}

void NodeTreeInputTest::tellsLettersAndFindsNodes()
{
    const ShownTree shown;
    shown->setSelectedItem(shown.node("r"));
    Events events(shown.tree);
    shown.key(Qt::Key_B);
    QCOMPARE(events.take(), u"KeyDown 66 0, KeyPress 98, NodeClick b, KeyUp 66 0"_s);
}

void NodeTreeInputTest::keysCanBeSwallowed()
{
    const ShownTree shown;
    shown->setSelectedItem(shown.node("r"));
    const auto down =
        connect(shown.tree, &NodeTree::KeyDown, this, [](qint16 &code, qint16) { code = 0; });
    shown.key(Qt::Key_Down);
    QCOMPARE(shown.selected(), u"r"_s);
    disconnect(down);
    connect(shown.tree, &NodeTree::KeyPress, this, [](qint16 &code) { code = 0; });
    shown.key(Qt::Key_B);
    QCOMPARE(shown.selected(), u"r"_s);
    shown.key(Qt::Key_Down);
    QCOMPARE(shown.selected(), u"a"_s);
}

void NodeTreeInputTest::keysCanBeReplaced()
{
    const ShownTree shown;
    shown->setSelectedItem(shown.node("r"));
    connect(shown.tree, &NodeTree::KeyPress, this, [](qint16 &code) { code = 'b'; });
    shown.key(Qt::Key_X);
    QCOMPARE(shown.selected(), u"b"_s);
}

void NodeTreeInputTest::commandsComeAfterTheEvents()
{
    const ShownTree shown;
    shown->setSelectedItem(shown.node("r"));
    QStringList log;
    connect(shown.tree, &NodeTree::KeyDown, this, [&](qint16 &code, qint16) {
        log.append(u"event"_s);
        if (code == 36)
            code = 0;
    });
    shown->setKeyCommand([&](const QKeyEvent &event) {
        log.append(u"command"_s);
        return event.key() == Qt::Key_End;
    });
    shown.key(Qt::Key_End);
    QCOMPARE(log, QStringList({u"event"_s, u"command"_s}));
    QCOMPARE(shown.selected(), u"r"_s); // the command's key
    shown.key(Qt::Key_Home);
    QCOMPARE(log.size(), 3);
    shown.key(Qt::Key_Down);
    QCOMPARE(shown.selected(), u"a"_s);
}

void NodeTreeInputTest::tabLeavesTheTree()
{
    ShownTree shown;
    QLineEdit other(&shown.form);
    other.show();
    shown.key(Qt::Key_Tab);
    QVERIFY(other.hasFocus());
}

// It types the character 0 where there is a keyboard.
void NodeTreeInputTest::ctrlSpaceIsNoCharacter()
{
    const ShownTree shown;
    shown->setSelectedItem(shown.node("a1"));
    Events events(shown.tree);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::ControlModifier, QString(QChar(0)));
    QCoreApplication::sendEvent(shown.tree, &press);
    QCOMPARE(events.take(), u"KeyDown 32 2"_s);
}

void NodeTreeInputTest::checksByMouseAndKey()
{
    const ShownTree shown;
    shown->setCheckBoxes(true);
    shown->setSelectedItem(shown.node("a1"));
    Events events(shown.tree);
    shown.key(Qt::Key_Space);
    QCOMPARE(events.take(), u"KeyDown 32 0, KeyPress 32, NodeCheck a1 1, KeyUp 32 0"_s);
    QStyleOptionViewItem option;
    option.initFrom(shown->viewport());
    option.rect = shown->visualRect(shown.index("a2"));
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    const QRect box =
        shown->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, shown.tree);
    shown.click(shown.inForm(box.center()));
    QCOMPARE(events.take(),
             u"MouseDown 1 0, NodeClick a2, MouseUp 1 0, NodeCheck a2 1, Click a2"_s);
    QVERIFY(shown.node("a2")->Checked());
}

void NodeTreeInputTest::programRaisesNothing()
{
    const ShownTree shown;
    Events events(shown.tree);
    shown.node("a")->setExpanded(false);
    shown.node("a")->setExpanded(true);
    shown->setSelectedItem(shown.node("b"));
    shown.node("a1")->setChecked(true);
    shown.node("a1")->setText(u"x"_s);
    shown->Nodes()->Remove(u"b"_s);
    shown.node("a1")->EnsureVisible();
    shown->Nodes()->Clear();
    QCoreApplication::processEvents();
    QCOMPARE(events.take(), QString());
}

void NodeTreeInputTest::showsCutTextsAsToolTip()
{
    const ShownTree shown;
    shown.node("a1")->setText(QString(60, u'w'));
    const auto tipAt = [&](const char *key) {
        const QPoint place = shown->visualRect(shown.index(key)).center();
        QHelpEvent help(QEvent::ToolTip, place, shown->viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(shown->viewport(), &help);
        return QToolTip::text();
    };
    QCOMPARE(tipAt("a1"), QString(60, u'w'));
    QTRY_COMPARE(tipAt("b1"), QString());
}

void NodeTreeInputTest::showsTheBeginningsOfLongTexts()
{
    const ShownTree shown;
    shown.node("a1")->setText(QString(1 << 20, u'w'));
    LongestText style;
    shown->setStyle(&style);
    shown->grab();
    shown->resizeColumnToContents(0);
    shown->grab();
    QVERIFY2(style.letters() > 4000 && style.letters() < 10'000,
             qPrintable(QString::number(style.letters())));
}

void NodeTreeInputTest::bearsAnythingInAnEvent_data()
{
    QTest::addColumn<QString>("event");
    QTest::addColumn<QString>("deed");
    for (const QString &event :
         {u"MouseDown"_s, u"MouseUp"_s, u"MouseMove"_s, u"Click"_s, u"DblClick"_s, u"NodeClick"_s,
          u"NodeCheck"_s, u"Expand"_s, u"Collapse"_s, u"KeyDown"_s, u"KeyPress"_s, u"KeyUp"_s,
          u"BeforeLabelEdit"_s, u"AfterLabelEdit"_s, u"AfterLabelEdit by a press"_s}) {
        for (const QString &deed : {u"destroy"_s, u"clear"_s, u"remove"_s, u"move"_s})
            QTest::addRow("%s, %s", qPrintable(event), qPrintable(deed)) << event << deed;
    }
}

void NodeTreeInputTest::bearsAnythingInAnEvent()
{
    QFETCH(QString, event);
    QFETCH(QString, deed);
    const ShownTree shown;
    shown->setCheckBoxes(true);
    shown->setSelectedItem(shown.node("a"));
    bool done = false;
    const auto act = [&] {
        if (std::exchange(done, true))
            return;
        if (deed == u"destroy"_s)
            delete shown.tree;
        else if (deed == u"clear"_s)
            shown->Nodes()->Clear();
        else if (deed == u"remove"_s)
            shown->Nodes()->Remove(u"a"_s);
        else
            shown.node("a")->setParent(shown.node("b"));
    };
    const std::map<QString, std::function<void()>> connects{
        {u"MouseDown"_s, [&] { connect(shown.tree, &NodeTree::MouseDown, this, act); }},
        {u"MouseUp"_s, [&] { connect(shown.tree, &NodeTree::MouseUp, this, act); }},
        {u"MouseMove"_s, [&] { connect(shown.tree, &NodeTree::MouseMove, this, act); }},
        {u"Click"_s, [&] { connect(shown.tree, &NodeTree::Click, this, act); }},
        {u"DblClick"_s, [&] { connect(shown.tree, &NodeTree::DblClick, this, act); }},
        {u"NodeClick"_s, [&] { connect(shown.tree, &NodeTree::NodeClick, this, act); }},
        {u"NodeCheck"_s, [&] { connect(shown.tree, &NodeTree::NodeCheck, this, act); }},
        {u"Expand"_s, [&] { connect(shown.tree, &NodeTree::Expand, this, act); }},
        {u"Collapse"_s, [&] { connect(shown.tree, &NodeTree::Collapse, this, act); }},
        {u"KeyDown"_s, [&] { connect(shown.tree, &NodeTree::KeyDown, this, act); }},
        {u"KeyPress"_s, [&] { connect(shown.tree, &NodeTree::KeyPress, this, act); }},
        {u"KeyUp"_s, [&] { connect(shown.tree, &NodeTree::KeyUp, this, act); }},
        {u"BeforeLabelEdit"_s, [&] { connect(shown.tree, &NodeTree::BeforeLabelEdit, this, act); }},
        {u"AfterLabelEdit"_s, [&] { connect(shown.tree, &NodeTree::AfterLabelEdit, this, act); }},
        {u"AfterLabelEdit by a press"_s,
         [&] { connect(shown.tree, &NodeTree::AfterLabelEdit, this, act); }},
    };
    connects.at(event)();
    const QPoint place = shown.label("a");
    const QPoint expander = shown.expander("a");
    const auto still = [&] { return shown.tree && shown->Nodes()->Count() > 0; };
    if (event.contains(u"Label"_s)) {
        shown.key(Qt::Key_F2);
        if (shown.tree && shown.labelEditor()) {
            QTest::keyClicks(shown.labelEditor(), u"x"_s);
            if (event.contains(u"press"_s))
                shown.click(shown.label("b1"));
            else
                QTest::keyClick(shown.labelEditor(), Qt::Key_Return);
        }
    } else {
        shown.click(place, Qt::RightButton);
        QTest::mouseMove(shown.window, place + QPoint(1, 1));
        shown.click(place);
        shown.key(Qt::Key_Space);
        shown.key(Qt::Key_B);
        shown.click(expander);
        shown.click(expander);
        shown.doubleClick(place);
    }
    QTRY_VERIFY(done);
    QCoreApplication::processEvents();
    QCOMPARE(shown.tree.isNull(), deed == u"destroy"_s);
    if (still())
        shown->grab();
}

void NodeTreeInputTest::keepsExceptionsFromTheLoop()
{
    const ShownTree shown;
    connect(shown.tree, &NodeTree::NodeClick, this,
            [](const Node *) { throw Error(InvalidCall, u"Host"_s, u"no"_s); });
    QTest::ignoreMessage(QtWarningMsg, "An event handler failed: Host: no");
    shown.click(shown.label("a1"));
    QCOMPARE(shown.selected(), u"a1"_s);
    QTest::ignoreMessage(QtWarningMsg, "An event handler failed: Host: no");
    shown.key(Qt::Key_Down);
    QCOMPARE(shown.selected(), u"a2"_s);
}

ORVT_TEST(NodeTreeInputTest)
#include "NodeTreeInputTest.moc"
