#include "workbench/importing/ImportModel.h"

#include "project/Project.h"
#include "project/ProjectColumns.h"
#include "shared/texts/TextTable.h"
#include "workbench/PointTables.h"

#include <QtGui/QFont>

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

ImportModel::ImportModel(const Project &project, LwType type, QObject *parent)
    : QAbstractTableModel(parent)
    , m_project(project)
    , m_type(type)
{
}

void ImportModel::setRows(const QList<ImportedRow> &rows, qsizetype firstLine)
{
    beginResetModel();
    m_rows = rows;
    m_firstLine = firstLine;
    m_ticks.clear();
    for (qsizetype row = 0; row < m_rows.size(); ++row)
        m_ticks.append(canBeTaken(row));
    endResetModel();
    Q_EMIT ticksChanged();
}

qsizetype ImportModel::count(ImportedRow::Fate fate) const
{
    return std::count_if(m_rows.cbegin(), m_rows.cend(),
                         [fate](const ImportedRow &row) { return row.fate == fate; });
}

bool ImportModel::canBeTaken(qsizetype row) const
{
    const ImportedRow::Fate fate = m_rows.at(row).fate;
    return fate == ImportedRow::Added || fate == ImportedRow::Changed;
}

void ImportModel::setAll(bool ticked)
{
    for (qsizetype row = 0; row < m_rows.size(); ++row)
        m_ticks[row] = ticked && canBeTaken(row);
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::CheckStateRole});
    Q_EMIT ticksChanged();
}

int ImportModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ImportModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : firstCell + static_cast<int>(projectColumns(m_type).size());
}

QString ImportModel::fate(const ImportedRow &row) const
{
    switch (row.fate) {
    case ImportedRow::Added:
        return tr("Added");
    case ImportedRow::Changed:
        return tr("Changed");
    case ImportedRow::Same:
        return tr("Left alone");
    case ImportedRow::Faulty:
        break;
    }
    return tr("Not possible: %1").arg(row.fault);
}

// What is changed stands out, with what was there in its tool tip.
QVariant ImportModel::cell(const ImportedRow &row, qsizetype column, int role) const
{
    const auto shown = [](const QVariant &cell) {
        if (cell.typeId() == QMetaType::Bool)
            return cell.toBool() ? PointTables::tr("Yes") : PointTables::tr("No");
        return cellText(cell);
    };
    if (role == Qt::DisplayRole)
        return column == nameColumn(m_type) ? row.point.name : shown(row.point.cells.value(column));
    if (!row.changed.contains(column))
        return {};
    if (role == Qt::ToolTipRole)
        return tr("Before: %1")
            .arg(shown(m_project.rows(m_type).value(row.row).cells.value(column)));
    if (role != Qt::FontRole)
        return {};
    QFont bold;
    bold.setBold(true);
    return bold;
}

QVariant ImportModel::data(const QModelIndex &index, int role) const
{
    const ImportedRow &row = m_rows.at(index.row());
    if (index.column() >= firstCell)
        return cell(row, index.column() - firstCell, role);
    if (index.column() == 0 && role == Qt::DisplayRole)
        return QString::number(m_firstLine + index.row());
    if (index.column() == 0 && role == Qt::CheckStateRole && canBeTaken(index.row()))
        return m_ticks.at(index.row()) ? Qt::Checked : Qt::Unchecked;
    if (index.column() == 1 && (role == Qt::DisplayRole || role == Qt::ToolTipRole))
        return fate(row);
    return {};
}

bool ImportModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (index.column() != 0 || role != Qt::CheckStateRole || !canBeTaken(index.row()))
        return false;
    m_ticks[index.row()] = value.value<Qt::CheckState>() == Qt::Checked;
    Q_EMIT dataChanged(index, index, {role});
    Q_EMIT ticksChanged();
    return true;
}

QVariant ImportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    if (section == 0)
        return tr("Line");
    return section == 1 ? tr("Import") : columnTitles(m_type).value(section - firstCell);
}

Qt::ItemFlags ImportModel::flags(const QModelIndex &index) const
{
    const bool isBox = index.column() == 0 && canBeTaken(index.row());
    return QAbstractTableModel::flags(index) | (isBox ? Qt::ItemIsUserCheckable : Qt::NoItemFlags);
}

QStringList columnTitles(LwType type)
{
    QStringList titles;
    for (const ProjectColumn &column : projectColumns(type))
        titles.append(Localise(column.key));
    return titles;
}

} // namespace ORVTListview
