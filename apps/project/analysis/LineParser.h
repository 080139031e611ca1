#pragma once

#include "project/analysis/ProgramTokens.h"

namespace ORVTListview {

enum class StatementKind : qint8 { Assignment, If, Else, EndIf, End, Clear };

// Its words, from the first to the one behind its last, among those of the line.
struct LineStatement
{
    StatementKind kind = StatementKind::Assignment;
    qsizetype first = 0;
    qsizetype end = 0;
};

struct ParsedLine
{
    QList<ProgramToken> tokens;
    QList<LineStatement> statements; // those that are sound
    QList<qsizetype> written;        // the tokens that are assigned to
    QList<LineProblem> problems;     // in the order of their places
};

// Reads a line by the grammar of docs/guide/language.md. A statement with a fault is left
// at it, and reading goes on with the next statement. Costs what the line is long, whatever
// it holds.
ParsedLine parseLine(QStringView line, const ProgramWords &words);

// How many values a function takes; no upper bound for a negative one.
struct ValueBounds
{
    qint32 least = 0;
    qint32 most = -1;
};
ValueBounds valuesOf(QStringView function);

} // namespace ORVTListview
