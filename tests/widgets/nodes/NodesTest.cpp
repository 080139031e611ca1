// The nodes of a tree as a host sees them: the collection and the handles.

#include "support/Raised.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/nodes/NodeTreeFixture.h"

#include "widgets/look/Colours.h"

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

template <typename Call>
qint32 errorOf(Call call)
{
    const auto error = raisedBy(call);
    return error ? error->Number() : 0;
}

// The tree as text: "r(a(a1 a2) b(b1))".
QString shape(const NodeTree &tree, const QModelIndex &parent = {})
{
    QStringList children;
    for (int row = 0; row < tree.model()->rowCount(parent); ++row) {
        const QModelIndex index = tree.model()->index(row, 0, parent);
        const QString below = shape(tree, index);
        children.append(index.data().toString() + (below.isEmpty() ? u""_s : u'(' + below + u')'));
    }
    return children.join(u' ');
}

QString shape(const ShownTree &shown)
{
    return shape(*shown.tree);
}

} // namespace

class NodesTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void givesOneHandleForANode();
    void readsAndWritesANode();
    void knowsItsNeighbours();
    void addsByRelationship_data();
    void addsByRelationship();
    void addsByKeyOfRelative();
    void refusesWhatCannotBeAdded();
    void countsInTheOrderOfAdding();
    void findsByKeyAsWritten();
    void allowsManyEmptyKeys();
    void refusesAKeyInUse();
    void failsClearlyOnceItsNodeIsGone();
    void removesAllBelow();
    void neverComesBackWithTheKey();
    void moves_data();
    void moves();
    void movedNodesKeepEverything();
    void refusesToMoveBelowItself();
    void expandsAndCollapses();
    void selects();
    void ensuresVisible();
    void refusesNodesOfAnotherTree();
    void handlesOutliveTheirNodesWhateverTheDepth();
    void fillingIsOneChange();
    void hitsNodesInTwips();
    void showsColours();
};

void NodesTest::givesOneHandleForANode()
{
    NodeTree tree;
    Node *added = tree.Nodes()->Add(nullptr, NodeRelationship::First, u"a"_s, u"one"_s, u"I"_s);
    QCOMPARE(tree.Nodes()->Item(1), added);
    QCOMPARE(tree.Nodes()->Item(u"a"_s), added);
    QVERIFY(added->isAlive());
    QCOMPARE(added->Key(), u"a"_s);
    QCOMPARE(added->Text(), u"one"_s);
    QCOMPARE(added->Image(), u"I"_s);
    QVERIFY(!added->Tag().isValid());
}

void NodesTest::readsAndWritesANode()
{
    const ShownTree shown;
    Node *node = shown.node("a1");
    node->setText(u"text"_s);
    node->setKey(u"key"_s);
    node->setImage(u"Inputs"_s);
    node->setTag(7);
    node->setForeColor(0x0000ff);
    node->setChecked(true);
    QCOMPARE(node->Text(), u"text"_s);
    QCOMPARE(node->Key(), u"key"_s);
    QCOMPARE(node->Image(), u"Inputs"_s);
    QCOMPARE(node->Tag(), QVariant(7));
    QCOMPARE(node->ForeColor(), 0x0000ff);
    QVERIFY(node->Checked());
    QCOMPARE(shown.node("key"), node);
    QVERIFY(!shown->Nodes()->Contains(u"a1"_s));
    QCOMPARE(shape(shown), u"r(a(text a2) b(b1))"_s);
}

void NodesTest::knowsItsNeighbours()
{
    const ShownTree shown;
    QCOMPARE(shown.node("r")->Parent(), nullptr);
    QCOMPARE(shown.node("a1")->Parent(), shown.node("a"));
    QCOMPARE(shown.node("r")->Child(), shown.node("a"));
    QCOMPARE(shown.node("a1")->Child(), nullptr);
    QCOMPARE(shown.node("a")->Children(), 2);
    QCOMPARE(shown.node("a1")->Children(), 0);
    QCOMPARE(shown.node("a")->Next(), shown.node("b"));
    QCOMPARE(shown.node("b")->Next(), nullptr);
    QCOMPARE(shown.node("r")->Next(), nullptr);
    QCOMPARE(shown.node("b")->Previous(), shown.node("a"));
    QCOMPARE(shown.node("a")->Previous(), nullptr);
}

