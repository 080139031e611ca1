#include "workbench/views/TableMenu.h"

#include "project/ProjectColumns.h"
#include "project/controller/PointReading.h"
#include "workbench/FreeKeys.h"
#include "workbench/KeyText.h"
#include "workbench/PointTables.h"
#include "workbench/PointsMenu.h"
#include "workbench/ProgramNavigation.h"
#include "workbench/ProjectView.h"
#include "workbench/renaming/PointRenaming.h"
#include "workbench/views/TableViews.h"

#include <ORVTListview/ListGrid.h>
#include <ORVTListview/ReportList.h>

#include <QtGui/QAction>
#include <QtGui/QKeyEvent>
#include <QtGui/QKeySequence>
#include <QtWidgets/QMenu>

namespace ORVTListview {
namespace {

struct Command
{
    QString caption;
    QKeySequence keys; // shown; those of the window's menus
    bool isPossible = true;
};

// Done when the menu has closed.
template <typename Act>
void add(QMenu &menu, const Command &command, QObject *receiver, const Act &act)
{
    QAction *action = menu.addAction(withFreeKey(command.caption, menu));
    action->setShortcut(command.keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setEnabled(command.isPossible);
    QObject::connect(action, &QAction::triggered, receiver, act, Qt::QueuedConnection);
}

} // namespace

TableMenu::TableMenu(const Acts &acts, QObject *parent)
    : QObject(parent)
    , m_acts(acts)
{
    connect(&acts.view.tables(), &TableViews::made, this,
            [this](const ORVListView &list, PointTables &table) {
                connect(list.listView()->grid(), &ListGrid::menuOpening, this,
                        [this, &table](QMenu *menu) { fill(*menu, table); });
                takeKeys(*list.listView(), table);
            });
}

void TableMenu::takeKeys(ReportList &list, const PointTables &table)
{
    auto *remove = new QAction(&list);
    remove->setShortcut(PointsMenu::removeKey);
    remove->setShortcutContext(Qt::WidgetShortcut);
    remove->setAutoRepeat(false); // a key that is held would take away one after the other
    list.addAction(remove);
    connect(remove, &QAction::triggered, &table, [this, &table] {
        if (table.selectedPoint() >= 0)
            m_acts.renaming.remove(table.type(), table.selectedPoint());
        else
            Q_EMIT told(tr("There is no point in this row."));
    });
    list.installEventFilter(this);
}

// Delete is the grid's, for cells that are edited.
bool TableMenu::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && !m_acts.view.tables().editsCells()) {
        const auto &key = static_cast<const QKeyEvent &>(*event);
        if (key.key() == Qt::Key_Delete && key.modifiers() == Qt::NoModifier)
            Q_EMIT told(tr("%1 empties cells while Edit Cells is on; %2 removes the point.")
                            .arg(keyText(Qt::Key_Delete), keyText(PointsMenu::removeKey)));
    }
    return QObject::eventFilter(watched, event);
}

void TableMenu::fill(QMenu &menu, PointTables &table)
{
    const LwType type = table.type();
    const bool isPoint = table.selectedPoint() >= 0;
    PointReading &reading = m_acts.reading;
    add(menu, {PointsMenu::tr("&Read Values"), Qt::Key_F5, reading.canRead(type)}, &reading,
        [&reading, type] { reading.read(type); });
    menu.addSeparator();
    addPoint(menu, table, isPoint);
    menu.addSeparator();
    addWays(menu, isPoint && isVocabularyType(type));
}

void TableMenu::addPoint(QMenu &menu, PointTables &table, bool isPoint)
{
    const LwType type = table.type();
    const qsizetype row = table.selectedPoint();
    PointRenaming &renaming = m_acts.renaming;
    add(menu, {PointsMenu::tr("Re&name"), Qt::Key_F2, table.canName()}, &table,
        [&table] { table.editName(); });
    add(menu, {PointsMenu::tr("&Add Point…"), {}}, &renaming,
        [&renaming, type] { renaming.add(type); });
    add(menu, {PointsMenu::tr("&Duplicate Point…"), {}, isPoint}, &renaming,
        [&renaming, type, row] { renaming.duplicate(type, row); });
    add(menu, {PointsMenu::tr("Re&move Point"), PointsMenu::removeKey, isPoint}, &renaming,
        [&renaming, type, row] { renaming.remove(type, row); });
}

void TableMenu::addWays(QMenu &menu, bool isNamed)
{
    ProgramNavigation &navigation = m_acts.navigation;
    add(menu, {tr("Go To First Use"), {}, isNamed}, &navigation,
        [&navigation] { navigation.goToFirstUse(); });
    add(menu, {ProgramNavigation::tr("All &Uses"), Qt::SHIFT | Qt::Key_F12, isNamed}, &navigation,
        [&navigation] { navigation.findUses(); });
}

} // namespace ORVTListview
