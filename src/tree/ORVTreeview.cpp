#include <ORVTListview/ORVTreeview.h>

#include "base/ShortInteger.h"
#include "base/ThreadState.h"
#include "editor/rules/colouring/ThreadColouring.h"
#include "editor/rules/language/Vocabulary.h"
#include "shared/points/DisplayNames.h"
#include "shared/points/HostForms.h"
#include "shared/texts/TextTable.h"
#include "tree/CategoryMoves.h"
#include "tree/ProjectNodes.h"
#include "tree/rules/PageArrangement.h"
#include "tree/rules/PointCounts.h"
#include "tree/rules/TypeCollections.h"
#include "widgets/component/ToldProperties.h"
#include "widgets/input/DragEvents.h"
#include "widgets/input/RelayedEvents.h"
#include "widgets/look/Pictures.h"
#include "widgets/nodes/NodeTree.h"
#include <ORVTListview/Error.h>
#include <ORVTListview/ImageList.h>

#include <exception>

namespace ORVTListview {

using namespace Qt::StringLiterals;

struct ORVTreeview::Private
{
    explicit Private(ORVTreeview *control)
        : tree(new NodeTree(control))
        , nodes(*tree)
        , moves(*tree, nodes)
    {
        Pictures::fillInto(images);
        tree->setObjectName(u"TreeView1"_s);
        tree->setPictureProvider([this](const QString &key) { return images.Picture(key); });
        tree->setDragEnabled(true);
        tree->setDraggable([](const Node &node) {
            return ProjectNodes::categoryOf(node).has_value() || ProjectNodes::isPoint(node);
        });
        tree->setDraggedName(
            [](const Node &node) { return ProjectNodes::isPoint(node) ? node.Text() : QString(); });
        tree->setDragEffects(DragEvents::Copy | DragEvents::Move);
        tree->setAcceptDrops(true);
        tree->setDropTarget(&moves);
        tree->setKeyCommand([this](const QKeyEvent &event) { return moves.handleKey(event); });
    }

