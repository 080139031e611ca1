#pragma once

#include <ORVTListview/Export.h>
#include <ORVTListview/IndexedName.h>
#include <ORVTListview/InputComponent.h>
#include <ORVTListview/KeyedCollection.h>
#include <ORVTListview/Node.h>
#include <ORVTListview/Nodes.h>
#include <ORVTListview/PointCollection.h>
#include <ORVTListview/Types.h>

#include <memory>

namespace ORVTListview {

// The navigation tree of a controller project, and the keeper of the vocabulary
// that the code editors of its thread share.
//
// The tree shows the device, below it pages, below them the thirteen categories of
// points. On which page a category stands is the user's arrangement: it is read
// from the settings when the tree is made and saved when it is destroyed, as the
// nodes stand then. Users drag a category onto another page, or move it with
// Alt+Shift+Up and Down.
//
// Nodes are told apart by their tags: -1 is the device, 0 to 12 the category of
// that LwType, 13 and up a page, whose number is the tag less 13. Keys are
// "Device", "Page0" and up, and the untranslated display names.
//
// Members raise Error and nothing else. X and Y are twips from the tree's corner.
class ORVT_EXPORT ORVTreeview : public InputComponent
{
    Q_OBJECT
    Q_PROPERTY(ORVTListview::Node *SelectedItem READ SelectedItem WRITE setSelectedItem NOTIFY
                   selectedItemChanged DESIGNABLE false STORED false)

public:
    explicit ORVTreeview(QWidget *parent = nullptr);

    // Saves the arrangement. No failure is reported.
    ~ORVTreeview() override;

    const MemberTable &Members() const override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // A tree on a form that is being designed saves nothing.
    Q_INVOKABLE bool isDesignMode() const;
    Q_INVOKABLE void setDesignMode(bool on);

    // --- The tree ---

    // The first is the device. The tree owns them; see there how long a node is good.
    Q_INVOKABLE ORVTListview::Nodes *Nodes() const;

    // Null for none. Setting it scrolls nothing (Node::EnsureVisible does) and raises
    // none of the events.
    Node *SelectedItem() const;
    void setSelectedItem(ORVTListview::Node *Item);

    // The node in whose row the point is, null beside the rows.
    Q_INVOKABLE ORVTListview::Node *HitTest(float X, float Y) const;

    // The text colour of a category. A type outside 0 to 12 is ignored; a category
    // whose node is gone raises Error (InvalidCall).
    Q_INVOKABLE void SetNodeForeColor(ORVTListview::LwType Index, qint32 Color);

    // Starts a drag of the selected node once the event at hand is over, if a mouse
    // button is down. The result is of no meaning.
    Q_INVOKABLE QVariant OLEDrag();

    // --- Texts ---

    // Shows the texts of the provider as they were last fetched. Texts that the host
    // or the user has changed, and pages from the sixth on, stay as they are.
    Q_INVOKABLE void InitStrings();

    // Fetches the texts first, if the provider has changed them.
    Q_INVOKABLE void ReInitializeStrings();

    // --- Pages and types ---

    // The arrangement as it was when the tree was made, one record for each page.
    Q_INVOKABLE QList<ORVTListview::Pages> GetPageSettings() const;

    // The page that a node is or stands on; -1 for the device. It is the tags that
    // are asked, so another number in them gives another page. Raises Error for null
    // or a removed node (ObjectNotSet), a tag that is no 16-bit number
    // (TypeMismatch, Overflow) and a category at the top level (ObjectNotSet).
    Q_INVOKABLE qint16 GetPageNumber(ORVTListview::Node *tvNode) const;

    // The highest LwType.
    Q_INVOKABLE qint16 GetItemsBound() const;

    // The display name of a type; empty for a number that is none.
    Q_INVOKABLE QString GetItemKey(qint16 Index) const;

    // The display names under "Key" and the type's number, and the types' numbers
    // under their display names. Both are new on each call and have the same order,
    // which is not that of the numbers.
    Q_INVOKABLE ORVTListview::KeyedCollection<QString> GetLWTypeKeyCollection() const;
    Q_INVOKABLE ORVTListview::KeyedCollection<qint32> GetLWTypeIndexCollection() const;

