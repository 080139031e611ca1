#pragma once

#include "widgets/list/RowSelection.h"
#include "widgets/view/ViewScroll.h"

#include <QtCore/QList>

class QTableView;

namespace ORVTListview {

class ReportModel;
struct ReportRow;

// Which rows of a report list are selected, and which one is in view. What the
// program selects scrolls nothing; ensureVisible does.
class RowChoice
{
public:
    RowChoice(QTableView &view, ReportModel &model);
    Q_DISABLE_COPY_MOVE(RowChoice) // follows one list

    // For the view, once it has the model.
    RowSelection &selection() { return m_selection; }
    void settle() { m_selection.settle(); }

    bool isSelected(const ReportRow &row) const;
    void setSelected(ReportRow &row, bool selected);
    void toggleCurrent();

    // The current row if it is selected, else the first that is, else null.
    ReportRow *selected() const;

    // The one selected row; null deselects all.
    void select(const ReportRow *row);

    // Of the current cell; the row stays.
    void setCurrentColumn(int column);

    // As the view has them.
    QList<int> selectedPlaces() const { return m_selection.places(); }

    // Whether it is the only one.
    bool isOnlySelected(const ReportRow &row) const;

    bool isMultiple() const;
    void setMultiple(bool multiple);

    // Whether the user selects cells; a row counts as selected with any of them.
    bool isByCells() const { return m_selection.isByCells(); }
    void setByCells(bool on);

    // A hidden view catches up when it is shown.
    void ensureVisible(const ReportRow &row);
    void viewShown();

private:
    QTableView &m_view;
    ReportModel &m_model;
    RowSelection m_selection;
    ViewScroll m_scroll;
};

} // namespace ORVTListview
