#pragma once

#include "base/TextHash.h"
#include "widgets/nodes/TreeNode.h"
#include "widgets/view/Positions.h"

#include <QtCore/QAbstractItemModel>
#include <QtGui/QIcon>

#include <functional>

class QWidget;

namespace ORVTListview {

// The nodes of a node tree, as a hierarchy and, in the order of adding, as a list.
// Rows and positions count from 0 here. The caller has checked rows, and that a
// key is free.
class NodeModel final : public QAbstractItemModel
{
    Q_OBJECT

public:
    using PictureProvider = std::function<QIcon(const QString &key)>;

    // System colours are looked up in the view's palette.
    explicit NodeModel(const QWidget &view);
    ~NodeModel() override;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    // Whose children are the top-level nodes.
    TreeNode &root() { return m_root; }

    // The root for an invalid index, and the other way round.
    TreeNode &nodeOf(const QModelIndex &index) const;
    QModelIndex indexOf(const TreeNode &node) const;

    int count() const { return static_cast<int>(m_order.size()); }
    TreeNode &at(int position) const { return *m_order[static_cast<std::size_t>(position)]; }
    int positionOf(const TreeNode &node) const;
    TreeNode *find(const QString &key) const { return m_keys.value(key); }

    TreeNode &add(TreeNode &parent, int row, const QString &key, const QString &text,
                  const QString &image);
    void remove(TreeNode &node);
    void clear();
    quint64 removals() const { return m_removals; } // how often nodes have gone

    // The row is that before the move. The new parent does not lie within the node.
    void move(TreeNode &node, TreeNode &parent, int row);

    // Between the two, nodes may be added, and only that; it is one change.
    void beginFilling(qsizetype expected);
    void endFilling();
    bool isFilling() const { return m_filling; }

    static const QString &keyOf(const TreeNode &node) { return node.key; }
    static const QString &textOf(const TreeNode &node) { return node.text; }
    void setKey(TreeNode &node, const QString &key);
    void setText(TreeNode &node, const QString &text);
    void setImage(TreeNode &node, const QString &key);
    void setForeColor(TreeNode &node, qint32 colour);
    void setChecked(TreeNode &node, bool checked);

    bool hasCheckBoxes() const { return m_checkBoxes; }
    void setCheckBoxes(bool on);
    void setPictureProvider(PictureProvider provider);

Q_SIGNALS:
    void checkedByUser(ORVTListview::TreeNode *node);

private:
    using Owned = std::vector<std::unique_ptr<TreeNode>>;

    static void renumber(TreeNode &parent, int from);
    static void insert(TreeNode &parent, int row, std::unique_ptr<TreeNode> node);
    static std::unique_ptr<TreeNode> take(TreeNode &node);
    static Owned flattened(std::unique_ptr<TreeNode> node);
    void forget(const Owned &nodes);
    void touch(const TreeNode &node, int role);
    void touchAll();

    const QWidget &m_view;
    TreeNode m_root;
    std::vector<TreeNode *> m_order;
    Positions m_positions;
    TextHash<TreeNode *> m_keys;
    PictureProvider m_pictures;
    bool m_checkBoxes = false;
    bool m_filling = false;
    quint64 m_removals = 0;
};

} // namespace ORVTListview
