#include "widgets/nodes/NodeTree.h"

#include "widgets/nodes/NodeTreeBody.h"

#include <QtCore/QMimeData>
#include <QtGui/QPainter>
#include <QtWidgets/QHeaderView>

#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

QString NodeTree::nodeMimeType()
{
    return u"application/x-orvtlistview-node"_s;
}

NodeTree::NodeTree(QWidget *parent)
    : QTreeView(parent)
    , d(std::make_unique<NodeTreeBody>(*this))
{
    setModel(&d->model);
    setUpLook();
    setUpConnections();
    setUpDrag();
}

NodeTree::~NodeTree()
{
    // While the parts that the view calls are there.
    setModel(nullptr);
    d->surface.letGo();
}

void NodeTree::setUpLook()
{
    setItemDelegate(&d->delegate);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers); // label editing is announced first
    viewport()->setMouseTracking(true);
}

void NodeTree::setUpConnections()
{
    const auto noteFolded = [this](bool expanded) {
        return [this, expanded](const QModelIndex &index) {
            d->model.nodeOf(index).expanded = expanded;
            if (d->userActs && d->model.hasChildren(index))
                d->folded.append({handleOf(index), expanded});
        };
    };
    connect(this, &QTreeView::expanded, this, noteFolded(true));
    connect(this, &QTreeView::collapsed, this, noteFolded(false));
    const auto showFirstChild = [this](const QModelIndex &parent) {
        if (parent.isValid() && d->model.rowCount(parent) == 1)
            d->showExpanded(d->model.nodeOf(parent));
    };
    connect(&d->model, &NodeModel::rowsInserted, this, showFirstChild);
    connect(&d->model, &NodeModel::rowsMoved, this,
            [showFirstChild](const QModelIndex &, int, int, const QModelIndex &parent) {
                showFirstChild(parent);
            });
    connect(&d->model, &NodeModel::checkedByUser, this,
            [this](TreeNode *node) { d->checkedNode = handleOf(node); });
    connect(&d->delegate, &ReportDelegate::labelEntered, this,
            [this](const QModelIndex &label, const QString &text) {
                noteLabel(*handleOf(label), text);
            });
    connect(&d->clicks.slow(), &SlowClick::clicked, this, &NodeTree::StartLabelEdit);
}

void NodeTree::setUpDrag()
{
    d->surface.drag().setContent([this](QMimeData &content) {
        const Node *node = draggedNode();
        if (!node)
            return;
        content.setData(nodeMimeType(), node->Key().toUtf8());
        const QString name = d->draggedName ? d->draggedName(*node) : QString();
        if (!name.isEmpty())
            content.setText(name);
    });
}

Nodes *NodeTree::Nodes() const
{
    return &d->nodes;
}

NodeTree::Filling::Filling(NodeTree &tree, qsizetype expected)
    : m_tree(tree)
{
    m_tree.d->model.beginFilling(expected);
}

NodeTree::Filling::~Filling()
{
    const NodeModel &model = m_tree.d->model;
    m_tree.d->model.endFilling();
    for (int i = 0; i < model.count(); ++i) {
        if (model.at(i).expanded)
            m_tree.d->showExpanded(model.at(i));
    }
}

Node *NodeTree::handleOf(TreeNode *node) const
{
    return node ? d->handles.of(*node, static_cast<NodeTreeParts &>(*d)) : nullptr;
}

Node *NodeTree::handleOf(const QModelIndex &index) const
{
    return index.isValid() ? handleOf(&d->model.nodeOf(index)) : nullptr;
}

Node *NodeTree::SelectedItem() const
{
    return handleOf(d->choice.selected());
}

void NodeTree::setSelectedItem(Node *Item)
{
    d->choice.select(Node::heldOf(Item, *d, u"NodeTree.setSelectedItem"_s));
}

Node *NodeTree::HitTest(float X, float Y) const
{
    return handleOf(d->surface.indexAt(X, Y));
}

Node *NodeTree::nodeAt(QPoint place) const
{
    return handleOf(d->surface.indexAt(place));
}

const DragEvents &NodeTree::drags() const
{
    return d->surface.drag();
}

void NodeTree::OLEDrag()
{
    d->dragged = SelectedItem();
    if (d->dragged)
        d->surface.drag().begin();
}

Node *NodeTree::draggedNode() const
{
    return d->dragged && d->dragged->isAlive() ? d->dragged : nullptr;
}

void NodeTree::setDraggable(std::function<bool(const Node &)> test)
{
    d->draggable = std::move(test);
}

void NodeTree::setDraggedName(std::function<QString(const Node &)> name)
{
    d->draggedName = std::move(name);
}

void NodeTree::setDragEffects(qint32 effects)
{
    d->surface.drag().setAllowedEffects(effects);
}

void NodeTree::setDropTarget(DropTarget *target)
{
    d->surface.drag().setTarget(target);
}

Node *NodeTree::dropHighlight() const
{
    return handleOf(d->dropHighlight);
}

void NodeTree::setDropHighlight(Node *node)
{
    const TreeNode *marked = Node::heldOf(node, *d, u"NodeTree.setDropHighlight"_s);
    const QModelIndex index = marked ? d->model.indexOf(*marked) : QModelIndex();
    if (index == d->dropHighlight)
        return;
    d->dropHighlight = index;
    viewport()->update();
}

void NodeTree::drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                       const QModelIndex &index) const
{
    QTreeView::drawRow(painter, option, index);
    if (!d->dropHighlight.isValid() || index != d->dropHighlight)
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    QColor tint = option.palette.color(QPalette::Highlight);
    painter->setPen(QPen(tint, 2));
    tint.setAlphaF(0.2F);
    painter->setBrush(tint);
    painter->drawRoundedRect(QRectF(visualRect(index)).adjusted(1, 1, -1, -1), 3, 3);
    painter->restore();
}

void NodeTree::setKeyCommand(std::function<bool(const QKeyEvent &)> command)
{
    d->keyCommand = std::move(command);
}

void NodeTree::setPictureProvider(PictureProvider provider)
{
    d->model.setPictureProvider(std::move(provider));
}

bool NodeTree::hasCheckBoxes() const
{
    return d->model.hasCheckBoxes();
}

void NodeTree::setCheckBoxes(bool on)
{
    d->model.setCheckBoxes(on);
}

bool NodeTree::editsLabels() const
{
    return d->editsLabels;
}

void NodeTree::setEditsLabels(bool on)
{
    d->editsLabels = on;
}

} // namespace ORVTListview
