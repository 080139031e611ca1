#include "widgets/grid/GridMenu.h"

#include "shared/texts/MenuTexts.h"
#include "widgets/grid/CellEdit.h"
#include "widgets/grid/CellSteps.h"
#include "widgets/grid/ColumnArranging.h"
#include "widgets/grid/FilterFields.h"
#include "widgets/grid/GridClipboard.h"
#include "widgets/grid/GridKeys.h"
#include "widgets/grid/GridOrder.h"
#include "widgets/grid/RowEditing.h"

#include <QtCore/QMimeData>
#include <QtCore/QPointer>
#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QMenu>
#include <QtWidgets/QTableView>

namespace ORVTListview {

using namespace Qt::StringLiterals;

void GridMenu::setOn(bool on)
{
    m_isOn = on;
    for (QWidget *widget : {static_cast<QWidget *>(&m_grid.view), m_grid.view.viewport(),
                            m_grid.view.horizontalHeader()->viewport()}) {
        widget->removeEventFilter(this);
        if (on)
            widget->installEventFilter(this);
    }
}

bool GridMenu::eventFilter(QObject *watched, QEvent *event)
{
    const QTableView &view = m_grid.view;
    if (event->type() != QEvent::ContextMenu ||
        view.contextMenuPolicy() != Qt::DefaultContextMenu || m_grid.rules.isAtRest(view))
        return QObject::eventFilter(watched, event);
    const auto &asked = *static_cast<const QContextMenuEvent *>(event);
    const QHeaderView *header = view.horizontalHeader();
    const bool isHeader = watched == header->viewport();
    const QModelIndex current = view.currentIndex();
    const bool isKey = asked.reason() == QContextMenuEvent::Keyboard;
    const QPoint atCell = view.viewport()->mapToGlobal(view.visualRect(current).center());
    const int column = isHeader ? m_grid.table.columnAt(asked.pos().x()) : current.column();
    open(column, isHeader, isKey && current.isValid() ? atCell : asked.globalPos());
    return true;
}

void GridMenu::open(int column, bool isHeader, QPoint place)
{
    QList<QList<Command>> groups;
    if (!isHeader)
        groups << cellCommands() << rowCommands();
    groups << orderCommands(column) << columnCommands(column);
    QStringList captions;
    for (const QList<Command> &group : std::as_const(groups)) {
        for (const Command &command : group)
            captions.append(command.caption);
    }
    captions = menuTexts(captions << u"Columns"_s); // no two with one access key
    auto *menu = new QMenu(&m_grid.view);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const QList<Command> &group : std::as_const(groups)) {
        menu->addSeparator();
        for (const Command &command : group) {
            addTo(*menu, command, captions.takeFirst());
        }
    }
    menu->addSeparator();
    if (m_grid.columns.isOn())
        addColumns(*menu->addMenu(captions.constLast()));
    const QPointer<QMenu> alive(menu);
    if (m_follow)
        m_follow(*menu);
    if (alive && menu->isEmpty())
        menu->deleteLater();
    else if (alive)
        menu->popup(place);
}

// Done when the menu has closed, which the list owns and a host may destroy with it.
void GridMenu::addTo(QMenu &menu, const Command &command, const QString &caption)
{
    QAction *action = menu.addAction(caption);
    action->setEnabled(command.isPossible);
    action->setShortcut(QKeySequence(command.keys));
    action->setShortcutContext(Qt::WidgetShortcut); // shown; the grid's own
    const auto act = [this, act = command.act] {
        m_grid.table.settle();
        act();
    };
    connect(action, &QAction::triggered, this, act, Qt::QueuedConnection);
}

// Nothing where the column has gone since.
std::function<void()> GridMenu::forColumn(int column, const std::function<void(int)> &act) const
{
    return [&table = m_grid.table, header = m_grid.table.headerOf(column), act] {
        const int now = table.columnOf(header);
        if (now >= 0)
            act(now);
    };
}

