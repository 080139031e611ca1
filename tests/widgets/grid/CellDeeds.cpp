// What is done to the texts and states of cells.

#include "widgets/grid/GridDeeds.h"
#include "widgets/grid/TwoTables.h"
#include <ORVTListview/ListItem.h>

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QUndoStack>
#include <QtTest/QTest>

#include <algorithm>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

int anyRow(TwoTables &tables)
{
    return tables.below(static_cast<int>(tables.plain.rows.size()));
}

void enterText(TwoTables &tables)
{
    const int row = anyRow(tables);
    const int column = tables.below(PlainTable::columns);
    const QString entered = tables.text();
    tables.say(u"%1,%2 '%3'"_s.arg(row).arg(column).arg(entered));
    const PlainTable::Step step{{tables.plain.rows.at(row).name, column, QString(), entered}};
    tables.list.grid()->enterText(tables.item(row), static_cast<qint16>(column), entered);
    tables.enter(step);
}

void clear(TwoTables &tables)
{
    const auto block = tables.choose();
    if (!block || block->columns.first() == 0) // where the current cell is not edited
        return;
    PlainTable::Step step;
    for (const int row : block->rows) {
        for (const int column : block->columns)
            step.append(tables.cell(row, column, u""_s));
    }
    QTest::keyClick(&tables.list, Qt::Key_Delete);
    tables.enter(step);
}

void fillDown(TwoTables &tables)
{
    const auto block = tables.choose();
    if (!block || block->columns.first() == 0)
        return;
    int from = block->rows.first();
    if (block->rows.size() == 1) {
        for (--from; from >= 0 && tables.plain.seen(from).isHidden;)
            --from;
    }
    PlainTable::Step step;
    for (const int row : block->rows) {
        for (const int column : block->columns) {
            if (from >= 0 && row != from)
                step.append(tables.cell(
                    row, column,
                    tables.plain.seen(from).cells.at(static_cast<std::size_t>(column))));
        }
    }
    QTest::keyClick(&tables.list, Qt::Key_D, Qt::ControlModifier);
    tables.enter(step);
}

QList<QStringList> anyTexts(TwoTables &tables)
{
    QList<QStringList> block(1 + tables.below(2));
    const int width = 1 + tables.below(2);
    for (QStringList &line : block) {
        for (int column = 0; column < width; ++column)
            line.append(tables.text());
    }
    return block;
}

// What has come of a paste; nothing where there is no room.
PlainTable::Step pasted(TwoTables &tables, const TwoTables::Block &place,
                        const QList<QStringList> &texts)
{
    const auto height = static_cast<int>(texts.size());
    const auto width = static_cast<int>(texts.first().size());
    const bool repeats = place.rows.size() % height == 0 && place.columns.size() % width == 0;
    const int rows = repeats ? static_cast<int>(place.rows.size()) : height;
    const int across = repeats ? static_cast<int>(place.columns.size()) : width;
    PlainTable::Step step;
    for (int y = 0, row = place.rows.first(); y < rows; ++y, ++row) {
        while (row < tables.plain.shown.size() && tables.plain.seen(row).isHidden)
            ++row;
        for (int x = 0, column = place.columns.first(); x < across; ++x, ++column) {
            while (column < PlainTable::columns && tables.list.isColumnHidden(column))
                ++column;
            if (row >= tables.plain.shown.size() || column >= PlainTable::columns)
                return {};
            step.append(tables.cell(row, column, texts.at(y % height).at(x % width)));
        }
    }
    return step;
}

void paste(TwoTables &tables)
{
    const auto block = tables.choose();
    if (!block)
        return;
    const QList<QStringList> texts = anyTexts(tables);
    QString copied;
    for (const QStringList &line : texts)
        copied += line.join(u'\t') + u'\n';
    tables.say(u"'%1'"_s.arg(copied));
    QGuiApplication::clipboard()->setText(copied);
    const PlainTable::Step step = pasted(tables, *block, texts);
    tables.list.grid()->pasteCells();
    tables.enter(step);
}

void undo(TwoTables &tables)
{
    tables.list.grid()->undoStack()->undo();
    tables.plain.undo(tables.host());
}

void redo(TwoTables &tables)
{
    tables.list.grid()->undoStack()->redo();
    tables.plain.redo(tables.host());
}

void setText(TwoTables &tables)
{
    const int row = anyRow(tables);
    const int column = tables.below(PlainTable::columns);
    const QString set = tables.text();
    tables.say(u"%1,%2 '%3'"_s.arg(row).arg(column).arg(set));
    if (column == 0)
        tables.item(row)->setText(set);
    else
        tables.item(row)->setSubItem(column, set);
    tables.plain.rows[row].cells.at(static_cast<std::size_t>(column)) = set;
}

void setState(TwoTables &tables)
{
    const int row = anyRow(tables);
    const int column = tables.below(PlainTable::columns);
    const auto state = static_cast<CellState>(tables.below(5));
    tables.list.grid()->setCellState(tables.item(row), static_cast<qint16>(column), state);
    tables.plain.rows[row].states.at(static_cast<std::size_t>(column)) = state;
}

} // namespace

QList<GridDeed> cellDeeds()
{
    return {{"enterText", enterText}, {"enterText", enterText}, {"clear", clear},
            {"fillDown", fillDown},   {"paste", paste},         {"paste", paste},
            {"undo", undo},           {"undo", undo},           {"redo", redo},
            {"setText", setText},     {"setState", setState}};
}
