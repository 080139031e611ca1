// How keys, clipboard and input method reach a box: all end in its commands.

#include <ORVTListview/RichTextBox.h>

#include "base/EventGuard.h"
#include "widgets/box/BoxLayout.h"
#include "widgets/box/BoxMimeData.h"
#include "widgets/box/BoxParts.h"
#include "widgets/box/UserEditing.h"
#include "widgets/input/RaisedKeys.h"

#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>
#include <QtGui/QTextBlock>
#include <QtGui/QTextLayout>
#include <QtWidgets/QMenu>

#include <algorithm>

namespace ORVTListview {
namespace {

using Command = void (BoxCommands::*)();

struct Shortcut
{
    QKeySequence::StandardKey keys;
    Command command;
    bool changes; // the text
};

constexpr Shortcut shortcuts[] = {
    {QKeySequence::Copy, &BoxCommands::copy, false},
    {QKeySequence::SelectAll, &BoxCommands::selectAll, false},
    {QKeySequence::Cut, &BoxCommands::cut, true},
    {QKeySequence::Undo, &BoxCommands::undo, true},
    {QKeySequence::Redo, &BoxCommands::redo, true},
};

bool isLeaving(const QKeyEvent &event)
{
    const bool isTab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
    return isTab && (event.modifiers() & ~Qt::ShiftModifier) == Qt::ControlModifier;
}

bool isBackwards(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Backtab || event.modifiers().testFlag(Qt::ShiftModifier);
}

bool isEnter(const QKeyEvent &event)
{
    return event.matches(QKeySequence::InsertParagraphSeparator) ||
           event.matches(QKeySequence::InsertLineSeparator);
}

bool isBackspace(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Backspace && (event.modifiers() & ~Qt::ShiftModifier) == 0;
}

// Whether the key removes what lies beside the caret; then it is done.
bool removes(const QKeyEvent &event, BoxCommands &commands)
{
    if (isBackspace(event))
        commands.removeBefore(Extent::Character);
    else if (event.matches(QKeySequence::DeleteStartOfWord))
        commands.removeBefore(Extent::Word);
    else if (event.matches(QKeySequence::Delete))
        commands.removeAfter(Extent::Character);
    else if (event.matches(QKeySequence::DeleteEndOfWord))
        commands.removeAfter(Extent::Word);
    else
        return false;
    return true;
}

// The toolkit would type a letter that is held with Alt.
bool isAltText(const QKeyEvent &event)
{
    return (virtualKey(event).shift & ShiftBitAlt) != 0 && !event.text().isEmpty();
}

} // namespace

BoxCommands &RichTextBox::commands() const
{
    return *d->commands;
}

void RichTextBox::setCommands(std::unique_ptr<BoxCommands> commands)
{
    d->commands = commands ? std::move(commands) : plainCommands(*this);
}

bool RichTextBox::isComposing() const
{
    return !textCursor().block().layout()->preeditAreaText().isEmpty();
}

void RichTextBox::moveFocus(bool forwards)
{
    // This class keeps Tab, which would end there.
    QWidget::focusNextPrevChild(forwards); // NOLINT(bugprone-parent-virtual-call)
}

bool RichTextBox::event(QEvent *event)
{
    if (!d)
        return QPlainTextEdit::event(event);
    return EventGuard::run([this, event] {
        const Changing changing(*this);
        return handle(event);
    });
}

bool RichTextBox::viewportEvent(QEvent *event)
{
    if (!d)
        return QPlainTextEdit::viewportEvent(event);
    return d->surface.deliver([this, event] {
        const Changing changing(*this);
        if (event->type() == QEvent::Paint)
            return paintLayers(static_cast<QPaintEvent &>(*event));
        auto *layout = qobject_cast<BoxLayout *>(document()->documentLayout());
        if (event->type() != QEvent::Resize || !layout)
            return QPlainTextEdit::viewportEvent(event);
        layout->fitWidth();
        const QSize size = static_cast<const QResizeEvent &>(*event).size();
        QResizeEvent sameWidth(size, size);
        return QPlainTextEdit::viewportEvent(&sameWidth);
    });
}

bool RichTextBox::handle(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto &key = static_cast<const QKeyEvent &>(*event);
        const std::optional<bool> takes =
            isLeaving(key) ? true : commands().takesKey(virtualKey(key));
        if (takes) {
            event->setAccepted(*takes);
            return true;
        }
    }
    return QPlainTextEdit::event(event);
}

bool RichTextBox::runShortcut(const QKeyEvent &event)
{
    for (const Shortcut &shortcut : shortcuts) {
        if (!event.matches(shortcut.keys))
            continue;
        if (!shortcut.changes || mayUserEdit(*this))
            (commands().*shortcut.command)();
        return true;
    }
    return false;
}

