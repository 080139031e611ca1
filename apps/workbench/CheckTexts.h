#pragma once

#include "project/ProgramCheck.h"

namespace ORVTListview {

// "ENDIF without IF"
QString faultText(const ProgramFinding &finding);

// "Line 12: ENDIF without IF"
QString findingText(const ProgramFinding &finding);

// "Input", "Reserved word"
QString classText(const ProgramWord &word);

} // namespace ORVTListview
