#pragma once

#include "base/HouseExport.h"
#include "editor/rules/colouring/ColourEngine.h"

namespace ORVTListview {

// The thread's word index, with what the ready collections hold now.
ORVT_HOUSE_EXPORT CodeWordList &threadWordList();

// The colouring that this thread's vocabulary and messages give.
ORVT_HOUSE_EXPORT ColourEngine threadColouring();

// Fills the thread's word index from its vocabulary. Raises Error and changes nothing
// when a collection of the host fails.
ORVT_HOUSE_EXPORT void refillThreadWordList();

} // namespace ORVTListview
