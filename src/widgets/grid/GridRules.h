#pragma once

#include <ORVTListview/CellRule.h>

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QStringList>

#include <functional>

class QAbstractItemModel;

class QWidget;

namespace ORVTListview {

class CellTable;

// Which rule each column of the table shown has. It follows the columns.
class GridRules
{
public:
    using ByColumnKey = QHash<QString, CellRule>;

    GridRules(CellTable &table, const QAbstractItemModel &model);
    Q_DISABLE_COPY_MOVE(GridRules) // follows one model

    bool isOn() const { return m_isOn; }

    // The list of known words is no grid, shown as a popup or as the table that has no rules.
    bool isAtRest(const QWidget &view) const;

    // Whether it is on, and there is a column that users edit.
    bool isUsed() const;

    // Called when any of it may have changed.
    void setFollower(const std::function<void()> &follow) { m_follow = follow; }

    void setOn(bool on);

    const QString &tableName() const { return m_tableName; }
    void setTableName(const QString &name);

    ByColumnKey of(const QString &tableName) const { return m_rules.value(tableName); }
    void set(const QString &tableName, const ByColumnKey &rules);

    void setPointNames(const std::function<QStringList()> &names) { m_pointNames = names; }

    // As it stands; that of no column is NotEdited.
    CellRule rule(int column) const { return m_columns.value(column); }

    // Ready to check by: with the names of points as its choices.
    CellRule completeRule(int column) const;

    // Whether users edit the column now.
    bool isEdited(int column) const;

private:
    void resolve();

    CellTable &m_table;
    QObject m_connections; // ends them
    QHash<QString, ByColumnKey> m_rules;
    QList<CellRule> m_columns; // of the table shown
    std::function<QStringList()> m_pointNames;
    QString m_tableName;
    std::function<void()> m_follow;
    bool m_isOn = false;
};

} // namespace ORVTListview
