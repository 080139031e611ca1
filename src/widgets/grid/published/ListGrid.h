#pragma once

#include <ORVTListview/CellChange.h>
#include <ORVTListview/CellRefusal.h>
#include <ORVTListview/CellRule.h>
#include <ORVTListview/CellState.h>
#include <ORVTListview/Export.h>
#include <ORVTListview/UndoHistory.h>

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

class QMenu;
class QUndoStack;

namespace ORVTListview {

class ListItem;
class PropertyBag;
struct GridParts;

// The cells of a list as a grid that users edit. All of it is off at first, and a list
// whose grid is off is as if it had none. ReportList::grid() is the way to it; it lives as
// long as the list. Columns count from 0, the row's own text.
class ORVT_EXPORT ListGrid : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool editsCells READ editsCells WRITE setEditsCells NOTIFY editsCellsChanged)
    Q_PROPERTY(bool selectsCells READ selectsCells WRITE setSelectsCells NOTIFY selectsCellsChanged)
    Q_PROPERTY(bool sortsRows READ sortsRows WRITE setSortsRows NOTIFY sortsRowsChanged)
    Q_PROPERTY(bool showsLocalNumbers READ showsLocalNumbers WRITE setShowsLocalNumbers NOTIFY
                   showsLocalNumbersChanged)
    Q_PROPERTY(bool flashesChanges READ flashesChanges WRITE setFlashesChanges NOTIFY
                   flashesChangesChanged)
    Q_PROPERTY(bool editsRows READ editsRows WRITE setEditsRows NOTIFY editsRowsChanged)
    Q_PROPERTY(bool arrangesColumns READ arrangesColumns WRITE setArrangesColumns NOTIFY
                   arrangesColumnsChanged)
    Q_PROPERTY(bool keepsFirstColumns READ keepsFirstColumns WRITE setKeepsFirstColumns NOTIFY
                   keepsFirstColumnsChanged)
    Q_PROPERTY(bool hasMenu READ hasMenu WRITE setHasMenu NOTIFY hasMenuChanged)
    Q_PROPERTY(
        FilterPlace filterPlace READ filterPlace WRITE setFilterPlace NOTIFY filterPlaceChanged)

