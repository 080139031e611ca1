#include "editor/ColouredSource.h"

#include <algorithm>

namespace ORVTListview {

void ColouredSource::set(const SharedText &text)
{
    m_text = text;
    m_isKnown = true;
    m_isFixed = true;
    m_checked = 0;
}

void ColouredSource::become(const SharedText &text, bool otherLinesAreFixed)
{
    const bool areFixed = isFixed() && otherLinesAreFixed;
    set(text);
    if (areFixed)
        m_checked = text.size();
}

bool ColouredSource::staysSame(const ColouredText &coloured, const Colour &colour)
{
    return colour(coloured.text) == coloured;
}

// Whole lines, or nothing of one that is very long.
QString ColouredSource::nextLines() const
{
    constexpr qsizetype slice = 0x8000;
    const qsizetype left = m_text.size() - m_checked;
    const QString lines = m_text.mid(m_checked, std::min(slice, left));
    return lines.size() == left ? lines
                                : lines.first(lines.lastIndexOf(QStringLiteral("\r\n")) + 2);
}

bool ColouredSource::check(const Colour &colour)
{
    if (!m_isKnown || !m_isFixed || m_checked == m_text.size())
        return false;
    const QString lines = nextLines();
    m_isFixed = lines.size() > 1 && staysSame(colour(lines), colour);
    m_checked += lines.size();
    return m_isFixed && m_checked < m_text.size();
}

} // namespace ORVTListview
