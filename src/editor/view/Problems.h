#pragma once

#include "widgets/box/BoxLayers.h"
#include <ORVTListview/Problem.h>

#include <QtCore/QHash>
#include <QtGui/QPixmap>
#include <QtGui/QTextCursor>

#include <optional>

class QPlainTextEdit;

namespace ORVTListview {

struct LineMark;
struct MovedLines;

// What a check found, kept with its places while the text is edited, and underlined.
// What is wrong with a text goes with it.
class Problems final : public QObject, public BoxLayer
{
    Q_OBJECT

public:
    Problems(QPlainTextEdit &box, BoxLayers &layers);

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
    struct Kept
    {
        Problem problem; // as given
        QTextCursor place;
        bool hasText = false; // and is gone when that is

        bool isThere() const { return !hasText || place.hasSelection(); }
        bool touches(const QTextBlock &line) const;
        Problem now() const;
    };

    using Place = QList<Kept>::const_iterator;

    // The first that begins at a place of the document or behind it.
    Place from(int position) const;

    // Those that begin on a line.
    QList<const Kept *> allOn(const QTextBlock &line) const;
    const Kept *worstOn(const QTextBlock &line) const;
    Problem goTo(const Kept &kept);
    QList<QRectF> placesIn(const ShownLine &line, const Kept &kept) const;
    void drawWaves(QPainter &painter, const Kept &kept, const ShownLine &line,
                   const QColor &colour);
    void sort();
    void noteChange(int from, int removed, int added);

    QPlainTextEdit &m_box;
    QList<Kept> m_kept;    // from the top
    QList<Problem> m_held; // where each of them is
    QHash<QRgb, QPixmap> m_waves;
};

} // namespace ORVTListview
