#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <functional>

class QMenu;
class QTableView;

namespace ORVTListview {

class CellEdit;
class CellSteps;
class CellTable;
class ColumnArranging;
class FilterFields;
class GridClipboard;
class GridKeys;
class GridOrder;
class GridRules;
class GridSelection;
class RowEditing;

// The context menu of a grid: what is possible at the cell, the header or the row where it
// is opened, by mouse or by key.
class GridMenu final : public QObject
{
public:
    struct Tools
    {
        QTableView &view;
        CellTable &table;
        const GridRules &rules;
        CellEdit &edit;
        CellSteps &steps;
        GridSelection &selection;
        GridClipboard &clipboard;
        GridKeys &keys;
        RowEditing &rows;
        GridOrder &order;
        const FilterFields &filters;
        ColumnArranging &columns;
    };

    explicit GridMenu(const Tools &tools)
        : m_grid(tools)
    {
    }

    // What may add to a menu before it opens.
    void setFollower(const std::function<void(QMenu &)> &follow) { m_follow = follow; }

    // How rows are copied, and whether anything may be.
    struct Copying
    {
        std::function<bool()> isAllowed;
        std::function<void()> copyRows;
    };
    void setCopying(const Copying &copying) { m_copying = copying; }

    bool isOn() const { return m_isOn; }
    void setOn(bool on);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Command
    {
        QString caption;
        bool isPossible;
        std::function<void()> act;
        QString keys = {};
    };

    std::function<void()> forColumn(int column, const std::function<void(int)> &act) const;
    void addTo(QMenu &menu, const Command &command, const QString &caption);
    void open(int column, bool isHeader, QPoint place);
    QList<Command> cellCommands() const;
    QList<Command> copyCommands() const;
    QList<Command> orderCommands(int column) const;
    QList<Command> rowCommands() const;
    QList<Command> columnCommands(int column) const;
    void addColumns(QMenu &menu);

    const Tools m_grid;
    std::function<void(QMenu &)> m_follow;
    Copying m_copying;
    bool m_isOn = false;
};

} // namespace ORVTListview
