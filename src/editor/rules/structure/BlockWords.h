#pragma once

#include "base/HouseExport.h"
#include "base/TextPiece.h"

#include <QtCore/QList>
#include <QtCore/QStringView>

namespace ORVTListview {

// A word that begins, divides or ends a block of the program.
struct BlockWord
{
    enum Kind { If, Else, EndIf };

    Kind kind = If;
    TextPiece place; // in its line

    friend bool operator==(const BlockWord &, const BlockWord &) = default;
};

// The words of a line, from the left: what stands between blanks, tabs, brackets and
// commas. A comment has none.
ORVT_HOUSE_EXPORT QList<TextPiece> wordsOf(QStringView line);

// IF, ELSE and ENDIF among them, in any letter case.
ORVT_HOUSE_EXPORT QList<BlockWord> blockWordsOf(QStringView line);

} // namespace ORVTListview
