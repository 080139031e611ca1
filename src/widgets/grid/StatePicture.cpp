#include "widgets/grid/StatePicture.h"

#include "widgets/look/Luminance.h"

#include <QtGui/QIconEngine>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QPalette>

namespace ORVTListview {
namespace {

QColor colourOf(CellState state)
{
    switch (state) {
    case CellState::Alarm:
        return {0xd0, 0x3a, 0x3a};
    case CellState::Manual:
        return {0x2f, 0x7f, 0xd0};
    case CellState::Changed:
        return {0x31, 0x98, 0x3d};
    case CellState::Old:
    case CellState::Plain:
        break;
    }
    return {0x80, 0x80, 0x80};
}

// On 16 x 16: a triangle with a stroke, an open hand, a pencil's point, a clock.
QPainterPath shapeOf(CellState state)
{
    QPainterPath path;
    switch (state) {
    case CellState::Alarm:
        path.addPolygon(QPolygonF{{8, 2}, {14.5, 13.5}, {1.5, 13.5}, {8, 2}});
        path.moveTo(8, 6.5);
        path.lineTo(8, 9.5);
        path.moveTo(8, 11.4);
        path.lineTo(8, 11.6);
        break;
    case CellState::Manual:
        path.addRoundedRect(QRectF(4, 8, 8.5, 6.5), 2.5, 2.5);
        for (const double finger : {5.0, 7.5, 10.0, 12.0}) {
            path.moveTo(finger, 8.5);
            path.lineTo(finger, finger == 7.5 || finger == 10.0 ? 2.0 : 4.0);
        }
        path.moveTo(4, 11);
        path.lineTo(1.5, 8.5);
        break;
    case CellState::Changed:
        path.addPolygon(
            QPolygonF{{2.5, 13.5}, {3.5, 9.5}, {11, 2}, {14, 5}, {6.5, 12.5}, {2.5, 13.5}});
        break;
    case CellState::Old:
        path.addEllipse(QRectF(2, 2, 12, 12));
        path.moveTo(8, 4.5);
        path.lineTo(8, 8);
        path.lineTo(10.8, 9.8);
        break;
    case CellState::Plain:
        break;
    }
    return path;
}

class StateEngine final : public QIconEngine
{
public:
    StateEngine(CellState state, const QColor &selected)
        : m_state(state)
        , m_selected(selected)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const QColor colour = mode == QIcon::Selected ? m_selected : colourOf(m_state);
        const int side = std::min(rect.width(), rect.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.x() + (rect.width() - side) / 2.0,
                           rect.y() + (rect.height() - side) / 2.0);
        painter->scale(side / 16.0, side / 16.0);
        QColor ground = colour;
        ground.setAlphaF(0.25F);
        painter->setBrush(m_state == CellState::Old ? QBrush(Qt::NoBrush) : QBrush(ground));
        painter->setPen(QPen(colour, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPath(shapeOf(m_state));
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap drawn(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        paint(&painter, drawn.rect(), mode, state);
        return drawn;
    }

    QIconEngine *clone() const override { return new StateEngine(m_state, m_selected); }

private:
    const CellState m_state;
    const QColor m_selected;
};

class PairEngine final : public QIconEngine
{
public:
    PairEngine(const QIcon &left, const QIcon &right)
        : m_left(left)
        , m_right(right)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const QSize square(rect.height(), rect.height());
        m_left.paint(painter, QRect(rect.topLeft(), square), Qt::AlignCenter, mode, state);
        const QPoint second(rect.right() + 1 - square.width(), rect.top());
        m_right.paint(painter, QRect(second, square), Qt::AlignCenter, mode, state);
    }

    QIconEngine *clone() const override { return new PairEngine(m_left, m_right); }

private:
    const QIcon m_left;
    const QIcon m_right;
};

} // namespace

QIcon besideOneAnother(const QIcon &first, const QIcon &second, Qt::LayoutDirection direction)
{
    const bool isTurned = direction == Qt::RightToLeft;
    return QIcon(new PairEngine(isTurned ? second : first, isTurned ? first : second));
}

QIcon statePicture(CellState state, const QColor &selected)
{
    return state == CellState::Plain ? QIcon() : QIcon(new StateEngine(state, selected));
}

QColor stateInk(CellState state, const QPalette &palette)
{
    if (state == CellState::Old)
        return palette.color(QPalette::PlaceholderText);
    if (state != CellState::Alarm)
        return {};
    return isDark(palette.color(QPalette::Base)) ? QColor(0xff, 0x8a, 0x80)
                                                 : QColor(0xb0, 0x18, 0x18);
}

} // namespace ORVTListview
