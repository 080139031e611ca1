#include "widgets/grid/GridRules.h"

#include "base/EventGuard.h"
#include "shared/points/DisplayNames.h"
#include "widgets/grid/CellTable.h"

#include <QtWidgets/QWidget>

#include <algorithm>

namespace ORVTListview {

GridRules::GridRules(CellTable &table, const QAbstractItemModel &model)
    : m_table(table)
{
    const auto follow = [this] { resolve(); };
    QObject::connect(&model, &QAbstractItemModel::columnsInserted, &m_connections, follow);
    QObject::connect(&model, &QAbstractItemModel::columnsRemoved, &m_connections, follow);
}

bool GridRules::isAtRest(const QWidget &view) const
{
    return view.windowType() == Qt::ToolTip || m_tableName == displayName(dsCode);
}

void GridRules::setOn(bool on)
{
    m_isOn = on;
    resolve();
}

void GridRules::setTableName(const QString &name)
{
    m_tableName = name;
    resolve();
}

void GridRules::set(const QString &tableName, const ByColumnKey &rules)
{
    m_rules.insert(tableName, rules);
    resolve();
}

void GridRules::resolve()
{
    const ByColumnKey rules = of(m_tableName);
    m_columns.clear();
    for (int column = 0; column < m_table.columns(); ++column) {
        m_columns.append(rules.value(m_table.columnKey(column)));
        m_table.setEdited(column, isEdited(column));
    }
    if (m_follow)
        m_follow();
}

CellRule GridRules::completeRule(int column) const
{
    CellRule complete = rule(column);
    if (complete.kind == CellRule::PointName && complete.choices.isEmpty() && m_pointNames) {
        EventGuard::run([&complete, names = m_pointNames] { // which may destroy the list
            complete.choices = names();
            return true;
        });
    }
    return complete;
}

bool GridRules::isUsed() const
{
    return m_isOn && std::any_of(m_columns.cbegin(), m_columns.cend(), [](const CellRule &rule) {
               return rule.kind != CellRule::NotEdited;
           });
}

bool GridRules::isEdited(int column) const
{
    return m_isOn && rule(column).kind != CellRule::NotEdited;
}

} // namespace ORVTListview
