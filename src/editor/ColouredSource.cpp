#include "editor/ColouredSource.h"

#include <QtCore/QStringList>

#include <algorithm>

namespace ORVTListview {
namespace {

const QString lineEnd = QStringLiteral("\r\n");
constexpr qsizetype slice = 0x8000;

bool isLineStart(const SharedText &text, qsizetype place)
{
    return place == 0 ||
           (place >= lineEnd.size() && text.mid(place - lineEnd.size(), lineEnd.size()) == lineEnd);
}

bool isLineEnd(const SharedText &text, qsizetype place)
{
    return place == text.size() || isLineStart(text, place) ||
           text.mid(place, std::min(lineEnd.size(), text.size() - place)) == lineEnd;
}

// The end of the line that a place is in.
qsizetype lineEndBehind(const SharedText &text, qsizetype place)
{
    for (;;) {
        const QString part = text.mid(place, std::min(slice, text.size() - place));
        if (const qsizetype end = part.indexOf(lineEnd); end >= 0)
            return place + end;
        if (place + part.size() == text.size())
            return text.size();
        place += part.size() - 1; // half a line end may stand there
    }
}

bool hasLines(const SharedText &text, qsizetype start, const QString &lines)
{
    const qsizetype end = start + lines.size();
    return start >= 0 && end <= text.size() && isLineStart(text, start) && isLineEnd(text, end) &&
           text.mid(start, lines.size()) == lines;
}

} // namespace

void ColouredSource::set(const SharedText &text)
{
    m_text = text;
    m_isKnown = true;
    m_isFixed = true;
    m_checked = 0;
    m_unfixed = {};
}

// They stand as far from the start, or from the end, as before.
bool ColouredSource::findUnfixedAgain(const SharedText &text)
{
    if (m_isFixed || m_unfixed.lines.isEmpty())
        return false;
    for (const qsizetype start : {m_unfixed.start, m_unfixed.start + text.size() - m_text.size()}) {
        if (!hasLines(text, start, m_unfixed.lines))
            continue;
        m_unfixed.start = start;
        return true;
    }
    return false;
}

void ColouredSource::become(const SharedText &text, bool otherLinesAreFixed)
{
    if (findUnfixedAgain(text)) {
        m_text = text;
        return;
    }
    const bool areFixed = isFixed() && otherLinesAreFixed;
    set(text);
    if (areFixed)
        m_checked = text.size();
}

bool ColouredSource::staysSame(const ColouredText &coloured, const Colour &colour)
{
    return colour(coloured.text) == coloured;
}

// Whole lines; none where one is longer than a slice.
QString ColouredSource::nextLines() const
{
    const qsizetype left = m_text.size() - m_checked;
    QString lines = m_text.mid(m_checked, std::min(slice, left));
    if (lines.size() == left)
        return lines;
    const qsizetype end = lines.lastIndexOf(lineEnd);
    return end < 0 ? QString() : lines.first(end + lineEnd.size());
}

// One line, if it is so by itself.
ColouredSource::Unfixed ColouredSource::unfixedIn(const QString &lines, const Colour &colour) const
{
    qsizetype start = 0;
    for (const QString &line : lines.split(lineEnd)) {
        if (!staysSame(colour(line), colour))
            return {line, m_checked + start};
        start += line.size() + lineEnd.size();
    }
    return {lines, m_checked};
}

// A line that is longer than a slice is not looked at: it counts as one that would change.
bool ColouredSource::check(const Colour &colour)
{
    if (!m_isKnown || !m_isFixed || m_checked == m_text.size())
        return false;
    const QString lines = nextLines();
    m_isFixed = !lines.isEmpty() && staysSame(colour(lines), colour);
    if (lines.isEmpty())
        m_unfixed = {m_text.mid(m_checked, lineEndBehind(m_text, m_checked) - m_checked),
                     m_checked};
    else if (!m_isFixed)
        m_unfixed = unfixedIn(lines, colour);
    m_checked += lines.size();
    return m_isFixed && m_checked < m_text.size();
}

} // namespace ORVTListview
