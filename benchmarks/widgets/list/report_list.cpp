// A point table of ORVListView beside the toolkit's own two lists, each doing the same
// work: 32,767 rows of 14 columns. Every time runs until the list is painted.

#include "support/painting.h"
#include "support/report.h"
#include "widgets/list/lists.h"

#include "pointtable/rules/ColumnLayouts.h"
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ReportList.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QTreeWidget>

#include <memory>

using namespace ORVTListview;
using namespace ORVTListview::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr int rowTotal = 32767;
constexpr int columnTotal = 14;
constexpr int updatedColumn = 3;
constexpr int repetitions = 7;

QString cellText(int row, int column)
{
    if (column == 0)
        return rowText(row + 1);
    switch (column % 3) {
    case 0:
        return u"Supply Air Temp %1"_s.arg(row * column % 9973);
    case 1:
        return QString::number(row * column % 7919 / 7.0, 'f', 2);
    default:
        return u"Auto"_s;
    }
}

// Made before anything is measured, and shared by all lists.
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

const QString typeKey = u"Controllers"_s;

class Ours final : public ORVListView
{
public:
    Ours()
    {
        setListviewType(dsController); // the type of 14 columns
        empty();
    }

    QWidget *viewport() const { return listView()->viewport(); }
    QRect rectOf(int row, int column) const
    {
        return listView()->visualRect(listView()->model()->index(row, column));
    }

    void empty() { Clear(); }
    void number() { ChangeListviewNumber(rowTotal); }
    void create()
    {
        QList<RowContent> contents(rowTotal);
        for (int row = 0; row < rowTotal; ++row) {
            contents[row].key = rowKey(typeKey, row + 1);
            contents[row].text = texts().at(row).first();
            contents[row].subItems = texts().at(row).mid(1);
        }
        listView()->setRows(std::move(contents));
    }
    void update() { UpdateSubItems(u"off"_s, u"0"_s, updatedColumn); }
    void fit() { UpdateListViewWidth(m_message); }

    QString text(int row, int column) const
    {
        const ListItem *item = ListItems()->Item(row + 1);
        return column == 0 ? item->Text() : item->SubItem(column);
    }
    QString key(int row) const { return ListItems()->Item(row + 1)->Key(); }
    QString tag(int row) const { return ListItems()->Item(row + 1)->SubItemTag(updatedColumn); }

private:
    QString m_message;
};

class Tree final : public QTreeWidget
{
public:
    Tree()
    {
        setColumnCount(columnTotal);
        setRootIsDecorated(false);
        setUniformRowHeights(true);
        header()->setResizeContentsPrecision(-1); // every row
    }

    QRect rectOf(int row, int column) const { return visualRect(model()->index(row, column)); }

    void empty() { clear(); }
    void number()
    {
        QList<QTreeWidgetItem *> items;
        items.reserve(rowTotal);
        for (int row = 1; row <= rowTotal; ++row) {
            auto *item = new QTreeWidgetItem;
            item->setText(0, rowText(row));
            item->setData(0, Qt::UserRole, rowKey(typeKey, row));
            item->setText(columnTotal - 1, u" "_s);
            items.append(item);
        }
        addTopLevelItems(items);
    }

    void create()
    {
        QList<QTreeWidgetItem *> items;
        items.reserve(rowTotal);
        for (const QStringList &row : texts())
            items.append(new QTreeWidgetItem(row));
        addTopLevelItems(items);
    }
    void update()
    {
        const QString text = u"off"_s;
        const QString tag = u"0"_s;
        for (int row = 0; row < rowTotal; ++row) {
            topLevelItem(row)->setText(updatedColumn, text);
            topLevelItem(row)->setData(updatedColumn, Qt::UserRole, tag);
        }
    }
    void fit()
    {
        for (int column = 0; column < columnTotal; ++column)
            resizeColumnToContents(column);
    }

    QString text(int row, int column) const { return topLevelItem(row)->text(column); }
    QString key(int row) const { return topLevelItem(row)->data(0, Qt::UserRole).toString(); }
    QString tag(int row) const
    {
        return topLevelItem(row)->data(updatedColumn, Qt::UserRole).toString();
    }
};

class Table final : public QTableWidget
{
public:
    Table()
    {
        setColumnCount(columnTotal);
        horizontalHeader()->setResizeContentsPrecision(-1); // every row
    }

    QRect rectOf(int row, int column) const { return visualRect(model()->index(row, column)); }

