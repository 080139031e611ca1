#pragma once

#include "project/ProgramCheck.h"

namespace ORVTListview {

// "Line 12: ENDIF without IF"
QString findingText(const ProgramFinding &finding);

// "Input", "Reserved word"
QString classText(const ProgramWord &word);

} // namespace ORVTListview
