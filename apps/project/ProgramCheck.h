#pragma once

#include "editor/rules/language/WordClass.h"

#include <QtCore/QList>
#include <QtCore/QString>

namespace ORVTListview {

class Vocabulary;
class WordIndex;

enum class Fault {
    UnknownName,
    ElseWithoutIf,
    SecondElse, // of one IF
    EndifWithoutIf,
    IfWithoutEndif,
};

// Lines count from 1; a word is given as it is typed.
struct ProgramFinding
{
    Fault fault = Fault::UnknownName;
    qint32 line = 0;
    QString word;

    friend bool operator==(const ProgramFinding &, const ProgramFinding &) = default;
};

struct ProgramWord
{
    qint32 line = 0;
    QString word;
    WordClass wordClass = WordClass::Other; // a number

    friend bool operator==(const ProgramWord &, const ProgramWord &) = default;
};

// Both in the order of the lines.
struct ProgramReport
{
    QList<ProgramFinding> findings;
    QList<ProgramWord> words; // those that are known, and the numbers
};

// Looks for names that are no words of the vocabulary and for IF, ELSE and ENDIF
// that do not fit together. The lines of the program are separated by CR LF;
// comment lines are passed over. Words stand between blanks, tabs, brackets and
// commas, unless the vocabulary has a name that holds a bracket or a comma. A name
// that is unknown is found once a line.
ProgramReport checkProgram(QStringView program, const Vocabulary &vocabulary,
                           const WordIndex &words);

} // namespace ORVTListview
