#pragma once

#include "widgets/box/PlainCommands.h"

namespace ORVTListview {

class EditorKeys;
class EditorUndo;
class ProgramClipboard;
class ProgramEditing;
class ProgramText;
class StatusTimer;
class TabStops;
class TypedColouring;
class WordChoice;

// Every way into and out of the editor's box: typed text, context menu, drag and
// drop, middle click and input method follow the same rules as the keys.
class CodeCommands : public PlainCommands
{
public:
    // What each command ends in.
    struct Acts
    {
        ProgramText &text;
        ProgramEditing &editing;
        ProgramClipboard &clipboard;
        EditorKeys &keys;
        EditorUndo &undo;
        TypedColouring &colouring;
        TabStops &tabStops;
        StatusTimer &status;
        WordChoice &words;
    };

    CodeCommands(RichTextBox &owner, const Acts &acts);

    std::optional<bool> takesKey(const VirtualKey &key) const override;
    void type(const QString &text) override;
    Pasted paste(const QMimeData &data) override;
    void copy() override;
    void cut() override;
    void remove() override;
    void removeBefore(Extent extent) override;
    void removeAfter(Extent extent) override;
    void selectAll() override;
    void replace(const QList<TextPiece> &pieces, const QString &text) override;
    void beforeChange(bool losesPart) override;
    void edit(const std::function<void()> &change) override;
    void keepState() override;
    void undo() override;
    void redo() override;
    void leave(bool forwards) override;
    void fillMenu(QMenu &menu) override;

private:
    void removing(const std::function<void()> &act);

    Acts m_acts;
};

} // namespace ORVTListview
