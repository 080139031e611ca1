#pragma once

#include "widgets/grid/GridTools.h"

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

class QRubberBand;

namespace ORVTListview {

// The corner of the selected cells: dragged away from them, it enters their texts into the
// cells on the way, from the first again when they come to an end. Shown while one block
// of cells is selected and cells are edited. Ctrl+D does so without a mouse.
class FillHandle final : public QWidget
{
    Q_OBJECT

public:
    // A child of the view's viewport, named FillHandle.
    explicit FillHandle(const GridTools &tools);
    ~FillHandle() override;

    void refresh();

protected:
    bool event(QEvent *event) override;

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
    void actOnMouse(const QMouseEvent &event);
    void paint();
    void begin();
    void follow(QPoint inViewport);
    void end(QPoint inViewport);
    void fill(const Block &from, const Block &to);

    const GridTools m_tools;
    QPointer<QRubberBand> m_outline; // while it is dragged
};

} // namespace ORVTListview
