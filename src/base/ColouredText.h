#pragma once

#include <ORVTListview/Colour.h>

#include <QtCore/QList>
#include <QtCore/QString>

namespace ORVTListview {

// Plain text, lines separated by CR LF, with the colour of each piece. The runs
// follow each other without gaps and cover the text.
struct ColouredText
{
    static constexpr Colour automatic = -1; // the box's own text colour

    struct Run
    {
        qsizetype length = 0; // UTF-16 units, CR LF counting two
        Colour colour = automatic;

        friend bool operator==(const Run &, const Run &) = default;
    };

    QString text;
    QList<Run> runs;

    // Goes on in a colour: the last run, if it has that one, grows.
    void appendRun(qsizetype length, Colour colour)
    {
        if (length <= 0)
            return;
        if (!runs.isEmpty() && runs.constLast().colour == colour)
            runs.last().length += length;
        else
            runs.append({length, colour});
    }

    friend bool operator==(const ColouredText &, const ColouredText &) = default;
};

} // namespace ORVTListview
