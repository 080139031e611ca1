#include "editor/TypedColouring.h"

#include "editor/EditorThread.h"
#include "editor/rules/colouring/ColourTable.h"
#include "editor/rules/colouring/LineColouring.h"
#include "editor/rules/language/CodeText.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QPointer>
#include <QtCore/QScopeGuard>
#include <QtGui/QTextBlock>

#include <utility>

namespace ORVTListview {
namespace {

constexpr bool isBracket(QChar c)
{
    return c == u'(' || c == u')';
}

bool endsWord(QStringView before)
{
    return before.isEmpty() || before.back() == u' ' || before.back() == u'\t' ||
           isBracket(before.back());
}

bool touches(const QTextBlock &line, int from, int to)
{
    return to >= line.position() && from < line.position() + line.length();
}

} // namespace

TypedColouring::TypedColouring(RichTextBox &box, const EditorThread &thread)
    : m_box(box)
    , m_thread(thread)
    , m_edited(box.document())
    , m_elsewhere(box.document())
{
    // Told before the caret moves, and before the host hears of the change.
    connect(box.document(), &QTextDocument::contentsChange, this,
            [this](int from, int, int added) { noteChange(from, added); });
}

void TypedColouring::finishLine(qint32 line)
{
    // Without known words there is nothing to tell words by.
    if (m_box.isComposing() || m_thread.knownWords().index().isEmpty())
        return;
    m_box.recolour(m_box.lineStart(line),
                   finishedLine(m_thread.colouring(), m_box.lineText(line), m_thread.settings()));
}

void TypedColouring::finishCaretLine()
{
    const QTextBlock line = m_box.textCursor().block();
    if (m_edited.block() == line)
        m_isUnfinished = false;
    finishLine(line.blockNumber());
}

bool TypedColouring::edit(const std::function<void()> &change)
{
    const QPointer<TypedColouring> self(this);
    const Edit outer = std::exchange(m_edit, Edit::Begun);
    const auto end = qScopeGuard([self, outer] {
        if (self)
            self->m_edit = outer;
    });
    change();
    if (self && std::exchange(m_hasElsewhere, false))
        finishLine(m_elsewhere.blockNumber());
    return self && m_isUnfinished;
}

// The same cursors all the time: a document that is being cleared may lose none.
void TypedColouring::leaveUnfinished()
{
    m_edited.setPosition(m_box.textCursor().position());
    m_isUnfinished = true;
}

void TypedColouring::noteChange(int from, int added)
{
    if (m_box.keepsText())
        return;
    if (m_edit == Edit::Begun) {
        m_edit = Edit::Made; // what else changes meanwhile is the host's
        if (touches(m_box.textCursor().block(), from, from + added)) {
            leaveUnfinished();
        } else {
            m_elsewhere.setPosition(from);
            m_hasElsewhere = true;
        }
    } else if (touches(m_edited.block(), from, from + added)) {
        m_isUnfinished = false;
    }
}

void TypedColouring::finishEdit()
{
    if (std::exchange(m_isUnfinished, false))
        finishLine(m_edited.blockNumber());
}

void TypedColouring::followCaret()
{
    const QTextCursor caret = m_box.textCursor();
    const bool isInside = caret.anchor() == caret.position() ||
                          touches(m_edited.block(), caret.anchor(), caret.anchor());
    if (m_edited.block() != caret.block() || !isInside)
        finishEdit();
}

void TypedColouring::type(const QString &text)
{
    if (m_box.SelLength() == 0) {
        prepareTyping(text);
        m_box.setSelText(text);
        return;
    }
    const Colour colour =
        isInComment() ? shownColour(m_thread.settings().CommentColor) : ColouredText::automatic;
    m_box.setSelColoured({text, {{text.size(), colour}}});
}

// Whether the line of the caret is one without what is selected.
bool TypedColouring::isInComment() const
{
    const qint32 start = m_box.SelStart();
    const qint32 end = start + m_box.SelLength();
    const qint32 first = m_box.GetLineFromChar(start);
    const qint32 last = m_box.GetLineFromChar(end);
    return IsCommentLine(m_box.lineText(first).first(start - m_box.lineStart(first)) +
                         m_box.lineText(last).sliced(end - m_box.lineStart(last)));
}

void TypedColouring::prepareTyping(QStringView text)
{
    const qint32 start = m_box.SelStart();
    const qint32 line = m_box.GetLineFromChar(start);
    const QString lineText = m_box.lineText(line);
    if (IsCommentLine(lineText)) {
        m_box.setSelColor(shownColour(m_thread.settings().CommentColor));
        return;
    }
    const QStringView before = QStringView(lineText).first(start - m_box.lineStart(line));
    const bool beginsWord = endsWord(before) || (!text.isEmpty() && isBracket(text.front()));
    if (beginsWord)
        m_box.setSelColor(-1); // as text without a class
}

bool TypedColouring::finishesWord(QStringView text)
{
    return text == u" " || text == u"\t" || text == u")";
}

} // namespace ORVTListview
