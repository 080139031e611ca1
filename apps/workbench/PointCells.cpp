#include "PointCells.h"

#include "PointTables.h"
#include "project/ProjectColumns.h"
#include "project/ProjectDocument.h"
#include "shared/points/DisplayNames.h"

#include <ORVTListview/ListGrid.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ReportList.h>

#include <QtCore/QMap>

#include <cmath>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

bool isFiniteNumber(const QString &text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number);
}

// As the project has such a cell.
QVariant projectCell(const QString &text, CellKind kind, const CellRule &rule)
{
    if (text.isEmpty())
        return {};
    if (kind == CellKind::YesNo)
        return text == rule.choices.value(0);
    const double number = text.toDouble();
    // A text that is more than its number stays as it was typed.
    const bool takesNumber =
        kind == CellKind::Number || (kind == CellKind::Value && cellText(number) == text);
    return takesNumber && isFiniteNumber(text) ? QVariant(number) : QVariant(text);
}

} // namespace

PointCells::PointCells(ORVListView &list, ProjectDocument &document)
    : QObject(&list)
    , m_list(list)
    , m_grid(*list.listView()->grid())
    , m_document(document)
{
    m_grid.setHasMenu(true);
    m_grid.setPointNames([this] { return names(); });
    connect(&m_grid, &ListGrid::cellEntering, this,
            [this](const ListItem *item, qint16 column, const QString &text, QString &refusal) {
                answer(*item, column, text, refusal);
            });
    connect(&m_grid, &ListGrid::cellsChanged, this, &PointCells::take);
}

const Project *PointCells::project() const
{
    return m_document.project();
}

bool PointCells::isOn() const
{
    return m_grid.editsCells();
}

void PointCells::setOn(bool on)
{
    setRules();
    m_grid.setEditsCells(on);
    m_grid.setSelectsCells(on);
    m_grid.setSortsRows(on);
    m_grid.setSortKeys({});
    m_grid.setFilterPlace(on ? ListGrid::FilterInColumns : ListGrid::NoFilter);
    m_grid.setShowsLocalNumbers(on);
    m_grid.setFlashesChanges(on);
    m_grid.setArrangesColumns(on);
    m_grid.setKeepsFirstColumns(on);
}

void PointCells::setRules()
{
    m_grid.useReadyRules();
    for (const LwType type : projectTypes()) {
        const QString table = displayName(type);
        QHash<QString, CellRule> rules = m_grid.rules(table);
        for (const ProjectColumn &column : projectColumns(type)) {
            if (column.kind == CellKind::Name)
                rules[column.key] = {.hint = tr("Names are given by F2.")};
            else if (column.kind == CellKind::YesNo)
                rules[column.key].choices = {PointTables::tr("Yes"), PointTables::tr("No")};
        }
        m_grid.setRules(table, rules);
    }
}

// -1 for a row without a point.
qsizetype PointCells::pointOf(const ListItem &item) const
{
    const bool isPoint = project() && item.Index() <= project()->rows(m_list.CurrentType()).size();
    return isPoint ? item.Index() - 1 : -1;
}

void PointCells::answer(const ListItem &item, qint16 column, const QString &text,
                        QString &refusal) const
{
    if (pointOf(item) < 0) {
        refusal = tr("This row has no point.");
        return;
    }
    const CellKind kind = projectColumns(m_list.CurrentType()).value(column - 1).kind;
    if (kind == CellKind::Number && !text.isEmpty() && !isFiniteNumber(text))
        refusal = tr("This cell holds numbers only.");
}

void PointCells::take(const QList<CellChange> &changes)
{
    const LwType type = m_list.CurrentType();
    QMap<qsizetype, ProjectRow> rows;
    for (const CellChange &change : changes) {
        const qsizetype row = pointOf(*change.item);
        const qsizetype column = change.column - 1;
        if (row < 0 || column < 0 || column >= projectColumns(type).size())
            continue;
        auto changed = rows.find(row);
        if (changed == rows.end())
            changed = rows.insert(row, project()->rows(type).at(row));
        changed->setCell(column, projectCell(change.text, projectColumns(type).at(column).kind,
                                             m_grid.rule(change.column)));
    }
    RowChanges step;
    for (auto row = rows.cbegin(); row != rows.cend(); ++row) {
        const ProjectRow &before = project()->rows(type).at(row.key());
        if (!(before == row.value()))
            step.append({type, row.key(), before, row.value()});
    }
    if (!step.isEmpty())
        m_document.carryOut(step);
}

QStringList PointCells::names() const
{
    QStringList names;
    for (const LwType type : projectTypes()) {
        for (const ProjectRow &row : project() ? project()->rows(type) : QList<ProjectRow>()) {
            if (isVocabularyType(type) && !row.name.isEmpty())
                names.append(row.name);
        }
    }
    names.sort(Qt::CaseInsensitive);
    return names;
}

} // namespace ORVTListview
