#pragma once

#include <ORVTListview/Node.h>

#include <QtWidgets/QTreeView>

#include <functional>
#include <memory>

namespace ORVTListview {

class DragEvents;
class DropTarget;
class Nodes;
struct NodeTreeBody;

// A tree of nodes, one of which may be selected. X and Y are twips from the tree's
// corner.
//
// Nodes are handed out as Node, which the tree owns and which outlive what they
// stand for: see there.
//
// Events are raised before the tree acts on what the user did, but for Click,
// DblClick, NodeClick, NodeCheck, Expand, Collapse and AfterLabelEdit, which tell
// what has happened. A receiver may do anything in them, destroying the tree
// included. What the program changes raises no event.
//
// Keys: arrows, Home, End, Page Up and Down go through the nodes, Right and Left
// expand and collapse; letters go to the next node that begins with them; F2 and a
// slow second click on a node edit its text; Tab leaves the tree.
class NodeTree : public QTreeView
{
    Q_OBJECT
    Q_PROPERTY(bool checkBoxes READ hasCheckBoxes WRITE setCheckBoxes)
    Q_PROPERTY(bool editsLabels READ editsLabels WRITE setEditsLabels)

public:
    using PictureProvider = std::function<QIcon(const QString &key)>;

    // The content of a drag: the node's key, in UTF-8.
    static QString nodeMimeType();

    explicit NodeTree(QWidget *parent = nullptr);
    ~NodeTree() override;

    // Lives as long as the tree.
    ORVTListview::Nodes *Nodes() const;

    // Between its making and its end nodes are added as one change. Nothing but
    // Nodes::Add and the setters of text, tag and Expanded may be called meanwhile.
    class Filling
    {
    public:
        Filling(NodeTree &tree, qsizetype expected);
        ~Filling();
        Q_DISABLE_COPY_MOVE(Filling) // one begin, one end

    private:
        NodeTree &m_tree;
    };

    // Null for none. Setting it scrolls and expands nothing; another tree's node
    // raises Error (InvalidCall), a removed one (ObjectNotSet).
    Node *SelectedItem() const;
    void setSelectedItem(Node *Item);

    // The node whose row the point is in; null beside the rows and on the frame.
    Node *HitTest(float X, float Y) const;

    // The same for a place in the viewport, in pixels.
    Node *nodeAt(QPoint place) const;

    // Raises BeforeLabelEdit and edits the selected node's text in place; without
    // one, nothing.
    void StartLabelEdit();

    // Starts a drag of the selected node once the event at hand is over, if a mouse
    // button is down.
    void OLEDrag();

    // The node that is being dragged, or was last; null once it is gone.
    Node *draggedNode() const;

    // Which nodes users can drag; all by default, if dragEnabled.
    void setDraggable(std::function<bool(const Node &node)> test);

    // What a drag of a node carries as text; an empty text, as at first, is none.
    void setDraggedName(std::function<QString(const Node &node)> name);

    // The effects that a drag allows at first; copy by default.
    void setDragEffects(qint32 effects);

    // Not owned; null for none.
    void setDropTarget(DropTarget *target);

    // A node marked as the place where a drop would go; null for none.
    Node *dropHighlight() const;
    void setDropHighlight(Node *node);

    // Called for a key that no receiver of KeyDown and KeyPress has swallowed; true
    // when it has dealt with it.
    void setKeyCommand(std::function<bool(const QKeyEvent &event)> command);

    void setPictureProvider(PictureProvider provider);

    bool hasCheckBoxes() const;
    void setCheckBoxes(bool on);

    // Whether users can begin to edit a text; StartLabelEdit always can.
    bool editsLabels() const;
    void setEditsLabels(bool on);

    // Raises the events of drags from here and onto it.
    const DragEvents &drags() const;

Q_SIGNALS:
    // NewString is what was entered. Cancel other than 0 drops it; a changed
    // NewString is used in its place. Raised soon after the editor has closed, and
    // before anything else that the user does: SelectedItem() is still the node.
    void AfterLabelEdit(qint16 &Cancel, QString &NewString);

    // Cancel other than 0 keeps the editor from opening.
    void BeforeLabelEdit(qint16 &Cancel);

    // The left button was pressed and released, on that node; null beside them.
    void Click(ORVTListview::Node *Node);

    // The user has collapsed or expanded a node.
    void Collapse(ORVTListview::Node *Node);
    void DblClick(ORVTListview::Node *Node);
    void Expand(ORVTListview::Node *Node);

    // As those of ReportList.
    void KeyDown(qint16 &KeyCode, qint16 &Shift);
    void KeyPress(qint16 &KeyAscii);
    void KeyUp(qint16 &KeyCode, qint16 &Shift);
    void MouseDown(qint16 Button, qint16 Shift, float X, float Y);
    void MouseMove(qint16 Button, qint16 Shift, float X, float Y);
    void MouseUp(qint16 Button, qint16 Shift, float X, float Y);

    // The user has checked or unchecked a node.
    void NodeCheck(ORVTListview::Node *Node);

    // A node was pressed with the left or right button, or reached by keyboard.
    void NodeClick(ORVTListview::Node *Node);

protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                 const QModelIndex &index) const override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void startDrag(Qt::DropActions supportedActions) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

protected Q_SLOTS:
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    using QTreeView::setModel; // the tree has its own

    void setUpLook();
    void setUpConnections();
    void setUpDrag();
    Node *handleOf(TreeNode *node) const;
    Node *handleOf(const QModelIndex &index) const;
    bool isOnExpander(const QModelIndex &index, QPoint place) const;
    bool isChosenLabel(const QModelIndex &index, QPoint place) const;
    void act(QKeyEvent &event);
    bool runCommand(const QKeyEvent &event);
    void letUser(const std::function<void()> &act, Node *pressed = nullptr);
    void keepSelectionShown();
    bool raiseFolded();
    void raiseNodeCheck();
    void toggleCurrent();
    void noteLabel(Node &node, const QString &text);

    std::unique_ptr<NodeTreeBody> d;
};

} // namespace ORVTListview
