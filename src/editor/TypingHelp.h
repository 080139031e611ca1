#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtGui/QTextCursor>

#include <optional>

namespace ORVTListview {

class EditorUndo;
class LineCommands;
class RichTextBox;
class TypedColouring;

// What the editor does on its own for one who types; all of it is off at first. Only a line
// that the user has typed on changes by itself, and none takes a snapshot.
// Why it is so: docs/decisions/editor-typing.md.
class TypingHelp final : public QObject
{
    Q_OBJECT

public:
    TypingHelp(RichTextBox &box, EditorUndo &undo, TypedColouring &colouring,
               const LineCommands &lines);

    struct Helps
    {
        bool autoIndent = false;
        bool smartHome = false;
        bool trimsBlanks = false;
    };
    Helps helps;

    // What Enter makes of its line: the blanks that it begins with, how many characters
    // before the caret go, and how the new line begins.
    struct LineBreak
    {
        std::optional<QString> indent; // none stays
        qint32 trimmed = 0;
        QString newIndent;
    };
    LineBreak lineBreak() const;
    void breakLine(const LineBreak &how) const;

    // After a text was typed that finished a word: brings an ELSE or ENDIF below its IF.
    void noteWordFinished(const QString &typed);

    // Puts the caret to the first word of its line, or from there to the line's begin.
    // False when that is nothing else than the box does.
    bool goHome() const;

private:
    void noteChange();
    void noteCaret();
    void leave();
    std::optional<QString> closerIndent(const QTextBlock &line) const;
    void setIndent(const QTextBlock &line, const QString &indent) const;

    RichTextBox &m_box;
    EditorUndo &m_undo;
    TypedColouring &m_colouring;
    const LineCommands &m_lines;
    QTextCursor m_line; // that the user has typed on
    bool m_isTyped = false;
    bool m_isLeaving = false;
};

} // namespace ORVTListview
