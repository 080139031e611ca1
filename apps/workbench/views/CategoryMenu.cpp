#include "workbench/views/CategoryMenu.h"

#include "base/KeyCodes.h"
#include "project/controller/PointRows.h"
#include "shared/points/DisplayNames.h"
#include "workbench/ProjectView.h"
#include "workbench/reading/ControllerMenu.h"
#include "workbench/views/Workplace.h"

#include <ORVTListview/Node.h>

#include <QtGui/QAction>
#include <QtWidgets/QMenu>

namespace ORVTListview {

CategoryMenu::CategoryMenu(ProjectView &view)
    : QObject(&view)
    , m_view(view)
{
    ORVTreeview &tree = view.tree();
    tree.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&tree, &QWidget::customContextMenuRequested, this, &CategoryMenu::open);
    connect(&tree, &ORVTreeview::DblClick, this, &CategoryMenu::enter);
    connect(&tree, &ORVTreeview::KeyDown, this, [this](qint16 &key, qint16 shift) {
        if (key == EnterKey && shift == 0)
            enter(m_view.tree().SelectedItem());
    });
}

std::optional<LwType> CategoryMenu::typeOf(const Node *node)
{
    const int type = node && !node->Tag().isNull() ? node->Tag().toInt() : -1;
    if (!isType(type))
        return {};
    return static_cast<LwType>(type);
}

void CategoryMenu::enter(const Node *node)
{
    if (const auto type = typeOf(node))
        m_view.enterType(*type);
}

void CategoryMenu::open(const QPoint &place)
{
    const auto type = typeOf(m_view.tree().SelectedItem());
    if (!type)
        return;
    auto *menu = new QMenu(&m_view);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(tr("&Open"), this, [this, type] { m_view.enterType(*type); });
    const bool isAlone = m_view.workplace().shown().size() < 2;
    for (QAction *action :
         {menu->addAction(tr("Show &Beside"), this, [this, type] { split(*type, Qt::Horizontal); }),
          menu->addAction(tr("Show Belo&w"), this, [this, type] { split(*type, Qt::Vertical); })})
        action->setEnabled(!isAlone || m_view.current().CurrentType() != *type);
    if (valueColumn(*type) >= 0)
        menu->addAction(ControllerMenu::tr("A&dd To Trend"), &m_view,
                        [this, type] { Q_EMIT m_view.trendWanted(*type); });
    menu->popup(m_view.tree().mapToGlobal(place));
}

void CategoryMenu::split(LwType type, Qt::Orientation orientation)
{
    m_view.enterType(type);
    m_view.workplace().splitCurrent(orientation);
}

} // namespace ORVTListview
