#include "workbench/renaming/PointRenaming.h"

#include "project/PointUses.h"
#include "project/ProjectColumns.h"
#include "project/ProjectDocument.h"
#include "widgets/box/BoxCommands.h"
#include "workbench/PlainTexts.h"
#include "workbench/renaming/NameQuestion.h"
#include "workbench/renaming/RenameDialog.h"
#include "workbench/views/ProgramViews.h"

#include <ORVTListview/ORVListView.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QPointer>

#include <algorithm>
#include <limits>
#include <optional>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// The places that the user leaves ticked; none when the user gives up, or the window goes.
std::optional<QList<PointUse>> chosenOf(const RenameDialog::Renamed &renamed, QWidget &window)
{
    const QPointer<RenameDialog> dialog(new RenameDialog(renamed, &window));
    const bool isWanted = dialog->exec() == QDialog::Accepted;
    std::optional<QList<PointUse>> chosen;
    if (dialog && isWanted)
        chosen = dialog->chosen();
    delete dialog;
    return chosen;
}

} // namespace

PointRenaming::PointRenaming(ProjectDocument &document, const ProgramViews &programs,
                             QWidget &window)
    : QObject(&window)
    , m_document(document)
    , m_programs(programs)
    , m_window(window)
{
}

void PointRenaming::rename(LwType type, qsizetype row, const QString &name)
{
    if (!m_document.project() || row < 0 || row >= m_document.project()->rows(type).size())
        return;
    const Project &project = *m_document.project();
    const ProjectRow before = project.rows(type).at(row);
    const RowChange point{type, row, before, project.renamed(type, row, name)};
    const ProgramTexts programs = m_document.programs();
    QList<PointUse> uses;
    if (isVocabularyType(type))
        uses = usesOfPoint(project, programs, before.name);
    if (!uses.isEmpty()) {
        const QPointer<PointRenaming> self(this);
        const auto chosen = chosenOf({before.name, name, uses, project.programs()}, m_window);
        const bool isSame = self && m_document.project() == &project &&
                            project.rows(type).value(row) == before &&
                            m_document.programs() == programs; // while the dialog was open
        if (!chosen || !isSame)
            return;
        uses = *chosen;
    }
    const Renaming renaming = renamingOf(project, point, uses);
    ProgramState after{project.programs(), programs};
    for (auto pieces = renaming.pieces.cbegin(); pieces != renaming.pieces.cend(); ++pieces)
        after.texts[pieces.key()] = withPieces(programs.value(pieces.key()), *pieces, name);
    m_document.carryOut({renaming.rows, {project.programs(), programs}, after});
    for (auto pieces = renaming.pieces.cbegin(); pieces != renaming.pieces.cend(); ++pieces) {
        BoxCommands &commands = m_programs.view(pieces.key()).RTextBox()->commands();
        commands.replace(*pieces, name);
        commands.keepState();
    }
    m_document.noteStepShown();
}

QString PointRenaming::askName(LwType type, const QString &title, const QString &name)
{
    const QPointer<PointRenaming> self(this);
    const auto fault = [&](const QString &typed) {
        const Project *project = self ? m_document.project() : nullptr;
        return project ? project->nameFault(type, project->rows(type).size(), typed) : QString();
    };
    const QString given =
        ORVTListview::askName(m_window, {title, tr("Name of the new point:"), name, fault});
    return self && m_document.project() ? given : QString();
}

void PointRenaming::add(LwType type)
{
    if (!m_document.project() || projectColumns(type).isEmpty())
        return;
    ProjectRow row;
    row.cells.resize(projectColumns(type).size());
    append(type, row, tr("Add Point"));
}

void PointRenaming::duplicate(LwType type, qsizetype row)
{
    const Project *project = m_document.project();
    if (!project || row < 0 || row >= project->rows(type).size())
        return;
    ProjectRow copy = project->rows(type).at(row);
    const QString name = copy.name;
    for (int number = 2; !name.isEmpty(); ++number) {
        copy.name = name + QString::number(number);
        if (project->nameFault(type, project->rows(type).size(), copy.name).isEmpty())
            break;
    }
    append(type, copy, tr("Duplicate Point"));
}

// Behind the last; its name is the one that is proposed.
void PointRenaming::append(LwType type, ProjectRow row, const QString &title)
{
    const qsizetype column = nameColumn(type);
    if (column >= 0) {
        const QPointer<PointRenaming> self(this);
        row.name = askName(type, title, row.name);
        if (!self || row.name.isEmpty())
            return;
        row.cells[column] = row.name;
    }
    const qsizetype place = m_document.project()->rows(type).size();
    if (place >= std::numeric_limits<qint16>::max()) {
        PlainTexts::warn(m_window, title, tr("The table is full."));
        return;
    }
    row.data = isVocabularyType(type) ? static_cast<qint32>(place) + 1 : 0;
    m_document.carryOut(RowChanges{{type, place, {}, row}});
}

void PointRenaming::remove(LwType type, qsizetype row)
{
    // A key may come before the menu knows that there is no such row any more.
    if (!m_document.project() || row < 0 || row >= m_document.project()->rows(type).size())
        return;
    const Project &project = *m_document.project();
    const ProjectRow point = project.rows(type).at(row);
    QStringList places;
    if (isVocabularyType(type)) {
        for (const PointUse &use : usesOfPoint(project, m_document.programs(), point.name))
            places.append(placeName(use, project.programs()));
    }
    if (!places.isEmpty()) {
        constexpr qsizetype most = 15;
        const qsizetype more = places.size() - most;
        if (more > 0)
            places = places.first(most) << tr("and %1 more").arg(more);
        const QPointer<PointRenaming> self(this);
        const auto answer = PlainTexts::ask(
            m_window, {tr("Remove Point"),
                       tr("%1 is still named here, where it will be unknown:\n\n%2\n\nRemove it?")
                           .arg(point.name, places.join(u'\n'))});
        if (!self || answer != QMessageBox::Yes || m_document.project() != &project ||
            !(project.rows(type).value(row) == point))
            return;
    }
    m_document.carryOut(RowChanges{{type, row, point, {}}});
}

} // namespace ORVTListview
