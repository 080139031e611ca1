#pragma once

#include "base/HouseExport.h"

#include <QtCore/QStringView>

#include <optional>

namespace ORVTListview {

// A bracket of a line and the one that belongs to it; offsets are characters from 0.
struct BracketPair
{
    qsizetype bracket = 0;
    std::optional<qsizetype> partner; // none is missing

    friend bool operator==(const BracketPair &, const BracketPair &) = default;
};

// The bracket at a caret, the one behind it before the one in front of it. A statement
// is a line, so brackets pair within their line. A comment has none.
ORVT_HOUSE_EXPORT std::optional<BracketPair> bracketAt(QStringView line, qsizetype caret);

} // namespace ORVTListview
