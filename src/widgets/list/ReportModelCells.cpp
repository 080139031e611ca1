#include "widgets/list/ReportModel.h"

#include <QtCore/QPersistentModelIndex>
#include <QtCore/QPointer>

#include <algorithm>
#include <utility>

namespace ORVTListview {
namespace {

const QString noText;

void grow(QStringList &list, qsizetype index, qsizetype capacity)
{
    if (index < list.size())
        return;
    list.reserve(std::max(index + 1, capacity));
    list.resize(index + 1);
}

} // namespace

const QString &ReportModel::cellText(const ReportRow &row, int column) const
{
    if (column == 0)
        return row.content.text;
    const QStringList &subItems = row.content.subItems;
    return column <= subItems.size() ? subItems.at(column - 1) : noText;
}

void ReportModel::touch(const ReportRow &row, int column, std::initializer_list<int> roles)
{
    if (column >= columns())
        return;
    const QModelIndex changed = indexOf(row, column);
    if (changed.isValid() && m_touched)
        m_touched->add(changed.row(), column);
    else if (changed.isValid())
        Q_EMIT dataChanged(changed, changed, roles);
}

void ReportModel::gather(const std::function<void()> &change)
{
    m_touched.emplace();
    const auto tellTouched = [this] {
        ChangedCells touched = std::move(*m_touched);
        m_touched.reset();
        tell(touched.take());
    };
    try {
        change();
    } catch (...) {
        tellTouched(); // what was done is shown
        throw;
    }
    tellTouched();
}

// Whom it is told may change rows and columns, after which nobody knows what a block was.
void ReportModel::tell(const QList<ChangedCells::Block> &blocks)
{
    using Corner = QPersistentModelIndex;
    QList<std::pair<Corner, Corner>> corners;
    for (const ChangedCells::Block &block : blocks)
        corners.append(
            {Corner(index(block.top, block.left)), Corner(index(block.bottom, block.right))});
    const QPointer<ReportModel> self(this);
    for (qsizetype i = 0; self && i < blocks.size(); ++i) {
        const auto &[first, last] = corners.at(i);
        const ChangedCells::Block &block = blocks.at(i);
        const bool isWhole = first.isValid() && last.isValid() &&
                             last.row() - first.row() == block.bottom - block.top &&
                             last.column() - first.column() == block.right - block.left;
        if (!isWhole) {
            touchAll(0, columns() - 1, {Qt::DisplayRole, Qt::EditRole});
            return;
        }
        Q_EMIT dataChanged(first, last, {Qt::DisplayRole, Qt::EditRole});
    }
}

void ReportModel::touchAll(int firstColumn, int lastColumn, const QList<int> &roles)
{
    if (rowCount() > 0 && firstColumn <= lastColumn && lastColumn < columns())
        Q_EMIT dataChanged(index(0, firstColumn), index(rowCount() - 1, lastColumn), roles);
}

void ReportModel::setKey(ReportRow &row, const QString &key)
{
    m_keys.remove(row.content.key);
    row.content.key = key;
    if (!key.isEmpty())
        m_keys.insert(key, &row);
}

QString ReportModel::exchangeText(ReportRow &row, int column, const QString &text)
{
    RowContent &content = row.content;
    if (column > 0)
        grow(content.subItems, column - 1, columns() - 1);
    QString &held = column == 0 ? content.text : content.subItems[column - 1];
    QString former = std::exchange(held, text);
    touch(row, column, {Qt::DisplayRole, Qt::EditRole});
    return former;
}

void ReportModel::setText(ReportRow &row, const QString &text)
{
    setSubItem(row, 0, text);
}

void ReportModel::setSubItem(ReportRow &row, int column, const QString &text)
{
    if (cellText(row, column) != text)
        exchangeText(row, column, text);
}

void ReportModel::setSubItemTag(ReportRow &row, int column, const QString &tag)
{
    QStringList &tags = row.content.subItemTags;
    if (tag.isEmpty() && column > tags.size())
        return;
    grow(tags, column - 1, column); // few rows have many tags
    tags[column - 1] = tag;
}

void ReportModel::setPicture(ReportRow &row, const QString &key)
{
    if (row.content.picture == key)
        return;
    row.content.picture = key;
    touch(row, 0, {Qt::DecorationRole});
}

void ReportModel::setForeground(ReportRow &row, const QColor &colour)
{
    if (row.content.foreground == colour)
        return;
    row.content.foreground = colour;
    if (columns() == 0 || placeOf(row) < 0)
        return;
    Q_EMIT dataChanged(indexOf(row, 0), indexOf(row, columns() - 1), {Qt::ForegroundRole});
}

void ReportModel::setChecked(ReportRow &row, bool checked)
{
    if (row.content.checked == checked)
        return;
    row.content.checked = checked;
    touch(row, 0, {Qt::CheckStateRole});
}

void ReportModel::setSubItemOfAll(int column, const QString &text, const QString &tag)
{
    for (const std::unique_ptr<ReportRow> &row : m_rows) {
        grow(row->content.subItems, column - 1, columns() - 1);
        row->content.subItems[column - 1] = text;
        setSubItemTag(*row, column, tag);
    }
    touchAll(column, column, {Qt::DisplayRole, Qt::EditRole});
}

void ReportModel::setState(ReportRow &row, int column, CellState state)
{
    if (ReportModel::state(row, column) == state)
        return;
    if (row.states.size() <= column)
        row.states.resize(column + 1, '\0');
    row.states[column] = static_cast<char>(state);
    touch(row, column, {CellTable::stateRole, Qt::AccessibleTextRole, Qt::ToolTipRole});
}

} // namespace ORVTListview
