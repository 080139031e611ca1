#pragma once

#include "base/HouseExport.h"

#include <QtCore/QList>
#include <QtCore/QStringView>

namespace ORVTListview {

// A piece of a line; offsets are characters from 0.
struct LinePiece
{
    qsizetype offset = 0;
    qsizetype length = 0;

    qsizetype end() const { return offset + length; }

    friend bool operator==(const LinePiece &, const LinePiece &) = default;
};

// A word that begins, divides or ends a block of the program.
struct BlockWord
{
    enum Kind { If, Else, EndIf };

    Kind kind = If;
    LinePiece place;

    friend bool operator==(const BlockWord &, const BlockWord &) = default;
};

// The words of a line, from the left: what stands between blanks, tabs, brackets and
// commas. A comment has none.
ORVT_HOUSE_EXPORT QList<LinePiece> wordsOf(QStringView line);

// IF, ELSE and ENDIF among them, in any letter case.
ORVT_HOUSE_EXPORT QList<BlockWord> blockWordsOf(QStringView line);

} // namespace ORVTListview