    void empty() { setRowCount(0); }
    void number()
    {
        setRowCount(rowTotal);
        for (int row = 0; row < rowTotal; ++row) {
            auto *item = new QTableWidgetItem(rowText(row + 1));
            item->setData(Qt::UserRole, rowKey(typeKey, row + 1));
            setItem(row, 0, item);
            setItem(row, columnTotal - 1, new QTableWidgetItem(u" "_s));
        }
    }

    void create()
    {
        setRowCount(rowTotal);
        for (int row = 0; row < rowTotal; ++row) {
            for (int column = 0; column < columnTotal; ++column)
                setItem(row, column, new QTableWidgetItem(texts().at(row).at(column)));
        }
    }
    void update()
    {
        const QString text = u"off"_s;
        const QString tag = u"0"_s;
        for (int row = 0; row < rowTotal; ++row) {
            item(row, updatedColumn)->setText(text);
            item(row, updatedColumn)->setData(Qt::UserRole, tag);
        }
    }
    void fit() { resizeColumnsToContents(); }

    QString text(int row, int column) const
    {
        const QTableWidgetItem *held = item(row, column);
        return held ? held->text() : QString();
    }
    QString key(int row) const { return item(row, 0)->data(Qt::UserRole).toString(); }
    QString tag(int row) const { return item(row, updatedColumn)->data(Qt::UserRole).toString(); }
};

struct Costs
{
    Times number;
    Times create;
    Times update;
    Times fit;
    Times memory; // bytes, really
};

// One list from the beginning to the end.
template <typename List>
void measureOnce(Costs &costs)
{
    List list;
    showForBenchmark(list);
    costs.number.add(timedPainted(list, &List::number));
    list.empty();
    QCoreApplication::processEvents();
    const double before = heap();
    costs.create.add(timedPainted(list, &List::create));
    costs.memory.add(heap() - before);
    costs.update.add(timedPainted(list, &List::update));
    costs.fit.add(timedPainted(list, &List::fit));
}

void printBeside(const QString &peer, const Costs &ours, const Costs &peers, double fitBound)
{
    const auto print = [&](const QString &name, Times Costs::*times, double bound, Unit unit) {
        printRow({.name = name,
                  .ours = medianOf(u"our table"_s, ours.*times),
                  .peers = medianOf(peer, peers.*times),
                  .bound = bound,
                  .unit = unit});
    };
    print(u"Point table: 32,767 numbered rows"_s, &Costs::number, 1, Unit::Time);
    print(u"Point table: 32,767 rows of 14 cells"_s, &Costs::create, 1, Unit::Time);
    print(u"Point table: UpdateSubItems on them"_s, &Costs::update, 1, Unit::Time);
    print(u"Point table: UpdateListViewWidth on them"_s, &Costs::fit, fitBound, Unit::Time);
    print(u"Point table: their memory"_s, &Costs::memory, 1, Unit::Bytes);
}

template <typename List>
void checkList(const QString &name)
{
    List list;
    showForBenchmark(list);
    timedPainted(list, &List::number);
    bool isNumbered = true;
    for (int row = 0; row < rowTotal; ++row)
        isNumbered = isNumbered && list.text(row, 0) == rowText(row + 1) &&
                     list.text(row, 1).isEmpty() && list.text(row, columnTotal - 1) == u" " &&
                     list.key(row) == rowKey(typeKey, row + 1);
    check(u"every row of the %1 is numbered"_s.arg(name), isNumbered);
    list.empty();
    timedPainted(list, &List::create);
    timedPainted(list, &List::update);
    timedPainted(list, &List::fit);
    bool right = true;
    for (int row = 0; row < rowTotal; ++row) {
        for (int column = 0; column < columnTotal; ++column)
            right = right && list.text(row, column) ==
                                 (column == updatedColumn ? u"off"_s : cellText(row, column));
        right = right && list.tag(row) == u"0"_s;
    }
    check(u"every cell of the %1 is right"_s.arg(name), right);
    const int widest = list.fontMetrics().horizontalAdvance(cellText(9972, 6));
    check(u"the %1 shows its widest texts whole"_s.arg(name), list.rectOf(0, 6).width() >= widest);
}

void checkWork()
{
    checkList<Ours>(u"point table"_s);
    checkList<Tree>(u"tree widget"_s);
    checkList<Table>(u"table widget"_s);
}

void measure()
{
    texts();
    Costs ours;
    Costs trees;
    Costs tables;
    for (int i = 0; i < repetitions; ++i) {
        measureOnce<Ours>(ours);
        measureOnce<Tree>(trees);
        measureOnce<Table>(tables);
    }
    printBeside(u"tree widget"_s, ours, trees, 0.25);
    printBeside(u"table widget"_s, ours, tables, 1);
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return runBenchmark(argc, argv, checkWork, measure);
}
