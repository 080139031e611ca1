#include "widgets/grid/PlainTable.h"

#include <QtCore/QHash>
#include <QtCore/QStringList>

#include <algorithm>
#include <utility>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// What a cell of a column makes of a text; nothing when it refuses.
std::optional<QString> takenBy(int column, const QString &text)
{
    static const QHash<QString, QString> numbers{
        {u""_s, u""_s}, {u"7"_s, u"7"_s}, {u"07.5"_s, u"7.5"_s}, {u"7.5"_s, u"7.5"_s}};
    static const QHash<QString, QString> choices{
        {u""_s, u""_s}, {u"AUTO"_s, u"Auto"_s}, {u"Auto"_s, u"Auto"_s}};
    if (column == 1)
        return text.size() <= 4 ? std::optional(text) : std::nullopt;
    const QHash<QString, QString> &known = column == 2 ? numbers : choices;
    const auto found = known.constFind(text);
    return column == 0 || found == known.cend() ? std::nullopt : std::optional(*found);
}

// Texts in natural order; what is empty comes last.
int rank(const QString &text)
{
    static const QStringList order{u"7"_s,    u"07.5"_s, u"7.5"_s,      u"ab"_s,
                                   u"AUTO"_s, u"Auto"_s, u"long text"_s};
    return text.isEmpty() ? 99 : static_cast<int>(order.indexOf(text));
}

bool passesText(const QString &text, const QString &filter)
{
    if (filter == u"="_s || filter == u"<>"_s)
        return text.isEmpty() == (filter == u"="_s);
    if (filter == u"<>7.5"_s)
        return text != u"7.5"_s && text != u"07.5"_s;
    return text.contains(filter, Qt::CaseInsensitive);
}

} // namespace

PlainTable::Row *PlainTable::named(int name)
{
    const auto found =
        std::find_if(rows.begin(), rows.end(), [name](const Row &row) { return row.name == name; });
    return found == rows.end() ? nullptr : &*found;
}

int PlainTable::positionOf(int name) const
{
    const auto found = std::find_if(rows.cbegin(), rows.cend(),
                                    [name](const Row &row) { return row.name == name; });
    return static_cast<int>(found - rows.cbegin());
}

void PlainTable::enter(const Step &wanted, const Host &host)
{
    Step step;
    bool isRefused = false;
    std::function<void()> asked = host.asked;
    for (Cell cell : wanted) {
        const Row *row = named(cell.row);
        const std::optional<QString> text = takenBy(cell.column, cell.text);
        isRefused = isRefused || (row && !text);
        if (!row || !text)
            continue;
        cell.text = *text;
        step.append(cell);
        if (row->cells.at(static_cast<std::size_t>(cell.column)) != *text && asked)
            std::exchange(asked, nullptr)();
    }
    const Step written = isRefused ? Step() : write(step);
    if (written.isEmpty())
        return;
    m_undone.clear();
    m_done.append(written);
    host.told();
}

// What there was to do; in order, as one cell may be there twice.
PlainTable::Step PlainTable::write(const Step &step)
{
    Step written;
    for (Cell cell : step) {
        Row *row = named(cell.row);
        if (!row)
            continue;
        QString &text = row->cells.at(static_cast<std::size_t>(cell.column));
        if (text == cell.text || (!cell.former.isNull() && text != cell.former))
            continue;
        cell.former = u""_s + text;
        text = cell.text;
        written.append(cell);
    }
    return written;
}

void PlainTable::undo(const Host &host)
{
    if (m_done.isEmpty())
        return;
    const Step step = m_done.takeLast();
    Step back;
    for (auto cell = step.crbegin(); cell != step.crend(); ++cell)
        back.append({cell->row, cell->column, u""_s + cell->text, cell->former});
    if (write(back).isEmpty())
        return;
    m_undone.append(step);
    host.told();
}

void PlainTable::redo(const Host &host)
{
    if (m_undone.isEmpty())
        return;
    const Step step = m_undone.takeLast();
    if (write(step).isEmpty())
        return;
    m_done.append(step);
    host.told();
}

void PlainTable::forget()
{
    m_done.clear();
    m_undone.clear();
}

bool PlainTable::passes(const Row &row, const QList<int> &columnsSeen) const
{
    for (auto filter = filters.cbegin(); filter != filters.cend(); ++filter) {
        const bool isAny = filter.key() == ListGrid::anyColumn;
        const QList<int> among = isAny ? columnsSeen : QList<int>{filter.key()};
        const bool found = std::any_of(among.begin(), among.end(), [&](int column) {
            return passesText(row.cells.at(static_cast<std::size_t>(column)), filter.value());
        });
        if (!found)
            return false;
    }
    return true;
}

bool PlainTable::isBefore(int first, int second) const
{
    for (const auto &[column, order] : keys) {
        const auto at = static_cast<std::size_t>(column);
        const QString &one = rowNamed(first).cells.at(at);
        const QString &other = rowNamed(second).cells.at(at);
        if (one == other)
            continue;
        const bool isUp = rank(one) < rank(other);
        const bool hasEmpty = one.isEmpty() || other.isEmpty();
        return order == Qt::AscendingOrder || hasEmpty ? isUp : !isUp;
    }
    return false;
}

void PlainTable::arrange(const QList<int> &columnsSeen)
{
    shown.clear();
    for (const Row &row : std::as_const(rows)) {
        if (passes(row, columnsSeen))
            shown.append(row.name);
    }
    std::stable_sort(shown.begin(), shown.end(),
                     [this](int first, int second) { return isBefore(first, second); });
}

void PlainTable::insert(int position)
{
    rows.insert(position, {nextName, {}});
    shown.insert(isArranged() ? shown.size() : position, nextName++);
}

void PlainTable::remove(int position)
{
    shown.removeOne(rows.at(position).name);
    rows.removeAt(position);
}

void PlainTable::replace(const QList<Row> &others, const QList<int> &columnsSeen)
{
    rows = others;
    forget();
    arrange(columnsSeen);
}

void PlainTable::move(const QList<int> &positions, int step)
{
    const auto moveOne = [&](int position) { rows.swapItemsAt(position, position + step); };
    if (step < 0)
        std::for_each(positions.cbegin(), positions.cend(), moveOne);
    else
        std::for_each(positions.crbegin(), positions.crend(), moveOne);
    shown.clear();
    for (const Row &row : std::as_const(rows))
        shown.append(row.name);
}
