#pragma once

#include "editor/CaretCommands.h"
#include "editor/LineBlocks.h"
#include "editor/PopupWordList.h"
#include "editor/ProgramFinding.h"
#include "editor/TextCommands.h"
#include "editor/TypingHelp.h"

namespace ORVTListview {

class EditorUndo;
class ProgramOpening;

// What a host binds to its menu beyond the keys, a class for each subject.
struct ProgramCommands
{
    ProgramCommands(const CommandTools &tools, const LineCommands &lineCommands, TypingHelp &help,
                    PopupWordList &wordList, ProgramOpening &programOpening)
        : moves(tools.moves)
        , undo(tools.undo)
        , caret(tools)
        , finding(tools)
        , lines(tools)
        , texts(tools, lineCommands)
        , typing(help)
        , words(wordList)
        , opening(programOpening)
    {
    }

    LineMoves &moves;
    EditorUndo &undo;
    const CaretCommands caret;
    const ProgramFinding finding;
    const LineBlocks lines;
    const TextCommands texts;
    TypingHelp &typing;
    PopupWordList &words;
    ProgramOpening &opening;
};

} // namespace ORVTListview
