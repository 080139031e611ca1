// The grid of a list beside the toolkit's view with a sorting and filtering proxy and a
// standard model, each doing the same work: 32,767 rows of 14 columns. Times run until the
// view is painted.

#include "support/painting.h"
#include "support/report.h"
#include "widgets/list/lists.h"

#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/ListGrid.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ReportList.h>

#include <QtCore/QSortFilterProxyModel>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QStandardItemModel>
#include <QtGui/QUndoStack>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

#include <memory>
#include <vector>

using namespace ORVTListview;
using namespace ORVTListview::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr int rowTotal = 32767;
constexpr int columnTotal = 14;
constexpr int textColumn = 1;
constexpr int numberColumn = 2;
constexpr int pastedRows = 1000;
constexpr int pastedColumns = 10;
constexpr int firstPasted = 3;
constexpr int repetitions = 7;
constexpr int pages = 40;
constexpr int rowHeight = 22;
constexpr int columnWidth = 96;
constexpr int frames = 120;
constexpr int framesEachSecond = 60;
constexpr int changedEachSecond = 10'000;
const QString filter = u"temp 12"_s;

QString cellText(int row, int column)
{
    if (column == 0)
        return QString::number(row + 1);
    const int mixed = static_cast<int>((row * 7919LL + column * 104729LL) % 9973);
    if (column == textColumn)
        return u"Supply Air Temp %1"_s.arg(mixed);
    if (column == numberColumn)
        return QString::number(mixed / 8.0);
    return column % 2 == 0 ? u"Auto"_s : u"Value %1"_s.arg(mixed);
}

// Made before anything is measured, and shared by both.
const QList<QStringList> &texts()
{
    static const QList<QStringList> made = [] {
        QList<QStringList> rows(rowTotal);
        for (int row = 0; row < rowTotal; ++row) {
            for (int column = 0; column < columnTotal; ++column)
                rows[row].append(cellText(row, column));
        }
        return rows;
    }();
    return made;
}

QString pastedText(int row, int column)
{
    return u"Pasted %1"_s.arg(row * pastedColumns + column);
}

class Ours final : public ReportList
{
public:
    Ours()
    {
        QHash<QString, CellRule> rules;
        for (int column = 0; column < columnTotal; ++column) {
            const QString key = u"Column%1"_s.arg(column);
            ColumnHeaders()->Add(0, key, key);
            rules.insert(key, {.kind = CellRule::Text});
        }
        setMultiSelect(true);
        grid()->setRules({}, rules);
        grid()->setEditsCells(true);
        grid()->setSelectsCells(true);
        grid()->setSortsRows(true);
    }

    void fill()
    {
        QList<RowContent> contents(rowTotal);
        for (int row = 0; row < rowTotal; ++row) {
            contents[row].text = texts().at(row).first();
            contents[row].subItems = texts().at(row).mid(1);
        }
        setRows(std::move(contents));
    }
    void sortTexts() { grid()->setSortKeys({{textColumn, Qt::AscendingOrder}}); }
    void sortNumbers() { grid()->setSortKeys({{numberColumn, Qt::AscendingOrder}}); }
    void unsort() { grid()->setSortKeys({}); }
    void filterAll() { grid()->setFilterText(ListGrid::anyColumn, filter); }
    void unfilter() { grid()->setFilterText(ListGrid::anyColumn, {}); }
    void paste()
    {
        setCurrentIndex(model()->index(0, firstPasted));
        if (!grid()->pasteCells())
            qFatal("nothing was pasted");
    }
    void scrollPages()
    {
        for (int page = 0; page < pages; ++page) {
            verticalScrollBar()->setValue(page * verticalScrollBar()->pageStep());
            viewport()->repaint();
        }
    }
    void changeCells(int frame)
    {
        constexpr int changed = changedEachSecond / framesEachSecond;
        for (int i = 0; i < changed; ++i) {
            const int place = frame * changed + i;
            ListItem &row = *ListItems()->Item(1 + place * 7919 % rowTotal);
            row.setSubItem(1 + place % (columnTotal - 1), u"Live %1"_s.arg(place));
        }
    }
    // One of many that change cells, scroll by a few rows and paint.
    double frame(int number)
    {
        return timed([&] {
            changeCells(number);
            verticalScrollBar()->setValue(number * 3);
            viewport()->repaint();
        });
    }
    int shown() const { return grid()->rowsShown(); }
    QString text(int row, int column) const
    {
        return model()->index(row, column).data().toString();
    }
};

