#include "workbench/importing/PointImporting.h"

#include "project/ProjectColumns.h"
#include "project/ProjectDocument.h"
#include "project/TextFile.h"
#include "workbench/PlainTexts.h"
#include "workbench/importing/ImportDialog.h"

#include <ORVTListview/Error.h>

#include <QtCore/QFileInfo>
#include <QtCore/QPointer>
#include <QtWidgets/QFileDialog>

namespace ORVTListview {

PointImporting::PointImporting(ProjectDocument &document, QWidget &window)
    : QObject(&window)
    , m_document(document)
    , m_window(window)
{
}

void PointImporting::import(LwType type)
{
    if (!m_document.project() || projectColumns(type).isEmpty())
        return;
    const QString folder = QFileInfo(m_document.project()->fileName()).path();
    const QPointer<PointImporting> self(this);
    const QString fileName = QFileDialog::getOpenFileName(
        &m_window, tr("Import Points"), folder,
        tr("Tables as text (*.csv *.tsv *.txt)") + QStringLiteral(";;") + tr("All files (*)"));
    if (self && !fileName.isEmpty())
        importFile(type, fileName);
}

void PointImporting::importFile(LwType type, const QString &fileName)
{
    const Project *project = m_document.project();
    if (!project || projectColumns(type).isEmpty())
        return;
    QByteArray bytes;
    try {
        bytes = readFile(fileName);
    } catch (const Error &error) {
        PlainTexts::warn(m_window, tr("Import Points"), error.Description());
        return;
    }
    const QList<ProjectRow> before = project->rows(type);
    ImportDialog dialog(*project, type, bytes, QFileInfo(fileName).fileName(), &m_window);
    const QPointer<PointImporting> self(this);
    const bool isWanted = dialog.exec() == QDialog::Accepted;
    const bool isSame = self && m_document.project() == project && project->rows(type) == before;
    if (!isWanted || !isSame)
        return;
    const RowChanges changes = dialog.changes();
    m_document.carryOut(changes);
    Q_EMIT told(tr("Points imported: %1").arg(changes.size()));
}

} // namespace ORVTListview
