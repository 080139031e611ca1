#include "workbench/views/CategoryMenu.h"

#include "base/KeyCodes.h"
#include "project/controller/PointRows.h"
#include "shared/points/DisplayNames.h"
#include "workbench/ProjectView.h"
#include "workbench/reading/ControllerMenu.h"
#include "workbench/renaming/ProgramNaming.h"
#include "workbench/views/ProgramNodes.h"
#include "workbench/views/Workplace.h"

#include <ORVTListview/Node.h>

#include <QtGui/QAction>
#include <QtWidgets/QMenu>

namespace ORVTListview {

CategoryMenu::CategoryMenu(ProjectView &view, ProgramNaming &naming)
    : QObject(&view)
    , m_view(view)
    , m_naming(naming)
{
    ORVTreeview &tree = view.tree();
    tree.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&tree, &QWidget::customContextMenuRequested, this, &CategoryMenu::open);
    const auto enterNode = [this](const Node *node) {
        if (const auto target = targetOf(node))
            enter(*target);
    };
    connect(&tree, &ORVTreeview::DblClick, this, enterNode);
    connect(&tree, &ORVTreeview::KeyDown, this, [this, enterNode](qint16 &key, qint16 shift) {
        if (key == EnterKey && shift == 0)
            enterNode(m_view.tree().SelectedItem());
    });
    // The tables have the names of their types.
    connect(&tree, &ORVTreeview::BeforeLabelEdit, this, [&tree](qint16 &cancel) {
        const Node *node = tree.SelectedItem();
        if (ProgramNodes::programOf(node) == 0 && typeOf(node))
            cancel = 1;
    });
    const ProgramNodes &programs = view.programNodes();
    connect(&programs, &ProgramNodes::renameWanted, &naming, &ProgramNaming::renameTo);
    connect(&programs, &ProgramNodes::moveWanted, &naming, &ProgramNaming::move);
    connect(&programs, &ProgramNodes::removeWanted, &naming, &ProgramNaming::remove);
}

std::optional<LwType> CategoryMenu::typeOf(const Node *node)
{
    const int type = node && !node->Tag().isNull() ? node->Tag().toInt() : -1;
    if (!isType(type))
        return {};
    return static_cast<LwType>(type);
}

std::optional<CategoryMenu::Target> CategoryMenu::targetOf(const Node *node)
{
    if (const qint32 program = ProgramNodes::programOf(node); program > 0)
        return Target{dsCode, program};
    if (const auto type = typeOf(node))
        return Target{*type, 0};
    return {};
}

void CategoryMenu::enter(const Target &target)
{
    if (target.program > 0)
        m_view.enterProgram(target.program);
    else
        m_view.enterType(target.type);
}

void CategoryMenu::open(const QPoint &place)
{
    const auto target = targetOf(m_view.tree().SelectedItem());
    if (!target)
        return;
    auto *menu = new QMenu(&m_view);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    addViews(*menu, *target);
    if (target->type == dsCode)
        addPrograms(*menu, target->program);
    if (valueColumn(target->type) >= 0)
        menu->addAction(ControllerMenu::tr("A&dd To Trend"), &m_view,
                        [this, type = target->type] { Q_EMIT m_view.trendWanted(type); });
    menu->popup(m_view.tree().mapToGlobal(place));
}

void CategoryMenu::addViews(QMenu &menu, const Target &target)
{
    menu.addAction(tr("&Open"), this, [this, target] { enter(target); });
    const bool isAlone = m_view.workplace().shown().size() < 2;
    for (QAction *action :
         {menu.addAction(tr("Show &Beside"), this,
                         [this, target] { split(target, Qt::Horizontal); }),
          menu.addAction(tr("Show Belo&w"), this, [this, target] { split(target, Qt::Vertical); })})
        action->setEnabled(!isAlone || m_view.current().CurrentType() != target.type);
}

// For the category of the programs it is the one that is used. The keys are the tree's own.
void CategoryMenu::addPrograms(QMenu &menu, qint32 program)
{
    const qint32 meant = program > 0 ? program : m_naming.current();
    ProgramNaming &naming = m_naming;
    const auto add = [&](const QString &text, const QKeySequence &keys, const auto &act) {
        QAction *action = menu.addAction(text, &naming, act);
        action->setShortcut(program > 0 ? keys : QKeySequence());
        action->setShortcutContext(Qt::WidgetShortcut);
        return action;
    };
    menu.addSeparator();
    menu.addAction(tr("A&dd Program…"), &naming, &ProgramNaming::add);
    add(tr("Re&name Program…"), Qt::Key_F2, [&naming, meant] { naming.rename(meant); });
    add(tr("Re&move Program…"), Qt::Key_Delete, [&naming, meant] {
        naming.remove(meant);
    })->setEnabled(naming.canRemove());
    menu.addSeparator();
    add(tr("Move &Up"), Qt::ALT | Qt::SHIFT | Qt::Key_Up, [&naming, meant] {
        naming.move(meant, -1);
    })->setEnabled(naming.canMove(meant, -1));
    add(tr("Mo&ve Down"), Qt::ALT | Qt::SHIFT | Qt::Key_Down, [&naming, meant] {
        naming.move(meant, 1);
    })->setEnabled(naming.canMove(meant, 1));
}

void CategoryMenu::split(const Target &target, Qt::Orientation orientation)
{
    enter(target);
    m_view.workplace().splitCurrent(orientation);
}

} // namespace ORVTListview
