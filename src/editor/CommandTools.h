#pragma once

#include "base/ColouredText.h"
#include "base/TextPiece.h"
#include "editor/BoxSelection.h"
#include "editor/view/LineMoves.h"

#include <QtCore/QList>

namespace ORVTListview {

class EditorUndo;
class RichTextBox;
class TypedColouring;
struct EditorThread;

// Whether a command may move the caret: the editor is the face shown and enabled.
bool mayGoIn(const RichTextBox &box);

// Whether one may change the program: nor is the editor read-only.
bool mayChangeIn(const RichTextBox &box);

// What a command changes: pieces of the program, what comes in their place, the lines,
// counted as they are then, that take their colours anew, the selection afterwards, and
// lines that change places by it.
struct CommandChange
{
    QList<TextPiece> pieces;
    QList<ColouredText> texts;
    QList<qint32> linesToFinish;
    BoxSelection selection;
    MovedLines moved = {};
};

// What the commands of an editor work with.
struct CommandTools
{
    RichTextBox &box;
    const EditorThread &thread;
    EditorUndo &undo;
    TypedColouring &colouring;
    LineMoves &moves;

    // Whether a command may begin; what is being typed is finished then.
    bool begin() const;

    // One change and one step of undo; the box shows the lines that it showed. The host
    // hears of it at the end, and may destroy the editor.
    void carryOut(const CommandChange &change) const;
};

} // namespace ORVTListview