// What undoes a paste into a model.
class PasteStep final : public QUndoCommand
{
public:
    struct Change
    {
        QPersistentModelIndex cell;
        QVariant former;
        QVariant text;
    };
    PasteStep(QAbstractItemModel &model, std::vector<Change> changes)
        : m_model(model)
        , m_changes(std::move(changes))
    {
    }
    void redo() override
    {
        for (const Change &change : m_changes)
            m_model.setData(change.cell, change.text);
    }
    void undo() override
    {
        for (const Change &change : m_changes)
            m_model.setData(change.cell, change.former);
    }

private:
    QAbstractItemModel &m_model;
    std::vector<Change> m_changes;
};

class Theirs final : public QTableView
{
public:
    Theirs()
    {
        m_proxy.setFilterKeyColumn(-1);
        m_proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
        m_proxy.setDynamicSortFilter(false);
        m_model.setColumnCount(columnTotal);
        m_proxy.setSourceModel(&m_model);
        setModel(&m_proxy);
        setShowGrid(false); // as many cells as ours, with as much around each
        setWordWrap(false);
        verticalHeader()->hide();
    }
    ~Theirs() override { setModel(nullptr); }

    void fill()
    {
        m_model.setRowCount(0);
        for (const QStringList &texts : ::texts()) {
            QList<QStandardItem *> items;
            items.reserve(columnTotal);
            for (int column = 0; column < columnTotal; ++column) {
                auto *item = new QStandardItem;
                if (column == numberColumn) // so that it sorts by its value
                    item->setData(texts.at(column).toDouble(), Qt::DisplayRole);
                else
                    item->setText(texts.at(column));
                items.append(item);
            }
            m_model.appendRow(items);
        }
    }
    void sortTexts() { m_proxy.sort(textColumn); }
    void sortNumbers() { m_proxy.sort(numberColumn); }
    void unsort() { m_proxy.sort(-1); }
    void filterAll() { m_proxy.setFilterFixedString(filter); }
    void unfilter() { m_proxy.setFilterFixedString({}); }
    void paste()
    {
        const QStringList lines =
            QGuiApplication::clipboard()->text().split(u'\n', Qt::SkipEmptyParts);
        std::vector<PasteStep::Change> changes;
        changes.reserve(pastedRows * pastedColumns);
        for (int row = 0; row < lines.size(); ++row) {
            const QStringList cells = lines.at(row).split(u'\t');
            for (int column = 0; column < cells.size(); ++column) {
                const QModelIndex cell = m_proxy.index(row, firstPasted + column);
                changes.push_back({cell, cell.data(), cells.at(column)});
            }
        }
        m_undo.push(new PasteStep(m_proxy, std::move(changes)));
    }
    void scrollPages()
    {
        for (int page = 0; page < pages; ++page) {
            verticalScrollBar()->setValue(page * verticalScrollBar()->pageStep());
            viewport()->repaint();
        }
    }
    int shown() const { return m_proxy.rowCount(); }
    QString text(int row, int column) const { return m_proxy.index(row, column).data().toString(); }

private:
    QStandardItemModel m_model;
    QSortFilterProxyModel m_proxy;
    QUndoStack m_undo;
};

struct Costs
{
    Times fill;
    Times memory; // bytes, really
    Times sortTexts;
    Times sortNumbers;
    Times filter;
    Times scroll;
    Times paste;
};

// The rows that are seen change, too, and flash.
Times liveFrames()
{
    Ours list;
    showForBenchmark(list);
    list.fill();
    list.sortNumbers();
    list.grid()->setFlashesChanges(true);
    Times times;
    for (int frame = 0; frame < frames; ++frame)
        times.add(list.frame(frame));
    return times;
}

template <typename List>
void measureOnce(Costs &costs)
{
    List list;
    list.verticalHeader()->setDefaultSectionSize(rowHeight);
    list.horizontalHeader()->setDefaultSectionSize(columnWidth);
    showForBenchmark(list);
    const double before = heap();
    costs.fill.add(timedPainted(list, &List::fill));
    costs.sortTexts.add(timedPainted(list, &List::sortTexts));
    costs.sortNumbers.add(timedPainted(list, &List::sortNumbers));
    costs.memory.add(heap() - before);
    costs.scroll.add(timed([&] { list.scrollPages(); }));
    timedPainted(list, &List::unsort);
    costs.filter.add(timedPainted(list, &List::filterAll));
    timedPainted(list, &List::unfilter);
    costs.paste.add(timedPainted(list, &List::paste));
}

