#pragma once

#include "widgets/input/VirtualKeys.h"

#include <ORVTListview/Export.h>

#include <QtCore/QList>

#include <functional>
#include <optional>

class QMenu;
class QMimeData;
class QString;

namespace ORVTListview {

class RichTextBox;
struct TextPiece;

// What every way into and out of a box ends in: typed keys, shortcuts, context
// menu, drag and drop, middle click, input method. This is a plain editor; an
// owner with rules of its own derives from it and gives it to the box.
class ORVT_EXPORT BoxCommands
{
public:
    explicit BoxCommands(RichTextBox &box);
    BoxCommands(const BoxCommands &) = delete; // belongs to one box
    BoxCommands &operator=(const BoxCommands &) = delete;
    virtual ~BoxCommands();

    // Whether the box takes a key from the host's shortcuts; without an answer the
    // toolkit's usual choice holds.
    virtual std::optional<bool> takesKey(const VirtualKey &key) const;

    // Typed text takes the place of the selection. Enter, with or without Shift,
    // comes as CR LF. An input method may give any text.
    virtual void type(const QString &text);

    // Puts the data in the place of the selection and returns whether text went in:
    // only then does a drop take it away from where it was. Only plain text is taken.
    virtual bool paste(const QMimeData &data);

    virtual void copy();
    virtual void cut();
    virtual void remove(); // the selection
    virtual void selectAll();

    // One text in the place of pieces of the text, as replacePieces of the box.
    virtual void replace(const QList<TextPiece> &pieces, const QString &text);

    // Before every change of the text, whoever makes it; it may not come about.
    // losesPart: it takes the place of a selection, or of the whole text.
    virtual void beforeChange(bool losesPart);

    // What the box itself does for the user: a key that no command is for, the end
    // of a drag. It changes the text at most once, and may destroy the box.
    virtual void edit(const std::function<void()> &change);

    virtual void undo(); // does nothing here
    virtual void redo(); // does nothing here

    // Ctrl+Tab, and with Shift backwards: the focus goes to another widget.
    virtual void leave(bool forwards);

    // An empty menu is not shown.
    virtual void fillMenu(QMenu &menu);

protected:
    RichTextBox &box() const { return m_box; }
    void pasteClipboard();

private:
    RichTextBox &m_box;
};

} // namespace ORVTListview
