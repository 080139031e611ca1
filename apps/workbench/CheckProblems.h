#pragma once

#include "project/ProgramCheck.h"

#include <ORVTListview/Problem.h>

namespace ORVTListview {

// The findings for the editor, each at its word. The lines of the program are separated
// by CR LF.
QList<Problem> problemsOf(const QList<ProgramFinding> &findings, const QString &program);

} // namespace ORVTListview
