#pragma once

#include "base/TextPiece.h"

#include <QtCore/QString>

namespace ORVTListview {

// What can be wrong with a program. Why each is what it is: docs/guide/language.md.
enum class Fault : qint8 {
    UnknownName,
    MissingBlanks, // around an operator, without which it is a part of a word
    NoStatement,   // a word that begins none
    Unexpected,    // a sign that cannot stand here
    MissingValue,  // behind the word
    MissingOperator,
    OpenBracket,  // one that nothing closes
    CloseBracket, // one that closes nothing
    MissingBracket,
    ValueCount, // of a function
    TooDeep,
    NoComparison, // "=" in a condition
    NotNetworkInput,
    WriteToInput,
    WriteToConstant,
    NotWritable,
    ElseWithoutIf,
    SecondElse, // of one IF
    EndifWithoutIf,
    IfWithoutEndif,
    NeverWritten,
    NeverRead,
};

// Of one line. The word is as it is typed; how many values a function is given, the
// count tells.
struct LineProblem
{
    Fault fault = Fault::UnknownName;
    TextPiece place;
    QString word;
    qint32 count = 0;

    friend bool operator==(const LineProblem &, const LineProblem &) = default;
};

// Lines count from 1.
struct ProgramProblem
{
    qint32 line = 0;
    LineProblem found;
    qint32 program = 0; // its number, where it is told

    friend bool operator==(const ProgramProblem &, const ProgramProblem &) = default;
};

} // namespace ORVTListview
