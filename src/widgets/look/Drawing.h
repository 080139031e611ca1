#pragma once

#include <QtCore/QSizeF>

QT_BEGIN_NAMESPACE
class QPainter;
class QRectF;
QT_END_NAMESPACE

namespace ORVTListview {

// What a picture is drawn from, sharp at every size.
class Drawing
{
public:
    virtual ~Drawing() = default;

    // Its proportions; the unit is the drawing's own.
    virtual QSizeF size() const = 0;

    // Fills the area, which has the drawing's proportions.
    virtual void paint(QPainter *painter, const QRectF &area) const = 0;
};

} // namespace ORVTListview
