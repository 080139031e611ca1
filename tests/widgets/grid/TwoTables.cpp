#include "widgets/grid/TwoTables.h"

#include "widgets/grid/GridDeeds.h"
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>

#include <algorithm>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

constexpr int mostDeedsTold = 10;

QString rowText(const QStringList &cells, bool isHidden)
{
    return cells.join(u'|') + (isHidden ? u" hidden"_s : QString());
}

QString cellText(const QString &text, int state)
{
    return state == 0 ? text : text + u'!' + QString::number(state);
}

} // namespace

TwoTables::TwoTables(unsigned seed)
    : m_random(seed)
    , m_tester(list.model(), QAbstractItemModelTester::FailureReportingMode::Fatal)
{
    for (int column = 0; column < PlainTable::columns; ++column)
        list.ColumnHeaders()->Add(0, QString::number(column));
    ListGrid &grid = *list.grid();
    grid.setRules(QString(), {{u"1"_s, {.kind = CellRule::Text, .maxLength = 4}},
                              {u"2"_s, {.kind = CellRule::Number, .minimum = 0, .maximum = 99}},
                              {u"3"_s, {.kind = CellRule::Choice, .choices = {u"Auto"_s}}}});
    grid.setEditsCells(true);
    grid.setSelectsCells(true);
    grid.setEditsRows(true);
    list.setMultiSelect(true);
    listenTo(grid);
    list.resize(360, 240);
    list.show();
    m_deeds.append(QString());
    for (int row = 0; row < usualRows; ++row)
        insertRow(row);
}

void TwoTables::step()
{
    const QList<GridDeed> &deeds = gridDeeds();
    const GridDeed &deed = deeds.at(below(static_cast<int>(deeds.size())));
    m_deeds = m_deeds.last(std::min<qsizetype>(m_deeds.size(), mostDeedsTold - 1));
    m_deeds.append(QString::fromLatin1(deed.name));
    plan(m_whenAsked, 8, Meddling::Undo);
    plan(m_whenTold, 4, Meddling::Replace);
    plan(m_ofRows, 4, Meddling::Arrange);
    refusesRows = below(8) == 0;
    deed.act(*this);
}

QString TwoTables::shown() const
{
    QStringList lines;
    for (int place = 0; place < list.model()->rowCount(); ++place) {
        QStringList cells;
        for (int column = 0; column < PlainTable::columns; ++column) {
            const QModelIndex cell = list.model()->index(place, column);
            cells.append(cellText(cell.data().toString(), cell.data(Qt::UserRole).toInt()));
        }
        lines.append(rowText(cells, list.isRowHidden(place)));
    }
    for (int row = 1; row <= list.ListItems()->Count(); ++row)
        lines.append(list.ListItems()->Item(row)->Tag());
    return lines.join(u'\n');
}

QString TwoTables::expected() const
{
    QStringList lines;
    for (const int name : plain.shown) {
        const PlainTable::Row &row = plain.rowNamed(name);
        QStringList cells;
        for (std::size_t column = 0; column < PlainTable::columns; ++column)
            cells.append(cellText(row.cells.at(column), static_cast<int>(row.states.at(column))));
        lines.append(rowText(cells, row.isHidden));
    }
    for (const PlainTable::Row &row : plain.rows)
        lines.append(QString::number(row.name));
    return lines.join(u'\n');
}

QString TwoTables::text()
{
    static const std::array texts{u""_s, u"7"_s, u"07.5"_s, u"AUTO"_s, u"long text"_s, u"ab"_s};
    return texts.at(static_cast<std::size_t>(below(texts.size())));
}

ListItem *TwoTables::item(int position) const
{
    return list.ListItems()->Item(position + 1);
}

std::optional<TwoTables::Block> TwoTables::choose()
{
    Block block;
    const auto places = static_cast<int>(plain.shown.size());
    for (int place = places == 0 ? 0 : below(places), left = 1 + below(3);
         place < places && left > 0; ++place) {
        if (!plain.seen(place).isHidden) {
            block.rows.append(place);
            --left;
        }
    }
    for (int column = below(PlainTable::columns), left = 1 + below(2);
         column < PlainTable::columns && left > 0; ++column) {
        if (!list.isColumnHidden(column)) {
            block.columns.append(column);
            --left;
        }
    }
    if (block.rows.isEmpty() || block.columns.isEmpty())
        return std::nullopt;
    const QAbstractItemModel &model = *list.model();
    const QModelIndex first = model.index(block.rows.first(), block.columns.first());
    const QModelIndex last = model.index(block.rows.last(), block.columns.last());
    list.setCurrentIndex(first);
    list.selectionModel()->select({first, last}, QItemSelectionModel::ClearAndSelect);
    say(u"%1,%2 %3x%4"_s.arg(first.row())
            .arg(first.column())
            .arg(block.rows.size())
            .arg(block.columns.size()));
    return block;
}

PlainTable::Cell TwoTables::cell(int place, int column, const QString &text) const
{
    return {plain.shown.at(place), column, QString(), text};
}

QList<int> TwoTables::columnsSeen() const
{
    QList<int> seen;
    for (int column = 0; column < PlainTable::columns; ++column) {
        if (!list.isColumnHidden(column))
            seen.append(column);
    }
    return seen;
}

void TwoTables::enter(const PlainTable::Step &step)
{
    plain.enter(step, host());
}

void TwoTables::insertRow(int position)
{
    list.Add(position + 1)->setTag(QString::number(m_nextName++));
    plain.insert(position);
}

void TwoTables::replace(const QList<PlainTable::Row> &rows)
{
    replaceInList(rows);
    replaceInPlain(rows);
}

void TwoTables::replaceInList(const QList<PlainTable::Row> &rows)
{
    QList<RowContent> contents;
    for (const PlainTable::Row &row : rows)
        contents.append({.text = row.cells.front(),
                         .tag = QString::number(m_nextName++),
                         .subItems = QStringList(row.cells.begin() + 1, row.cells.end())});
    list.setRows(contents);
}

void TwoTables::replaceInPlain(QList<PlainTable::Row> rows)
{
    for (PlainTable::Row &row : rows)
        row.name = plain.nextName++;
    plain.replace(rows, columnsSeen());
}