public:
    // Gives the names of points that a rule without choices takes.
    using PointNames = std::function<QStringList()>;
    // Columns and their orders, the first of which decides first.
    using SortKeys = QList<std::pair<qint16, Qt::SortOrder>>;

    // Where users say which rows they want to see.
    enum FilterPlace : qint32 {
        NoFilter,
        FilterAbove,    // in a field over the header, for any cell
        FilterInColumns // in a field under the header of each column
    };
    Q_ENUM(FilterPlace)

    // What users do with whole rows.
    enum RowDeed : qint32 { AddRows, RemoveRows, DuplicateRows, MoveRows };
    Q_ENUM(RowDeed)

    // In place of a column: any that is shown.
    static constexpr qint16 anyColumn = -1;

    ~ListGrid() override;

    // Whether users edit the cells that have a rule.
    //
    // Keys while cells are edited: a letter begins to edit the current cell with it, F2 and a
    // double click with what it holds; Enter takes what was typed and goes down, with Shift
    // up, Tab to the right, with Shift to the left, and from the last column out of the list;
    // Esc leaves the cell as it was. Delete clears the chosen cells, Ctrl+Enter takes the text
    // for all of them, Ctrl+D copies the topmost of them in each column to the others, or the
    // one above to a single one. Space changes yes and no. Ctrl+V pastes, Ctrl+Z undoes,
    // Ctrl+Y and Ctrl+Shift+Z redo. In a cell that is not edited only Enter, Tab and these
    // last do so; all other keys are the list's.
    //
    // The chosen cells are the selected ones, or while rows are selected as a whole those of
    // the current column in them.
    bool editsCells() const;
    void setEditsCells(bool on);

    // Whether cells are selected instead of rows. Cells of several rows need MultiSelect, as
    // several rows do; with it ranges are selected by the mouse, with Shift and Ctrl, whole
    // columns by a click on their header or Ctrl+Space. Without it only one cell is, or by
    // Shift+Space its row. A ListItem then is Selected when one of its cells is.
    bool selectsCells() const;
    void setSelectsCells(bool on);

    // Puts the selected cells on the clipboard, as text with tabs, as an HTML table and as
    // text/csv, with the headers of their columns or without; nothing when none is selected.
    // While cells are selected Ctrl+C does so without, Ctrl+Shift+C with them, and Ctrl+X
    // clears the cells, too; none of these keys does where the list's copiesRows is off.
    Q_INVOKABLE void copyCells(bool withHeaders = false) const;

    // Enters the text of the clipboard into the selected cells, as often as they hold it
    // without rest, otherwise once, from the first of them on; if they lie apart, it is then
    // refused. False when it is refused, there is none, or cellEntering is being raised.
    Q_INVOKABLE bool pasteCells();

    // Which table the list shows; rules belong to tables. ORVListView sets it to its Key,
    // such as "Inputs". Empty at first.
    QString table() const;
    void setTable(const QString &table);

    // How the columns of a table are edited, by their keys. A column without a rule is not
    // edited. Rules take the place of all former ones of the table.
    void setRules(const QString &table, const QHash<QString, ORVTListview::CellRule> &rules);
    QHash<QString, ORVTListview::CellRule> rules(const QString &table) const;

    // Gives the tables of all twelve point types rules that suit them; what a host wants
    // otherwise it takes from rules() and sets anew.
    void useReadyRules();

    // The rule of a column that is shown; that of no column is NotEdited.
    ORVTListview::CellRule rule(qint16 column) const;

    // What knows the names of points, for rules without choices; asked whenever they are
    // needed. Without it any name is taken.
    void setPointNames(const PointNames &names);

    // Opens the editor of a cell, as F2 does. False when users cannot edit it, and for null
    // or a column that is not there. Raises Error for a row that has been removed
    // (ObjectNotSet) or is another list's (InvalidCall).
    Q_INVOKABLE bool editCell(ORVTListview::ListItem *item, qint16 column);

    // Enters a text as a user does, with all that belongs to it. False when it is refused;
    // the reason is then shown at the cell. False, too, for null or a column that is not
    // there, and while cellEntering is being raised. Raises Error as editCell does.
    Q_INVOKABLE bool enterText(ORVTListview::ListItem *item, qint16 column, const QString &text);

    // Where the steps of undo go: a stack of its own, or the host's, which several lists
    // and the host itself may share and which the host owns. Null goes back to its own. A
    // step changes nothing where the row is gone or the program has changed the cell since.
    QUndoStack *undoStack() const;
    void setUndoStack(QUndoStack *stack);

    // In place of any stack the history of a host that takes its steps from cellsChanged: the
    // grid keeps none then, and its keys and menu ask the host, the keys also where no cells
    // are edited. None goes back to the stack.
    void setUndoHistory(const std::optional<ORVTListview::UndoHistory> &history);

    // Whether a click on a header sorts the rows by it: upwards, then downwards, then as the
    // host has put them; with Shift behind the columns that they are sorted by already. Where
    // cells are selected a click with Ctrl then selects the column. Off again, the rows stay
    // as they are sorted.
    //
    // It is what the user sees that is sorted and filtered: Index and the order of ListItems
    // stay, a ListItem its row, and selected and current ones so, but for those that a filter
    // takes away, which are not selected. Rows that are added stand last, and rows whose cells
    // change stay where they are, until the user sorts or filters again; rows that replace
    // all others come sorted and filtered. Columns that go take their part with them.
    bool sortsRows() const;
    void setSortsRows(bool on);

    // The columns that rows are sorted by, the first of which decides first. Digits within
    // names count as numbers, numbers by their value whatever their unit is, and what is
    // empty comes last. Columns that are not there are left out.
    SortKeys sortKeys() const;
    void setSortKeys(const ORVTListview::ListGrid::SortKeys &keys);

    // Another place empties the filters. No field is seen while the header is not.
    FilterPlace filterPlace() const;
    void setFilterPlace(FilterPlace place);

    // What a column, or anyColumn, must hold in any letter case; for a column also "<>Auto"
    // for what says something else, "=" for what is empty and "<>" for what is not. Empty
    // for no filter; nothing for a column that is not there.
    QString filterText(qint16 column) const;
    void setFilterText(qint16 column, const QString &text);

    // How many rows are to be seen, those included that the host has hidden.
    qint32 rowsShown() const;

    // Sorts and filters anew, by what the cells hold now.
    Q_INVOKABLE void arrangeRows();

    // What there is to know of a cell's value: a picture, a colour and, where there is room,
    // a word beside its text; in the tool tip and for screen readers, too. It stays with the
    // row and the column's position until it is set anew. Both raise Error as editCell does;
    // nothing is set for null or a column that is not there.
    ORVTListview::CellState cellState(const ORVTListview::ListItem *item, qint16 column) const;
    void setCellState(const ORVTListview::ListItem *item, qint16 column,
                      ORVTListview::CellState state);

    // Whether numbers stand at the right and with the list's locale's decimal sign, in the
    // columns whose rule is Number. The texts of the cells stay.
    bool showsLocalNumbers() const;
    void setShowsLocalNumbers(bool on);

    // Whether a cell that is seen flashes once when its text changes. A style without
    // animations has none.
    bool flashesChanges() const;
    void setFlashesChanges(bool on);

    // Whether users add rows (Ctrl++), remove (Ctrl+-), duplicate (Ctrl+Shift+D) and move them
    // (Alt+Up and Alt+Down). None of that can be undone. New rows come behind the chosen
    // ones, without a key; a duplicate has their texts, states, picture and tags. Rows that
    // are sorted or filtered are not moved.
    bool editsRows() const;
    void setEditsRows(bool on);

    // As those keys do. False when it is refused, nothing is to do or editsRows is off.
    Q_INVOKABLE bool addRow();
    Q_INVOKABLE bool removeRows();
    Q_INVOKABLE bool duplicateRows();
    Q_INVOKABLE bool moveRowsUp();
    Q_INVOKABLE bool moveRowsDown();

    // Whether users drag columns by their headers, and hide them by the menu. What they do,
    // their widths included, is kept for each table and comes back with it.
    bool arrangesColumns() const;
    void setArrangesColumns(bool on);

    // How users have arranged a table's columns, as a short text for the host to keep; empty
    // for a table that nobody has arranged. Keys of columns that are not there are passed
    // over, columns that it does not name come last. The bag gets a text for each table under
    // "ColumnLayouts.Inputs" and so on, and under "ColumnLayouts" which tables there are besides
    // those of the types. An empty layout gives the shown columns their own order back.
    QString columnLayout(const QString &table) const;
    void setColumnLayout(const QString &table, const QString &layout);
    void readColumnLayouts(const PropertyBag &bag);
    void writeColumnLayouts(PropertyBag &bag) const;

    // Whether the first two columns that are seen stay in sight while the others are scrolled
    // sideways under them; not while they would take more than two thirds of the list.
    bool keepsFirstColumns() const;
    void setKeepsFirstColumns(bool on);

    // As wide as the header and all cells need.
    Q_INVOKABLE void fitColumn(qint16 column);

    // A context menu with what is possible where it is opened, on a cell or a header.
    bool hasMenu() const;
    void setHasMenu(bool on);

