#pragma once

#include "editor/rules/colouring/ColourEngine.h"

namespace ORVTListview {

// The colouring that this thread's vocabulary and messages give.
ORVT_CORE_EXPORT ColourEngine threadColouring();

// Fills the thread's word index from its vocabulary.
ORVT_CORE_EXPORT void refillThreadWordList();

} // namespace ORVTListview