void RichTextBox::keyPressEvent(QKeyEvent *event)
{
    event->accept();
    if (isLeaving(*event))
        commands().leave(!isBackwards(*event));
    else if (raiseKey(*this, &RichTextBox::KeyDown, *event) && !runShortcut(*event))
        act(event);
}

void RichTextBox::act(QKeyEvent *event)
{
    if (!mayUserEdit(*this)) {
        QPlainTextEdit::keyPressEvent(event);
    } else if (isEnter(*event)) {
        commands().type(QStringLiteral("\r\n"));
    } else if (isTyping(*event)) {
        commands().type(event->text());
    } else if (removes(*event, commands())) {
        return;
    } else if (isAltText(*event)) {
        event->ignore();
    } else {
        // The key may be one that deletes, in the manner of some platform.
        d->announceChange(textCursor());
        commands().edit([this, event] {
            QPlainTextEdit::keyPressEvent(event);
            keepCaretWhole();
        });
    }
}

void RichTextBox::removeBeside(QTextCursor::MoveOperation step)
{
    const Changing changing(*this);
    QTextCursor cursor = textCursor();
    d->announceChange(cursor);
    if (cursor.hasSelection())
        cursor.removeSelectedText();
    else
        removeStep(cursor, step);
    setTextCursor(cursor);
    keepCaretWhole();
}

void RichTextBox::removeStep(QTextCursor &cursor, QTextCursor::MoveOperation step) const
{
    if (step == QTextCursor::NextCharacter) {
        cursor.deleteChar();
        return;
    }
    if (step != QTextCursor::PreviousCharacter)
        cursor.movePosition(step, QTextCursor::KeepAnchor);
    else if (!cursor.atStart()) // the toolkit would cut a pair whose halves differ in format
        cursor.setPosition(d->text.whole(cursor.position() - 1), QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
}

// Removing what stood between two halves makes them a pair around the caret.
void RichTextBox::keepCaretWhole()
{
    const QTextCursor cursor = textCursor();
    const int anchor = d->text.whole(cursor.anchor());
    const int position = d->text.whole(cursor.position());
    if (anchor != cursor.anchor() || position != cursor.position())
        select(anchor, position);
}

// The toolkit reports what is being composed as a change of the line.
void RichTextBox::compose(QInputMethodEvent *event)
{
    const BoxParts::KeepingText keeping(*d);
    QPlainTextEdit::inputMethodEvent(event);
}

void RichTextBox::selectReplaced(const QInputMethodEvent &event)
{
    const int start = textCursor().position() + event.replacementStart();
    const int last = document()->characterCount() - 1;
    select(qBound(0, start, last), qBound(0, start + event.replacementLength(), last));
}

void RichTextBox::commit(const QInputMethodEvent &event)
{
    QInputMethodEvent endOfComposition;
    compose(&endOfComposition);
    const QTextCursor before = textCursor();
    const quint64 changes = d->text.changeCount();
    if (event.replacementLength() > 0)
        selectReplaced(event);
    const QPointer<RichTextBox> self(this);
    commands().type(event.commitString());
    // Refused text leaves nothing selected that the next key would replace.
    if (self && event.replacementLength() > 0 && d->text.changeCount() == changes)
        setTextCursor(before);
}

void RichTextBox::inputMethodEvent(QInputMethodEvent *event)
{
    event->setAccepted(mayUserEdit(*this));
    if (!event->isAccepted())
        return;
    const QPointer<RichTextBox> self(this);
    // The toolkit would remove what a composition takes the place of.
    if (!event->preeditString().isEmpty() && textCursor().hasSelection())
        commands().remove();
    if (self && (!event->commitString().isEmpty() || event->replacementLength() > 0))
        commit(*event);
    if (!self)
        return;
    QInputMethodEvent rest(event->preeditString(), event->attributes());
    compose(&rest);
}

bool RichTextBox::canInsertFromMimeData(const QMimeData *source) const
{
    return source && source->hasText() && mayUserEdit(*this);
}

void RichTextBox::insertFromMimeData(const QMimeData *source)
{
    if (canInsertFromMimeData(source))
        commands().paste(*source);
}

QMimeData *RichTextBox::createMimeDataFromSelection() const
{
    return new BoxMimeData(*this, textCursor());
}

void RichTextBox::contextMenuEvent(QContextMenuEvent *event)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    event->accept();
    const QPointer<RichTextBox> self(this);
    commands().fillMenu(*menu);
    if (!self)
        return;
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    if (menu->isEmpty())
        delete menu;
    else
        menu->popup(byKey ? viewport()->mapToGlobal(cursorRect().bottomLeft())
                          : event->globalPos());
}

} // namespace ORVTListview
