#pragma once

#include "project/analysis/ProgramFault.h"
#include "project/analysis/ProgramWords.h"

#include <QtCore/QList>
#include <QtCore/QStringView>

namespace ORVTListview {

struct ProgramToken
{
    TokenKind kind = TokenKind::Unknown;
    WordClass wordClass = WordClass::Other;
    TextPiece place;
    qsizetype word = -1; // among the known ones
};

// What a line is made of, from the left; a comment of nothing. Words stand between
// blanks, tabs, brackets and commas, unless a known name holds one of these. A word that
// operators are a part of is divided at them, and told.
QList<ProgramToken> tokensOf(QStringView line, const ProgramWords &words,
                             QList<LineProblem> &problems);

} // namespace ORVTListview
