#include "support/RandomSeed.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include <ORVTListview/ColumnHeader.h>
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/ListGrid.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ReportList.h>

#include <QtCore/QMap>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QUndoStack>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QtTest>

#include <algorithm>
#include <array>
#include <memory>
#include <optional>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

constexpr int columns = 4;

// What a cell of a column makes of a text; nothing when it refuses. Column 0 is not edited,
// 1 is text, 2 a number, 3 a choice.
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

const std::array texts{u""_s, u"7"_s, u"07.5"_s, u"AUTO"_s, u"long text"_s, u"ab"_s};

// The table as two dimensions of texts, and what undoes its changes.
struct PlainTable
{
    struct Row
    {
        int name;
        std::array<QString, columns> cells;
        bool isHidden = false;
    };
    struct Cell
    {
        int row; // by name
        int column;
        QString former;
        QString text;
    };
    using Step = QList<Cell>;

    Row *named(int name)
    {
        const auto found = std::find_if(rows.begin(), rows.end(),
                                        [name](const Row &row) { return row.name == name; });
        return found == rows.end() ? nullptr : &*found;
    }

    void enter(const Step &wanted)
    {
        Step step;
        for (Cell cell : wanted) {
            const std::optional<QString> text = takenBy(cell.column, cell.text);
            if (!text)
                return;
            cell.text = *text;
            step.append(cell);
        }
        step = write(step);
        if (step.isEmpty())
            return;
        undone.clear();
        done.append(step);
    }

    // What there was to do; in order, as one cell may be there twice.
    Step write(const Step &step)
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

    void undo()
    {
        if (done.isEmpty())
            return;
        const Step step = done.takeLast();
        Step back;
        for (auto cell = step.crbegin(); cell != step.crend(); ++cell)
            back.append({cell->row, cell->column, u""_s + cell->text, cell->former});
        if (!write(back).isEmpty())
            undone.append(step);
    }

    void redo()
    {
        if (undone.isEmpty())
            return;
        const Step step = undone.takeLast();
        if (!write(step).isEmpty())
            done.append(step);
    }

    // Texts in natural order; what is empty comes last.
    static int rank(const QString &text)
    {
        static const QStringList order{u"7"_s,    u"07.5"_s, u"7.5"_s,      u"ab"_s,
                                       u"AUTO"_s, u"Auto"_s, u"long text"_s};
        return text.isEmpty() ? 99 : static_cast<int>(order.indexOf(text));
    }
    static bool passes(const QString &text, const QString &filter)
    {
        if (filter == u"="_s || filter == u"<>"_s)
            return text.isEmpty() == (filter == u"="_s);
        if (filter == u"<>7.5"_s)
            return text != u"7.5"_s && text != u"07.5"_s;
        return text.contains(filter, Qt::CaseInsensitive);
    }
    bool passes(const Row &row, const QList<int> &columnsSeen) const
    {
        for (auto filter = filters.cbegin(); filter != filters.cend(); ++filter) {
            const bool isAny = filter.key() == ListGrid::anyColumn;
            const QList<int> among = isAny ? columnsSeen : QList<int>{filter.key()};
            const bool found = std::any_of(among.begin(), among.end(), [&](int column) {
                return passes(row.cells.at(static_cast<std::size_t>(column)), filter.value());
            });
            if (!found)
                return false;
        }
        return true;
    }
    bool isBefore(int first, int second) const
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
    const Row &rowNamed(int name) const
    {
        return *std::find_if(rows.begin(), rows.end(),
                             [name](const Row &row) { return row.name == name; });
    }

    // The rows that are seen, in their order.
    bool isArranged() const { return !keys.isEmpty() || !filters.isEmpty(); }
    void arrange(const QList<int> &columnsSeen)
    {
        shown.clear();
        for (const Row &row : rows) {
            if (passes(row, columnsSeen))
                shown.append(row.name);
        }
        std::stable_sort(shown.begin(), shown.end(),
                         [this](int first, int second) { return isBefore(first, second); });
    }
    int positionOf(int name) const
    {
        return static_cast<int>(&rowNamed(name) - &rows.constFirst());
    }
    void insert(int position)
    {
        rows.insert(position, {nextName, {}});
        shown.insert(isArranged() ? shown.size() : position, nextName++);
    }
    void remove(int position)
    {
        shown.removeOne(rows.at(position).name);
        rows.removeAt(position);
    }
    Row &seen(int place) { return *named(shown.at(place)); }

    QList<Row> rows;
    QList<int> shown; // by name
    ListGrid::SortKeys keys;
    QMap<int, QString> filters;
    QList<Step> done;
    QList<Step> undone;
    int nextName = 0;
};

