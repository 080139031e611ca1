#pragma once

#include "widgets/grid/GridSelection.h"

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

class QRubberBand;

namespace ORVTListview {

class CellEdit;
class GridRules;

// The corner of the selected cells: dragged away from them, it enters their texts into the
// cells on the way, from the first again when they come to an end. Shown while one block
// of cells is selected and cells are edited. Ctrl+D does so without a mouse.
class FillHandle final : public QWidget
{
    Q_OBJECT

public:
    struct Tools
    {
        QTableView &view;
        const CellTable &table;
        const GridRules &rules;
        GridSelection &selection;
        CellEdit &edit;
    };

    // A child of the view's viewport, named FillHandle.
    explicit FillHandle(const Tools &tools);
    ~FillHandle() override;

    void refresh();

protected:
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    struct Block
    {
        QList<int> rows;
        QList<int> columns;
    };

    Block selected() const;
    Block reached(QPoint inViewport) const;
    bool isNeeded() const;
    QRect placeOf(const Block &block) const;
    void fill(const Block &from, const Block &to);

    const Tools m_tools;
    QPointer<QRubberBand> m_outline; // while it is dragged
};

} // namespace ORVTListview