QList<GridMenu::Command> GridMenu::cellCommands() const
{
    const Tools &grid = m_grid;
    const QModelIndex cell = grid.view.currentIndex();
    const bool isEdited = cell.isValid() && grid.rules.isEdited(cell.column());
    QList<Command> commands;
    if (grid.rules.isUsed() || grid.steps.hasHistory())
        commands << Command{u"Undo"_s, grid.steps.canUndo(), [grid = m_grid] { grid.steps.undo(); },
                            u"Ctrl+Z"_s}
                 << Command{u"Redo"_s, grid.steps.canRedo(), [grid = m_grid] { grid.steps.redo(); },
                            u"Ctrl+Y"_s};
    if (grid.rules.isUsed()) {
        commands << Command{u"Edit"_s, isEdited,
                            [grid = m_grid] { grid.edit.open(grid.view.currentIndex()); }, u"F2"_s};
    }
    commands << copyCommands();
    if (grid.rules.isUsed()) {
        const QMimeData *data = QGuiApplication::clipboard()->mimeData();
        commands << Command{u"Paste"_s, isEdited && data && data->hasText(),
                            [grid = m_grid] { grid.clipboard.paste(); }, u"Ctrl+V"_s}
                 << Command{u"Delete"_s, isEdited,
                            [grid = m_grid] { grid.edit.enter(grid.edit.forChosen({})); }, u"Del"_s}
                 << Command{u"Fill Down"_s, isEdited, [grid = m_grid] { grid.keys.fillDown(); },
                            u"Ctrl+D"_s};
    }
    return commands;
}

QList<GridMenu::Command> GridMenu::copyCommands() const
{
    if (!m_copying.isAllowed || !m_copying.isAllowed())
        return {};
    if (!m_grid.selection.isByCells())
        return {{u"Copy"_s, m_grid.view.selectionModel()->hasSelection(), m_copying.copyRows,
                 u"Ctrl+C"_s}};
    if (!m_grid.view.currentIndex().isValid())
        return {};
    return {{u"Copy"_s, true, [grid = m_grid] { grid.clipboard.copy(false); }, u"Ctrl+C"_s},
            {u"Copy with Headers"_s, true, [grid = m_grid] { grid.clipboard.copy(true); },
             u"Ctrl+Shift+C"_s}};
}

QList<GridMenu::Command> GridMenu::rowCommands() const
{
    RowEditing &rows = m_grid.rows;
    if (!rows.isOn())
        return {};
    const bool hasRows = rows.hasRows();
    return {{u"Add Row"_s, true, [&rows] { rows.add(); }, u"Ctrl++"_s},
            {u"Duplicate Rows"_s, hasRows, [&rows] { rows.duplicate(); }, u"Ctrl+Shift+D"_s},
            {u"Remove Rows"_s, hasRows, [&rows] { rows.remove(); }, u"Ctrl+-"_s},
            {u"Move Up"_s, rows.canMove(-1), [&rows] { rows.move(-1); }, u"Alt+Up"_s},
            {u"Move Down"_s, rows.canMove(1), [&rows] { rows.move(1); }, u"Alt+Down"_s}};
}

QList<GridMenu::Command> GridMenu::orderCommands(int column) const
{
    GridOrder &order = m_grid.order;
    QList<Command> commands;
    if (column >= 0 && order.isByHeader())
        commands << Command{u"Sort Upwards"_s, true,
                            forColumn(column,
                                      [&order](int now) {
                                          order.setKeys({{now, false}});
                                      })}
                 << Command{u"Sort Downwards"_s, true,
                            forColumn(column,
                                      [&order](int now) {
                                          order.setKeys({{now, true}});
                                      })}
                 << Command{u"Not Sorted"_s, !order.keys().isEmpty(),
                            [&order] { order.setKeys({}); }};
    if (m_grid.filters.where() != FilterFields::Where::Nowhere)
        commands << Command{u"All Rows"_s, order.isFiltered(), [&order] { order.clearFilters(); }};
    return commands;
}

QList<GridMenu::Command> GridMenu::columnCommands(int column) const
{
    ColumnArranging &columns = m_grid.columns;
    if (!columns.isOn() || column < 0)
        return {};
    return {{u"Fit Column"_s, true, forColumn(column, [&columns](int now) { columns.fit(now); })},
            {u"Fit All Columns"_s, true, [&columns] { columns.fit(-1); }},
            {u"Hide Column"_s, columns.canHide(column),
             forColumn(column, [&columns](int now) { columns.setHidden(now, true); })}};
}

// Each with a mark while it is seen.
void GridMenu::addColumns(QMenu &menu)
{
    ColumnArranging &columns = m_grid.columns;
    for (int column = 0; column < m_grid.table.columns(); ++column) {
        QString text = m_grid.table.columnText(column);
        QAction *action = menu.addAction(text.replace(u'&', u"&&"_s));
        const bool isHidden = m_grid.view.isColumnHidden(column);
        action->setCheckable(true);
        action->setChecked(!isHidden);
        action->setEnabled(isHidden || columns.canHide(column));
        const bool hides = !isHidden;
        const auto act = [&columns, hides](int now) { columns.setHidden(now, hides); };
        connect(action, &QAction::triggered, this, forColumn(column, act), Qt::QueuedConnection);
    }
}

} // namespace ORVTListview
