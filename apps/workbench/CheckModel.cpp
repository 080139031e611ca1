#include "CheckModel.h"

#include "CheckTexts.h"
#include "project/ProjectTexts.h"
#include "shared/points/DisplayNames.h"
#include "shared/texts/TextTable.h"

#include <QtGui/QIcon>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

#include <algorithm>

namespace ORVTListview {

void CheckModel::setProblems(const QList<ProgramProblem> &problems, qsizetype count)
{
    if (m_content == Content::Problems && m_problems == problems && m_problemCount == count)
        return;
    if (listsAll(m_problems, m_problemCount) && listsAll(problems, count)) {
        replaceProblems(problems);
        return;
    }
    beginResetModel();
    setContent(Content::Problems);
    m_problems = problems;
    m_problemCount = count;
    endResetModel();
}

// Without a row that says something else.
bool CheckModel::listsAll(const QList<ProgramProblem> &problems, qsizetype count) const
{
    return m_content == Content::Problems && !problems.isEmpty() && count == problems.size();
}

// Between the first and the last that are the same.
void CheckModel::replaceProblems(const QList<ProgramProblem> &problems)
{
    const qsizetype most = std::min(m_problems.size(), problems.size());
    qsizetype front = 0;
    while (front < most && m_problems[front] == problems[front])
        ++front;
    qsizetype back = 0;
    while (back < most - front &&
           m_problems[m_problems.size() - 1 - back] == problems[problems.size() - 1 - back])
        ++back;
    const auto first = static_cast<int>(front);
    const qsizetype added = problems.size() - front - back;
    if (added > 0) {
        beginInsertRows({}, first, static_cast<int>(front + added) - 1);
        const QList<ProgramProblem> behind = m_problems.sliced(front);
        m_problems = problems.first(front + added) + behind;
        m_problemCount = m_problems.size();
        endInsertRows();
    }
    if (m_problems.size() > problems.size()) {
        const qsizetype gone = m_problems.size() - problems.size();
        beginRemoveRows({}, static_cast<int>(front + added),
                        static_cast<int>(front + added + gone) - 1);
        m_problems = problems;
        m_problemCount = problems.size();
        endRemoveRows();
    }
}

void CheckModel::setStatements(const QList<ListedStatement> &statements)
{
    beginResetModel();
    setContent(Content::Statements);
    m_statements = statements;
    endResetModel();
}

void CheckModel::setUses(const QList<ShownUse> &uses)
{
    beginResetModel();
    setContent(Content::Uses);
    m_uses = uses;
    endResetModel();
}

// The rows that stay keep what is chosen among them.
void CheckModel::keepUses(const IsTrue &isTrue)
{
    for (auto row = static_cast<int>(m_uses.size()) - 1; row >= 0; --row) {
        ShownUse use = m_uses.at(row);
        if (!isTrue(use)) {
            beginRemoveRows({}, row, row);
            m_uses.removeAt(row);
            endRemoveRows();
        } else if (use != m_uses.at(row)) {
            m_uses[row] = use;
            Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1), {Qt::DisplayRole});
        }
    }
}

void CheckModel::setContent(Content content)
{
    m_content = content;
    m_problems.clear();
    m_problemCount = 0;
    m_statements.clear();
    m_uses.clear();
}

void CheckModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1),
                           {Qt::DisplayRole});
}

// What is told of one that has gone goes, too; problems are told anew by themselves.
void CheckModel::setPrograms(const ProgramList &programs)
{
    m_programs = programs;
    if (m_content == Content::Problems) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::DisplayRole});
        return;
    }
    const auto isGone = [&programs](qint32 id) {
        return id > 0 && std::ranges::find(programs, id, &ProjectProgram::id) == programs.cend();
    };
    beginResetModel();
    m_statements.removeIf([&](const ListedStatement &each) { return isGone(each.program); });
    m_uses.removeIf([&](const ShownUse &each) { return isGone(each.place.program); });
    endResetModel();
}

// Empty where there is one.
QString CheckModel::nameOf(qint32 program) const
{
    if (m_programs.size() < 2)
        return {};
    const auto found = std::ranges::find(m_programs, program, &ProjectProgram::id);
    return found == m_programs.cend() ? QString() : found->name;
}

QString CheckModel::lineText(qint32 program, qint32 line) const
{
    const QString name = nameOf(program);
    return name.isEmpty() ? tr("Line %1").arg(line)
                          : tr("%1, line %2").arg(name, QString::number(line));
}

