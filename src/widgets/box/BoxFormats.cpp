#include "widgets/box/BoxFormats.h"

#include "widgets/look/Colours.h"

#include <QtGui/QBrush>
#include <QtGui/QFontInfo>
#include <QtGui/QTextCursor>

#include <cmath>

namespace ORVTListview {
namespace {

double pointsOf(const QFont &font)
{
    const double points = font.pointSizeF();
    return points > 0 ? points : QFontInfo(font).pointSizeF();
}

qint32 toHalfPoints(double points)
{
    return static_cast<qint32>(std::lround(points * 2));
}

bool sameFamily(const QString &left, const QString &right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

// A brush property as a colour.
qint32 colourOf(const QTextCharFormat &format, int property)
{
    if (!format.hasProperty(property))
        return RtfFormat::automatic;
    return Colours::fromColor(format.brushProperty(property).color());
}

void setColourOf(QTextCharFormat &format, int property, qint32 colour)
{
    if (colour < 0)
        format.clearProperty(property);
    else
        format.setProperty(property, QBrush(Colours::toColor(colour, {})));
}

// The toolkit's hash of a format is the sum of those of its properties: one number for
// all font names, and for all colours of text and highlight whose numbers have one sum.
void spread(QTextCharFormat &format)
{
    constexpr int property = QTextFormat::UserProperty + 2;
    const Colour text = colourOf(format, QTextFormat::ForegroundBrush);
    const Colour highlight = colourOf(format, QTextFormat::BackgroundBrush);
    const QStringList families = format.fontFamilies().toStringList();
    const bool hasBoth = text != RtfFormat::automatic && highlight != RtfFormat::automatic;
    if (families.isEmpty() && !hasBoth)
        return format.clearProperty(property);
    const size_t hash = qHashMulti(QHashSeed::globalSeed(), families, text, highlight);
    format.setProperty(property, static_cast<int>(hash));
}

} // namespace

size_t qHash(const RtfFormat &format, size_t seed)
{
    return qHashMulti(seed, format.fontName, format.halfPoints, format.colour, format.backColour,
                      format.bold, format.italic, format.underline, format.strike);
}

void BoxFormats::setFont(const QFont &font)
{
    m_base.fontName = font.family();
    m_pointSize = pointsOf(font);
    m_base.halfPoints = toHalfPoints(m_pointSize);
    m_base.bold = font.bold();
    m_base.italic = font.italic();
    m_base.underline = font.underline();
    m_base.strike = font.strikeOut();
    m_made.clear();
}

QTextCharFormat BoxFormats::charFormat(const RtfFormat &format)
{
    auto it = m_made.find(format);
    if (it == m_made.end()) {
        // A document of many formats must not be kept twice.
        constexpr qsizetype enough = 4096;
        if (m_made.size() >= enough)
            m_made.clear();
        it = m_made.insert(format, make(format));
    }
    return *it;
}

void BoxFormats::forgetFonts()
{
    if (m_fonts.isEmpty())
        return;
    m_fonts.clear();
    m_made.clear();
}

bool BoxFormats::takesFont(const QString &name, qint32 halfPoints)
{
    const std::pair font(name, halfPoints);
    if (m_fonts.size() < maximumFonts)
        m_fonts.insert(font);
    return m_fonts.contains(font);
}

QTextCharFormat BoxFormats::make(const RtfFormat &format)
{
    QTextCharFormat made;
    const bool isNamed =
        !format.fontName.isEmpty() && !sameFamily(format.fontName, m_base.fontName);
    const bool isSized = format.halfPoints > 0 && format.halfPoints != m_base.halfPoints;
    const bool isTaken = (isNamed || isSized) && takesFont(isNamed ? format.fontName : QString(),
                                                           isSized ? format.halfPoints : 0);
    if (isNamed && isTaken)
        made.setFontFamilies({format.fontName});
    if (isSized && isTaken)
        made.setFontPointSize(format.halfPoints / 2.0);
    if (format.bold != m_base.bold)
        made.setFontWeight(format.bold ? QFont::Bold : QFont::Normal);
    if (format.italic != m_base.italic)
        made.setFontItalic(format.italic);
    if (format.underline != m_base.underline)
        made.setFontUnderline(format.underline);
    if (format.strike != m_base.strike)
        made.setFontStrikeOut(format.strike);
    setColourOf(made, QTextFormat::ForegroundBrush, format.colour);
    setColourOf(made, QTextFormat::BackgroundBrush, format.backColour);
    spread(made);
    return made;
}

RtfFormat BoxFormats::rtfFormat(const QTextCharFormat &format) const
{
    RtfFormat result = m_base;
    if (const QStringList families = format.fontFamilies().toStringList(); !families.isEmpty())
        result.fontName = families.constFirst();
    if (format.hasProperty(QTextFormat::FontPointSize))
        result.halfPoints = toHalfPoints(format.fontPointSize());
    if (format.hasProperty(QTextFormat::FontWeight))
        result.bold = format.fontWeight() > QFont::Medium;
    if (format.hasProperty(QTextFormat::FontItalic))
        result.italic = format.fontItalic();
    if (format.hasProperty(QTextFormat::TextUnderlineStyle))
        result.underline = format.fontUnderline();
    if (format.hasProperty(QTextFormat::FontStrikeOut))
        result.strike = format.fontStrikeOut();
    result.colour = colourOf(format, QTextFormat::ForegroundBrush);
    result.backColour = colourOf(format, QTextFormat::BackgroundBrush);
    return result;
}

Colour BoxFormats::colour(const QTextCharFormat &format)
{
    return colourOf(format, QTextFormat::ForegroundBrush);
}

void BoxFormats::setColour(QTextCharFormat &format, Colour colour)
{
    setColourOf(format, QTextFormat::ForegroundBrush, colour);
    spread(format);
}

QTextCharFormat BoxFormats::formatAt(const QTextCursor &cursor)
{
    if (!cursor.hasSelection())
        return cursor.charFormat();
    QTextCursor first(cursor);
    first.setPosition(cursor.selectionStart() + 1);
    return first.charFormat();
}

} // namespace ORVTListview
