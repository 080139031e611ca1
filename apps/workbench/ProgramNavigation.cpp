#include "ProgramNavigation.h"

#include "CheckResults.h"
#include "CheckTexts.h"
#include "FindInPrograms.h"
#include "PointTables.h"
#include "ProgramAnalyses.h"
#include "ProjectView.h"
#include "base/TextRules.h"
#include "project/PointReferences.h"
#include "project/Project.h"
#include "shared/texts/TextTable.h"
#include "workbench/views/ProgramViews.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QKeySequence>
#include <QtWidgets/QMenu>

#include <algorithm>

namespace ORVTListview {
namespace {

constexpr qsizetype mostFormer = 50;

LwType typeOf(WordClass wordClass)
{
    switch (wordClass) {
    case WordClass::Variable:
        return dsVariable;
    case WordClass::Constant:
        return dsConst;
    case WordClass::Input:
        return dsInput;
    case WordClass::Output:
        return dsOutput;
    case WordClass::Nvi:
        return dsNvi;
    default:
        return dsCode;
    }
}

// A program may have left the project since.
bool isThere(const ResultPlace &place, const ProgramList &programs)
{
    return place.line == 0 ||
           std::ranges::find(programs, place.program, &ProjectProgram::id) != programs.cend();
}

} // namespace

ProgramNavigation::ProgramNavigation(ProjectView &view, ProgramAnalyses &analyses,
                                     CheckResults &results, QObject *parent)
    : QObject(parent)
    , m_view(view)
    , m_analyses(analyses)
    , m_results(results)
{
    connect(&results, &CheckResults::chosen, this, &ProgramNavigation::goTo);
    connect(&analyses, &ProgramAnalyses::linesReplaced, this, &ProgramNavigation::moveLines);
}

void ProgramNavigation::setProject(const Project *project)
{
    m_project = project;
    m_former.clear();
}

void ProgramNavigation::fillMenu(QMenu &menu)
{
    menu.addAction(tr("&Go To Point"), QKeySequence(Qt::Key_F12), this,
                   &ProgramNavigation::goToPoint);
    menu.addAction(tr("&Back"), QKeySequence(Qt::ALT | Qt::Key_Left), this,
                   &ProgramNavigation::back);
    menu.addAction(tr("All &Uses"), QKeySequence(Qt::SHIFT | Qt::Key_F12), this,
                   &ProgramNavigation::findUses);
    menu.addAction(tr("&Find In Programs…"), QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_F), this,
                   &ProgramNavigation::findText);
}

void ProgramNavigation::goTo(const ResultPlace &place)
{
    if (!isThere(place, m_view.programs().list()))
        return;
    remember();
    show(place);
    // A second click of a double click goes where the first one went.
    if (!m_former.isEmpty() && m_former.constLast() == current())
        m_former.removeLast();
}

void ProgramNavigation::goToPoint()
{
    const NamedPoint at = pointInProgram();
    const qsizetype row = rowOf(at);
    if (row >= 0)
        goTo({.type = at.type, .row = row});
    else if (at.name.isEmpty())
        Q_EMIT told(tr("There is no name here."));
    else
        Q_EMIT told(tr("%1 is no point of the project.").arg(shortened(at.name)));
}

QString ProgramNavigation::unknownName() const
{
    const NamedPoint at = pointInProgram();
    return at.type == dsCode ? at.name : QString();
}

void ProgramNavigation::back()
{
    m_former.removeIf(
        [this](const ResultPlace &place) { return !isThere(place, m_view.programs().list()); });
    if (m_former.isEmpty())
        Q_EMIT told(tr("There is no place to go back to."));
    else
        show(m_former.takeLast());
}

void ProgramNavigation::findUses()
{
    const NamedPoint at = point();
    if (at.name.isEmpty()) {
        Q_EMIT told(tr("There is no name here."));
        return;
    }
    const QList<ShownUse> uses = usesOf(at);
    if (uses.isEmpty()) {
        m_results.forgetUses(); // of another one
        Q_EMIT told(tr("Nothing uses %1.").arg(shortened(at.name)));
        return;
    }
    m_listed = {at.name, true};
    m_results.showUses(uses);
}

void ProgramNavigation::goToFirstUse()
{
    const NamedPoint at = point();
    const QList<ShownUse> uses = usesOf(at);
    if (at.name.isEmpty())
        Q_EMIT told(tr("There is no name here."));
    else if (uses.isEmpty() || uses.constFirst().place.line == 0) // programs come first
        Q_EMIT told(tr("No program uses %1.").arg(shortened(at.name)));
    else
        goTo(uses.constFirst().place);
}