// The same done to a list and to a plain table.
class TwoTables
{
public:
    explicit TwoTables(unsigned seed)
        : m_random(seed)
        , m_tester(m_list.model(), QAbstractItemModelTester::FailureReportingMode::Fatal)
    {
        for (int column = 0; column < columns; ++column)
            m_list.ColumnHeaders()->Add(0, QString::number(column));
        ListGrid &grid = *m_list.grid();
        grid.setRules(QString(), {{u"1"_s, {.kind = CellRule::Text, .maxLength = 4}},
                                  {u"2"_s, {.kind = CellRule::Number, .minimum = 0, .maximum = 99}},
                                  {u"3"_s, {.kind = CellRule::Choice, .choices = {u"Auto"_s}}}});
        grid.setEditsCells(true);
        grid.setSelectsCells(true);
        grid.setEditsRows(true);
        m_list.setMultiSelect(true);
        for (int row = 0; row < 12; ++row)
            insertRow();
    }

    void step()
    {
        struct Deed
        {
            const char *name;
            void (TwoTables::*act)();
        };
        static constexpr std::array<Deed, 25> deeds{{{"enterText", &TwoTables::enterText},
                                                     {"enterText", &TwoTables::enterText},
                                                     {"clear", &TwoTables::clear},
                                                     {"fillDown", &TwoTables::fillDown},
                                                     {"paste", &TwoTables::paste},
                                                     {"paste", &TwoTables::paste},
                                                     {"undo", &TwoTables::undo},
                                                     {"undo", &TwoTables::undo},
                                                     {"redo", &TwoTables::redo},
                                                     {"setText", &TwoTables::setText},
                                                     {"hide", &TwoTables::hide},
                                                     {"insertRow", &TwoTables::insertRow},
                                                     {"removeRow", &TwoTables::removeRow},
                                                     {"hideColumn", &TwoTables::hideColumn},
                                                     {"sort", &TwoTables::sort},
                                                     {"sort", &TwoTables::sort},
                                                     {"filter", &TwoTables::filter},
                                                     {"filter", &TwoTables::filter},
                                                     {"arrange", &TwoTables::arrange},
                                                     {"moveRows", &TwoTables::moveRows},
                                                     {"removeRows", &TwoTables::removeRows},
                                                     {"removeRows", &TwoTables::removeRows},
                                                     {"duplicate", &TwoTables::duplicate},
                                                     {"duplicate", &TwoTables::duplicate},
                                                     {"replace", &TwoTables::replace}}};
        const Deed &deed =
            deeds.at(static_cast<std::size_t>(below(static_cast<int>(deeds.size()))));
        m_deeds = m_deeds.last(std::min<qsizetype>(m_deeds.size(), 9));
        m_deeds.append(QString::fromLatin1(deed.name));
        (this->*deed.act)();
    }
    QString lastDeeds() const { return m_deeds.join(u", "_s); }

    QString shown() const
    {
        QStringList lines;
        for (int row = 0; row < m_list.model()->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < columns; ++column)
                cells.append(m_list.model()->index(row, column).data().toString());
            lines.append(cells.join(u'|') + (m_list.isRowHidden(row) ? u" hidden"_s : QString()));
        }
        for (int row = 1; row <= m_list.ListItems()->Count(); ++row)
            lines.append(m_list.ListItems()->Item(row)->Tag());
        return lines.join(u'\n');
    }
    QString expected() const
    {
        QStringList lines;
        for (const int name : m_plain.shown) {
            const PlainTable::Row &row = m_plain.rowNamed(name);
            lines.append(QStringList(row.cells.begin(), row.cells.end()).join(u'|') +
                         (row.isHidden ? u" hidden"_s : QString()));
        }
        for (const PlainTable::Row &row : m_plain.rows)
            lines.append(QString::number(row.name));
        return lines.join(u'\n');
    }

