#pragma once

#include "editor/LineCommands.h"
#include "editor/TypingHelp.h"

#include <QtCore/QList>

#include <functional>

namespace ORVTListview {

class EditorUndo;
class ProgramClipboard;
class RichTextBox;
class TypedColouring;
struct EditorThread;
struct TextPiece;

// How the user changes the program: what is typed, and what keys and dialogs do to
// lines and words, each with its snapshot and its colours.
class ProgramEditing
{
public:
    ProgramEditing(RichTextBox &box, const EditorThread &thread, EditorUndo &undo,
                   TypedColouring &colouring, ProgramClipboard &clipboard);

    RichTextBox &box() const { return m_box; }
    LineCommands &lines() { return m_lines; }
    TypingHelp &help() { return m_help; }

    void typeText(const QString &text);
    void breakLine();
    void indentLines();
    void unindentLines();

    // Without a snapshot; false when nothing was to be done.
    bool deleteBlankBeforeCaret();
    bool unindentBeforeCaret();

    // Puts a text in the place of pieces of the program, after a snapshot. Pieces as
    // for RichTextBox::replacePieces.
    enum class Replacing { InColours, InTheColoursThere };
    void replace(const QList<TextPiece> &pieces, const QString &text, Replacing how);

private:
    void changeIndent(const std::function<void()> &change);

    RichTextBox &m_box;
    const EditorThread &m_thread;
    EditorUndo &m_undo;
    TypedColouring &m_colouring;
    ProgramClipboard &m_clipboard;
    LineCommands m_lines;
    TypingHelp m_help;
};

} // namespace ORVTListview
