#pragma once

#include <QtCore/QPointF>
#include <QtCore/QString>
#include <QtGui/QFont>
#include <QtGui/QGlyphRun>
#include <QtGui/QRawFont>

#include <limits>
#include <optional>
#include <vector>

class QTextLine;

namespace ORVTListview {

// Knows by which glyphs a font draws letters of Latin-1, and how far each stands from the one
// before, from lines that were shaped. A text of which all that is known needs no shaping, and
// has the same pixels. Where letters are drawn now so and now so, they are not known.
class LetterGlyphs
{
public:
    // The font of all that follows. For another one than before, all is forgotten.
    void setFont(const QFont &font);

    void learn(const QString &text, const QTextLine &line);

    // What a QTextLine tells, with the glyphs from its left end and its top on.
    struct Line
    {
        const QGlyphRun &glyphs; // until the next question
        qreal advance;
        qreal naturalWidth;
        qreal height;
    };

    // None when something of the text is not known.
    std::optional<Line> lineOf(const QString &text);

    // As QFontMetrics::elidedText, at the right; none when something of the text, or of an
    // ellipsis, is not known.
    std::optional<QString> elidedText(const QString &text, int width);

private:
    // A number that was seen, always the same one.
    class Seen
    {
    public:
        bool isKnown() const { return m_value != unknown && m_value != ambiguous; }
        float operator*() const { return m_value; }
        void note(qreal value);

    private:
        static constexpr float unknown = -std::numeric_limits<float>::infinity();
        static constexpr float ambiguous = std::numeric_limits<float>::infinity();

        float m_value = unknown;
    };

    struct Letter
    {
        Seen glyph;
        Seen advance; // of a line that it ends
        Seen naturalWidth;
        std::vector<Seen> steps; // to the letter that follows
    };

    bool isFont(const QFont &font) const;
    Letter &letterOf(QChar letter, bool isLatin);
    bool isLikeThoseBefore(const QGlyphRun &run, const QTextLine &line);

    QFont m_font;
    QRawFont m_rawFont;
    bool m_isPredictable = true;
    qreal m_height = 0;
    qreal m_base = 0;          // under the top
    qreal m_ellipsisWidth = 0; // or none

    // Those in texts of no script, which have none of Latin, and may be drawn in another way;
    // then those in Latin ones.
    std::vector<Letter> m_letters;

    std::vector<quint32> m_glyphs; // of the line that was asked for
    std::vector<QPointF> m_places;
    QGlyphRun m_run;
};

} // namespace ORVTListview