private:
    int below(int bound) { return std::uniform_int_distribution(0, bound - 1)(m_random); }
    QString text() { return texts.at(static_cast<std::size_t>(below(texts.size()))); }
    int rowCount() const { return static_cast<int>(m_plain.rows.size()); }
    int seenCount() const { return static_cast<int>(m_plain.shown.size()); }

    // A block of cells that are seen.
    struct Place
    {
        QList<int> rows;
        QList<int> columns;
    };
    std::optional<Place> choose()
    {
        Place place;
        if (seenCount() == 0)
            return std::nullopt;
        for (int row = below(seenCount()), left = 1 + below(3); row < seenCount() && left > 0;
             ++row) {
            if (!m_plain.seen(row).isHidden) {
                place.rows.append(row);
                --left;
            }
        }
        for (int column = below(columns), left = 1 + below(2); column < columns && left > 0;
             ++column) {
            if (!m_list.isColumnHidden(column)) {
                place.columns.append(column);
                --left;
            }
        }
        if (place.rows.isEmpty() || place.columns.isEmpty())
            return std::nullopt;
        const QAbstractItemModel &model = *m_list.model();
        m_list.setCurrentIndex(model.index(place.rows.first(), place.columns.first()));
        m_list.selectionModel()->select({model.index(place.rows.first(), place.columns.first()),
                                         model.index(place.rows.last(), place.columns.last())},
                                        QItemSelectionModel::ClearAndSelect);
        m_deeds.last() += u" %1,%2 %3x%4"_s.arg(place.rows.first())
                              .arg(place.columns.first())
                              .arg(place.rows.size())
                              .arg(place.columns.size());
        return place;
    }
    PlainTable::Cell cell(int row, int column, const QString &text) const
    {
        return {m_plain.shown.at(row), column, QString(), text};
    }

    void enterText()
    {
        const int row = below(rowCount());
        const int column = below(columns);
        const QString entered = text();
        m_deeds.last() += u" %1,%2 '%3'"_s.arg(row).arg(column).arg(entered);
        m_list.grid()->enterText(m_list.ListItems()->Item(row + 1), static_cast<qint16>(column),
                                 entered);
        m_plain.enter({{m_plain.rows.at(row).name, column, QString(), entered}});
    }
    void clear()
    {
        const std::optional<Place> place = choose();
        if (!place)
            return;
        QTest::keyClick(&m_list, Qt::Key_Delete);
        PlainTable::Step step;
        for (const int row : place->rows) {
            for (const int column : place->columns)
                step.append(cell(row, column, u""_s));
        }
        if (place->columns.first() != 0) // where the current cell is not edited
            m_plain.enter(step);
    }
    void fillDown()
    {
        const std::optional<Place> place = choose();
        if (!place || place->columns.first() == 0)
            return;
        QTest::keyClick(&m_list, Qt::Key_D, Qt::ControlModifier);
        int from = place->rows.first();
        if (place->rows.size() == 1) {
            for (--from; from >= 0 && m_plain.seen(from).isHidden;)
                --from;
        }
        PlainTable::Step step;
        for (const int row : place->rows) {
            for (const int column : place->columns) {
                if (from >= 0 && row != from)
                    step.append(
                        cell(row, column,
                             m_plain.seen(from).cells.at(static_cast<std::size_t>(column))));
            }
        }
        m_plain.enter(step);
    }
    void paste()
    {
        const std::optional<Place> place = choose();
        if (!place)
            return;
        const int height = 1 + below(2);
        const int width = 1 + below(2);
        QList<QStringList> block;
        QString copied;
        for (int row = 0; row < height; ++row) {
            QStringList &line = block.emplaceBack();
            for (int column = 0; column < width; ++column)
                line.append(text());
            copied += line.join(u'\t') + u'\n';
        }
        m_deeds.last() += u" '%1'"_s.arg(copied);
        QGuiApplication::clipboard()->setText(copied);
        m_list.grid()->pasteCells();
        const bool repeats = place->rows.size() % height == 0 && place->columns.size() % width == 0;
        const int rows = repeats ? static_cast<int>(place->rows.size()) : height;
        const int across = repeats ? static_cast<int>(place->columns.size()) : width;
        PlainTable::Step step;
        for (int y = 0, row = place->rows.first(); y < rows; ++y, ++row) {
            while (row < seenCount() && m_plain.seen(row).isHidden)
                ++row;
            for (int x = 0, column = place->columns.first(); x < across; ++x, ++column) {
                while (column < columns && m_list.isColumnHidden(column))
                    ++column;
                if (row >= seenCount() || column >= columns)
                    return; // no room
                step.append(cell(row, column, block.at(y % height).at(x % width)));
            }
        }
        m_plain.enter(step);
    }
    void undo()
    {
        m_list.grid()->undoStack()->undo();
        m_plain.undo();
    }
    void redo()
    {
        m_list.grid()->undoStack()->redo();
        m_plain.redo();
    }
    void setText()
    {
        const int row = below(rowCount());
        const int column = below(columns);
        const QString set = text();
        m_deeds.last() += u" %1,%2 '%3'"_s.arg(row).arg(column).arg(set);
        ListItem &item = *m_list.ListItems()->Item(row + 1);
        if (column == 0)
            item.setText(set);
        else
            item.setSubItem(column, set);
        m_plain.rows[row].cells.at(static_cast<std::size_t>(column)) = set;
    }
    void hide()
    {
        const int row = below(rowCount());
        bool &isHidden = m_plain.rows[row].isHidden;
        isHidden = !isHidden;
        m_list.ListItems()->Item(row + 1)->setVisible(!isHidden);
    }
    void hideColumn()
    {
        const int column = below(columns);
        m_list.setColumnHidden(column, !m_list.isColumnHidden(column));
    }
    void insertRow()
    {
        const int row = below(rowCount() + 1);
        m_list.Add(row + 1)->setTag(QString::number(m_plain.nextName));
        m_plain.insert(row);
    }
    void removeRow()
    {
        if (rowCount() < 8)
            return;
        const int row = below(rowCount());
        m_list.ListItems()->Remove(row + 1);
        m_plain.remove(row);
    }
    QList<int> columnsSeen() const
    {
        QList<int> seen;
        for (int column = 0; column < columns; ++column) {
            if (!m_list.isColumnHidden(column))
                seen.append(column);
        }
        return seen;
    }
    void sort()
    {
        m_plain.keys.clear();
        for (int left = below(3); left > 0; --left)
            m_plain.keys.append({static_cast<qint16>(below(columns)),
                                 below(2) == 0 ? Qt::AscendingOrder : Qt::DescendingOrder});
        m_list.grid()->setSortKeys(m_plain.keys);
        m_plain.arrange(columnsSeen());
    }
    void filter()
    {
        static const std::array filters{u"a"_s, u"7"_s, u"="_s, u"<>"_s, u"<>7.5"_s};
        const int column = below(columns + 1) - 1;
        const QString typed =
            below(2) == 0 ? QString()
                          : filters.at(static_cast<std::size_t>(column < 0 ? below(2) : below(5)));
        m_deeds.last() += u" %1 '%2'"_s.arg(column).arg(typed);
        const bool isOther = m_plain.filters.value(column) != typed;
        if (typed.isEmpty())
            m_plain.filters.remove(column);
        else
            m_plain.filters.insert(column, typed);
        m_list.grid()->setFilterText(static_cast<qint16>(column), typed);
        if (isOther)
            m_plain.arrange(columnsSeen());
    }
    void arrange()
    {
        m_list.grid()->arrangeRows();
        m_plain.arrange(columnsSeen());
    }
    void moveRows()
    {
        const std::optional<Place> place = choose();
        if (!place)
            return;
        m_list.grid()->moveRowsDown();
        if (m_plain.isArranged() || place->rows.last() + 1 >= rowCount()) {
            return;
        }
        for (auto row = place->rows.crbegin(); row != place->rows.crend(); ++row)
            m_plain.rows.swapItemsAt(*row, *row + 1);
        m_plain.arrange(columnsSeen());
    }

    // As the user does.
    void removeRows()
    {
        const std::optional<Place> place = rowCount() < 12 ? std::nullopt : choose();
        if (!place)
            return;
        QList<int> names;
        for (const int row : place->rows)
            names.append(m_plain.shown.at(row));
        QTest::keyClick(&m_list, Qt::Key_Minus, Qt::ControlModifier);
        for (const int name : names)
            m_plain.remove(m_plain.positionOf(name));
    }
    void duplicate()
    {
        const std::optional<Place> place = rowCount() > 20 ? std::nullopt : choose();
        if (!place)
            return;
        int position = 0;
        QList<PlainTable::Row> likes;
        for (const int row : place->rows) {
            likes.append(m_plain.seen(row));
            position = std::max(position, m_plain.positionOf(likes.constLast().name) + 1);
        }
        m_list.grid()->duplicateRows();
        for (const PlainTable::Row &like : std::as_const(likes)) {
            m_list.ListItems()->Item(position + 1)->setTag(QString::number(m_plain.nextName));
            m_plain.insert(position);
            m_plain.rows[position++].cells = like.cells;
        }
    }
    // By the host, of all.
    void replace()
    {
        m_plain.rows.clear();
        m_plain.done.clear();
        m_plain.undone.clear();
        QList<RowContent> contents;
        for (int row = 0; row < 12; ++row) {
            PlainTable::Row &made = m_plain.rows.emplaceBack();
            made.name = m_plain.nextName++;
            RowContent &content = contents.emplaceBack();
            content.tag = QString::number(made.name);
            for (QString &cell : made.cells)
                cell = text();
            content.text = made.cells.front();
            content.subItems = QStringList(made.cells.begin() + 1, made.cells.end());
        }
        m_list.setRows(contents);
        m_plain.arrange(columnsSeen());
    }

    std::mt19937 m_random;
    ReportList m_list;
    PlainTable m_plain;
    QStringList m_deeds;
    QAbstractItemModelTester m_tester;
};

} // namespace

class GridRandomTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void isAPlainTableThroughRandomSteps()
    {
        const unsigned seed = randomSeed();
        TwoTables tables(seed);
        const int steps = randomSteps(50'000);
        for (int step = 0; step < steps; ++step) {
            tables.step();
            QVERIFY2(tables.shown() == tables.expected(),
                     qPrintable(u"step %1 (%2):\n%3\ninstead of\n%4"_s.arg(step).arg(
                         tables.lastDeeds(), tables.shown(), tables.expected())));
        }
    }
};

ORVT_TEST(GridRandomTest)
#include "GridRandomTest.moc"
