#pragma once

#include <QtCore/QItemSelectionModel>
#include <QtCore/QList>

#include <limits>

namespace ORVTListview {

class ReportModel;
struct ReportRow;

// Which rows of a list are selected, always as a whole: each row knows, and the ranges
// that the view draws by follow. The toolkit merges every change with all the ranges
// there are, so while they are many, what the program selects row by row goes into
// them in one go: before anything else is selected, before the view paints, and when
// the event loop comes to it.
class RowSelection final : public QItemSelectionModel
{
    Q_OBJECT

public:
    explicit RowSelection(ReportModel &model);

    // Selects nothing while there are no columns.
    void setSelected(ReportRow &row, bool selected);

    // In ascending order; no more than so many.
    QList<int> positions(int most = std::numeric_limits<int>::max()) const;

    // Of those that the view has, their places in it, in ascending order.
    QList<int> places() const;

    // The view has other rows, or in another order. What it has no more is not selected.
    void followOrder();

    // Before that: the toolkit does not bring a selection of all cells along. False when a
    // receiver has destroyed all this.
    bool releaseAll();

    // Whether parts of rows can be selected: then a row is when one of its cells is.
    bool isByCells() const { return m_isByCells; }
    void setByCells(bool on);

    // Lets the ranges catch up.
    void settle();

    using QItemSelectionModel::select;
    void select(const QItemSelection &selection, SelectionFlags command) override;
    void reset() override;

private:
    void note(ReportRow &row, bool selected);
    void noteNone();
    void note(const QItemSelection &changed, bool selected);
    void noteParts(const QItemSelection &changed, bool selected);
    void noteUnseen();
    void noteChange(const QItemSelection &selected, const QItemSelection &deselected);
    void settleSoon();
    bool choose(const QItemSelection &wanted, SelectionFlags command);
    QList<int> untouched() const;
    QItemSelection rowsFrom(int first, int last) const;
    QItemSelection rangesOf(const QList<int> &chosen) const;
    QItemSelection ranges() const { return rangesOf(places()); }
    QItemSelection rangesOfCells() const;

    ReportModel &m_model;
    int m_count = 0;
    bool m_lagsBehind = false; // the ranges do
    bool m_isSettling = false;
    bool m_isByCells = false;
};

} // namespace ORVTListview
