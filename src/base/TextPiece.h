#pragma once

#include <QtCore/qglobal.h>

namespace ORVTListview {

// A piece of a text: its place and length in UTF-16 units.
struct TextPiece
{
    qint32 start = 0;
    qint32 length = 0;

    qint32 end() const { return start + length; }

    friend bool operator==(const TextPiece &, const TextPiece &) = default;
};

} // namespace ORVTListview
