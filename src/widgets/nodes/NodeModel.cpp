#include "widgets/nodes/NodeModel.h"

#include <QtWidgets/QWidget>

#include <algorithm>
#include <iterator>
#include <utility>

namespace ORVTListview {

NodeModel::NodeModel(const QWidget &view)
    : m_view(view)
{
}

NodeModel::~NodeModel()
{
    // One by one from the ends: no depth of nodes makes a depth of calls, and no memory
    // is wanted.
    TreeNode *node = &m_root;
    while (node != &m_root || !node->children.empty()) {
        if (!node->children.empty()) {
            node = node->children.back().get();
            continue;
        }
        node = node->parent;
        node->children.pop_back();
    }
}

QModelIndex NodeModel::index(int row, int column, const QModelIndex &parent) const
{
    const TreeNode &holder = nodeOf(parent);
    if (column != 0 || row < 0 || row >= static_cast<int>(holder.children.size()))
        return {};
    return createIndex(row, column, holder.children[static_cast<std::size_t>(row)].get());
}

QModelIndex NodeModel::parent(const QModelIndex &index) const
{
    return index.isValid() ? indexOf(*nodeOf(index).parent) : QModelIndex();
}

int NodeModel::rowCount(const QModelIndex &parent) const
{
    return static_cast<int>(nodeOf(parent).children.size());
}

int NodeModel::columnCount(const QModelIndex &) const
{
    return 1;
}

TreeNode &NodeModel::nodeOf(const QModelIndex &index) const
{
    return index.isValid() ? *static_cast<TreeNode *>(index.internalPointer())
                           : const_cast<TreeNode &>(m_root);
}

QModelIndex NodeModel::indexOf(const TreeNode &node) const
{
    return node.parent ? createIndex(node.row, 0, &node) : QModelIndex();
}

QVariant NodeModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const TreeNode &node = nodeOf(index);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return node.text;
    case Qt::ForegroundRole:
        if (node.foreColor == Colours::windowText || !m_view.isEnabled())
            return {}; // the palette knows better
        return Colours::toColor(node.foreColor, m_view.palette());
    case Qt::DecorationRole: {
        const QIcon icon = m_pictures && !node.image.isEmpty() ? m_pictures(node.image) : QIcon();
        return icon.isNull() ? QVariant() : QVariant(icon);
    }
    case Qt::CheckStateRole:
        if (!m_checkBoxes)
            return {};
        return QVariant::fromValue(node.checked ? Qt::Checked : Qt::Unchecked);
    default:
        return {};
    }
}

// Only views come this way; what the program changes has functions of its own.
bool NodeModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid())
        return false;
    TreeNode &node = nodeOf(index);
    if (role == Qt::EditRole) {
        setText(node, value.toString());
        return true;
    }
    if (role == Qt::CheckStateRole && m_checkBoxes) {
        setChecked(node, value.toInt() == Qt::Checked);
        Q_EMIT checkedByUser(&node);
        return true;
    }
    return false;
}

Qt::ItemFlags NodeModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags flags =
        Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable | Qt::ItemIsDragEnabled;
    if (m_checkBoxes)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

int NodeModel::positionOf(const TreeNode &node) const
{
    return m_positions.of(m_order, node);
}

void NodeModel::renumber(TreeNode &parent, int from)
{
    for (auto row = static_cast<std::size_t>(from); row < parent.children.size(); ++row)
        parent.children[row]->row = static_cast<int>(row);
}

void NodeModel::insert(TreeNode &parent, int row, std::unique_ptr<TreeNode> node)
{
    node->parent = &parent;
    parent.children.insert(parent.children.begin() + row, std::move(node));
    renumber(parent, row);
}

std::unique_ptr<TreeNode> NodeModel::take(TreeNode &node)
{
    TreeNode &parent = *node.parent;
    const auto place = parent.children.begin() + node.row;
    std::unique_ptr<TreeNode> taken = std::move(*place);
    parent.children.erase(place);
    renumber(parent, taken->row);
    return taken;
}

