#pragma once

#include "widgets/look/TextWidths.h"

#include <QtCore/QList>

#include <memory>

class QTableView;

namespace ORVTListview {

class ReportModel;

// The widths of a report list's columns: pixels inside, twips at the surface.
class ColumnWidths
{
public:
    ColumnWidths(QTableView &view, const ReportModel &model);
    ~ColumnWidths();
    Q_DISABLE_COPY_MOVE(ColumnWidths) // follows one view

    // In twips.
    double width(int column) const;
    void setWidth(int column, double twips);

    // Gives every column the width its header and texts need, and the last one
    // at least the rest of the list.
    void fit();

    // The same for one column.
    void fit(int column);

    // A column has got another header, which may be cut; it then grows.
    void headerReplaced(int column, bool isCut);

    // What happened to the view: its viewport has another width, there are other
    // columns, a column has another width.
    void viewportResized();
    void columnsChanged() { m_filling = false; }
    void columnResized(int column);

private:
    static constexpr int noWidth = -1;

    void refill();
    void setNeeded(int column, int pixels);
    QList<int> neededWidths();
    int neededForHeader(int column) const;
    int withMargin(int pixels, double twips) const;
    // What the rows ask for.
    struct Asked
    {
        QList<int> texts;      // the widest of each column
        QList<bool> hasStates; // of cells, for each column
        bool hasPictures = false;
    };

    Asked askedByRows();
    int pictureWidth() const;
    int boxWidth() const;
    int widthOfOthers() const;
    void resize(int column, int pixels);

    QTableView &m_view;
    const ReportModel &m_model;
    std::unique_ptr<TextWidths> m_texts; // in the view's font
    QFont m_font;
    bool m_filling = false; // the last column takes the rest of the viewport
    int m_lastNeeded = 0;
    int m_keptIn = noWidth;  // the list's width in which the last column keeps its own
    int m_beside = 0;        // of the list, beside the viewport, counts to the filling column
    bool m_resizing = false; // it is this class that resizes
};

} // namespace ORVTListview
