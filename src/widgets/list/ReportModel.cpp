#include "widgets/list/ReportModel.h"

#include "grid/rules/ShownCell.h"
#include "shared/texts/TextTable.h"
#include <ORVTListview/Error.h>

#include <QtCore/QScopedValueRollback>

#include <algorithm>
#include <iterator>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void refuseKey(const QString &key)
{
    throw Error(InvalidCall, u"ReportList"_s, u"The key \"%1\" is in use already"_s.arg(key));
}

// Nothing of a plain cell.
QVariant stateData(const QString &text, CellState state, int role)
{
    if (state == CellState::Plain)
        return {};
    if (role == CellTable::stateRole)
        return static_cast<int>(state);
    return role == Qt::ToolTipRole ? stateWord(state) : spokenCell(text, state);
}

// Its text, and whether rows are sorted by it.
QString spokenHeader(const ReportColumn &column)
{
    if (column.sortRank == 0)
        return column.text;
    const QString how =
        Localise(column.sortRank > 0 ? u"%1, sorted upwards"_s : u"%1, sorted downwards"_s);
    return how.arg(column.text);
}

} // namespace

int ReportModel::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    return m_isOrdered ? static_cast<int>(m_shown.size()) : rows();
}

int ReportModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : columns();
}

QIcon ReportModel::pictureOf(const ReportRow &row) const
{
    return m_pictures && !row.content.picture.isEmpty() ? m_pictures(row.content.picture) : QIcon();
}

QVariant ReportModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const ReportRow &held = rowAt(index);
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
    case CellTable::stateRole:
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return stateData(cellText(held, index.column()), state(held, index.column()), role);
    default:
        return {};
    }
}

// Only views come this way; what the program changes has functions of its own.
bool ReportModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid())
        return false;
    if (role == Qt::EditRole && column(index.column()).isEdited && m_entry)
        return m_entry(index, value.toString());
    if (index.column() != 0)
        return false;
    ReportRow &held = rowAt(index);
    if (role == Qt::EditRole) {
        setText(held, value.toString());
        return true;
    }
    if (role == Qt::CheckStateRole && m_checkBoxes) {
        setChecked(held, value.toInt() == Qt::Checked);
        Q_EMIT checkedByUser(positionOf(held));
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
    if (role == sortRankRole)
        return column(section).sortRank;
    if (role == Qt::AccessibleTextRole)
        return spokenHeader(column(section));
    return {};
}

Qt::ItemFlags ReportModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags flags =
        Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
    if (index.column() == labelColumn() || column(index.column()).isEdited)
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
    return m_positions.of(m_rows, row);
}

ReportRow &ReportModel::addRow(int position, RowContent content)
{
    Rows added;
    added.push_back(std::make_unique<ReportRow>(std::move(content)));
    ReportRow &row = *added.front();
    addRows(position, std::move(added));
    return row;
}

void ReportModel::addRows(int position, Rows rows)
{
    const int place = m_isOrdered ? rowCount() : position;
    announce([&] { beginInsertRows({}, place, place + static_cast<int>(rows.size()) - 1); });
    for (const std::unique_ptr<ReportRow> &row : rows) {
        if (m_isOrdered)
            m_shown.push_back(row.get());
        if (!row->content.key.isEmpty())
            m_keys.insert(row->content.key, row.get());
    }
    m_rows.insert(m_rows.begin() + position, std::make_move_iterator(rows.begin()),
                  std::make_move_iterator(rows.end()));
    m_positions.forgetFrom(position);
    endInsertRows();
}

void ReportModel::deleteRow(int position)
{
    const int place = placeOf(row(position));
    if (place >= 0) {
        deleteShown(place, 1);
        return;
    }
    m_keys.remove(row(position).content.key);
    m_rows.erase(m_rows.begin() + position);
    m_positions.forgetFrom(position);
}

void ReportModel::deleteShown(int place, int count)
{
    announce([&] { beginRemoveRows({}, place, place + count - 1); });
    takeShown(place, count);
    endRemoveRows();
}

// In one pass, however far apart they are among all.
void ReportModel::takeShown(int place, int count)
{
    int first = rows();
    int last = -1;
    for (int gone = place; gone < place + count; ++gone) {
        ReportRow &going = rowAt(gone);
        going.isGoing = true;
        m_keys.remove(going.content.key);
        first = std::min(first, positionOf(going));
        last = std::max(last, positionOf(going));
    }
    if (m_isOrdered) {
        m_shown.erase(m_shown.begin() + place, m_shown.begin() + place + count);
        m_places.forgetFrom(place);
    }
    const auto end = m_rows.begin() + last + 1;
    m_rows.erase(
        std::remove_if(m_rows.begin() + first, end, [](const auto &row) { return row->isGoing; }),
        end);
    m_positions.forgetFrom(first);
}

void ReportModel::announce(const std::function<void()> &begin)
{
    if (m_isAnnouncing)
        throw Error(InvalidCall, u"ReportList"_s,
                    u"Another change of rows or columns is about to come"_s);
    const QScopedValueRollback announcing(m_isAnnouncing, true);
    begin();
}

ReportModel::Rows ReportModel::rowsOf(QList<RowContent> contents)
{
    Rows rows;
    rows.reserve(static_cast<std::size_t>(contents.size()));
    for (RowContent &content : contents)
        rows.push_back(std::make_unique<ReportRow>(std::move(content)));
    return rows;
}

ReportModel::Keys ReportModel::keysOf(const Rows &rows)
{
    Keys keys;
    keys.reserve(static_cast<qsizetype>(rows.size()));
    for (const std::unique_ptr<ReportRow> &row : rows) {
        const QString &key = row->content.key;
        if (key.isEmpty())
            continue;
        const qsizetype before = keys.size();
        keys.insert(key, row.get());
        if (keys.size() == before)
            refuseKey(key);
    }
    return keys;
}

void ReportModel::setRows(QList<RowContent> contents)
{
    Rows rows = rowsOf(std::move(contents));
    Keys keys = keysOf(rows);
    announce([&] { beginResetModel(); });
    m_rows = std::move(rows);
    m_keys = std::move(keys);
    m_positions.forgetFrom(0);
    order(wantedOrder());
    endResetModel();
}

void ReportModel::appendRows(QList<RowContent> contents)
{
    if (contents.isEmpty())
        return;
    Rows added = rowsOf(std::move(contents));
    const Keys keys = keysOf(added);
    for (auto key = keys.keyBegin(); key != keys.keyEnd(); ++key) {
        if (m_keys.contains(*key))
            refuseKey(key->text());
    }
    addRows(rows(), std::move(added));
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
