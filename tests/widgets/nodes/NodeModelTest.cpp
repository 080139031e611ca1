// Any operations on the nodes: the model keeps its promises to views, and the tree
// agrees with a simple model of it.

#include "support/Raised.h"
#include "support/RandomText.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/nodes/NodeTree.h"
#include <ORVTListview/Node.h>
#include <ORVTListview/Nodes.h>

#include <QtTest/QAbstractItemModelTester>

#include <map>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// Each node's children by key, in order; "" is the top level.
class SimpleTree
{
public:
    std::map<QString, QStringList> children{{QString(), {}}};
    QStringList order;

    QString parentOf(const QString &key) const
    {
        for (const auto &[parent, keys] : children) {
            if (keys.contains(key))
                return parent;
        }
        return {};
    }

    bool isWithin(QString key, const QString &other) const
    {
        while (!key.isEmpty() && key != other)
            key = parentOf(key);
        return key == other;
    }

    void insert(const QString &key, const QString &relative, NodeRelationship relationship)
    {
        const bool inside = relative.isEmpty() || relationship == NodeRelationship::Child;
        QStringList &siblings = children[inside ? relative : parentOf(relative)];
        qsizetype place = siblings.size();
        if (relationship == NodeRelationship::First)
            place = 0;
        else if (relationship == NodeRelationship::Next && !inside)
            place = siblings.indexOf(relative) + 1;
        else if (relationship == NodeRelationship::Previous)
            place = inside ? 0 : siblings.indexOf(relative);
        siblings.insert(place, key);
    }

    void remove(const QString &key)
    {
        const QStringList below = children[key];
        for (const QString &child : below)
            remove(child);
        children.erase(key);
        children[parentOf(key)].removeOne(key);
        order.removeOne(key);
    }

    QString text(const QString &parent = {}) const
    {
        QString all;
        const auto keys = children.find(parent);
        for (const QString &key : keys == children.end() ? QStringList() : keys->second)
            all += key + u'(' + text(key) + u')';
        return all;
    }
};

QString textOf(const Node *first)
{
    QString all;
    for (const Node *node = first; node; node = node->Next())
        all += node->Key() + u'(' + textOf(node->Child()) + u')';
    return all;
}

bool agree(const NodeTree &tree, SimpleTree &model)
{
    const Nodes &nodes = *tree.Nodes();
    if (nodes.Count() != model.order.size())
        return false;
    for (qint32 index = 1; index <= nodes.Count(); ++index) {
        const Node *node = nodes.Item(index);
        if (node->Key() != model.order.at(index - 1) || node->Index() != index)
            return false;
    }
    const QStringList top = model.children[QString()];
    return textOf(top.isEmpty() ? nullptr : nodes.Item(top.first())) == model.text();
}

} // namespace

class NodeModelTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void holdsUnderRandomOperations();
    void refusesWhatViewsMayNotDo();
    void showsCheckBoxes();
    void showsPictures();

private:
    void step(RandomText &random, SimpleTree &model, NodeTree &tree);
    static QString anyKey(RandomText &random, const SimpleTree &model, bool orNone);

    int m_made = 0;
};

QString NodeModelTest::anyKey(RandomText &random, const SimpleTree &model, bool orNone)
{
    const auto count = static_cast<int>(model.order.size());
    if (count == 0 || (orNone && random.number(8) == 0))
        return {};
    return model.order.at(random.number(count));
}

