#include "PointsMenu.h"

#include "PointKindMenu.h"
#include "PointTables.h"
#include "ProgramNavigation.h"
#include "ProjectView.h"
#include "project/ProjectColumns.h"
#include "project/ProjectDocument.h"
#include "project/controller/PointReading.h"
#include "workbench/importing/PointImporting.h"
#include "workbench/renaming/PointRenaming.h"
#include "workbench/views/TableViews.h"

#include <QtGui/QAction>
#include <QtGui/QKeySequence>

namespace ORVTListview {

PointsMenu::PointsMenu(ProjectView &view, const ProjectDocument &document, const Acts &acts,
                       QWidget *parent)
    : QMenu(tr("P&oints"), parent)
    , m_view(view)
    , m_document(document)
    , m_reading(acts.reading)
    , m_navigation(acts.navigation)
{
    m_read = addAction(tr("&Read Values"), QKeySequence(Qt::Key_F5), &acts.reading,
                       [this] { m_reading.read(type()); });
    addPoints(acts.renaming, acts.importing);
    m_fit = addAction(tr("&Fit Columns"), &view, [this] {
        if (PointTables *table = m_view.currentTable())
            table->fitColumns();
    });
    addSeparator();
    addMenu(new PointKindMenu(acts.chooser, this));
    addSeparator();
    addSwitches();
    connect(this, &QMenu::aboutToShow, this, &PointsMenu::refresh);
    // Its key works wherever there is something to read.
    connect(this, &QMenu::aboutToHide, m_read, [this] { m_read->setEnabled(true); });
}

void PointsMenu::addPoints(PointRenaming &renaming, PointImporting &importing)
{
    m_rename = addAction(tr("Re&name"), &m_view, [this] {
        if (PointTables *table = m_view.currentTable())
            table->editName();
    });
    m_rename->setShortcut(QKeySequence(Qt::Key_F2));
    m_rename->setShortcutContext(Qt::WidgetShortcut); // the table's own
    m_add = addAction(tr("&Add Point…"), &renaming, [this, &renaming] { addPoint(renaming); });
    m_duplicate = addAction(tr("&Duplicate Point…"), &renaming, [this, &renaming] {
        if (const PointTables *table = m_view.currentTable())
            renaming.duplicate(type(), table->selectedPoint());
    });
    m_remove = addAction(tr("Re&move Point"), &renaming, [this, &renaming] {
        if (const PointTables *table = m_view.currentTable())
            renaming.remove(type(), table->selectedPoint());
    });
    m_remove->setShortcut(removeKey);
    m_remove->setShortcutContext(Qt::WidgetShortcut);
    m_import =
        addAction(tr("&Import…"), &importing, [this, &importing] { importing.import(type()); });
}

void PointsMenu::addSwitches()
{
    m_cells = addAction(tr("&Edit Cells"));
    m_cells->setCheckable(true);
    m_cells->setChecked(m_view.tables().editsCells());
    connect(m_cells, &QAction::triggered, &m_view.tables(), &TableViews::setEditsCells);
    m_overrides = addAction(tr("&Hardware Overrides"));
    m_overrides->setCheckable(true);
    connect(m_overrides, &QAction::triggered, &m_view.tables(), &TableViews::setShowsOverrides);
}

LwType PointsMenu::type() const
{
    return m_view.current().CurrentType();
}

// In a program, what the caret stands in and nobody knows is the name to begin with.
void PointsMenu::addPoint(PointRenaming &renaming)
{
    renaming.add(type(), m_navigation.unknownName());
}

void PointsMenu::refresh()
{
    const PointTables *table = m_document.project() ? m_view.currentTable() : nullptr;
    const bool isPoint = table && table->selectedPoint() >= 0;
    m_read->setEnabled(m_reading.canRead(type()));
    m_add->setEnabled(m_document.project());
    m_fit->setEnabled(table);
    m_import->setEnabled(table);
    m_duplicate->setEnabled(isPoint);
    m_remove->setEnabled(isPoint);
    m_rename->setEnabled(table && nameColumn(type()) >= 0); // an empty row is named, too
    m_overrides->setChecked(m_view.tables().showsOverrides());
}

} // namespace ORVTListview