// A node and all below it, each without its children, so that no depth of nodes
// makes a depth of calls when they die.
NodeModel::Owned NodeModel::flattened(std::unique_ptr<TreeNode> node)
{
    Owned all;
    all.push_back(std::move(node));
    for (std::size_t next = 0; next < all.size(); ++next) {
        Owned children = std::move(all[next]->children);
        std::move(children.begin(), children.end(), std::back_inserter(all));
    }
    return all;
}

void NodeModel::forget(const Owned &nodes)
{
    int first = count();
    for (const std::unique_ptr<TreeNode> &node : nodes) {
        first = std::min(first, positionOf(*node));
        if (!node->key.isEmpty())
            m_keys.remove(node->key);
    }
    m_positions.forgetFrom(first);
    if (nodes.size() == 1) {
        m_order.erase(m_order.begin() + nodes.front()->position);
        return;
    }
    for (const std::unique_ptr<TreeNode> &node : nodes)
        m_order[static_cast<std::size_t>(node->position)] = nullptr;
    std::erase(m_order, nullptr);
}

TreeNode &NodeModel::add(TreeNode &parent, int row, const QString &key, const QString &text,
                         const QString &image)
{
    auto made = std::make_unique<TreeNode>();
    TreeNode &node = *made;
    node.key = key;
    node.text = text;
    node.image = image;
    if (!m_filling)
        beginInsertRows(indexOf(parent), row, row);
    insert(parent, row, std::move(made));
    node.position = count();
    m_order.push_back(&node);
    if (!key.isEmpty())
        m_keys.insert(key, &node);
    if (!m_filling)
        endInsertRows();
    return node;
}

void NodeModel::remove(TreeNode &node)
{
    ++m_removals;
    beginRemoveRows(indexOf(*node.parent), node.row, node.row);
    const Owned removed = flattened(take(node));
    forget(removed);
    endRemoveRows();
}

void NodeModel::clear()
{
    ++m_removals;
    beginResetModel();
    m_order.clear();
    m_positions.forgetFrom(0);
    m_keys.clear();
    while (!m_root.children.empty())
        flattened(take(*m_root.children.back()));
    endResetModel();
}

void NodeModel::move(TreeNode &node, TreeNode &parent, int row)
{
    if (!beginMoveRows(indexOf(*node.parent), node.row, node.row, indexOf(parent), row))
        return; // it is there already
    const bool closesUp = node.parent == &parent && node.row < row;
    std::unique_ptr<TreeNode> taken = take(node);
    insert(parent, closesUp ? row - 1 : row, std::move(taken));
    endMoveRows();
}

void NodeModel::beginFilling(qsizetype expected)
{
    beginResetModel();
    m_order.reserve(m_order.size() + static_cast<std::size_t>(expected));
    m_keys.reserve(m_keys.size() + expected);
    m_filling = true;
}

void NodeModel::endFilling()
{
    m_filling = false;
    endResetModel();
}

void NodeModel::setKey(TreeNode &node, const QString &key)
{
    if (!node.key.isEmpty())
        m_keys.remove(node.key);
    node.key = key;
    if (!key.isEmpty())
        m_keys.insert(key, &node);
}

void NodeModel::setText(TreeNode &node, const QString &text)
{
    node.text = text;
    touch(node, Qt::DisplayRole);
}

void NodeModel::setImage(TreeNode &node, const QString &key)
{
    node.image = key;
    touch(node, Qt::DecorationRole);
}

void NodeModel::setForeColor(TreeNode &node, qint32 colour)
{
    node.foreColor = colour;
    touch(node, Qt::ForegroundRole);
}

void NodeModel::setChecked(TreeNode &node, bool checked)
{
    node.checked = checked;
    touch(node, Qt::CheckStateRole);
}

void NodeModel::setCheckBoxes(bool on)
{
    m_checkBoxes = on;
    touchAll();
}

void NodeModel::setPictureProvider(PictureProvider provider)
{
    m_pictures = std::move(provider);
    touchAll();
}

void NodeModel::touch(const TreeNode &node, int role)
{
    if (m_filling)
        return;
    const QModelIndex index = indexOf(node);
    Q_EMIT dataChanged(index, index, {role});
}

// Rows may change their size.
void NodeModel::touchAll()
{
    Q_EMIT layoutAboutToBeChanged();
    Q_EMIT layoutChanged();
}

} // namespace ORVTListview