void NodesTest::addsByRelationship_data()
{
    QTest::addColumn<QString>("relative");
    QTest::addColumn<NodeRelationship>("relationship");
    QTest::addColumn<QString>("expected");
    using enum NodeRelationship;
    QTest::newRow("child") << u"a"_s << Child << u"r(a(a1 a2 n) b(b1))"_s;
    QTest::newRow("child of a leaf") << u"b1"_s << Child << u"r(a(a1 a2) b(b1(n)))"_s;
    QTest::newRow("first") << u"a2"_s << First << u"r(a(n a1 a2) b(b1))"_s;
    QTest::newRow("last") << u"a1"_s << Last << u"r(a(a1 a2 n) b(b1))"_s;
    QTest::newRow("next") << u"a1"_s << Next << u"r(a(a1 n a2) b(b1))"_s;
    QTest::newRow("previous") << u"a2"_s << Previous << u"r(a(a1 n a2) b(b1))"_s;
    QTest::newRow("top level, next") << u"r"_s << Next << u"r(a(a1 a2) b(b1)) n"_s;
    QTest::newRow("none, first") << u""_s << First << u"n r(a(a1 a2) b(b1))"_s;
    QTest::newRow("none, last") << u""_s << Last << u"r(a(a1 a2) b(b1)) n"_s;
    QTest::newRow("none, next") << u""_s << Next << u"r(a(a1 a2) b(b1)) n"_s;
    QTest::newRow("none, previous") << u""_s << Previous << u"n r(a(a1 a2) b(b1))"_s;
    QTest::newRow("none, child") << u""_s << Child << u"r(a(a1 a2) b(b1)) n"_s;
}

void NodesTest::addsByRelationship()
{
    QFETCH(QString, relative);
    QFETCH(NodeRelationship, relationship);
    const ShownTree shown;
    Node *other = relative.isEmpty() ? nullptr : shown.node(relative);
    shown->Nodes()->Add(other, relationship, u"n"_s, u"n"_s);
    QTEST(shape(shown), "expected");
    QCOMPARE(shown->Nodes()->Count(), 7);
}

void NodesTest::addsByKeyOfRelative()
{
    const ShownTree shown;
    Node *added = shown->Nodes()->Add(u"b"_s, NodeRelationship::Child, u"n"_s, u"n"_s);
    QCOMPARE(added->Parent(), shown.node("b"));
    QCOMPARE(errorOf([&] { shown->Nodes()->Add(u"x"_s, NodeRelationship::Child); }), InvalidCall);
}

void NodesTest::refusesWhatCannotBeAdded()
{
    const ShownTree shown;
    const NodeTree other;
    Node *strange = other.Nodes()->Add(nullptr, NodeRelationship::Child);
    Node *removed = shown.node("b1");
    shown->Nodes()->Remove(u"b1"_s);
    const auto add = [&](Node *relative, const QString &key) {
        return errorOf([&] { shown->Nodes()->Add(relative, NodeRelationship::Child, key); });
    };
    QCOMPARE(add(nullptr, u"a"_s), InvalidCall);
    QCOMPARE(add(strange, u"n"_s), InvalidCall);
    QCOMPARE(add(removed, u"n"_s), ObjectNotSet);
    QCOMPARE(shape(shown), u"r(a(a1 a2) b)"_s);
    QCOMPARE(shown->Nodes()->Count(), 5);
}

void NodesTest::countsInTheOrderOfAdding()
{
    const ShownTree shown;
    const QStringList order{u"r"_s, u"a"_s, u"b"_s, u"a1"_s, u"a2"_s, u"b1"_s};
    for (qint32 i = 1; i <= 6; ++i) {
        QCOMPARE(shown->Nodes()->Item(i)->Key(), order.at(i - 1));
        QCOMPARE(shown.node(order.at(i - 1))->Index(), i);
    }
    shown->Nodes()->Remove(2); // a, with a1 and a2
    QCOMPARE(shown->Nodes()->Count(), 3);
    QCOMPARE(shown.node("b")->Index(), 2);
    QCOMPARE(shown.node("b1")->Index(), 3);
    for (const qint32 index : {0, 4, -1})
        QCOMPARE(errorOf([&] { shown->Nodes()->Item(index); }), SubscriptOutOfRange);
    QCOMPARE(errorOf([&] { shown->Nodes()->Remove(4); }), SubscriptOutOfRange);
}

