#include "widgets/view/LetterGlyphs.h"

#include <QtGui/QFontInfo>
#include <QtGui/QFontMetricsF>
#include <QtGui/QTextLayout>

#include <algorithm>

namespace ORVTListview {
namespace {

constexpr std::size_t codes = 256; // of Latin-1
constexpr QChar ellipsis(u'\u2026');
constexpr std::size_t ellipsisCode = 0x80; // where Latin-1 has no letter

std::size_t codeOf(QChar letter)
{
    return letter == ellipsis ? ellipsisCode : letter.unicode();
}

// Drawn one by one, from left to right.
bool isPlain(QChar letter)
{
    const char16_t code = letter.unicode();
    return letter == ellipsis || (code >= u' ' && code < codes && (code < 0x7f || code > 0xa0) &&
                                  code != QChar::SoftHyphen);
}

bool isLatin(QChar letter)
{
    return letter.script() == QChar::Script_Latin;
}

// A line does not count blanks at its ends as it does others.
bool isPlain(const QString &text)
{
    return !text.isEmpty() && text.front() != u' ' && text.back() != u' ' &&
           std::all_of(text.cbegin(), text.cend(), [](QChar letter) { return isPlain(letter); });
}

bool hasLatin(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(), isLatin);
}

// Whether a font draws a letter by what stands further away than beside it.
bool looksFar(const QRawFont &font)
{
    const QByteArray replacements = font.fontTable("GSUB");
    return replacements.contains("calt") || replacements.contains("clig") ||
           replacements.contains("rclt");
}

bool isDecorated(const QGlyphRun &run)
{
    return run.overline() || run.underline() || run.strikeOut();
}

} // namespace

void LetterGlyphs::Seen::note(qreal value)
{
    const auto seen = static_cast<float>(value);
    if (m_value == unknown)
        m_value = seen;
    else if (m_value != seen)
        m_value = ambiguous;
}

// Fonts that are the same may be of other sizes on another screen.
bool LetterGlyphs::isFont(const QFont &font) const
{
    return font.isCopyOf(m_font) ||
           (font == m_font && QFontInfo(font).pixelSize() == QFontInfo(m_font).pixelSize());
}

// Where only the first letter of a word is a capital, a letter is drawn by where it stands.
void LetterGlyphs::setFont(const QFont &font)
{
    if (isFont(font))
        return;
    m_font = font;
    m_rawFont = {};
    m_isPredictable = font.capitalization() == QFont::MixedCase;
    m_letters.clear();
}

LetterGlyphs::Letter &LetterGlyphs::letterOf(QChar letter, bool isLatin)
{
    return m_letters[codeOf(letter) + (isLatin ? codes : 0)];
}

// The first one tells the font and where its letters stand.
bool LetterGlyphs::isLikeThoseBefore(const QGlyphRun &run, const QTextLine &line)
{
    const qreal base = run.positions().constFirst().y() - line.y();
    if (m_letters.empty()) {
        m_rawFont = run.rawFont();
        m_isPredictable = !isDecorated(run) && !looksFar(m_rawFont);
        m_height = line.height();
        m_base = base;
        m_ellipsisWidth = m_rawFont.supportsCharacter(ellipsis)
                              ? QFontMetricsF(m_font).horizontalAdvance(ellipsis)
                              : 0;
        m_letters.resize(2 * codes);
    }
    return m_isPredictable && !run.isRightToLeft() && run.rawFont() == m_rawFont &&
           line.height() == m_height && base == m_base;
}

void LetterGlyphs::learn(const QString &text, const QTextLine &line)
{
    if (!m_isPredictable || !isPlain(text))
        return;
    const QList<QGlyphRun> runs = line.glyphRuns();
    if (runs.size() != 1 || !isLikeThoseBefore(runs.constFirst(), line))
        return;
    const QList<quint32> glyphs = runs.constFirst().glyphIndexes();
    const QList<QPointF> places = runs.constFirst().positions();
    if (glyphs.size() != text.size())
        return; // some are drawn as one
    const bool isOfLatin = hasLatin(text);
    for (qsizetype i = 0; i < text.size(); ++i) {
        Letter &letter = letterOf(text.at(i), isOfLatin);
        letter.glyph.note(glyphs.at(i));
        letter.steps.resize(codes);
        if (i + 1 < text.size())
            letter.steps[codeOf(text.at(i + 1))].note(places.at(i + 1).x() - places.at(i).x());
    }
    const qreal untilLast = places.constLast().x() - places.constFirst().x();
    Letter &last = letterOf(text.back(), isOfLatin);
    last.advance.note(line.horizontalAdvance() - untilLast);
    last.naturalWidth.note(line.naturalTextWidth() - untilLast);
}

std::optional<LetterGlyphs::Line> LetterGlyphs::lineOf(const QString &text)
{
    if (m_letters.empty() || !isPlain(text))
        return std::nullopt;
    const bool isOfLatin = hasLatin(text);
    m_glyphs.clear();
    m_places.clear();
    qreal place = 0;
    const Letter *before = nullptr;
    for (const QChar code : text) {
        const Letter &letter = letterOf(code, isOfLatin);
        const Seen *step = before ? &before->steps[codeOf(code)] : nullptr;
        if (!letter.glyph.isKnown() || (step && !step->isKnown()))
            return std::nullopt;
        place += step ? qreal{**step} : 0;
        m_glyphs.push_back(static_cast<quint32>(*letter.glyph));
        m_places.emplace_back(place, m_base);
        before = &letter;
    }
    if (!before->advance.isKnown() || !before->naturalWidth.isKnown())
        return std::nullopt;
    m_run.setRawFont(m_rawFont);
    m_run.setRawData(m_glyphs.data(), m_places.data(), static_cast<int>(text.size()));
    return Line{m_run, place + qreal{*before->advance}, place + qreal{*before->naturalWidth},
                m_height};
}

// The letters up to the one that does not end before the ellipsis begins.
std::optional<QString> LetterGlyphs::elidedText(const QString &text, int width)
{
    const std::optional<Line> line = lineOf(text);
    const qreal room = width - m_ellipsisWidth;
    if (!line || m_ellipsisWidth <= 0 || room < 0)
        return std::nullopt;
    if (line->advance <= width)
        return text;
    const auto second = m_places.cbegin() + 1;
    const auto reaching = std::find_if(second, m_places.cend(),
                                       [room](const QPointF &place) { return place.x() >= room; });
    return text.first(reaching - second) + ellipsis;
}

} // namespace ORVTListview
