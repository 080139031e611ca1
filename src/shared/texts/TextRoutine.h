#pragma once

#include "base/HouseExport.h"

#include <QtCore/QLatin1StringView>

#include <functional>

namespace ORVTListview {

// The routines that load texts, by the labels under which their failures stand
// in the log.
namespace TextRoutine {
inline constexpr QLatin1StringView listView{"InitStrings ORVListView"};
inline constexpr QLatin1StringView dataCombo{"InitStrings ORVDataCombo"};
inline constexpr QLatin1StringView findDialog{"InitStrings fFind"};
inline constexpr QLatin1StringView richText{"InitStrings ORVRichText"};
inline constexpr QLatin1StringView lookup{"Messages GetStrings"};
} // namespace TextRoutine

// Runs a routine that loads texts and tells whether it came to its end. What it
// throws ends it and goes to the category "orvtlistview.texts" as a debug
// message, which is switched off by default: the user sees English, no error.
ORVT_HOUSE_EXPORT bool runTextRoutine(QLatin1StringView label,
                                      const std::function<void()> &routine);

} // namespace ORVTListview
