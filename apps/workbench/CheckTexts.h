#pragma once

#include "project/analysis/LineParser.h"

#include <ORVTListview/Problem.h>

namespace ORVTListview {

ProblemSeverity severityOf(Fault fault);

// "ENDIF without IF"
QString faultText(const LineProblem &problem);

// "Line 12: ENDIF without IF"
QString problemText(const ProgramProblem &problem);

// "Assignment"
QString statementName(StatementKind kind);

QString severityName(ProblemSeverity severity);

// Enough to know a word by; there are longer ones than a screen.
QString shortened(const QString &word);

} // namespace ORVTListview
