#pragma once

#include "widgets/grid/GridTools.h"

#include <QtCore/Qt>

class QInputMethodEvent;
class QKeyEvent;
class QModelIndex;

namespace ORVTListview {

class CellSteps;
class GridClipboard;
class RowEditing;

// What the keys of a grid do outside an editor.
class GridKeys
{
public:
    GridKeys(const GridTools &tools, CellSteps &steps, GridClipboard &clipboard, RowEditing &rows)
        : m_tools(tools)
        , m_steps(steps)
        , m_clipboard(clipboard)
        , m_rows(rows)
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
    void removeOnce(const QKeyEvent &event);
    bool actOnSelection(const QKeyEvent &event);
    bool actOnSteps(const QKeyEvent &event);
    bool actOnClipboard(const QKeyEvent &event);
    bool actOnCell(QKeyEvent &event, const QModelIndex &cell);
    bool move(QKeyEvent &event);
    void cut();
    void toggle(const QModelIndex &cell);

    GridTools m_tools;
    CellSteps &m_steps;
    GridClipboard &m_clipboard;
    RowEditing &m_rows;
};

} // namespace ORVTListview
