#include "widgets/box/BoxCommands.h"

#include "base/TextPiece.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QMimeData>
#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QMenu>

namespace ORVTListview {

BoxCommands::BoxCommands(RichTextBox &box)
    : m_box(box)
{
}

BoxCommands::~BoxCommands() = default;

std::optional<bool> BoxCommands::takesKey(const VirtualKey &) const
{
    return {};
}

void BoxCommands::type(const QString &text)
{
    m_box.setSelText(text);
}

bool BoxCommands::paste(const QMimeData &data)
{
    const QString text = data.text();
    if (text.isEmpty())
        return false;
    m_box.setSelText(text);
    return true;
}

void BoxCommands::pasteClipboard()
{
    if (const QMimeData *data = QGuiApplication::clipboard()->mimeData())
        paste(*data);
}

void BoxCommands::copy()
{
    if (m_box.SelLength() > 0)
        QGuiApplication::clipboard()->setText(m_box.SelText());
}

void BoxCommands::cut()
{
    if (m_box.SelLength() == 0)
        return;
    copy();
    remove();
}

void BoxCommands::remove()
{
    m_box.setSelText({});
}

void BoxCommands::selectAll()
{
    m_box.setSelStart(0);
    m_box.setSelLength(m_box.TextLength());
}

void BoxCommands::replace(const QList<TextPiece> &pieces, const QString &text)
{
    m_box.replacePieces(pieces, text);
}

void BoxCommands::beforeChange(bool) {}

void BoxCommands::edit(const std::function<void()> &change)
{
    change();
}

void BoxCommands::undo() {}

void BoxCommands::redo() {}

void BoxCommands::leave(bool forwards)
{
    m_box.moveFocus(forwards);
}

void BoxCommands::fillMenu(QMenu &menu)
{
    const bool canChange = !m_box.isReadOnly();
    const bool isSelected = m_box.SelLength() > 0;
    const auto add = [&menu](const QString &text, bool isEnabled, auto act) {
        menu.addAction(text, &menu, act)->setEnabled(isEnabled);
    };
    add(RichTextBox::tr("Cu&t"), canChange && isSelected, [this] { cut(); });
    add(RichTextBox::tr("&Copy"), isSelected, [this] { copy(); });
    add(RichTextBox::tr("&Paste"), m_box.canPaste(), [this] { pasteClipboard(); });
    add(RichTextBox::tr("&Delete"), canChange && isSelected, [this] { remove(); });
    menu.addSeparator();
    add(RichTextBox::tr("Select &All"), m_box.TextLength() > 0, [this] { selectAll(); });
}

} // namespace ORVTListview
