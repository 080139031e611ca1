// What the host of two tables does while it is asked and told.

#include "widgets/grid/TwoTables.h"
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>

#include <QtGui/QUndoStack>

#include <utility>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

constexpr int fewestRows = 8;
constexpr int mostRows = 24;

// Alike, with a text in the third column.
QList<PlainTable::Row> rowsOf(const QString &text)
{
    QList<PlainTable::Row> rows(TwoTables::usualRows);
    for (PlainTable::Row &row : rows)
        row.cells.at(2) = text;
    return rows;
}

} // namespace

void TwoTables::listenTo(ListGrid &grid)
{
    connect(&grid, &ListGrid::cellEntering, this, [this] { meddle(m_whenAsked); });
    connect(&grid, &ListGrid::cellsChanged, this, [this] { meddle(m_whenTold); });
    connect(&grid, &ListGrid::rowsEditing, this,
            [this](ListGrid::RowDeed, const QList<qint32> &, QString &refusal) {
                if (refusesRows)
                    refusal = u"Not now."_s;
            });
    connect(&grid, &ListGrid::rowsEdited, this,
            [this](ListGrid::RowDeed deed, const QList<qint32> &rows) {
                if (deed == ListGrid::AddRows || deed == ListGrid::DuplicateRows)
                    nameRows(rows);
                meddle(m_ofRows);
            });
}

void TwoTables::nameRows(const QList<qint32> &rows)
{
    for (const qint32 row : rows)
        item(row - 1)->setTag(QString::number(m_nextName++));
}

void TwoTables::plan(Plan &plan, int oneIn, Meddling::Deed last)
{
    plan = {};
    if (below(oneIn) == 0)
        plan.wanted = Meddling{static_cast<Meddling::Deed>(below(last + 1)), below(fewestRows),
                               below(PlainTable::columns), text()};
}

PlainTable::Host TwoTables::host()
{
    return {[this] { repeat(m_whenAsked); }, [this] { repeat(m_whenTold); }};
}

void TwoTables::meddle(Plan &plan)
{
    if (!plan.wanted || std::exchange(plan.isDone, true))
        return;
    say(u"(host: %1 %2,%3 '%4')"_s.arg(plan.wanted->deed)
            .arg(plan.wanted->position)
            .arg(plan.wanted->column)
            .arg(plan.wanted->text));
    meddleWithList(*plan.wanted);
}

void TwoTables::repeat(Plan &plan)
{
    if (!plan.isDone)
        return;
    const Meddling done = *std::exchange(plan, {}).wanted;
    meddleWithPlain(done);
}

void TwoTables::meddleWithList(const Meddling &wanted)
{
    const int rows = list.ListItems()->Count();
    switch (wanted.deed) {
    case Meddling::SetText:
        if (wanted.column == 0)
            item(wanted.position)->setText(wanted.text);
        else
            item(wanted.position)->setSubItem(wanted.column, wanted.text);
        break;
    case Meddling::Insert:
        if (rows < mostRows)
            list.Add(wanted.position + 1)->setTag(QString::number(m_nextName++));
        break;
    case Meddling::Remove:
        if (rows > fewestRows)
            list.ListItems()->Remove(wanted.position + 1);
        break;
    case Meddling::Arrange:
        list.grid()->arrangeRows();
        break;
    case Meddling::Undo:
        list.grid()->undoStack()->undo();
        break;
    case Meddling::Replace:
        replaceInList(rowsOf(wanted.text));
        break;
    }
}

void TwoTables::meddleWithPlain(const Meddling &wanted)
{
    const auto rows = static_cast<int>(plain.rows.size());
    switch (wanted.deed) {
    case Meddling::SetText:
        plain.rows[wanted.position].cells.at(static_cast<std::size_t>(wanted.column)) = wanted.text;
        break;
    case Meddling::Insert:
        if (rows < mostRows)
            plain.insert(wanted.position);
        break;
    case Meddling::Remove:
        if (rows > fewestRows)
            plain.remove(wanted.position);
        break;
    case Meddling::Arrange:
        plain.arrange(columnsSeen());
        break;
    case Meddling::Undo:
        plain.undo(host());
        break;
    case Meddling::Replace:
        replaceInPlain(rowsOf(wanted.text));
        break;
    }
}