void CheckModel::moveLines(qint32 program, const ReplacedLines &lines)
{
    const auto move = [&](qint32 id, qint32 &line) {
        line = id == program && line > 0 ? lines.moved(line) : line;
    };
    for (ProgramProblem &problem : m_problems)
        move(problem.program, problem.line);
    for (ListedStatement &statement : m_statements)
        move(statement.program, statement.line);
    for (ShownUse &use : m_uses)
        move(use.place.program, use.place.line);
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::DisplayRole});
}

ResultPlace CheckModel::place(int row) const
{
    switch (m_content) {
    case Content::Statements:
        return {.line = m_statements[row].line, .program = m_statements[row].program};
    case Content::Uses:
        return m_uses[row].place;
    case Content::Problems:
        break;
    }
    if (row >= m_problems.size())
        return {};
    return {.line = m_problems[row].line,
            .piece = m_problems[row].found.place,
            .program = m_problems[row].program};
}

// Without problems there is a row that says so, and one for those that are too many.
int CheckModel::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    const qsizetype problems =
        m_problems.size() + (m_problems.isEmpty() || m_problemCount > m_problems.size() ? 1 : 0);
    const qsizetype rows = m_content == Content::Statements ? m_statements.size()
                           : m_content == Content::Uses     ? m_uses.size()
                                                            : problems;
    return static_cast<int>(rows);
}

int CheckModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(std::max<qsizetype>(titles().size(), 1));
}

QVariant CheckModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::DisplayRole)
        return text(index);
    if (role == Qt::DecorationRole && m_content == Content::Problems)
        return picture(index.row());
    if (role == Qt::ToolTipRole && m_content == Content::Problems)
        return severity(index.row());
    if (role == Qt::AccessibleTextRole && !severity(index.row()).isEmpty())
        return QString(severity(index.row()) + QStringLiteral(", ") +
                       text(index)); // what the picture says
    if (role == Qt::TextAlignmentRole && m_content == Content::Statements && index.column() == 0)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QString CheckModel::text(const QModelIndex &index) const
{
    if (m_content == Content::Problems)
        return problemRow(index.row());
    if (m_content == Content::Uses)
        return useText(m_uses[index.row()], index.column());
    const ListedStatement &statement = m_statements[index.row()];
    switch (index.column()) {
    case 0:
        return nameOf(statement.program).isEmpty() ? QString::number(statement.line)
                                                   : lineText(statement.program, statement.line);
    case 1:
        return indentedText(statement);
    default:
        return statementName(statement.kind);
    }
}

QString CheckModel::problemRow(int row) const
{
    if (row < m_problems.size()) {
        const QString name = nameOf(m_problems[row].program);
        const QString text = problemText(m_problems[row]);
        return name.isEmpty() ? text : ProjectTexts::about(name, text);
    }
    if (m_problems.isEmpty())
        return tr("Nothing found.");
    return tr("Problems that are not listed: %1").arg(m_problemCount - m_problems.size());
}

QString CheckModel::useText(const ShownUse &use, int column) const
{
    if (column == 1)
        return use.text;
    if (use.place.line > 0)
        return lineText(use.place.program, use.place.line);
    return Localise(displayName(use.place.type)) + u' ' + QString::number(use.place.row + 1);
}

QVariant CheckModel::picture(int row) const
{
    if (row >= m_problems.size())
        return {};
    const ProblemSeverity severity = severityOf(m_problems[row].found.fault);
    return QApplication::style()->standardIcon(
        severity == ProblemSeverity::Error     ? QStyle::SP_MessageBoxCritical
        : severity == ProblemSeverity::Warning ? QStyle::SP_MessageBoxWarning
                                               : QStyle::SP_MessageBoxInformation);
}

// Empty for rows that are no problem.
QString CheckModel::severity(int row) const
{
    return row < m_problems.size() ? severityName(severityOf(m_problems[row].found.fault))
                                   : QString();
}

QStringList CheckModel::titles() const
{
    switch (m_content) {
    case Content::Statements:
        return {tr("Line"), tr("Statement"), tr("Kind")};
    case Content::Uses:
        return {tr("Place"), tr("Use")};
    case Content::Problems:
        break;
    }
    return {};
}

QVariant CheckModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isNumber = m_content == Content::Statements && section == 0;
    if (orientation != Qt::Horizontal || m_content == Content::Problems)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant((isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    return role == Qt::DisplayRole ? QVariant(titles().value(section)) : QVariant();
}

} // namespace ORVTListview
