#include "workbench/renaming/PointRenaming.h"

#include "base/TextRules.h"
#include "project/PointUses.h"
#include "project/ProjectColumns.h"
#include "project/ProjectDocument.h"
#include "widgets/box/BoxCommands.h"
#include "workbench/FrontWindow.h"
#include "workbench/PlainTexts.h"
#include "workbench/renaming/NewPointDialog.h"
#include "workbench/renaming/RenameDialog.h"
#include "workbench/views/ProgramViews.h"

#include <ORVTListview/ORVListView.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QPointer>
#include <QtCore/QSet>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <limits>
#include <optional>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// The places that the user leaves ticked; none when the user gives up, or the window goes.
std::optional<QList<PointUse>> chosenOf(const RenameDialog::Renamed &renamed, QWidget &window)
{
    const QPointer<RenameDialog> dialog(new RenameDialog(renamed, &frontWindow(window)));
    const bool isWanted = dialog->exec() == QDialog::Accepted;
    std::optional<QList<PointUse>> chosen;
    if (dialog && isWanted)
        chosen = dialog->chosen();
    delete dialog;
    return chosen;
}

// Where a place of the text is once the pieces are another text.
qint32 movedPlace(qint32 place, const QList<TextPiece> &pieces, qint32 length)
{
    qint32 moved = place;
    for (const TextPiece &piece : pieces) {
        if (piece.end() <= place)
            moved += length - piece.length;
        else if (piece.start < place)
            moved += std::min(place - piece.start, length) - (place - piece.start);
    }
    return moved;
}

// The user stays where he is: caret, selection and what is in sight.
void replaceInSight(RichTextBox &box, const QList<TextPiece> &pieces, const QString &name)
{
    const auto length = static_cast<qint32>(name.size());
    const qint32 start = movedPlace(box.SelStart(), pieces, length);
    const qint32 end = movedPlace(box.SelStart() + box.SelLength(), pieces, length);
    const int top = box.verticalScrollBar()->value();
    const int left = box.horizontalScrollBar()->value();
    box.commands().replace(pieces, name);
    box.setSelStart(start);
    box.setSelLength(end - start);
    box.verticalScrollBar()->setValue(top);
    box.horizontalScrollBar()->setValue(left);
    box.commands().keepState();
}

// With the first number behind it that no other point has; the names are looked through once.
// Names from elsewhere may be such that no number helps; then the user is told why.
QString freeName(const Project &project, LwType type, const QString &name)
{
    QSet<QString> taken;
    for (const LwType each : projectTypes()) {
        for (const ProjectRow &row : project.rows(each))
            taken.insert(foldedCase(row.name));
    }
    constexpr int mostTries = 100; // numbers that no point has and that are refused
    int tries = 0;
    for (int number = 2; tries < mostTries; ++number) {
        QString free = name + QString::number(number);
        if (taken.contains(foldedCase(free)))
            continue;
        if (project.nameFault(type, project.rows(type).size(), free).isEmpty())
            return free;
        ++tries;
    }
    return name;
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
    for (auto pieces = renaming.pieces.cbegin(); pieces != renaming.pieces.cend(); ++pieces)
        replaceInSight(*m_programs.view(pieces.key()).RTextBox(), *pieces, name);
    m_document.noteStepShown();
}

void PointRenaming::add(LwType type, const QString &name)
{
    if (!m_document.project())
        return;
    if (type != dsCode && nameColumn(type) < 0) {
        append(type, QString());
        return;
    }
    const QPointer<PointRenaming> self(this);
    const auto point = NewPointDialog::ask(m_document, {tr("Add Point"), type, name}, m_window);
    if (self && point && m_document.project())
        append(point->type, point->name);
}

void PointRenaming::append(LwType type, const QString &name)
{
    ProjectRow row;
    row.name = name;
    row.cells.resize(projectColumns(type).size());
    putBehind(type, row);
}

void PointRenaming::duplicate(LwType type, qsizetype row)
{
    const Project *project = m_document.project();
    if (!project || row < 0 || row >= project->rows(type).size())
        return;
    ProjectRow copy = project->rows(type).at(row);
    if (nameColumn(type) >= 0) {
        const QPointer<PointRenaming> self(this);
        const auto point = NewPointDialog::ask(
            m_document, {tr("Duplicate Point"), type, freeName(*project, type, copy.name), false},
            m_window);
        if (!self || !point || !m_document.project())
            return;
        copy.name = point->name;
    }
    putBehind(type, copy);
}

// As the last one of its table.
void PointRenaming::putBehind(LwType type, ProjectRow row)
{
    if (!m_document.project() || projectColumns(type).isEmpty())
        return;
    const qsizetype place = m_document.project()->rows(type).size();
    if (place >= std::numeric_limits<qint16>::max()) {
        PlainTexts::warn(m_window, tr("Add Point"), tr("The table is full."));
        return;
    }
    if (nameColumn(type) >= 0)
        row.cells[nameColumn(type)] = row.name;
    row.data = isVocabularyType(type) ? static_cast<qint32>(place) + 1 : 0;
    m_document.carryOut(RowChanges{{type, place, {}, row}});
    Q_EMIT added(type, place);
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
