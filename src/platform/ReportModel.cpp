#include "platform/ReportModel.h"

#include "platform/Error.h"

#include <algorithm>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

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

ReportModel::ReportModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

ReportModel::~ReportModel() = default;

int ReportModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : rows();
}

int ReportModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : columns();
}

const QString &ReportModel::cellText(const ReportRow &row, int column) const
{
    if (column == 0)
        return row.content.text;
    const QStringList &subItems = row.content.subItems;
    return column <= subItems.size() ? subItems.at(column - 1) : noText;
}

QIcon ReportModel::pictureOf(const ReportRow &row) const
{
    return m_pictures && !row.content.picture.isEmpty() ? m_pictures(row.content.picture) : QIcon();
}

QVariant ReportModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const ReportRow &held = row(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return cellText(held, index.column());
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(column(index.column()).alignment | Qt::AlignVCenter);
    case Qt::ForegroundRole:
        return held.content.foreground.isValid() ? QVariant(held.content.foreground) : QVariant();
    case Qt::DecorationRole: {
        const QIcon icon = index.column() == 0 ? pictureOf(held) : QIcon();
        return icon.isNull() ? QVariant() : QVariant(icon);
    }
    case Qt::CheckStateRole:
        if (index.column() != 0 || !m_checkBoxes)
            return {};
        return QVariant::fromValue(held.content.checked ? Qt::Checked : Qt::Unchecked);
    default:
        return {};
    }
}

// Only views come this way; what the program changes has functions of its own.
bool ReportModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || index.column() != 0)
        return false;
    ReportRow &held = row(index.row());
    if (role == Qt::EditRole) {
        setText(held, value.toString());
        return true;
    }
    if (role == Qt::CheckStateRole && m_checkBoxes) {
        setChecked(held, value.toInt() == Qt::Checked);
        Q_EMIT checkedByUser(index.row());
        return true;
    }
    return false;
}

QVariant ReportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical || section < 0 || section >= columns())
        return QAbstractTableModel::headerData(section, orientation, role);
    if (role == Qt::DisplayRole)
        return column(section).text;
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(column(section).alignment | Qt::AlignVCenter);
    return {};
}

Qt::ItemFlags ReportModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags flags =
        Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
    if (index.column() == 0)
        flags |= Qt::ItemIsEditable;
    if (index.column() == 0 && m_checkBoxes)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

ReportRow *ReportModel::find(const QString &key) const
{
    return m_keys.value(key);
}

int ReportModel::positionOf(const ReportRow &row) const
{
    const auto known = static_cast<std::size_t>(row.position);
    if (known >= m_numbered || m_rows[known].get() != &row) {
        for (; m_numbered < m_rows.size(); ++m_numbered)
            m_rows[m_numbered]->position = static_cast<int>(m_numbered);
    }
    return row.position;
}

ReportRow &ReportModel::addRow(int position, RowContent content)
{
    beginInsertRows({}, position, position);
    auto made = std::make_unique<ReportRow>(std::move(content));
    ReportRow &row = *made;
    m_rows.insert(m_rows.begin() + position, std::move(made));
    m_numbered = std::min(m_numbered, static_cast<std::size_t>(position));
    if (!row.content.key.isEmpty())
        m_keys.insert(row.content.key, &row);
    endInsertRows();
    return row;
}

void ReportModel::deleteRow(int position)
{
    beginRemoveRows({}, position, position);
    m_keys.remove(row(position).content.key);
    m_rows.erase(m_rows.begin() + position);
    m_numbered = std::min(m_numbered, static_cast<std::size_t>(position));
    endRemoveRows();
}

void ReportModel::refuseUsedKeys(const QList<RowContent> &contents, bool besideOwn) const
{
    QSet<QString> seen;
    seen.reserve(contents.size());
    for (const RowContent &content : contents) {
        if (content.key.isEmpty())
            continue;
        const qsizetype before = seen.size();
        seen.insert(content.key);
        if (seen.size() == before || (besideOwn && m_keys.contains(content.key)))
            throw Error(InvalidCall, u"ReportList"_s,
                        u"The key \"%1\" is in use already"_s.arg(content.key));
    }
}

void ReportModel::take(QList<RowContent> &contents)
{
    const std::size_t total = m_rows.size() + static_cast<std::size_t>(contents.size());
    m_rows.reserve(total);
    m_keys.reserve(static_cast<qsizetype>(total));
    for (RowContent &content : contents) {
        m_rows.push_back(std::make_unique<ReportRow>(std::move(content)));
        ReportRow *row = m_rows.back().get();
        if (!row->content.key.isEmpty())
            m_keys.insert(row->content.key, row);
    }
}

void ReportModel::setRows(QList<RowContent> contents)
{
    refuseUsedKeys(contents, false);
    beginResetModel();
    m_keys.clear();
    m_rows.clear();
    m_numbered = 0;
    take(contents);
    endResetModel();
}

void ReportModel::appendRows(QList<RowContent> contents)
{
    if (contents.isEmpty())
        return;
    refuseUsedKeys(contents, true);
    beginInsertRows({}, rows(), rows() + static_cast<int>(contents.size()) - 1);
    take(contents);
    endInsertRows();
}

void ReportModel::touch(const ReportRow &row, int column, const QList<int> &roles)
{
    if (column >= columns())
        return;
    const QModelIndex changed = index(positionOf(row), column);
    Q_EMIT dataChanged(changed, changed, roles);
}

void ReportModel::touchAll(int firstColumn, int lastColumn, const QList<int> &roles)
{
    if (rows() > 0 && firstColumn <= lastColumn && lastColumn < columns())
        Q_EMIT dataChanged(index(0, firstColumn), index(rows() - 1, lastColumn), roles);
}

void ReportModel::setKey(ReportRow &row, const QString &key)
{
    m_keys.remove(row.content.key);
    row.content.key = key;
    if (!key.isEmpty())
        m_keys.insert(key, &row);
}

void ReportModel::setText(ReportRow &row, const QString &text)
{
    if (row.content.text == text)
        return;
    row.content.text = text;
    touch(row, 0, {Qt::DisplayRole, Qt::EditRole});
}

void ReportModel::setSubItem(ReportRow &row, int column, const QString &text)
{
    if (cellText(row, column) == text)
        return;
    grow(row.content.subItems, column - 1, columns() - 1);
    row.content.subItems[column - 1] = text;
    touch(row, column, {Qt::DisplayRole, Qt::EditRole});
}

void ReportModel::setSubItemTag(ReportRow &row, int column, const QString &tag)
{
    QStringList &tags = row.content.subItemTags;
    if (tag.isEmpty() && column > tags.size())
        return;
    grow(tags, column - 1, columns() - 1);
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
    if (columns() == 0)
        return;
    const int position = positionOf(row);
    Q_EMIT dataChanged(index(position, 0), index(position, columns() - 1), {Qt::ForegroundRole});
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

void ReportModel::setCheckBoxes(bool on)
{
    m_checkBoxes = on;
    touchAll(0, 0, {Qt::CheckStateRole});
}

void ReportModel::setPictureProvider(PictureProvider provider)
{
    m_pictures = std::move(provider);
    touchAll(0, 0, {Qt::DecorationRole});
}

} // namespace ORVTListview
