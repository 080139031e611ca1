#pragma once

#include "base/TextSearch.h"

#include "base/HouseExport.h"

#include <QtCore/QList>

namespace ORVTListview {

// As findText over the whole text, but that an underscore counts as part of a
// word: a whole word has none directly before or behind it.
ORVT_HOUSE_EXPORT qsizetype findInProgram(QStringView text, QStringView wanted, qsizetype start,
                                          TextSearch how);

// The last match that ends at `end` or before it, or -1.
ORVT_HOUSE_EXPORT qsizetype findInProgramBefore(QStringView text, QStringView wanted, qsizetype end,
                                                TextSearch how);

// The places at which all of a program's matches are replaced, from front to back.
// They do not overlap, and one that begins where another ends is left out: the
// search goes on one character behind what takes a match's place.
ORVT_HOUSE_EXPORT QList<qsizetype> placesToReplace(QStringView text, QStringView wanted,
                                                   TextSearch how);

// The places of a word between the bounds that FindWordStart and FindWordEnd set,
// whatever its letter case.
ORVT_HOUSE_EXPORT QList<qsizetype> placesOfWord(QStringView text, QStringView word);

} // namespace ORVTListview