void NodesTest::findsByKeyAsWritten()
{
    const ShownTree shown;
    QVERIFY(shown->Nodes()->Contains(u"a1"_s));
    QVERIFY(!shown->Nodes()->Contains(u"A1"_s));
    QVERIFY(!shown->Nodes()->Contains(QString()));
    QCOMPARE(errorOf([&] { shown.node("A1"); }), InvalidCall);
    QCOMPARE(errorOf([&] { shown->Nodes()->Remove(u"A1"_s); }), InvalidCall);
}

void NodesTest::allowsManyEmptyKeys()
{
    const NodeTree tree;
    Node *one = tree.Nodes()->Add(nullptr, NodeRelationship::Child);
    Node *two = tree.Nodes()->Add(nullptr, NodeRelationship::Child);
    two->setKey(u"k"_s);
    two->setKey(QString());
    one->setKey(u"k"_s);
    QCOMPARE(tree.Nodes()->Item(u"k"_s), one);
    tree.Nodes()->Remove(2);
    QCOMPARE(tree.Nodes()->Item(u"k"_s), one);
}

void NodesTest::refusesAKeyInUse()
{
    const ShownTree shown;
    QCOMPARE(errorOf([&] { shown.node("a1")->setKey(u"b"_s); }), InvalidCall);
    QCOMPARE(shown.node("a1")->Key(), u"a1"_s);
    shown.node("a1")->setKey(u"a1"_s); // its own
    QCOMPARE(shown.node("a1")->Key(), u"a1"_s);
}

void NodesTest::failsClearlyOnceItsNodeIsGone()
{
    const ShownTree shown;
    Node *node = shown.node("a1");
    shown->Nodes()->Remove(u"a"_s); // the one above
    QVERIFY(!node->isAlive());
    const QList<std::function<void()>> members{
        [&] { node->Index(); },
        [&] { node->Key(); },
        [&] { node->setKey({}); },
        [&] { node->Text(); },
        [&] { node->setText({}); },
        [&] { node->Image(); },
        [&] { node->setImage({}); },
        [&] { node->Tag(); },
        [&] { node->setTag({}); },
        [&] { node->Parent(); },
        [&] { node->setParent({}); },
        [&] { node->Child(); },
        [&] { node->Children(); },
        [&] { node->Next(); },
        [&] { node->Previous(); },
        [&] { node->MoveTo({}); },
        [&] { node->Expanded(); },
        [&] { node->setExpanded(true); },
        [&] { node->ForeColor(); },
        [&] { node->setForeColor(0); },
        [&] { node->Checked(); },
        [&] { node->setChecked(true); },
        [&] { node->Selected(); },
        [&] { node->setSelected(true); },
        [&] { node->EnsureVisible(); },
        [&] { shown->setSelectedItem(node); },
        [&] { shown->setDropHighlight(node); },
    };
    for (const auto &member : members)
        QCOMPARE(errorOf(member), ObjectNotSet);
}

void NodesTest::removesAllBelow()
{
    const ShownTree shown;
    shown->Nodes()->Remove(u"a"_s);
    QCOMPARE(shape(shown), u"r(b(b1))"_s);
    for (const QString &key : {u"a"_s, u"a1"_s, u"a2"_s})
        QVERIFY(!shown->Nodes()->Contains(key));
    shown->Nodes()->Clear();
    QCOMPARE(shown->Nodes()->Count(), 0);
    QCOMPARE(shape(shown), QString());
    QVERIFY(!shown->Nodes()->Contains(u"r"_s));
    shown->Nodes()->Clear();
    shown.add(QString(), u"r"_s);
    QCOMPARE(shape(shown), u"r"_s);
}

void NodesTest::neverComesBackWithTheKey()
{
    const ShownTree shown;
    Node *node = shown.node("b1");
    shown->Nodes()->Remove(u"b1"_s);
    Node *other = shown.add(u"b"_s, u"b1"_s);
    QVERIFY(other != node);
    QVERIFY(!node->isAlive());
}