void copyCells()
{
    QString copied;
    for (int row = 0; row < pastedRows; ++row) {
        for (int column = 0; column < pastedColumns; ++column)
            copied += pastedText(row, column) + (column + 1 < pastedColumns ? u'\t' : u'\n');
    }
    QGuiApplication::clipboard()->setText(copied);
}

template <typename List>
void checkList(const QString &name)
{
    List list;
    showForBenchmark(list);
    timedPainted(list, &List::fill);
    timedPainted(list, &List::sortNumbers);
    bool isSorted = true;
    for (int row = 1; row < rowTotal; ++row)
        isSorted = isSorted && list.text(row - 1, numberColumn).toDouble() <=
                                   list.text(row, numberColumn).toDouble();
    check(u"the numbers of %1 are sorted"_s.arg(name), isSorted);
    timedPainted(list, &List::unsort);
    timedPainted(list, &List::filterAll);
    int found = 0;
    for (const QStringList &row : texts())
        found += row.join(u'\n').contains(filter, Qt::CaseInsensitive) ? 1 : 0;
    checkEqual(u"rows that %1 finds"_s.arg(name), list.shown(), found);
    timedPainted(list, &List::unfilter);
    checkEqual(u"rows of %1"_s.arg(name), list.shown(), rowTotal);
    timedPainted(list, &List::paste);
    bool isPasted = true;
    for (int row = 0; row < pastedRows; ++row) {
        for (int column = 0; column < pastedColumns; ++column)
            isPasted = isPasted && list.text(row, firstPasted + column) == pastedText(row, column);
    }
    check(u"what was pasted into %1 is there"_s.arg(name), isPasted);
}

void checkWork()
{
    copyCells();
    checkList<Ours>(u"our grid"_s);
    checkList<Theirs>(u"the toolkit's view"_s);
}

void measure()
{
    copyCells();
    texts();
    Costs ours;
    Costs theirs;
    for (int i = 0; i < repetitions; ++i) {
        measureOnce<Ours>(ours);
        measureOnce<Theirs>(theirs);
    }
    const auto print = [&](const QString &name, Times Costs::*times, double bound, Unit unit) {
        printRow({.name = name,
                  .ours = medianOf(u"our grid"_s, ours.*times),
                  .peers = medianOf(u"table view with proxy"_s, theirs.*times),
                  .bound = bound,
                  .unit = unit});
    };
    const auto printLimit = [&](const QString &name, Times Costs::*times, double most) {
        printRow({.name = name,
                  .ours = medianOf(u"our grid"_s, ours.*times),
                  .bound = most * milliseconds});
    };
    print(u"Grid: 32,767 rows of 14 cells"_s, &Costs::fill, 0.5, Unit::Time);
    print(u"Grid: their memory, sorted"_s, &Costs::memory, 0.6, Unit::Bytes);
    print(u"Grid: sort by a column of names"_s, &Costs::sortTexts, 0.3, Unit::Time);
    print(u"Grid: sort by a column of numbers"_s, &Costs::sortNumbers, 0.3, Unit::Time);
    printLimit(u"Grid: sort by a column of names, at most 150 ms"_s, &Costs::sortTexts, 150);
    print(u"Grid: filter by any column"_s, &Costs::filter, 0.3, Unit::Time);
    printLimit(u"Grid: filter by any column, at most 50 ms"_s, &Costs::filter, 50);
    print(u"Grid: scroll by 40 pages"_s, &Costs::scroll, 1, Unit::Time);
    printRow({.name = u"Grid: a frame of 60 each second while 10,000 cells change in it"_s,
              .ours = percentile99Of(u"our grid, 99 of 100"_s, liveFrames()),
              .bound = 1000.0 / framesEachSecond * milliseconds});
    print(u"Grid: paste 10,000 cells"_s, &Costs::paste, 0.5, Unit::Time);
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return runBenchmark(argc, argv, checkWork, measure);
}
