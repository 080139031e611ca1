#include "widgets/look/TextWidths.h"

#include "widgets/look/CellText.h"

#include <QtGui/QGlyphRun>
#include <QtGui/QTextLayout>

#include <algorithm>
#include <cmath>
#include <limits>

namespace ORVTListview {
namespace {

constexpr unsigned letters = 256;
constexpr unsigned start = 0; // the step from here is a first letter's own advance
constexpr float notYetKnown = -std::numeric_limits<float>::infinity();
constexpr float unpredictable = std::numeric_limits<float>::infinity();

// Letters that are drawn one by one, from left to right.
bool isPlain(unsigned code)
{
    return code < letters && code >= 0x20 && (code < 0x7f || code >= 0xa0) && code != 0xad;
}

} // namespace

TextWidths::TextWidths(const QFont &font)
    : m_font(font)
    , m_metrics(font)
    , m_steps(std::size_t{letters} * letters, notYetKnown)
{
}

int TextWidths::width(const QString &text)
{
    const auto known = m_measured.constFind(text);
    if (known != m_measured.cend())
        return *known;
    const int width = qRound(m_metrics.horizontalAdvance(cellText(text)));
    m_measured.insert(text, width);
    return width;
}

void TextWidths::widen(int &widest, const QString &text)
{
    const double bound = sumOfSteps(text);
    constexpr double roundingError = 0.02;
    if (bound + roundingError >= widest + 0.5)
        widest = std::max(widest, width(text));
}

double TextWidths::sumOfSteps(const QString &text)
{
    if (text.size() > longestLine)
        return static_cast<double>(unpredictable); // it is cut
    double sum = 0;
    unsigned from = start;
    for (const QChar character : text) {
        const unsigned to = character.unicode();
        if (!isPlain(to))
            return static_cast<double>(unpredictable);
        sum += static_cast<double>(step(from, to));
        from = to;
    }
    return sum;
}

float TextWidths::step(unsigned from, unsigned to)
{
    float &known = m_steps[std::size_t{from} * letters + to];
    if (known == notYetKnown)
        known = measuredStep(from, to);
    return known;
}

float TextWidths::measuredStep(unsigned from, unsigned to) const
{
    const QString second(QChar(static_cast<char16_t>(to)));
    if (from == start)
        return static_cast<float>(m_metrics.horizontalAdvance(second));
    const QString first(QChar(static_cast<char16_t>(from)));
    if (glyphs(first + second) != glyphs(first) + glyphs(second))
        return unpredictable; // a ligature may grow with a third letter
    return static_cast<float>(m_metrics.horizontalAdvance(first + second) -
                              m_metrics.horizontalAdvance(first));
}

QList<quint32> TextWidths::glyphs(const QString &text) const
{
    QTextLayout layout(text, m_font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    QList<quint32> glyphs;
    for (const QGlyphRun &run : layout.glyphRuns())
        glyphs += run.glyphIndexes();
    return glyphs;
}

} // namespace ORVTListview
