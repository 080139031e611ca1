#pragma once

#include <ORVTListview/CellChange.h>
#include <ORVTListview/CellRefusal.h>
#include <ORVTListview/CellRule.h>
#include <ORVTListview/Export.h>

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <memory>

class QUndoStack;

namespace ORVTListview {

class ListItem;
struct GridParts;

// The cells of a list as a grid that users edit. All of it is off at first, and a list
// whose grid is off is as if it had none. ReportList::grid() is the way to it; it lives as
// long as the list. Columns count from 0, the row's own text.
class ORVT_EXPORT ListGrid : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool editsCells READ editsCells WRITE setEditsCells NOTIFY editsCellsChanged)
    Q_PROPERTY(bool selectsCells READ selectsCells WRITE setSelectsCells NOTIFY selectsCellsChanged)

public:
    using PointNames = std::function<QStringList()>;

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

Q_SIGNALS:
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

private:
    friend class ReportList;
    friend struct ReportListBody;

    explicit ListGrid(std::unique_ptr<GridParts> parts);

    std::unique_ptr<GridParts> d;
};

} // namespace ORVTListview
