#pragma once

#include "base/TextPiece.h"

#include "base/HouseExport.h"

#include <QtCore/QList>
#include <QtCore/QStringView>

namespace ORVTListview {

// How a piece of a program stands in its line once another text has its place.
struct ReplacedPiece
{
    bool isComment = false;  // the line that the new text begins on
    bool wasComment = false; // a line that the old text stood on

    friend bool operator==(const ReplacedPiece &, const ReplacedPiece &) = default;
};

// The same for each piece, when one after the other is replaced by one text. Lines
// are separated by CR LF; the pieces follow each other without overlapping.
ORVT_HOUSE_EXPORT QList<ReplacedPiece>
replacedPieces(QStringView program, const QList<TextPiece> &pieces, QStringView text);

} // namespace ORVTListview
