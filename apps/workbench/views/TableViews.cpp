#include "workbench/views/TableViews.h"

#include "project/Project.h"
#include "project/ProjectColumns.h"
#include "project/ProjectDocument.h"
#include "shared/points/DisplayNames.h"
#include "workbench/PointCells.h"
#include "workbench/PointTables.h"
#include "workbench/views/RowDrags.h"
#include "workbench/views/ViewDock.h"
#include "workbench/views/Workplace.h"

#include <ORVTListview/ORVListView.h>

#include <QtCore/QStringList>

#include <algorithm>
#include <utility>

namespace ORVTListview {

TableViews::TableViews(ProjectDocument &document, Workplace &workplace)
    : QObject(&workplace)
    , m_document(document)
    , m_workplace(workplace)
{
}

void TableViews::setProject(Project *project)
{
    m_project = project;
    m_showsOverrides = project && project->controller().isHOASupported;
    for (auto &[type, table] : m_tables) {
        table.points->setProject(project);
        table.points->show(type);
        table.isStale = false;
    }
}

ViewDock &TableViews::dock(LwType type)
{
    const auto known = m_tables.find(type);
    return known != m_tables.end() ? *known->second.dock : *make(type).dock;
}

TableViews::Table &TableViews::make(LwType type)
{
    auto *dock = new ViewDock(displayName(type), &m_workplace);
    ORVListView &list = dock->view();
    Table &table = m_tables[type];
    table = {dock, new PointTables(list), new PointCells(list, m_document)};
    new RowDrags(list);
    m_workplace.add(*dock, neighbour());
    relay(*table.points);
    connect(dock, &ViewDock::seenChanged, this, [this, &table](bool isSeen) {
        if (isSeen && std::exchange(table.isStale, false))
            update(table);
    });
    table.points->setProject(m_project);
    table.points->setShowsOverrides(m_showsOverrides);
    table.points->show(type);
    table.cells->setOn(m_editsCells);
    dock->setTitle(table.points->title());
    Q_EMIT made(list, *table.points);
    return table;
}

// The table that was used last, so that tables keep together; else what there is.
ViewDock *TableViews::neighbour() const
{
    const QList<ViewDock *> used = m_workplace.used();
    const auto table = std::find_if(used.cbegin(), used.cend(), [this](const ViewDock *dock) {
        return tableIn(dock) && !dock->isFloating();
    });
    return table != used.cend() ? *table : used.value(0);
}

void TableViews::relay(const PointTables &points)
{
    connect(&points, &PointTables::renameWanted, this, &TableViews::renameWanted);
    connect(&points, &PointTables::pointWanted, this, &TableViews::pointWanted);
    connect(&points, &PointTables::refused, this, &TableViews::refused);
}

QStringList TableViews::opened() const
{
    QStringList names;
    for (const auto &[type, table] : m_tables) {
        if (!table.dock->isHidden())
            names.append(displayName(type));
    }
    return names;
}

void TableViews::open(const QStringList &names)
{
    for (const LwType type : projectTypes()) {
        if (names.contains(displayName(type)))
            dock(type).show();
    }
}

PointTables *TableViews::tableIn(const ViewDock *dock) const
{
    for (const auto &[type, table] : m_tables) {
        if (table.dock == dock)
            return table.points;
    }
    return nullptr;
}

void TableViews::setEditsCells(bool on)
{
    m_editsCells = on;
    for (const auto &[type, table] : m_tables)
        table.cells->setOn(on);
}

void TableViews::setShowsOverrides(bool on)
{
    m_showsOverrides = on;
    for (const auto &[type, table] : m_tables)
        table.points->setShowsOverrides(on);
}

void TableViews::refresh()
{
    for (auto &[type, table] : m_tables) {
        table.isStale = !table.dock->isSeen();
        if (!table.isStale)
            update(table);
    }
}

void TableViews::update(Table &table)
{
    if (m_project)
        table.points->showRows();
}

void TableViews::retranslate()
{
    for (const auto &[type, table] : m_tables) {
        table.dock->view().ReInitializeStrings();
        table.dock->setTitle(table.points->title());
        table.cells->setRules();
        if (m_project)
            table.points->fill();
    }
}

} // namespace ORVTListview
