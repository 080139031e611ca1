#pragma once

#include "editor/rules/language/WordClass.h"
#include <QtCore/QString>

#include <array>

namespace ORVTListview::bench {

// A controller program made by rule: the same size gives the same text. All word
// classes occur, in the mixture of a building's programs. It has no character
// that RTF would take for its own, and only tabs that colouring keeps.
struct Program
{
    QString text;  // as people type it: letter case and blanks at brackets vary
    QString shown; // as the coloured document shows it

    // How many coloured words there are of each colour index; of comments, lines.
    std::array<qsizetype, colourSlots + 1> words{};
    qsizetype operators = 0; // counted among the reserved words
    qsizetype ifs = 0;       // likewise
};

// The program is the first to reach the size, a few words above it at most.
Program makeProgram(qsizetype characters);

constexpr qsizetype smallProgram = 64 * 1024;
constexpr qsizetype usualProgram = 1024 * 1024;
constexpr qsizetype largeProgram = 10 * 1024 * 1024;

} // namespace ORVTListview::bench
