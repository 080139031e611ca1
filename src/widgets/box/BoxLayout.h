#pragma once

#include "widgets/box/FontLetters.h"

#include <QtWidgets/QPlainTextEdit>

#include <functional>
#include <memory>
#include <set>

namespace ORVTListview {

// The layout of a box's lines, none of which wraps. The toolkit's own looks at
// every line of the document when the longest one gets shorter, and repaints
// everything for a change of format near a line's end; this one touches the
// changed lines only.
class BoxLayout final : public QPlainTextDocumentLayout
{
    Q_OBJECT

public:
    // The lines are aligned in the width of the viewport.
    BoxLayout(QTextDocument &document, const QWidget &viewport);

    // To be called when the viewport has another width, in place of the toolkit, which
    // would make a layout for every line.
    void fitWidth();

    // Shows lines of the document, or hides them; the text stays as it is, and nobody is
    // told that it changed.
    void showLines(const QTextBlock &first, const QTextBlock &last, bool on);

    // Where the box shows a line, from the left and the top of what it shows.
    using PlaceOf = std::function<QRectF(const QTextBlock &line)>;
    void setPlaceOf(const PlaceOf &place) { m_placeOf = place; }

    // How far above and below a line that is laid out its text may be painted, in pixels.
    int reachBeyond(const QTextBlock &line) const;

    // Whether its letters may be painted there; of any line.
    bool mayReachBeyond(const QTextBlock &line) const;

    // Those of the document's font.
    const FontLetters &letters() const;

    // While it is so, what changes is the colours of text: lines keep their places.
    void setOnlyColours(bool on) { m_onlyColours = on; }

    QSizeF documentSize() const override;
    QRectF frameBoundingRect(QTextFrame *frame) const override;
    QRectF blockBoundingRect(const QTextBlock &block) const override;

protected:
    void documentChanged(int from, int charsRemoved, int charsAdded) override;

private:
    using Widths = std::multiset<qreal>;
    class LineWidth;

    // Of lines that changed: what is known to be as it was.
    struct Kept
    {
        bool height = true;
        int beyond = 0; // how far one of them reached, or does
    };

    void ensureLines(QTextBlock block) const;
    void layOut(QTextBlock &block) const;
    qreal makeLines(QTextBlock &block) const;
    int textReach(const QTextBlock &block) const;
    Kept changeLine(QTextBlock block) const;
    Kept changeLines(const QTextBlock &first, const QTextBlock &last) const;
    void updateLine(const QTextBlock &block, int beyond);
    void clearLines(const QTextBlock &first, const QTextBlock &last) const;
    void colourLines(const QTextBlock &first, const QTextBlock &last);
    void announceSize() const;

    const QWidget &m_viewport;
    int m_lineCount = 1;
    bool m_onlyColours = false;
    int m_width = 0;                  // that the lines are aligned in
    std::shared_ptr<Widths> m_widths; // of the lines laid out so far
    mutable QSizeF m_announcedSize;
    mutable FontLetters m_letters;
    PlaceOf m_placeOf;
};

} // namespace ORVTListview
