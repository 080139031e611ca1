#pragma once

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>

class QTableView;

namespace ORVTListview {

class CellTable;

// The order, widths and hidden columns that users give each table, kept as texts: see
// columnLayoutText.
class ColumnArranging final : public QObject
{
public:
    ColumnArranging(QTableView &view, CellTable &table);

    // What is told when the user has changed a table's columns.
    void setFollower(const std::function<void()> &follow) { m_follow = follow; }

    // Whether users drag columns, and hide them.
    bool isOn() const { return m_isOn; }
    void setOn(bool on);

    // Another table is shown; its columns come soon after.
    void switchTable(const QString &name);

    // Empty for a table that no user has arranged; its columns stand in their own order.
    QString layout(const QString &table) const;
    void setLayout(const QString &table, const QString &layout);
    const QHash<QString, QString> &layouts() const { return m_layouts; }

    // By the user. The last one that is seen stays.
    void setHidden(int column, bool hidden);
    bool canHide(int column) const;
    void fit(int column);

private:
    void noteByMouse();
    void note();
    void tell();
    void takeOff(const QString &layout);
    void applySoon();
    void apply();
    QString layoutNow() const;
    int columnOf(const QString &key) const;

    QTableView &m_view;
    CellTable &m_table;
    std::function<void()> m_follow;
    QHash<QString, QString> m_layouts; // by table
    QString m_shown;
    bool m_isOn = false;
    bool m_wasMovable = false; // the header, by the host
    bool m_isApplying = false;
    bool m_isWaiting = false; // a layout, for the columns
    bool m_isTelling = false;
};

} // namespace ORVTListview
