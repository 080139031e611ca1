#pragma once

#include "base/TextPiece.h"

#include <ORVTListview/Types.h>

#include <QtCore/QString>

#include <algorithm>

namespace ORVTListview {

// Where a result stands: in a program, whose lines count from 1, or in a row of a table,
// from 0. Nowhere with neither.
struct ResultPlace
{
    qint32 line = 0;
    TextPiece piece = {};
    LwType type = dsCode;
    qsizetype row = -1;
    qint32 program = 0; // its number

    friend bool operator==(const ResultPlace &, const ResultPlace &) = default;
};

// Lines of the program, counted from 1, that others have replaced.
struct ReplacedLines
{
    qint32 first = 1;
    qint32 former = 0; // how many there were
    qint32 now = 0;

    // Where a line stands now; one that is gone counts as the last of the new ones.
    qint32 moved(qint32 line) const
    {
        if (line >= first + former)
            return line + now - former;
        return line < first + now ? line : std::max(first, first + now - 1);
    }
};

// A use of a point: its place, and what is said of it.
struct ShownUse
{
    ResultPlace place;
    QString text;

    friend bool operator==(const ShownUse &, const ShownUse &) = default;
};

} // namespace ORVTListview