void NodesTest::moves_data()
{
    QTest::addColumn<QString>("moved");
    QTest::addColumn<QString>("relative");
    QTest::addColumn<NodeRelationship>("relationship");
    QTest::addColumn<QString>("expected");
    using enum NodeRelationship;
    QTest::newRow("to another") << u"a1"_s << u"b"_s << Child << u"r(a(a2) b(b1 a1))"_s;
    QTest::newRow("before one") << u"a2"_s << u"b1"_s << Previous << u"r(a(a1) b(a2 b1))"_s;
    QTest::newRow("behind one") << u"b1"_s << u"a1"_s << Next << u"r(a(a1 b1 a2) b)"_s;
    QTest::newRow("up in its own") << u"a2"_s << u"a1"_s << Previous << u"r(a(a2 a1) b(b1))"_s;
    QTest::newRow("down in its own") << u"a1"_s << u"a2"_s << Next << u"r(a(a2 a1) b(b1))"_s;
    QTest::newRow("to its own end") << u"a1"_s << u"a"_s << Child << u"r(a(a2 a1) b(b1))"_s;
    QTest::newRow("where it is") << u"a1"_s << u"a2"_s << Previous << u"r(a(a1 a2) b(b1))"_s;
    QTest::newRow("with all below") << u"a"_s << u"b"_s << Child << u"r(b(b1 a(a1 a2)))"_s;
    QTest::newRow("to the top") << u"b"_s << u""_s << First << u"b(b1) r(a(a1 a2))"_s;
    QTest::newRow("to the top's end") << u"b"_s << u""_s << Child << u"r(a(a1 a2)) b(b1)"_s;
}

void NodesTest::moves()
{
    QFETCH(QString, moved);
    QFETCH(QString, relative);
    QFETCH(NodeRelationship, relationship);
    const ShownTree shown;
    shown.node(moved)->MoveTo(relative.isEmpty() ? nullptr : shown.node(relative), relationship);
    QTEST(shape(shown), "expected");
}

void NodesTest::movedNodesKeepEverything()
{
    const ShownTree shown;
    Node *node = shown.node("a");
    node->setTag(13);
    node->setForeColor(255);
    node->setSelected(true);
    shown.node("b")->setExpanded(false);
    node->setParent(shown.node("b"));
    QVERIFY(node->isAlive());
    QCOMPARE(node->Index(), 2);
    QCOMPARE(node->Tag(), QVariant(13));
    QCOMPARE(node->ForeColor(), 255);
    QVERIFY(node->Selected());
    QVERIFY(node->Expanded());
    QVERIFY(!shown.node("b")->Expanded());
    QCOMPARE(shown->SelectedItem(), node);
    QCOMPARE(shown.node("a1")->Parent(), node);
}

void NodesTest::refusesToMoveBelowItself()
{
    const ShownTree shown;
    QCOMPARE(errorOf([&] { shown.node("a")->setParent(shown.node("a1")); }), InvalidCall);
    QCOMPARE(errorOf([&] { shown.node("a")->setParent(shown.node("a")); }), InvalidCall);
    QCOMPARE(
        errorOf([&] { shown.node("a")->MoveTo(shown.node("a2"), NodeRelationship::Previous); }),
        InvalidCall);
    QCOMPARE(shape(shown), u"r(a(a1 a2) b(b1))"_s);
}

void NodesTest::expandsAndCollapses()
{
    const ShownTree shown;
    QVERIFY(shown.node("a")->Expanded());
    shown.node("a")->setExpanded(false);
    QVERIFY(!shown.node("a")->Expanded());
    QVERIFY(shown->visualRect(shown.index("a1")).isEmpty());

    Node *empty = shown.add(u"r"_s, u"c"_s);
    empty->setExpanded(true);
    QVERIFY(empty->Expanded());
    shown.add(u"c"_s, u"c1"_s);
    QVERIFY(!shown->visualRect(shown.index("c1")).isEmpty());
}

void NodesTest::selects()
{
    const ShownTree shown;
    shown->setSelectedItem(nullptr);
    QCOMPARE(shown->SelectedItem(), nullptr);
    shown->setSelectedItem(shown.node("a1"));
    QCOMPARE(shown.selected(), u"a1"_s);
    shown.node("b1")->setSelected(true);
    QVERIFY(!shown.node("a1")->Selected());
    QCOMPARE(shown.selected(), u"b1"_s);
    shown.node("a1")->setSelected(false); // is not
    QCOMPARE(shown.selected(), u"b1"_s);
    shown.node("b1")->setSelected(false);
    QCOMPARE(shown.selected(), QString());

    shown.node("a")->setExpanded(false);
    shown->setSelectedItem(shown.node("a1"));
    QVERIFY(!shown.node("a")->Expanded());
}