    // --- The project, for all components of this thread ---

    // Hands over the project's points. The form and the collections are kept by
    // reference and may be null; the host owns them and may destroy them at any
    // time. Refill the word index afterwards
    // (ORVListView::RefillListviewWithWordList); PointLists need it only once.
    Q_INVOKABLE void SetCollectionRenamable(QWidget *fParent,
                                            ORVTListview::PointCollection *ColVars,
                                            ORVTListview::PointCollection *ColConsts,
                                            ORVTListview::PointCollection *ColInputs,
                                            ORVTListview::PointCollection *ColOutputs,
                                            ORVTListview::PointCollection *ColNvis);

    // Families of numbered names, kept by reference; null for none. They become
    // reserved words, and the word index is refilled. Raises Error and changes nothing
    // when a family has more than 100,000 names (Overflow) or the collection fails; and
    // Error when a collection of points does, which keeps the index.
    Q_INVOKABLE void setStringIndexCollection(ORVTListview::IndexedNameCollection *Names);

    // How many points there are of each kind. Kept for hosts; nothing here reads them.
    Q_INVOKABLE void Init_Values(qint16 Inputs, qint16 Outputs, qint16 Constants, qint16 Variables,
                                 qint16 Controllers, qint16 Schedules, qint16 Timers, qint16 Oss,
                                 qint16 FPAInputs, qint16 FPAOutputs);

    // See ORVListView::setIsSqrtSupported.
    Q_INVOKABLE void setIsSqrtSupported(const QString &Value);

Q_SIGNALS:
    // What the user does, beside the events of InputComponent. A receiver may do
    // anything, destroying the tree included. What is marked & may be changed.
    //
    // A drag of a category carries its key, allows copy and move at first, and is told
    // as a move over the pages that would take it. Set the effects to 0 to refuse, in
    // any of OLEStartDrag, OLEDragOver and OLEDragDrop. Any other drag comes to
    // OLEDragOver with the effect 0, which refuses it unless it is changed.
    //
    // By number: 1 AfterLabelEdit, 2 BeforeLabelEdit, 3 Click, 4 Collapse, 5 DblClick,
    // 6 Expand, 7 KeyDown, 8 KeyPress, 9 KeyUp, 10 MouseDown, 11 MouseMove, 12 MouseUp,
    // 13 NodeCheck, 14 NodeClick, 15 OLECompleteDrag, 16 OLEDragDrop, 17 OLEDragOver,
    // 18 OLEGiveFeedback, 19 OLESetData, 20 OLEStartDrag, 21 UpdatePages.

    // NewString is what was entered; Cancel other than 0 drops it.
    void AfterLabelEdit(qint16 &Cancel, QString &NewString);

    // Cancel other than 0 keeps the editor from opening.
    void BeforeLabelEdit(qint16 &Cancel);

    // The left button was pressed and released. Node is null beside the nodes.
    void Click(ORVTListview::Node *Node);

    // The user has hidden what is below the node.
    void Collapse(ORVTListview::Node *Node);

    // The left button was pressed twice. Node is null beside the nodes.
    void DblClick(ORVTListview::Node *Node);

    // The user has shown what is below the node.
    void Expand(ORVTListview::Node *Node);

    // Button is 1 left, 2 right, 4 middle; MouseMove tells the sum of those held.
    void MouseDown(qint16 Button, qint16 Shift, float X, float Y);
    void MouseMove(qint16 Button, qint16 Shift, float X, float Y);
    void MouseUp(qint16 Button, qint16 Shift, float X, float Y);

    // The user has checked or unchecked a node. There are boxes only if the host
    // sets the property checkBoxes of the child widget TreeView1.
    void NodeCheck(ORVTListview::Node *Node);

    // A node was pressed, or reached by keyboard.
    void NodeClick(ORVTListview::Node *Node);

    // Published; never raised. GetPageSettings and the nodes tell the pages.
    void UpdatePages(QList<ORVTListview::Pages> &Pages);

    // Not an event: another node is selected now, or none, whoever changed it; before
    // NodeClick, or soon after what removes the node.
    void selectedItemChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void forwardEvents();
    void tellSelection();
    void save() const noexcept;

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace ORVTListview
