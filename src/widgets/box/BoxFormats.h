#pragma once

#include "rtf/RtfFormat.h"

#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtGui/QFont>
#include <QtGui/QTextCharFormat>

#include <utility>

class QTextCursor;

namespace ORVTListview {

size_t qHash(const RtfFormat &format, size_t seed = 0);

// Character formats of a box's text. A format states what differs from the box's
// font and nothing else, so that the document keeps few formats and its text
// follows the box's font.
class BoxFormats
{
public:
    // Fonts other than the box's, each a name and a size, that it takes from when it is
    // empty on. Text in a further one gets the box's.
    static constexpr qsizetype maximumFonts = 512;

    void setFont(const QFont &font);

    // What text shows that states nothing.
    const RtfFormat &base() const { return m_base; }

    // The font's size in points, also of a font given in pixels.
    double pointSize() const { return m_pointSize; }

    // The box is empty.
    void forgetFonts();
    bool hasFonts() const { return !m_fonts.isEmpty(); }

    QTextCharFormat charFormat(const RtfFormat &format);
    RtfFormat rtfFormat(const QTextCharFormat &format) const;

    // What the next character gets that replaces the cursor's selection.
    static QTextCharFormat formatAt(const QTextCursor &cursor);

    // The text colour, or RtfFormat::automatic.
    static Colour colour(const QTextCharFormat &format);
    static void setColour(QTextCharFormat &format, Colour colour);

private:
    bool takesFont(const QString &name, qint32 halfPoints); // as stated
    QTextCharFormat make(const RtfFormat &format);

    RtfFormat m_base;
    double m_pointSize = 0;
    QSet<std::pair<QString, qint32>> m_fonts;
    QHash<RtfFormat, QTextCharFormat> m_made; // each format is asked for many times
};

} // namespace ORVTListview