void NodesTest::ensuresVisible()
{
    const ShownTree shown;
    for (int i = 0; i < 100; ++i)
        shown.add(u"b"_s, u"x%1"_s.arg(i));
    shown.node("b")->setExpanded(false);
    shown.node("r")->setExpanded(false);
    shown.node("x90")->EnsureVisible();
    const QRect viewport = shown->viewport()->rect();
    QVERIFY(viewport.contains(shown->visualRect(shown.index("x90"))));

    shown->hide();
    shown.node("a1")->EnsureVisible();
    shown->show();
    QVERIFY(viewport.contains(shown->visualRect(shown.index("a1"))));
}

void NodesTest::refusesNodesOfAnotherTree()
{
    const ShownTree shown;
    const NodeTree other;
    Node *strange = other.Nodes()->Add(nullptr, NodeRelationship::Child);
    QCOMPARE(errorOf([&] { shown->setSelectedItem(strange); }), InvalidCall);
    QCOMPARE(errorOf([&] { shown->setDropHighlight(strange); }), InvalidCall);
    QCOMPARE(errorOf([&] { shown.node("a")->MoveTo(strange); }), InvalidCall);
}

void NodesTest::handlesOutliveTheirNodesWhateverTheDepth()
{
    const NodeTree tree;
    Node *node = nullptr;
    for (int i = 0; i < 200'000; ++i)
        node = tree.Nodes()->Add(node, NodeRelationship::Child);
    tree.Nodes()->Clear();
    QVERIFY(!node->isAlive());
}

void NodesTest::fillingIsOneChange()
{
    NodeTree tree;
    QSignalSpy resets(tree.model(), &QAbstractItemModel::modelReset);
    QSignalSpy inserts(tree.model(), &QAbstractItemModel::rowsInserted);
    {
        const NodeTree::Filling filling(tree, 3);
        Node *top = tree.Nodes()->Add(nullptr, NodeRelationship::Child, u"t"_s, u"t"_s);
        for (int i = 0; i < 10; ++i)
            tree.Nodes()->Add(top, NodeRelationship::Child)->setText(u"c"_s);
    }
    QCOMPARE(resets.count(), 1);
    QCOMPARE(inserts.count(), 0);
    QCOMPARE(tree.Nodes()->Count(), 11);
    QCOMPARE(tree.model()->rowCount(tree.model()->index(0, 0)), 10);
}

void NodesTest::hitsNodesInTwips()
{
    const ShownTree shown;
    const auto hit = [&](QPoint inForm) {
        const QPoint place = shown->mapFrom(&shown.form, inForm);
        return shown->HitTest(static_cast<float>(Twips::fromPixelsX(place.x(), *shown.tree)),
                              static_cast<float>(Twips::fromPixelsY(place.y(), *shown.tree)));
    };
    QCOMPARE(hit(shown.label("a1")), shown.node("a1"));
    QCOMPARE(hit(shown.expander("a")), shown.node("a"));
    QCOMPARE(hit(QPoint(shown.below().x(), shown.label("b1").y())), shown.node("b1"));
    QCOMPARE(hit(shown.below()), nullptr);
    QCOMPARE(hit(QPoint(0, 0)), nullptr);
    QCOMPARE(shown->HitTest(1e30F, 0.0F), nullptr);
    QCOMPARE(shown->HitTest(-1e30F, 30.0F), nullptr);
}

void NodesTest::showsColours()
{
    const ShownTree shown;
    Node *node = shown.node("a1");
    QCOMPARE(node->ForeColor(), Colours::windowText);
    QVERIFY(!shown.index("a1").data(Qt::ForegroundRole).isValid());
    node->setForeColor(0x0000ff); // red in the low byte
    QCOMPARE(shown.index("a1").data(Qt::ForegroundRole).value<QColor>(), QColor(255, 0, 0));
    node->setForeColor(Colours::windowBackground);
    QCOMPARE(shown.index("a1").data(Qt::ForegroundRole).value<QColor>(),
             shown->palette().color(QPalette::Base));
    shown->setEnabled(false); // grey, as all its texts
    QVERIFY(!shown.index("a1").data(Qt::ForegroundRole).isValid());
}

ORVT_TEST(NodesTest)
#include "NodesTest.moc"

#include <QtTest/QSignalSpy>
