// Labels that users edit in a tree.

#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/nodes/NodeTreeEvents.h"
#include "widgets/nodes/NodeTreeFixture.h"

#include <QtWidgets/QLineEdit>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

using Events = NodeTreeEvents<NodeTree>;

class NodeTreeLabelTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void editsByF2();
    void editsBySlowClick();
    void editsOnlyWithLeave();
    void labelsCanBeCancelledAndChanged();
    void tellsTheLabelBeforeThePress();
    void keepsWhatIsTyped();
    void escapeLeavesTheLabel();
};

void NodeTreeLabelTest::editsByF2()
{
    const ShownTree shown;
    shown->setSelectedItem(shown.node("a1"));
    Events events(shown.tree);
    shown.key(Qt::Key_F2);
    QVERIFY(shown.labelEditor());
    QCOMPARE(shown.labelEditor()->text(), u"a1"_s);
    QTest::keyClicks(shown.labelEditor(), u"new"_s);
    QTest::keyClick(shown.labelEditor(), Qt::Key_Return);
    QTRY_COMPARE(shown.node("a1")->Text(), u"new"_s);
    const QString told = events.take();
    QVERIFY(told.contains(u"BeforeLabelEdit"_s));
    QVERIFY(told.contains(u"AfterLabelEdit new"_s));
}

void NodeTreeLabelTest::editsBySlowClick()
{
    const ShownTree shown;
    shown.click(shown.label("a1"));
    shown.click(shown.label("a1"));
    QTRY_VERIFY(shown.labelEditor());
}

void NodeTreeLabelTest::editsOnlyWithLeave()
{
    const ShownTree shown;
    shown->setEditsLabels(false);
    shown->setSelectedItem(shown.node("a1"));
    shown.key(Qt::Key_F2);
    QVERIFY(!shown.labelEditor());
    shown->StartLabelEdit(); // the program may
    QVERIFY(shown.labelEditor());
    shown.key(Qt::Key_Escape);

    const auto before =
        connect(shown.tree, &NodeTree::BeforeLabelEdit, this, [](qint16 &cancel) { cancel = 1; });
    QTRY_VERIFY(!shown.labelEditor());
    shown->StartLabelEdit();
    QVERIFY(!shown.labelEditor());
    disconnect(before);
    shown->setSelectedItem(nullptr);
    shown->StartLabelEdit();
    QVERIFY(!shown.labelEditor());
}

void NodeTreeLabelTest::labelsCanBeCancelledAndChanged()
{
    for (const bool cancels : {true, false}) {
        const ShownTree shown;
        bool told = false;
        connect(shown.tree, &NodeTree::AfterLabelEdit, this, [&](qint16 &cancel, QString &text) {
            told = true;
            cancel = cancels ? 1 : 0;
            text += u"!"_s;
        });
        shown->setSelectedItem(shown.node("a1"));
        shown->StartLabelEdit();
        QTest::keyClicks(shown.labelEditor(), u"new"_s);
        QTest::keyClick(shown.labelEditor(), Qt::Key_Return);
        QTRY_VERIFY(told);
        QCOMPARE(shown.node("a1")->Text(), cancels ? u"a1"_s : u"new!"_s);
    }
}

void NodeTreeLabelTest::tellsTheLabelBeforeThePress()
{
    const ShownTree shown;
    shown->setSelectedItem(shown.node("a1"));
    shown->StartLabelEdit();
    QTest::keyClicks(shown.labelEditor(), u"new"_s);
    Events events(shown.tree);
    QString selected;
    connect(shown.tree, &NodeTree::AfterLabelEdit, this, [&] { selected = shown.selected(); });
    shown.click(shown.expander("b"));
    QCOMPARE(selected, u"a1"_s);
    QCOMPARE(shown.node("a1")->Text(), u"new"_s);
    QVERIFY(events.take().startsWith(u"AfterLabelEdit new"_s));
    QVERIFY(!shown.node("b")->Expanded());

    shown->setSelectedItem(shown.node("a2"));
    shown->StartLabelEdit();
    QTest::keyClicks(shown.labelEditor(), u"other"_s);
    shown.click(shown.label("r"));
    QCOMPARE(selected, u"a2"_s);
    QCOMPARE(shown.selected(), u"r"_s);
    QCOMPARE(shown.node("a2")->Text(), u"other"_s);
}

void NodeTreeLabelTest::keepsWhatIsTyped()
{
    const ShownTree shown;
    shown->setSelectedItem(shown.node("a1"));
    shown->StartLabelEdit();
    QTest::keyClicks(shown.labelEditor(), u"new"_s);
    shown.node("a1")->setText(u"host"_s);
    shown.key(Qt::Key_Down);
    QCOMPARE(shown.selected(), u"a1"_s);
    QVERIFY(shown.labelEditor());
    QCOMPARE(shown.labelEditor()->text(), u"new"_s);
    shown.key(Qt::Key_Escape);
    QTRY_VERIFY(!shown.labelEditor());
    QCOMPARE(shown.node("a1")->Text(), u"host"_s);
}

void NodeTreeLabelTest::escapeLeavesTheLabel()
{
    const ShownTree shown;
    shown->setSelectedItem(shown.node("a1"));
    Events events(shown.tree);
    shown->StartLabelEdit();
    QTest::keyClicks(shown.labelEditor(), u"new"_s);
    QTest::keyClick(shown.labelEditor(), Qt::Key_Escape);
    QTRY_VERIFY(!shown.labelEditor());
    QCoreApplication::processEvents();
    QVERIFY(!events.take().contains(u"AfterLabelEdit"_s));
    QCOMPARE(shown.node("a1")->Text(), u"a1"_s);
}

ORVT_TEST(NodeTreeLabelTest)
#include "NodeTreeLabelTest.moc"
