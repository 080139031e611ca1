#pragma once

#include "editor/view/KeptPlaces.h"
#include "widgets/box/BoxLayers.h"
#include <ORVTListview/Problem.h>

#include <QtCore/QHash>
#include <QtGui/QPixmap>

#include <optional>

namespace ORVTListview {

class RichTextBox;
struct LineMark;
struct MovedLines;

// What a check found, kept with its places while the text is edited, and underlined.
// What is wrong with a text goes with it.
class Problems final : public QObject, public BoxLayer
{
    Q_OBJECT

public:
    Problems(RichTextBox &box, BoxLayers &layers);

    void set(const QList<Problem> &problems);
    QList<Problem> list() const; // where they are now, from the top

    // The next one behind the caret, or before it, going round; none without one.
    std::optional<Problem> goToNext();
    std::optional<Problem> goToPrevious();

    // The worst one of a line, and the way to it.
    std::optional<ProblemSeverity> severityOn(const QTextBlock &line) const;
    std::optional<Problem> goToWorstOn(const QTextBlock &line);
    QString textOn(const QTextBlock &line) const;

    // Of the first one at a place of the viewport, and what of it is shown there.
    QString textAt(const QPoint &place, QRect *whole = nullptr) const;

    // When lines change places: before, and when they have.
    void holdLines(const MovedLines &lines);
    void putBack(const MovedLines &lines);
    void tellMoved(const MovedLines &lines);

    QList<LineMark> marks() const;
    static QColor colourOf(ProblemSeverity severity, const QColor &ground);

    void paintAbove(QPainter &painter, const ShownLines &lines) override;

Q_SIGNALS:
    void changed();

private:
    // Of those in their order from the top.
    bool isThere(qsizetype i) const { return !m_places.isGone(i); }
    const Problem &given(qsizetype i) const { return m_given[m_places.nameAt(i)]; }
    Problem now(qsizetype i) const;

    // Those that begin on a line.
    QList<qsizetype> allOn(const QTextBlock &line) const;
    std::optional<qsizetype> worstOn(const QTextBlock &line) const;
    Problem goTo(qsizetype i);
    QList<QRectF> placesIn(const ShownLine &line, qsizetype i) const;
    void paint(QPainter &painter, const ShownLine &line, qsizetype i, const QColor &ground);
    void drawWaves(QPainter &painter, const QList<QRectF> &places, const QColor &colour);
    void noteChange(int from, int removed, int added);

    RichTextBox &m_box;
    KeptPlaces m_places;
    QList<Problem> m_given; // by the names of their places
    QList<Problem> m_held;  // the same, where they were
    QHash<QRgb, QPixmap> m_waves;
};

} // namespace ORVTListview
