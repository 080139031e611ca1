#include "editor/view/FoundMarks.h"

#include "editor/view/LayerOrder.h"
#include "editor/view/RoundedMark.h"
#include "editor/view/ScrollMarks.h"
#include "editor/view/ViewColours.h"
#include "widgets/box/LinePlaces.h"
#include "widgets/look/CellText.h"

#include <QtGui/QPainter>
#include <QtGui/QTextDocument>
#include <QtWidgets/QPlainTextEdit>

#include <utility>

namespace ORVTListview {

FoundMarks::FoundMarks(QPlainTextEdit &box, BoxLayers &layers)
    : BoxLayer(layers, LayerOrder::found)
    , m_box(box)
    , m_places(*box.document())
{
    connect(&m_places, &FoundPlaces::wantedChanged, this, &FoundMarks::show);
    connect(&m_places, &FoundPlaces::changed, this, &FoundMarks::follow);
}

// Most changes leave the scroll bar as it is.
void FoundMarks::follow()
{
    constexpr int rows = 1000;
    if (m_places.lineEnds() > 0) // a change elsewhere may end one on this line
        repaint();
    const QList<int> former = std::exchange(m_lines, m_places.lines(rows));
    if (m_lines != former)
        Q_EMIT marksChanged();
}

void FoundMarks::show()
{
    setShown(m_places.isLooking());
    repaint();
}

void FoundMarks::repaint()
{
    if (layers())
        layers()->updateLines([](const QTextBlock &) { return true; });
}

QList<LineMark> FoundMarks::marks() const
{
    const QColor ground = ViewColours::groundOf(m_box);
    const QColor colour =
        ViewColours::onGround(ViewColours::foundGround(ground), ground, ViewColours::visible);
    QList<LineMark> marks;
    for (const int line : m_lines)
        marks.append({m_box.document()->findBlockByNumber(line).position(), colour});
    return marks;
}

QList<QRectF> FoundMarks::placesIn(const ShownLine &line) const
{
    QList<QRectF> places;
    QTextBlock begin = line.block;
    for (int i = 0; i <= m_places.lineEnds() && begin.isValid(); ++i, begin = begin.previous()) {
        for (const int place : m_places.on(begin)) {
            const int start = place - line.block.position();
            if (start < longestLine)
                places += placesOf(line, {start, m_places.length()});
        }
    }
    return places;
}

void FoundMarks::paintBelow(QPainter &painter, const ShownLines &lines)
{
    const QColor ground = ViewColours::groundOf(m_box);
    const QColor colour = ViewColours::foundGround(ground);
    painter.setPen(ViewColours::onGround(colour, ground, ViewColours::visible));
    painter.setBrush(colour);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const ShownLine &line : lines) {
        for (const QRectF &place : placesIn(line))
            drawRoundedMark(painter, place);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace ORVTListview
