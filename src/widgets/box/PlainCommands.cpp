#include "widgets/box/PlainCommands.h"

#include "base/TextPiece.h"
#include "widgets/box/BoxMimeData.h"
#include "widgets/box/UserEditing.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QMimeData>
#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QMenu>

namespace ORVTListview {

std::unique_ptr<BoxCommands> plainCommands(RichTextBox &box)
{
    return std::make_unique<PlainCommands>(box);
}

PlainCommands::PlainCommands(RichTextBox &box)
    : m_box(box)
{
}

std::optional<bool> PlainCommands::takesKey(const VirtualKey &) const
{
    return {};
}

void PlainCommands::type(const QString &text)
{
    m_box.setSelText(text);
}

Pasted PlainCommands::paste(const QMimeData &data)
{
    const QString text = data.text();
    if (text.isEmpty())
        return Pasted::Refused;
    m_box.setSelText(text);
    return Pasted::Done;
}

void PlainCommands::pasteClipboard()
{
    if (const QMimeData *data = QGuiApplication::clipboard()->mimeData())
        paste(*data);
}

void PlainCommands::copy()
{
    if (m_box.SelLength() > 0)
        QGuiApplication::clipboard()->setText(asOffered(m_box.SelText()));
}

void PlainCommands::cut()
{
    if (m_box.SelLength() == 0)
        return;
    copy();
    remove();
}

void PlainCommands::remove()
{
    m_box.setSelText({});
}

void PlainCommands::removeBefore(Extent extent)
{
    edit([this, extent] {
        m_box.removeBeside(extent == Extent::Word ? QTextCursor::PreviousWord
                                                  : QTextCursor::PreviousCharacter);
    });
}

void PlainCommands::removeAfter(Extent extent)
{
    edit([this, extent] {
        m_box.removeBeside(extent == Extent::Word ? QTextCursor::NextWord
                                                  : QTextCursor::NextCharacter);
    });
}

void PlainCommands::selectAll()
{
    m_box.selectAll();
    offerSelection(m_box);
}

void PlainCommands::replace(const QList<TextPiece> &pieces, const QString &text)
{
    m_box.replacePieces(pieces, text);
}

void PlainCommands::beforeChange(bool) {}

void PlainCommands::edit(const std::function<void()> &change)
{
    change();
}

void PlainCommands::undo() {}

void PlainCommands::redo() {}

void PlainCommands::leave(bool forwards)
{
    m_box.moveFocus(forwards);
}

// The box may become read-only while its menu is open.
void PlainCommands::addChange(QMenu &menu, const QString &text, bool isPossible,
                              const std::function<void()> &change)
{
    const auto act = [this, change] {
        if (mayUserEdit(m_box))
            change();
    };
    menu.addAction(text, &menu, act)->setEnabled(isPossible && mayUserEdit(m_box));
}

void PlainCommands::fillMenu(QMenu &menu)
{
    const bool isSelected = m_box.SelLength() > 0;
    const auto add = [&menu](const QString &text, bool isEnabled, auto act) {
        menu.addAction(text, &menu, act)->setEnabled(isEnabled);
    };
    addChange(menu, RichTextBox::tr("Cu&t"), isSelected, [this] { cut(); });
    add(RichTextBox::tr("&Copy"), isSelected, [this] { copy(); });
    addChange(menu, RichTextBox::tr("&Paste"), m_box.canPaste(), [this] { pasteClipboard(); });
    addChange(menu, RichTextBox::tr("&Delete"), isSelected, [this] { remove(); });
    menu.addSeparator();
    add(RichTextBox::tr("Select &All"), m_box.TextLength() > 0, [this] { selectAll(); });
}

} // namespace ORVTListview