void NodeModelTest::step(RandomText &random, SimpleTree &model, NodeTree &tree)
{
    Nodes &nodes = *tree.Nodes();
    const auto nodeOf = [&](const QString &key) {
        return key.isEmpty() ? nullptr : nodes.Item(key);
    };
    const auto relationship = static_cast<NodeRelationship>(random.number(5));
    const QString relative = anyKey(random, model, true);
    const QString key = anyKey(random, model, false);
    const int what = random.number(20);
    if (what < 9 || key.isEmpty()) {
        const QString made = u"n%1"_s.arg(++m_made);
        nodes.Add(nodeOf(relative), relationship, made, made);
        model.insert(made, relative, relationship);
        model.order.append(made);
        model.children[made] = {};
    } else if (what < 12) {
        nodes.Remove(key);
        model.remove(key);
    } else if (what < 17) {
        const QString target = relative.isEmpty() || relationship == NodeRelationship::Child
                                   ? relative
                                   : model.parentOf(relative);
        const bool refused = relative == key || model.isWithin(target, key);
        const auto error =
            raisedBy([&] { nodes.Item(key)->MoveTo(nodeOf(relative), relationship); });
        QCOMPARE(error.has_value(), refused);
        if (!refused) {
            model.children[model.parentOf(key)].removeOne(key);
            model.insert(key, relative, relationship);
        }
    } else if (what < 18) {
        nodes.Item(key)->setExpanded(random.number(2));
    } else if (what < 19) {
        nodes.Item(key)->setSelected(true);
    } else {
        nodes.Item(key)->setText(u"text %1"_s.arg(random.number(100)));
        nodes.Item(key)->setForeColor(random.number(0x1000000));
    }
}

void NodeModelTest::holdsUnderRandomOperations()
{
    RandomText random;
    for (int round = 0; round < 20; ++round) {
        NodeTree tree;
        const QAbstractItemModelTester tester(
            tree.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        tree.resize(200, 200);
        if (round % 2 == 0)
            tree.show();
        SimpleTree model;
        for (int i = 0; i < 150; ++i) {
            step(random, model, tree);
            const std::string place =
                random.seed() + ", round " + std::to_string(round) + ", step " + std::to_string(i);
            QVERIFY2(agree(tree, model), place.c_str());
        }
        tree.grab();
    }
}

void NodeModelTest::refusesWhatViewsMayNotDo()
{
    NodeTree tree;
    Node *node = tree.Nodes()->Add(nullptr, NodeRelationship::Child, u"a"_s, u"a"_s);
    QAbstractItemModel &model = *tree.model();
    const QModelIndex index = model.index(0, 0);
    QVERIFY(!model.setData(index, Qt::Checked, Qt::CheckStateRole)); // no boxes
    QVERIFY(!model.setData(index, 1, Qt::UserRole));
    QVERIFY(!model.setData({}, u"x"_s, Qt::EditRole));
    QVERIFY(!node->Checked());
    QVERIFY(!model.index(1, 0).isValid());
    QVERIFY(!model.index(0, 1).isValid());
    QVERIFY(!model.index(-1, 0).isValid());
}

void NodeModelTest::showsCheckBoxes()
{
    NodeTree tree;
    Node *node = tree.Nodes()->Add(nullptr, NodeRelationship::Child);
    const QModelIndex index = tree.model()->index(0, 0);
    QVERIFY(!index.data(Qt::CheckStateRole).isValid());
    tree.setCheckBoxes(true);
    QCOMPARE(index.data(Qt::CheckStateRole).toInt(), int{Qt::Unchecked});
    node->setChecked(true);
    QCOMPARE(index.data(Qt::CheckStateRole).toInt(), int{Qt::Checked});
}

void NodeModelTest::showsPictures()
{
    NodeTree tree;
    Node *node = tree.Nodes()->Add(nullptr, NodeRelationship::Child, u"a"_s, u"a"_s, u"red"_s);
    const QModelIndex index = tree.model()->index(0, 0);
    QVERIFY(!index.data(Qt::DecorationRole).isValid());
    tree.setPictureProvider([](const QString &key) {
        QPixmap pixmap(4, 4);
        pixmap.fill(key == u"red"_s ? Qt::red : Qt::blue);
        return key == u"none"_s ? QIcon() : QIcon(pixmap);
    });
    const auto colour = [&] {
        return index.data(Qt::DecorationRole).value<QIcon>().pixmap(4).toImage().pixelColor(1, 1);
    };
    QCOMPARE(colour(), QColor(Qt::red));
    node->setImage(u"blue"_s);
    QCOMPARE(colour(), QColor(Qt::blue));
    node->setImage(u"none"_s);
    QVERIFY(!index.data(Qt::DecorationRole).isValid());
}

ORVT_TEST(NodeModelTest)
#include "NodeModelTest.moc"
