#pragma once

#include "base/ColouredText.h"

#include <QtCore/QList>
#include <QtCore/QStringView>

#include <vector>

namespace ORVTListview {

// A coloured text line by line. A line is what stands between two CR LF.
class ColouredLines
{
public:
    ColouredLines() = default;
    explicit ColouredLines(const ColouredText &text) { append(text); }

    // Saves moving the lines about when so many come.
    void reserve(int lines) { m_lines.reserve(static_cast<std::size_t>(lines)); }

    // As lines of their own.
    void append(const ColouredText &text);

    QString text() const;
    int count() const { return static_cast<int>(m_lines.size()); }
    ColouredText at(int index) const;
    QStringView textOf(int index) const;

    // From one line to another, which counts, with the line end before the first or without.
    ColouredText between(int first, int last, bool hasLineEndBefore) const;

private:
    struct Line
    {
        int part = 0;
        int start = 0; // in its text
        int length = 0;
        int run = 0; // the one that it begins in, and
        int runStart = 0;
    };

    const Line &line(int index) const { return m_lines[static_cast<std::size_t>(index)]; }
    QList<ColouredText::Run> runsOf(int index) const;

    QList<ColouredText> m_parts;
    std::vector<Line> m_lines;
};

} // namespace ORVTListview
