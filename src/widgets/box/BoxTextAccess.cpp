#include "widgets/box/BoxTextAccess.h"

#include "widgets/box/BoxAccess.h"
#include "widgets/box/BoxCommands.h"
#include "widgets/box/BoxLayers.h"
#include "widgets/box/BoxText.h"
#include "widgets/box/CharacterPlaces.h"
#include "widgets/box/FormatsTold.h"
#include "widgets/box/KeptView.h"
#include "widgets/box/LateColours.h"
#include "widgets/box/TextUnits.h"
#include "widgets/box/UserEditing.h"
#include "widgets/component/AccessFactory.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QPointer>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include <algorithm>

namespace ORVTListview {
namespace {

QAccessibleInterface *makeAccess(const QString &name, QObject *object)
{
    auto *box =
        name == u"ORVTListview::RichTextBox" ? qobject_cast<RichTextBox *>(object) : nullptr;
    return box ? new BoxTextAccess(*box) : nullptr;
}

QString tell(const BoxTextAccess &access, const TextUnits::Unit &unit, int *start, int *end)
{
    *start = unit.start;
    *end = unit.end;
    return access.text(unit.start, unit.end);
}

QString tellNothing(int *start, int *end)
{
    *start = *end = -1;
    return {};
}

} // namespace

void installBoxAccess()
{
    static AccessFactory factory(makeAccess);
    factory.install();
}

BoxTextAccess::BoxTextAccess(RichTextBox &box)
    : QAccessibleWidget(&box, QAccessible::EditableText)
    , m_box(box)
{
}

const BoxText &BoxTextAccess::boxText() const
{
    return BoxText::of(*m_box.document());
}

// Also behind the last one.
bool BoxTextAccess::isThere(int offset) const
{
    return offset >= 0 && offset <= characterCount();
}

int BoxTextAccess::inside(int offset) const
{
    return boxText().whole(std::clamp(offset, 0, characterCount()));
}

void BoxTextAccess::select(int from, int to)
{
    QTextCursor cursor = m_box.textCursor();
    cursor.setPosition(inside(from));
    cursor.setPosition(inside(to), QTextCursor::KeepAnchor);
    m_box.setTextCursor(cursor);
}

QString BoxTextAccess::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? text(0, characterCount()) : QAccessibleWidget::text(kind);
}

void BoxTextAccess::setText(QAccessible::Text kind, const QString &text)
{
    if (kind == QAccessible::Value)
        replaceText(0, characterCount(), text);
    else
        QAccessibleWidget::setText(kind, text);
}

QAccessible::State BoxTextAccess::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.editable = !m_box.isReadOnly();
    state.readOnly = m_box.isReadOnly();
    state.multiLine = true;
    state.selectableText = true;
    return state;
}

void *BoxTextAccess::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface *>(this);
    if (type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

// --- caret and selection ---

int BoxTextAccess::selectionCount() const
{
    return m_box.textCursor().hasSelection() ? 1 : 0;
}

void BoxTextAccess::selection(int index, int *startOffset, int *endOffset) const
{
    const QTextCursor cursor = m_box.textCursor();
    const bool isThere = index == 0 && cursor.hasSelection();
    *startOffset = isThere ? cursor.selectionStart() : 0;
    *endOffset = isThere ? cursor.selectionEnd() : 0;
}

// There is but one.
void BoxTextAccess::addSelection(int startOffset, int endOffset)
{
    setSelection(0, startOffset, endOffset);
}

void BoxTextAccess::setSelection(int index, int startOffset, int endOffset)
{
    if (index == 0)
        select(startOffset, endOffset);
}

void BoxTextAccess::removeSelection(int index)
{
    if (index == 0)
        setCursorPosition(cursorPosition());
}

int BoxTextAccess::cursorPosition() const
{
    return m_box.textCursor().position();
}

void BoxTextAccess::setCursorPosition(int position)
{
    select(position, position);
}

// --- text ---

int BoxTextAccess::characterCount() const
{
    return m_box.document()->characterCount() - 1;
}

QString BoxTextAccess::text(int startOffset, int endOffset) const
{
    const int from = std::clamp(startOffset, 0, characterCount());
    const int to = endOffset < 0 ? characterCount() : std::min(endOffset, characterCount());
    if (from >= to)
        return {};
    return boxText().read(from, to).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

QString BoxTextAccess::textBeforeOffset(int offset, QAccessible::TextBoundaryType kind,
                                        int *startOffset, int *endOffset) const
{
    if (!isThere(offset))
        return tellNothing(startOffset, endOffset);
    return tell(*this, TextUnits(*m_box.document(), kind).before(inside(offset)), startOffset,
                endOffset);
}

QString BoxTextAccess::textAtOffset(int offset, QAccessible::TextBoundaryType kind,
                                    int *startOffset, int *endOffset) const
{
    if (!isThere(offset))
        return tellNothing(startOffset, endOffset);
    return tell(*this, TextUnits(*m_box.document(), kind).at(inside(offset)), startOffset,
                endOffset);
}

QString BoxTextAccess::textAfterOffset(int offset, QAccessible::TextBoundaryType kind,
                                       int *startOffset, int *endOffset) const
{
    if (!isThere(offset))
        return tellNothing(startOffset, endOffset);
    return tell(*this, TextUnits(*m_box.document(), kind).after(inside(offset)), startOffset,
                endOffset);
}

QString BoxTextAccess::attributes(int offset, int *startOffset, int *endOffset) const
{
    const int place = inside(offset);
    LateColours::of(*m_box.document()).give(place, place);
    const FormatTold told = formatTold(*m_box.document(), place, [this](const auto &format) {
        return BoxLayers::of(m_box).shownColour(format, m_box.palette().color(QPalette::Text));
    });
    *startOffset = told.start;
    *endOffset = told.end;
    return told.attributes;
}

// --- places ---

QRect BoxTextAccess::characterRect(int offset) const
{
    return isThere(offset) ? CharacterPlaces(m_box).placeOf(offset) : QRect();
}

int BoxTextAccess::offsetAtPoint(const QPoint &point) const
{
    return CharacterPlaces(m_box).characterAt(point);
}

void BoxTextAccess::scrollToSubstring(int startIndex, int endIndex)
{
    CharacterPlaces(m_box).show(inside(startIndex), inside(endIndex));
}

// --- editing ---

void BoxTextAccess::insertText(int offset, const QString &text)
{
    replaceText(inside(offset), inside(offset), text);
}

void BoxTextAccess::deleteText(int startOffset, int endOffset)
{
    replaceText(startOffset, endOffset < 0 ? characterCount() : endOffset, {});
}

// What the user has selected and sees stays where it is not replaced. A receiver may destroy
// the box, or close it to editing.
void BoxTextAccess::replaceText(int startOffset, int endOffset, const QString &text)
{
    if (!mayUserEdit(m_box))
        return;
    const RichTextBox::Changing changing(m_box);
    const QPointer<RichTextBox> box(&m_box);
    const KeptView view(m_box);
    QTextCursor former = m_box.textCursor();
    former.setKeepPositionOnInsert(former.hasSelection() &&
                                   former.selectionEnd() == inside(startOffset));
    select(startOffset, endOffset);
    if (!box)
        return;
    const bool mayEdit = mayUserEdit(*box);
    if (mayEdit && !text.isEmpty())
        box->commands().type(text);
    else if (mayEdit && box->textCursor().hasSelection())
        box->commands().remove();
    former.setKeepPositionOnInsert(false);
    if (box)
        box->setTextCursor(former);
}

} // namespace ORVTListview
