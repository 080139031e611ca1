// Text dragged out of a box and dropped into it.

#include <ORVTListview/RichTextBox.h>

#include "base/EventGuard.h"
#include "widgets/box/BoxMimeData.h"
#include "widgets/box/BoxParts.h"
#include "widgets/box/UserEditing.h"
#include "widgets/input/MouseArguments.h"

#include <QtCore/QMimeData>
#include <QtCore/QPointer>
#include <QtGui/QDrag>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>

#include <utility>

namespace ORVTListview {

void RichTextBox::mousePressEvent(QMouseEvent *event)
{
    const MouseArguments mouse = mouseArguments(*event, *this);
    if (!raiseEvent(*this, &RichTextBox::MouseDown, mouse.Button, mouse.Shift, mouse.X, mouse.Y))
        return;
    const QTextCursor before = textCursor();
    QPlainTextEdit::mousePressEvent(event);
    const QTextCursor after = textCursor();
    // The toolkit leaves a selection alone that it takes hold of.
    const bool holds = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier &&
                       after.hasSelection() && after.anchor() == before.anchor() &&
                       after.position() == before.position();
    d->dragStart = holds ? std::optional(event->pos()) : std::nullopt;
}

void RichTextBox::mouseMoveEvent(QMouseEvent *event)
{
    if (!d->dragStart || !event->buttons().testFlag(Qt::LeftButton)) {
        QPlainTextEdit::mouseMoveEvent(event);
        return;
    }
    const QPoint way = event->pos() - *d->dragStart;
    // The selection may have gone with its text since.
    if (way.manhattanLength() >= QApplication::startDragDistance() && textCursor().hasSelection())
        startDrag(*event);
}

void RichTextBox::startDrag(const QMouseEvent &event)
{
    // The toolkit's own drag would remove moved text past the commands, so its
    // press is ended here.
    const QTextCursor dragged = textCursor();
    d->dragStart.reset();
    QMouseEvent release(QEvent::MouseButtonRelease, event.position(), event.globalPosition(),
                        Qt::LeftButton, Qt::NoButton, event.modifiers());
    QPlainTextEdit::mouseReleaseEvent(&release);
    setTextCursor(dragged);

    auto *drag = new QDrag(viewport());
    auto *text = new QMimeData;
    text->setText(asOffered(SelText()));
    drag->setMimeData(text);
    const bool mayMove = mayUserEdit(*this);
    const Qt::DropActions actions = mayMove ? Qt::CopyAction | Qt::MoveAction : Qt::CopyAction;
    const QPointer<RichTextBox> self(this);
    const QPointer<QDrag> alive(drag);
    d->dragged = DraggedText(dragged);
    const Qt::DropAction action = drag->exec(actions, mayMove ? Qt::MoveAction : Qt::CopyAction);
    if (!self)
        return;
    const DraggedText held = std::exchange(d->dragged, {});
    const bool isGone = alive && action == Qt::MoveAction && alive->target() != viewport();
    if (isGone && mayUserEdit(*this) && held.isAsItWas()) {
        setTextCursor(held.place());
        commands().remove();
    }
}

void RichTextBox::dropEvent(QDropEvent *event)
{
    QDragLeaveEvent leave; // takes the toolkit's drop caret away
    QPlainTextEdit::dragLeaveEvent(&leave);
    const bool moves = event->source() == viewport() && event->dropAction() == Qt::MoveAction;
    event->setDropAction(Qt::IgnoreAction); // so that no source removes what did not go in
    event->ignore();
    if (!canInsertFromMimeData(event->mimeData()))
        return;
    const QTextCursor before = textCursor();
    const DraggedText held = d->dragged;
    QTextCursor dragged = held.place();
    const QTextCursor place = cursorForPosition(event->position().toPoint());
    if (moves && place.position() >= dragged.selectionStart() &&
        place.position() <= dragged.selectionEnd())
        return;
    const QPointer<RichTextBox> self(this);
    setTextCursor(place);
    const bool isDone = commands().paste(*event->mimeData()) == Pasted::Done;
    if (!self)
        return;
    if (!isDone) {
        setTextCursor(before);
        return;
    }
    if (moves && held.isAsItWas()) {
        d->late.giveAround(dragged);
        commands().edit([&dragged] { dragged.removeSelectedText(); });
    }
    event->acceptProposedAction();
}

} // namespace ORVTListview
