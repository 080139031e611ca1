#include "PointsMenu.h"

#include "PointCells.h"
#include "PointTables.h"
#include "ProjectView.h"
#include "project/ProjectColumns.h"
#include "project/ProjectDocument.h"
#include "workbench/renaming/PointRenaming.h"

#include <QtGui/QAction>
#include <QtGui/QKeySequence>

namespace ORVTListview {

PointsMenu::PointsMenu(ProjectView &view, const ProjectDocument &document, PointRenaming &renaming,
                       QWidget *parent)
    : QMenu(tr("P&oints"), parent)
    , m_view(view)
    , m_document(document)
{
    addAction(tr("&Read Values"), QKeySequence(Qt::Key_F5), &view,
              [&view] { view.tables().read(view.list().CurrentType()); });
    addPoints(renaming);
    addAction(tr("&Fit Columns"), &view.tables(), &PointTables::fitColumns);
    addSeparator();
    addSwitches();
    connect(this, &QMenu::aboutToShow, this, &PointsMenu::refresh);
}

void PointsMenu::addPoints(PointRenaming &renaming)
{
    m_rename = addAction(tr("Re&name"), &m_view.tables(), &PointTables::editName);
    m_rename->setShortcut(QKeySequence(Qt::Key_F2));
    m_rename->setShortcutContext(Qt::WidgetShortcut); // the table's own
    m_add = addAction(tr("&Add Point…"), &renaming,
                      [this, &renaming] { renaming.add(m_view.list().CurrentType()); });
    m_remove = addAction(tr("Re&move Point"), &renaming, [this, &renaming] {
        renaming.remove(m_view.list().CurrentType(), m_view.tables().selectedPoint());
    });
}

void PointsMenu::addSwitches()
{
    m_cells = addAction(tr("&Edit Cells"));
    m_cells->setCheckable(true);
    m_cells->setChecked(m_view.cells().isOn());
    connect(m_cells, &QAction::triggered, &m_view.cells(), &PointCells::setOn);
    m_overrides = addAction(tr("&Hardware Overrides"));
    m_overrides->setCheckable(true);
    connect(m_overrides, &QAction::triggered, &m_view.tables(), &PointTables::setShowsOverrides);
}

void PointsMenu::refresh()
{
    const LwType type = m_view.list().CurrentType();
    const bool isTable = m_document.project() && type != dsCode;
    const bool isPoint = isTable && m_view.tables().selectedPoint() >= 0;
    m_add->setEnabled(isTable);
    m_remove->setEnabled(isPoint);
    m_rename->setEnabled(isPoint && nameColumn(type) >= 0);
    m_overrides->setChecked(m_view.tables().showsOverrides());
}

} // namespace ORVTListview
