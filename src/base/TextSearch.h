#pragma once

#include "base/HouseExport.h"

#include <QtCore/QStringView>

namespace ORVTListview {

// How a text is searched. Letters and digits are word characters.
struct TextSearch
{
    bool wholeWord = false;
    bool matchCase = false;
};

// The place of the first match that lies wholly in [start, end), or -1. An empty
// text is never found. A match neither begins nor ends inside a surrogate pair or
// a CR LF. Letter case is folded character by character, so that a match is as
// long as what was searched for.
ORVT_HOUSE_EXPORT qsizetype findText(QStringView text, QStringView wanted, qsizetype start,
                                     qsizetype end, TextSearch how = {});

// How many characters two texts have in common at their starts, or at their ends and not
// more than so many.
ORVT_HOUSE_EXPORT qsizetype alikeAtStart(QStringView one, QStringView other);
ORVT_HOUSE_EXPORT qsizetype alikeAtEnd(QStringView one, QStringView other, qsizetype most);

// Where the next CR LF stands, or -1.
ORVT_HOUSE_EXPORT qsizetype findCrLf(QStringView text, qsizetype from);

} // namespace ORVTListview
