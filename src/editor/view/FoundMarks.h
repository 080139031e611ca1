#pragma once

#include "editor/view/FoundPlaces.h"
#include "widgets/box/BoxLayers.h"

class QPlainTextEdit;

namespace ORVTListview {

struct LineMark;

// Marks all places of what is searched for, among the lines shown and on the scroll bar.
class FoundMarks final : public QObject, public BoxLayer
{
    Q_OBJECT

public:
    FoundMarks(QPlainTextEdit &box, BoxLayers &layers);

    FoundPlaces &places() { return m_places; }
    QList<LineMark> marks() const;

    void paintBelow(QPainter &painter, const ShownLines &lines) override;

Q_SIGNALS:
    void marksChanged();

private:
    void show();
    void repaint();
    void follow();
    QList<QRectF> placesIn(const ShownLine &line) const;

    QPlainTextEdit &m_box;
    FoundPlaces m_places;
    QList<int> m_lines; // that the scroll bar marks
};

} // namespace ORVTListview
