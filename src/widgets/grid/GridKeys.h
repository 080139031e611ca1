#pragma once

#include <QtCore/Qt>

class QInputMethodEvent;
class QKeyEvent;
class QModelIndex;
class QTableView;

namespace ORVTListview {

class CellEdit;
class CellSteps;
class CellTable;
class GridClipboard;
class GridRules;
class GridSelection;
class RowEditing;

// What the keys of a grid do outside an editor.
class GridKeys
{
public:
    struct Tools
    {
        QTableView &view;
        const CellTable &table;
        const GridRules &rules;
        CellEdit &edit;
        CellSteps &steps;
        GridSelection &selection;
        GridClipboard &clipboard;
        RowEditing &rows;
    };

    explicit GridKeys(const Tools &tools)
        : m_tools(tools)
    {
    }
    Q_DISABLE_COPY_MOVE(GridKeys) // the part of a grid

    // False for a key that is the list's. A key that leads out of the list is ignored.
    bool act(QKeyEvent &event);

    // Whether a key is one of those that put cells on the clipboard.
    static bool isCopying(const QKeyEvent &event);

    // What an input method begins with in the current cell. False where none is edited.
    bool compose(QInputMethodEvent &event);

    // Below the topmost chosen cell of each column; a single one gets the text above it.
    void fillDown();

private:
    bool actOnRows(const QKeyEvent &event);
    bool actOnSelection(const QKeyEvent &event);
    bool actOnSteps(const QKeyEvent &event);
    bool actOnCell(QKeyEvent &event, const QModelIndex &cell);
    bool move(QKeyEvent &event);
    void cut();
    void toggle(const QModelIndex &cell);

    Tools m_tools;
};

} // namespace ORVTListview