Q_SIGNALS:
    // By number, for late-bound hosts: 1 rowsEditing, 2 rowsEdited, 3 columnsArranged,
    // 4 menuOpening, 5 rowsArranged, 6 cellEntering, 7 cellsChanged, 8 cellsRefused.

    // Before users do something with whole rows: the Index of each chosen one, in ascending
    // order. A refusal, a sentence, refuses it and is shown.
    void rowsEditing(ORVTListview::ListGrid::RowDeed deed, const QList<qint32> &rows,
                     QString &refusal);

    // They have: the Index that each row has by now, and for those removed had before.
    void rowsEdited(ORVTListview::ListGrid::RowDeed deed, const QList<qint32> &rows);

    // The user has arranged the columns of the table shown.
    void columnsArranged();

    // The menu is about to open, and may get actions of the host.
    void menuOpening(QMenu *menu);

    // The rows are sorted or filtered, by the user or the program.
    void rowsArranged();

    // Before a text is taken that fits the rule: a changed text is taken in its place, a
    // refusal, a sentence, refuses it. It is shown at the cell, whose editor opens again
    // with what was typed. For several cells at once, all are asked for before any is
    // written, and one refusal refuses all. What the user enters while it is raised, as when
    // a receiver waits for somebody else, is asked for afterwards.
    void cellEntering(ORVTListview::ListItem *item, qint16 column, QString &text, QString &refusal);

    // The user has changed cells, undo and redo included; one signal for all of them.
    void cellsChanged(const QList<ORVTListview::CellChange> &changes);

    // Nothing of what the user wanted is taken, for these reasons. They are shown, too.
    void cellsRefused(const QList<ORVTListview::CellRefusal> &refusals);

    void editsCellsChanged(bool on);
    void selectsCellsChanged(bool on);
    void sortsRowsChanged(bool on);
    void editsRowsChanged(bool on);
    void arrangesColumnsChanged(bool on);
    void hasMenuChanged(bool on);
    void keepsFirstColumnsChanged(bool on);
    void showsLocalNumbersChanged(bool on);
    void flashesChangesChanged(bool on);
    void filterPlaceChanged(ORVTListview::ListGrid::FilterPlace place);

private:
    friend class ReportList;
    friend struct ReportListBody;

    explicit ListGrid(std::unique_ptr<GridParts> parts);

    std::unique_ptr<GridParts> d;
};

} // namespace ORVTListview
