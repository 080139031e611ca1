#include "editor/ProgramClipboard.h"

#include "base/ColouredText.h"
#include "base/EventGuard.h"
#include "base/MessageService.h"
#include "base/TextRules.h"
#include "editor/CheckedPaste.h"
#include "editor/EditorThread.h"
#include "editor/EditorUndo.h"
#include "editor/TypedColouring.h"
#include "rtf/RtfReader.h"
#include "widgets/box/BoxMimeData.h"
#include "widgets/box/UserEditing.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QScopeGuard>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

#include <optional>

namespace ORVTListview {

ProgramClipboard::ProgramClipboard(RichTextBox &box, const EditorThread &thread, EditorUndo &undo,
                                   TypedColouring &colouring)
    : m_box(box)
    , m_thread(thread)
    , m_undo(undo)
    , m_colouring(colouring)
{
}

void ProgramClipboard::RTextCut()
{
    RTextCopy();
    takeSelectionOut();
}

// What is left of the line is no word that is being typed.
void ProgramClipboard::takeSelectionOut()
{
    if (m_box.SelLength() == 0)
        return;
    const RichTextBox::Changing changing(m_box);
    if (m_colouring.edit([this] { m_box.setSelText(QString()); }))
        m_colouring.finishEdit();
}

void ProgramClipboard::RTextCopy()
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    const QString selected = m_box.SelText();
    clipboard->clear();
    if (!selected.isEmpty())
        clipboard->setText(asOffered(selected));
}

Pasted ProgramClipboard::RTextPaste(const QString &Data)
{
    return acceptPasteSize(m_thread, Data) ? pasteChecked(Data) : Pasted::Refused;
}

void ProgramClipboard::cutByKey()
{
    RTextCopy();
    if (m_box.SelLength() == 0)
        return;
    removeSelection();
}

void ProgramClipboard::removeSelection()
{
    const RichTextBox::Changing changing(m_box);
    m_undo.PushUndoSnapshot();
    takeSelectionOut();
}

Pasted ProgramClipboard::pasteClipboard()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restore = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
    return pasteFromOutside(QGuiApplication::clipboard()->text());
}

Pasted ProgramClipboard::pasteFromOutside(const QString &data)
{
    if (data.isEmpty() || !mayUserEdit(m_box) || !acceptPasteSize(m_thread, data))
        return Pasted::Refused;
    if (withCrLf(data) != m_box.SelText()) {
        m_undo.PushUndoSnapshot();
        if (!raiseEvent(*this, &ProgramClipboard::UpdateUndoMenu))
            return Pasted::Refused;
    }
    return pasteChecked(data);
}

Pasted ProgramClipboard::pasteChecked(const QString &data)
{
    const MessagesLater later(m_thread.messages); // the place is the selection of now
    const RichTextBox::Changing changing(m_box);
    const bool hasColours = isRtf(data);
    const std::optional<ColouredText> text =
        hasColours ? std::nullopt
                   : textToPaste(m_thread, m_box, data,
                                 m_undo.keepsText() ? Pasting::AsItIs : Pasting::AsColoured);
    if (!text && !hasColours)
        return Pasted::Refused;
    const QPointer<RichTextBox> box(&m_box); // the host may destroy it
    const qint32 rest = m_box.TextLength() - m_box.SelLength();
    if (text)
        pastePlain(*text);
    else
        pasteRtf(data);
    return box && box->TextLength() <= rest ? Pasted::Nothing : Pasted::Done;
}

// RTF keeps the colours that it comes with.
void ProgramClipboard::pasteRtf(const QString &rtf)
{
    const QPointer<RichTextBox> box(&m_box); // the host may destroy it
    m_colouring.finishEdit();
    box->setSelRTF(rtf);
    if (box)
        box->ensureCursorVisible();
}

void ProgramClipboard::pastePlain(const ColouredText &text)
{
    const RichTextBox::Changing changing(m_box);
    const qint32 firstLine = m_box.GetLineFromChar(m_box.SelStart());
    if (!m_colouring.edit([&] { m_box.setSelColoured(text); }))
        return;
    finishLines(firstLine, m_box.GetLineFromChar(m_box.SelStart()));
    m_box.ensureCursorVisible();
}

// Those before the last one, which the caret is still on.
void ProgramClipboard::finishLines(qint32 first, qint32 last)
{
    for (qint32 line = first; line < last; ++line)
        m_colouring.finishLine(line);
}

} // namespace ORVTListview
