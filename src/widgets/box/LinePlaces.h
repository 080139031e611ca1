#pragma once

#include "base/TextPiece.h"
#include "widgets/box/BoxLayers.h"

#include <QtGui/QTextLayout>

namespace ORVTListview {

// Where the sides of a row's letters stand, from the left of its line. The toolkit walks
// along the row for each of them; where all letters are equally wide one walk tells all.
class RowSides
{
public:
    RowSides(const QTextLine &row, const QTextBlock &line);

    const QTextLine &row() const { return m_row; }
    bool areEven() const { return m_step > 0; }

    // In a row of even letters the letter that stands there, from the text's begin, be it in
    // the row or not.
    int letterAt(qreal x) const { return m_row.textStart() + qRound((x - m_start) / m_step); }
    qreal at(int place) const
    {
        return m_step > 0 ? m_start + (place - m_row.textStart()) * m_step : m_row.cursorToX(place);
    }

private:
    QTextLine m_row;
    qreal m_start = 0;
    qreal m_step = 0; // from one to the next; 0 while they are not equal
};

// Where pieces of a shown line stand in the viewport.
class LinePlaces
{
public:
    explicit LinePlaces(const ShownLine &line);

    // One rectangle, or several where the line is broken by a separator. Places are those of
    // the layout, which has what an input method composes.
    QList<QRectF> of(const TextPiece &piece) const;

    const QList<RowSides> &rows() const { return m_rows; }
    QRectF between(const RowSides &sides, int from, int to) const; // of one of them

private:
    QPointF m_corner;
    QList<RowSides> m_rows;
};

inline QList<QRectF> placesOf(const ShownLine &line, const TextPiece &piece)
{
    return LinePlaces(line).of(piece);
}

} // namespace ORVTListview