    ImageList images;
    NodeTree *tree; // a child of the control
    ProjectNodes nodes;
    CategoryMoves moves;
    QList<Pages> pages; // as loaded
    bool designs = false;
    ToldProperties<ORVTreeview> told;
};

ORVTreeview::ORVTreeview(QWidget *parent)
    : InputComponent(parent)
    , d(std::make_unique<Private>(this))
{
    setFocusPolicy(Qt::TabFocus); // else no call puts the control into a tab order
    setFocusProxy(d->tree);
    forwardEvents();
    d->pages = PageArrangement::load();
    d->nodes.build(d->pages);
    tellSelection();
}

ORVTreeview::~ORVTreeview()
{
    if (!d->designs)
        save();
    delete d->tree; // before what it is set up with
}

// Nothing may leave a destructor.
void ORVTreeview::save() const noexcept
{
    try {
        PageArrangement::save(d->nodes.places());
    } catch (const std::exception &error) {
        qWarning("The arrangement of the pages was not saved: %s", error.what());
    }
}

void ORVTreeview::forwardEvents()
{
    const NodeTree *tree = d->tree;
    connect(tree, &NodeTree::AfterLabelEdit, this, &ORVTreeview::AfterLabelEdit);
    connect(tree, &NodeTree::BeforeLabelEdit, this, &ORVTreeview::BeforeLabelEdit);
    relayClicks(tree, this);
    connect(tree, &NodeTree::Collapse, this, &ORVTreeview::Collapse);
    connect(tree, &NodeTree::Expand, this, &ORVTreeview::Expand);
    relayKeys(tree, this);
    relayMouse(tree, this);
    connect(tree, &NodeTree::NodeCheck, this, &ORVTreeview::NodeCheck);
    connect(tree, &NodeTree::NodeClick, this, [this] { d->told.tell(*this); });
    connect(tree, &NodeTree::NodeClick, this, &ORVTreeview::NodeClick);
    relayDrags(&tree->drags(), this);
}

void ORVTreeview::tellSelection()
{
    d->told.add(*this, &ORVTreeview::SelectedItem, &ORVTreeview::selectedItemChanged);
    const auto tell = [this] { d->told.tell(*this); };
    const auto tellSoon = [this, tell] {
        QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    };
    // The toolkit is at work on the nodes still.
    const QAbstractItemModel *model = d->tree->model();
    connect(d->tree->selectionModel(), &QItemSelectionModel::selectionChanged, this, tellSoon);
    connect(model, &QAbstractItemModel::rowsRemoved, this, tellSoon);
    connect(model, &QAbstractItemModel::modelReset, this, tellSoon);
}

QSize ORVTreeview::sizeHint() const
{
    return d->tree->sizeHint();
}

QSize ORVTreeview::minimumSizeHint() const
{
    return d->tree->minimumSizeHint();
}

void ORVTreeview::resizeEvent(QResizeEvent *)
{
    d->tree->setGeometry(rect());
}

bool ORVTreeview::isDesignMode() const
{
    return d->designs;
}

void ORVTreeview::setDesignMode(bool on)
{
    d->designs = on;
}

Nodes *ORVTreeview::Nodes() const
{
    return d->tree->Nodes();
}

Node *ORVTreeview::SelectedItem() const
{
    return d->tree->SelectedItem();
}

void ORVTreeview::setSelectedItem(Node *Item)
{
    d->tree->setSelectedItem(Item);
    d->told.tell(*this);
}

Node *ORVTreeview::HitTest(float X, float Y) const
{
    return d->tree->HitTest(X, Y);
}

void ORVTreeview::SetNodeForeColor(LwType Index, qint32 Color)
{
    if (isType(Index))
        Nodes()->Item(displayName(Index))->setForeColor(Color);
}

QVariant ORVTreeview::OLEDrag()
{
    d->tree->OLEDrag();
    return {};
}

void ORVTreeview::InitStrings()
{
    d->nodes.localise();
}

void ORVTreeview::ReInitializeStrings()
{
    threadPart<TextTable>().refresh();
    InitStrings();
}

QList<Pages> ORVTreeview::GetPageSettings() const
{
    return d->pages;
}

qint16 ORVTreeview::GetPageNumber(Node *tvNode) const
{
    const QString member = u"ORVTreeview.GetPageNumber"_s;
    for (const Node *node = tvNode; node; node = node->Parent()) {
        const qint16 tag = toShortInteger(node->Tag(), member);
        if (tag == PageArrangement::deviceTag)
            return tag;
        if (!isType(tag))
            return toShortInteger(tag - PageArrangement::pageTag, member);
    }
    throw Error(ObjectNotSet, member, u"There is no such node"_s);
}

qint16 ORVTreeview::GetItemsBound() const
{
    return highestType;
}

QString ORVTreeview::GetItemKey(qint16 Index) const
{
    return displayName(Index);
}

KeyedCollection<QString> ORVTreeview::GetLWTypeKeyCollection() const
{
    return TypeCollections::names();
}

KeyedCollection<qint32> ORVTreeview::GetLWTypeIndexCollection() const
{
    return TypeCollections::values();
}

void ORVTreeview::SetCollectionRenamable(QWidget *fParent, PointCollection *ColVars,
                                         PointCollection *ColConsts, PointCollection *ColInputs,
                                         PointCollection *ColOutputs, PointCollection *ColNvis)
{
    threadPart<HostForms>().pointOwner = fParent;
    threadPart<Vocabulary>().setCollections({ColVars, ColConsts, ColInputs, ColOutputs, ColNvis});
}

void ORVTreeview::setStringIndexCollection(IndexedNameCollection *Names)
{
    threadPart<Vocabulary>().setIndexedNames(Names);
    refillThreadWordList();
}

void ORVTreeview::Init_Values(qint16 Inputs, qint16 Outputs, qint16 Constants, qint16 Variables,
                              qint16 Controllers, qint16 Schedules, qint16 Timers, qint16 Oss,
                              qint16 FPAInputs, qint16 FPAOutputs)
{
    threadPart<PointCounts>() = {Inputs,    Outputs, Constants, Variables, Controllers,
                                 Schedules, Timers,  Oss,       FPAInputs, FPAOutputs};
}

void ORVTreeview::setIsSqrtSupported(const QString &Value)
{
    threadPart<Vocabulary>().setIsSqrtSupported(Value);
}

} // namespace ORVTListview
