#pragma once

#include "base/HouseExport.h"
#include "base/TextPiece.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>

namespace ORVTListview {

// A piece of a text and what comes in its place.
struct TextEdit
{
    TextPiece piece;
    QString text;

    friend bool operator==(const TextEdit &, const TextEdit &) = default;
};

// What has to change of one text, which begins at `start`, to make it another; none when
// they are the same.
ORVT_HOUSE_EXPORT std::optional<TextEdit> difference(QStringView before, QStringView after,
                                                     qint32 start);

// Where a place of the text is after edits, which follow each other. One at the begin of a
// line stays there; elsewhere what goes in where the place is comes before it.
ORVT_HOUSE_EXPORT qint32 placeAfter(const QList<TextEdit> &edits, qint32 place, bool isLineBegin);

} // namespace ORVTListview
