#pragma once

#include "widgets/grid/CellEdit.h"
#include "widgets/grid/CellLook.h"
#include "widgets/grid/CellNote.h"
#include "widgets/grid/CellSteps.h"
#include "widgets/grid/ColumnArranging.h"
#include "widgets/grid/FillHandle.h"
#include "widgets/grid/FilterFields.h"
#include "widgets/grid/GridClipboard.h"
#include "widgets/grid/GridKeys.h"
#include "widgets/grid/GridMenu.h"
#include "widgets/grid/GridOrder.h"
#include "widgets/grid/GridSelection.h"
#include "widgets/grid/RowEditing.h"

#include <QtCore/QPointer>
#include <QtWidgets/QTableView>

#include <optional>

namespace ORVTListview {

// What a grid is made of, a class for each subject.
struct GridParts
{
    GridParts(QTableView &shownBy, CellTable &cells, LabelEdit &labels, ReportDelegate &delegate)
        : view(shownBy)
        , table(cells)
        , rules(cells, *shownBy.model())
        , writer(cells, rules)
        , steps(writer)
        , note(shownBy)
        , selection(shownBy, cells)
        , edit({shownBy, cells, rules, writer, labels, delegate, note, selection})
        , tools{shownBy, cells, rules, selection, edit}
        , clipboard(tools)
        , rows({shownBy, cells, selection, edit, note})
        , keys(tools, steps, clipboard, rows)
        , order({shownBy, cells, [this] { edit.finish(); },
                 [this](int column, const QString &text) { return look.shown(column, text); }})
        , filters({shownBy, cells, order})
        , look({shownBy, rules, delegate})
        , columns(shownBy, cells)
        , menu({shownBy, cells, rules, edit, steps, selection, clipboard, keys, rows, order,
                filters, columns})
    {
    }
    ~GridParts() { delete handle.data(); }
    Q_DISABLE_COPY_MOVE(GridParts) // the parts know one another

    // None for a list whose cells were never selected to be edited.
    void fitHandle()
    {
        if (!handle && rules.isOn() && selection.isByCells())
            handle = new FillHandle(tools);
        if (handle)
            handle->refresh();
    }

    // Tab comes as a key only where the view goes through its cells with it.
    void followRules()
    {
        if (rules.isUsed() == formerTab.has_value())
            return;
        const bool goes = formerTab.value_or(true);
        formerTab = formerTab ? std::nullopt : std::optional(view.tabKeyNavigation());
        view.setTabKeyNavigation(goes);
    }

    // Sorts by the column, with Shift behind the others; with Ctrl, where cells are selected,
    // selects it.
    void headerClicked(int column, Qt::KeyboardModifiers modifiers)
    {
        if (!order.isByHeader() || rules.isAtRest(view))
            return;
        if (modifiers.testFlag(Qt::ControlModifier) && selection.isByCells())
            selection.selectColumn(column);
        else
            order.click(column, modifiers.testFlag(Qt::ShiftModifier));
    }

    QTableView &view;
    CellTable &table;
    GridRules rules;
    CellWriter writer;
    CellSteps steps;
    CellNote note;
    GridSelection selection;
    CellEdit edit;
    const GridTools tools;
    GridClipboard clipboard;
    QPointer<FillHandle> handle; // a child of the viewport
    RowEditing rows;
    GridKeys keys;
    GridOrder order;
    FilterFields filters;
    CellLook look;
    ColumnArranging columns;
    GridMenu menu;
    std::optional<bool> formerTab; // the host's, while cells are edited
};

} // namespace ORVTListview