void ProgramNavigation::findText()
{
    const QString text = askTextToFind(*m_view.window(), m_view.programs());
    if (text.isEmpty())
        return;
    const QList<ShownUse> places = findInPrograms(m_view.programs(), text);
    if (places.isEmpty()) {
        Q_EMIT told(tr("%1 was not found.").arg(shortened(text)));
        return;
    }
    m_listed = {text, false};
    m_results.showUses(places);
}

void ProgramNavigation::followUses()
{
    m_results.keepUses(
        [this](ShownUse &use) { return m_listed.follow(use, m_view.programs(), m_project); });
}

void ProgramNavigation::moveLines(qint32 program, const ReplacedLines &lines)
{
    for (ResultPlace &place : m_former) {
        if (place.line > 0 && place.program == program)
            place.line = lines.moved(place.line);
    }
}

void ProgramNavigation::remember()
{
    const ResultPlace place = current();
    if (place == ResultPlace())
        return;
    m_former.removeOne(place);
    m_former.append(place);
    if (m_former.size() > mostFormer)
        m_former.removeFirst();
}

ResultPlace ProgramNavigation::current() const
{
    const ORVListView &list = m_view.current();
    const LwType type = list.CurrentType();
    if (type != dsCode) {
        const ListItem *item = list.SelectedItem();
        return {.type = type, .row = item ? item->Index() - 1 : 0};
    }
    const RichTextBox &box = *list.RTextBox();
    const qint32 line = box.GetLineFromChar(box.SelStart());
    return {.line = line + 1,
            .piece = {box.SelStart() - box.lineStart(line), box.SelLength()},
            .program = m_view.programs().current()};
}

void ProgramNavigation::show(const ResultPlace &place)
{
    if (place.line > 0) {
        m_view.enterProgram(place.program);
        showLine(place);
        Q_EMIT moved();
        return;
    }
    m_view.enterType(place.type);
    if (PointTables *table = m_view.currentTable())
        table->showRow(place.row);
    Q_EMIT moved();
}

void ProgramNavigation::showLine(const ResultPlace &place)
{
    const ORVListView &list = m_view.program();
    RichTextBox &box = *list.RTextBox();
    list.codeView()->goToLine(place.line);
    const qint32 line = std::min(place.line, box.lineCount()) - 1;
    const auto length = static_cast<qint32>(box.lineText(line).size());
    const qint32 start = std::min(place.piece.start, length);
    box.setSelStart(box.lineStart(line) + start);
    box.setSelLength(std::min(place.piece.length, length - start));
}

ProgramNavigation::NamedPoint ProgramNavigation::pointInProgram() const
{
    if (m_view.currentTable())
        return {};
    m_analyses.takeWords();
    const RichTextBox &box = *m_view.program().RTextBox();
    const qint32 line = box.GetLineFromChar(box.SelStart());
    const qint32 caret = box.SelStart() - box.lineStart(line);
    const QString text = box.lineText(line);
    const ProgramWords &words = m_analyses.of(m_view.programs().current()).words();
    QList<LineProblem> problems;
    for (const ProgramToken &token : tokensOf(text, words, problems)) {
        const bool isName = token.kind == TokenKind::Name || token.kind == TokenKind::Unknown;
        if (isName && token.place.start <= caret && caret <= token.place.end())
            return {typeOf(token.wordClass), text.mid(token.place.start, token.place.length)};
    }
    return {};
}

ProgramNavigation::NamedPoint ProgramNavigation::pointInTable() const
{
    const ResultPlace place = current();
    if (!m_project || place.row < 0 || !isVocabularyType(place.type))
        return {};
    return {place.type, m_project->rows(place.type).value(place.row).name};
}

ProgramNavigation::NamedPoint ProgramNavigation::point() const
{
    return m_view.currentTable() ? pointInTable() : pointInProgram();
}

qsizetype ProgramNavigation::rowOf(const NamedPoint &point) const
{
    if (!m_project || point.type == dsCode)
        return -1;
    const QList<ProjectRow> &rows = m_project->rows(point.type);
    const auto found = std::find_if(rows.cbegin(), rows.cend(), [&](const ProjectRow &row) {
        return isSameWord(row.name, point.name);
    });
    return found == rows.cend() ? -1 : found - rows.cbegin();
}

QList<ShownUse> ProgramNavigation::usesOf(const NamedPoint &point) const
{
    QList<ShownUse> uses;
    for (const ProjectProgram &program : m_analyses.list()) {
        const RichTextBox &box = *m_view.programs().view(program.id).RTextBox();
        for (const UsePlace &use : m_analyses.of(program.id).usesOf(point.name))
            uses.append({{.line = use.line, .piece = use.place, .program = program.id},
                         box.lineText(use.line - 1).simplified()});
    }
    if (!m_project)
        return uses;
    for (const PointReference &at : referencesTo(*m_project, point.name))
        uses.append(
            {{.type = at.type, .row = at.row}, Localise(projectColumns(at.type)[at.column].key)});
    return uses;
}

} // namespace ORVTListview
