#include "workbench/views/ProgramNodes.h"

#include "base/KeyCodes.h"

#include <ORVTListview/Node.h>
#include <ORVTListview/Nodes.h>
#include <ORVTListview/ORVTreeview.h>

#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr auto keyMark = "Program:"_L1;
constexpr qint16 altShift = 5;

QString keyOf(qint32 program)
{
    return keyMark + QString::number(program);
}

} // namespace

ProgramNodes::ProgramNodes(ORVTreeview &tree)
    : QObject(&tree)
    , m_tree(tree)
{
    connect(&tree, &ORVTreeview::KeyDown, this, &ProgramNodes::takeKey);
    connect(&tree, &ORVTreeview::BeforeLabelEdit, this,
            [this] { m_named = programOf(m_tree.SelectedItem()); });
    connect(&tree, &ORVTreeview::AfterLabelEdit, this, &ProgramNodes::takeName);
    // A name goes into a program, but not that of a program.
    connect(&tree, &ORVTreeview::OLEStartDrag, this, [this](const DataObject *, qint32 &effects) {
        if (programOf(m_tree.SelectedItem()) > 0)
            effects = 0;
    });
}

QString ProgramNodes::category() const
{
    return m_tree.GetItemKey(dsCode);
}

qint32 ProgramNodes::programOf(const Node *node)
{
    return node && node->Key().startsWith(keyMark) ? node->Key().sliced(keyMark.size()).toInt() : 0;
}

Node *ProgramNodes::nodeOf(qint32 program) const
{
    const QString key = keyOf(program);
    return m_tree.Nodes()->Contains(key) ? m_tree.Nodes()->Item(key) : nullptr;
}

// Anew, unless it is as it was: what users have folded stays so.
void ProgramNodes::setList(const ProgramList &list)
{
    const ProgramList shown = list.size() > 1 ? list : ProgramList();
    if (shown == m_shown || !m_tree.Nodes()->Contains(category()))
        return;
    const qint32 selected = programOf(m_tree.SelectedItem());
    for (const ProjectProgram &program : m_shown) {
        if (nodeOf(program.id))
            m_tree.Nodes()->Remove(keyOf(program.id));
    }
    const bool isFirst = m_shown.isEmpty();
    m_shown = shown;
    for (const ProjectProgram &program : shown)
        add(program);
    if (isFirst && !shown.isEmpty())
        m_tree.Nodes()->Item(category())->setExpanded(true);
    if (selected > 0)
        m_tree.setSelectedItem(nodeOf(selected) ? nodeOf(selected)
                                                : m_tree.Nodes()->Item(category()));
}

void ProgramNodes::add(const ProjectProgram &program)
{
    Node *above = m_tree.Nodes()->Item(category());
    m_tree.Nodes()->Add(above, NodeRelationship::Child, keyOf(program.id), program.name,
                        above->Image());
}

// As the tree has it for its categories. Queued: the tree is at work on the key.
void ProgramNodes::takeKey(qint16 &key, qint16 shift)
{
    const qint32 program = programOf(m_tree.SelectedItem());
    if (program == 0)
        return;
    if (shift == altShift && (key == UpKey || key == DownKey)) {
        const int by = key == UpKey ? -1 : 1;
        QMetaObject::invokeMethod(
            this, [this, program, by] { Q_EMIT moveWanted(program, by); }, Qt::QueuedConnection);
        key = 0;
    } else if (shift == 0 && key == DeleteKey) {
        QMetaObject::invokeMethod(
            this, [this, program] { Q_EMIT removeWanted(program); }, Qt::QueuedConnection);
        key = 0;
    }
}

// The project decides what a program is called. Queued: the field is still open.
void ProgramNodes::takeName(qint16 &cancel, const QString &name)
{
    const qint32 program = std::exchange(m_named, 0);
    if (program == 0)
        return;
    cancel = 1;
    QMetaObject::invokeMethod(
        this, [this, program, name] { Q_EMIT renameWanted(program, name); }, Qt::QueuedConnection);
}

} // namespace ORVTListview
