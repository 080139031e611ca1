#include "editor/TypingHelp.h"

#include "base/ColouredText.h"
#include "base/TextPiece.h"
#include "base/TextRules.h"
#include "editor/BoxSelection.h"
#include "editor/EditorUndo.h"
#include "editor/LineCommands.h"
#include "editor/TypedColouring.h"
#include "editor/rules/BlockIndent.h"
#include "editor/rules/language/CodeText.h"
#include "editor/rules/structure/BlockWalk.h"
#include "widgets/box/UserEditing.h"
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QTextBlock>

#include <algorithm>
#include <utility>

namespace ORVTListview {
namespace {

constexpr int linesLookedAt = 5000; // for an IF; a key waits no longer

qsizetype blanksAtEnd(QStringView text)
{
    qsizetype blanks = 0;
    while (blanks < text.size() && isBlank(text[text.size() - blanks - 1]))
        ++blanks;
    return blanks;
}

// The blanks that the line with the IF begins with to which a line's first word belongs.
std::optional<QString> indentOfIf(const QTextBlock &closer)
{
    BlockWalk walk(BlockWalk::Direction::Backwards);
    QTextBlock line = closer.previous();
    for (int i = 0; i < linesLookedAt && line.isValid(); ++i) {
        walk.read(blockWordsOf(line.text()));
        if (walk.isDone())
            return GetLineIndent(line.text());
        line = line.previous();
    }
    return {};
}

} // namespace

TypingHelp::TypingHelp(RichTextBox &box, EditorUndo &undo, TypedColouring &colouring,
                       const LineCommands &lines)
    : m_box(box)
    , m_undo(undo)
    , m_colouring(colouring)
    , m_lines(lines)
    , m_line(box.document())
{
    connect(box.document(), &QTextDocument::contentsChange, this, &TypingHelp::noteChange);
    connect(&box, &RichTextBox::cursorPositionChanged, this, &TypingHelp::noteCaret);
}

// What anyone else changes is not the user's any more.
void TypingHelp::noteChange()
{
    if (m_box.keepsText())
        return;
    m_isTyped = m_colouring.isEditing();
    if (m_isTyped)
        m_line.setPosition(m_box.textCursor().position());
}

// Later: whoever moves the caret may be in the middle of something.
void TypingHelp::noteCaret()
{
    if (m_isTyped && !m_isLeaving && m_box.textCursor().block() != m_line.block()) {
        m_isLeaving = true;
        QMetaObject::invokeMethod(this, &TypingHelp::leave, Qt::QueuedConnection);
    }
}

void TypingHelp::leave()
{
    m_isLeaving = false;
    const QTextBlock line = m_line.block();
    if (!m_isTyped || m_box.textCursor().block() == line)
        return;
    m_isTyped = false;
    if (!mayUserEdit(m_box) || m_box.isComposing())
        return;
    const RichTextBox::Changing changing(m_box);
    if (const auto indent = closerIndent(line))
        setIndent(line, *indent);
    const qsizetype blanks = helps.trimsBlanks ? blanksAtEnd(line.text()) : 0;
    if (blanks == 0)
        return;
    m_undo.beforeEdit(false);
    QTextCursor cursor(line);
    cursor.movePosition(QTextCursor::EndOfBlock);
    cursor.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor,
                        static_cast<int>(blanks));
    cursor.removeSelectedText();
}

// None when the line stands right.
std::optional<QString> TypingHelp::closerIndent(const QTextBlock &line) const
{
    const QString text = line.text();
    if (!helps.autoIndent || !closesBlock(text))
        return {};
    const auto indent = indentOfIf(line);
    return indent && indent->size() < GetLineIndent(text).size() ? indent : std::nullopt;
}

void TypingHelp::setIndent(const QTextBlock &line, const QString &indent) const
{
    m_undo.beforeEdit(false);
    QTextCursor cursor(line);
    cursor.beginEditBlock(); // one change
    cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor,
                        static_cast<int>(GetLineIndent(line.text()).size()));
    cursor.insertText(indent);
    cursor.endEditBlock();
}

TypingHelp::LineBreak TypingHelp::lineBreak() const
{
    const qint32 start = m_box.SelStart();
    const qint32 number = m_box.GetLineFromChar(start);
    const QTextBlock line = m_box.document()->findBlockByNumber(number);
    const QString before = m_box.lineText(number).first(start - m_box.lineStart(number));
    LineBreak how;
    if (m_isTyped && m_line.block() == line && closesBlock(before))
        how.indent = closerIndent(line);
    how.trimmed = helps.trimsBlanks ? static_cast<qint32>(blanksAtEnd(before)) : 0;
    how.newIndent = how.indent.value_or(GetLineIndent(before));
    if (helps.autoIndent && opensBlock(before))
        how.newIndent += m_lines.indentUnit();
    return how;
}

void TypingHelp::breakLine(const LineBreak &how) const
{
    if (!how.indent && how.trimmed == 0) {
        m_box.setSelText(QStringLiteral("\r\n") + how.newIndent);
        return;
    }
    const qint32 start = m_box.SelStart() - how.trimmed;
    const qint32 lineStart = m_box.lineStart(m_box.GetLineFromChar(start));
    QList<TextPiece> pieces;
    QList<ColouredText> texts;
    const auto put = [&](const TextPiece &piece, const QString &text) {
        pieces.append(piece);
        texts.append({text, {{text.size(), ColouredText::automatic}}});
    };
    if (how.indent) {
        const QString line = m_box.textRange(lineStart, start - lineStart);
        put({lineStart, static_cast<qint32>(GetLineIndent(line).size())}, *how.indent);
    }
    const QString behind = QStringLiteral("\r\n") + how.newIndent;
    put({start, m_box.SelLength() + how.trimmed}, behind);
    m_box.replacePieces(pieces, texts);
}

void TypingHelp::noteWordFinished(const QString &typed)
{
    const QTextCursor caret = m_box.textCursor();
    const QString before = caret.block().text().first(caret.positionInBlock());
    const QStringView word = QStringView(before).chopped(typed.size()).trimmed();
    if (!m_isTyped || m_line.block() != caret.block() || !closesBlock(word) ||
        wordsOf(word).size() != 1 || before.chopped(typed.size()).back().isSpace())
        return;
    if (const auto indent = closerIndent(caret.block()))
        m_colouring.edit([&] { setIndent(caret.block(), *indent); });
}

bool TypingHelp::goHome() const
{
    const QTextCursor caret = m_box.textCursor();
    const auto indent = static_cast<int>(GetLineIndent(caret.block().text()).size());
    if (!helps.smartHome || indent == 0)
        return false;
    const qint32 lineStart = m_box.lineStart(caret.blockNumber());
    m_box.setSelStart(lineStart + (caret.positionInBlock() == indent ? 0 : indent));
    return true;
}

} // namespace ORVTListview
