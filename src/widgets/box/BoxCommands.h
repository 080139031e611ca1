#pragma once

#include "widgets/input/VirtualKeys.h"

#include <QtCore/QList>

#include <functional>
#include <memory>
#include <optional>

class QMenu;
class QMimeData;
class QString;

namespace ORVTListview {

class RichTextBox;
struct TextPiece;

// What became of a text that was to be pasted.
enum class Pasted {
    Done,
    Refused, // nothing has changed
    Nothing, // it holds no text; what was selected is gone
};

// How much a key removes that removes beside the caret.
enum class Extent { Character, Word };

// What every way into and out of a box ends in: typed keys, shortcuts, context
// menu, drag and drop, middle click, input method. An owner with rules of its own gives
// the box its own commands.
class BoxCommands
{
public:
    BoxCommands() = default;
    virtual ~BoxCommands();
    Q_DISABLE_COPY_MOVE(BoxCommands) // belongs to one box

    // Whether the box takes a key from the host's shortcuts; without an answer the
    // toolkit's usual choice holds.
    virtual std::optional<bool> takesKey(const VirtualKey &key) const = 0;

    // Typed text takes the place of the selection. Enter, with or without Shift,
    // comes as CR LF. An input method may give any text.
    virtual void type(const QString &text) = 0;

    // Puts the data in the place of the selection; only when that is done does a drop
    // take it away from where it was. Only plain text is taken.
    virtual Pasted paste(const QMimeData &data) = 0;

    virtual void copy() = 0;
    virtual void cut() = 0;
    virtual void remove() = 0; // the selection

    // The selection, or without one what stands before or after the caret.
    virtual void removeBefore(Extent extent) = 0;
    virtual void removeAfter(Extent extent) = 0;

    virtual void selectAll() = 0;

    // One text in the place of pieces of the text, as replacePieces of the box.
    virtual void replace(const QList<TextPiece> &pieces, const QString &text) = 0;

    // Before every change of the text, whoever makes it; it may not come about.
    // losesPart: it takes the place of a selection, or of the whole text.
    virtual void beforeChange(bool losesPart) = 0;

    // What the box itself does for the user: a key that no command is for, the end
    // of a drag. It changes the text at most once, and may destroy the box.
    virtual void edit(const std::function<void()> &change) = 0;

    // Makes the text of now one that undo can come back to.
    virtual void keepState() {}

    virtual void undo() = 0;
    virtual void redo() = 0;

    // Ctrl+Tab, and with Shift backwards: the focus goes to another widget.
    virtual void leave(bool forwards) = 0;

    // An empty menu is not shown. May destroy the box.
    virtual void fillMenu(QMenu &menu) = 0;
};

// The commands of a plain editor.
std::unique_ptr<BoxCommands> plainCommands(RichTextBox &box);

} // namespace ORVTListview
