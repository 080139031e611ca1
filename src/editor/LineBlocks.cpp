#include "editor/LineBlocks.h"

#include "editor/rules/LineTexts.h"
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QTextBlock>

#include <algorithm>

namespace ORVTListview {
namespace {

constexpr qint32 lineEndLength = 2;

ColouredText lineBreak()
{
    return {QStringLiteral("\r\n"), {{lineEndLength, ColouredText::automatic}}};
}

void append(ColouredText &text, const ColouredText &more)
{
    text.text += more.text;
    text.runs += more.runs;
}

// With the lines that are folded behind it.
qint32 lastOfFold(const RichTextBox &box, qint32 line)
{
    QTextBlock block = box.document()->findBlockByNumber(line);
    while (block.next().isValid() && !block.next().isVisible())
        block = block.next();
    return block.blockNumber();
}

// The lines that the selection touches, and what is folded behind the last one.
LineSpan linesToActOn(const RichTextBox &box)
{
    LineSpan lines = selectedLines(box);
    lines.last = lastOfFold(box, lines.last);
    return lines;
}

// So many lines that are shown, beside others, with what is folded behind them; fewer where
// there are no more.
LineSpan linesBeside(const RichTextBox &box, const LineSpan &lines, qint32 steps)
{
    LineSpan beside{lines.last + 1, lines.last};
    for (qint32 i = 0; i < steps && beside.last < box.lineCount() - 1; ++i)
        beside.last = lastOfFold(box, beside.last + 1);
    if (steps < 0)
        beside = {lines.first, lines.first - 1};
    for (qint32 i = 0; i > steps && beside.first > 0; --i) {
        do
            --beside.first;
        while (!box.document()->findBlockByNumber(beside.first).isVisible());
    }
    return beside;
}

// Lines that follow each other, once they have changed places.
MovedLines exchanged(const LineSpan &upper, const LineSpan &lower)
{
    MovedLines moved{upper.first, {}};
    for (qint32 line = lower.first; line <= lower.last; ++line)
        moved.from.append(line - upper.first);
    for (qint32 line = upper.first; line <= upper.last; ++line)
        moved.from.append(line - upper.first);
    return moved;
}

qint32 offsetInLine(const RichTextBox &box, qint32 place)
{
    return place - box.lineStart(box.GetLineFromChar(place));
}

} // namespace

ColouredText LineBlocks::coloured(const LineSpan &lines) const
{
    const qint32 start = m_tools.box.lineStart(lines.first);
    return m_tools.box.coloured(start, lineEnd(m_tools.box, lines.last) - start);
}

// The lines beside them go to the other side, so what belongs to the lines stays with them.
void LineBlocks::move(int by) const
{
    if (!m_tools.begin())
        return;
    const RichTextBox &box = m_tools.box;
    const LineSpan lines = linesToActOn(box);
    const LineSpan others = linesBeside(box, lines, by);
    if (others.first > others.last)
        return;
    const bool isDown = by > 0;
    const qint32 start = box.lineStart(lines.first);
    const qint32 end = lineEnd(box, lines.last);
    ColouredText text = isDown ? coloured(others) : lineBreak();
    append(text, isDown ? lineBreak() : coloured(others));
    const auto length = static_cast<qint32>(text.text.size());
    const BoxSelection now = selectionOf(box);
    const qint32 shift = isDown ? length : -length;
    const BoxSelection then{now.anchor + shift, now.caret + shift};
    const MovedLines moved = isDown ? exchanged(lines, others) : exchanged(others, lines);
    if (isDown)
        m_tools.carryOut({{{start, 0}, {end, length}}, {text, ColouredText()}, {}, then, moved});
    else
        m_tools.carryOut(
            {{{start - length, length}, {end, 0}}, {ColouredText(), text}, {}, then, moved});
}

void LineBlocks::duplicate() const
{
    if (!m_tools.begin())
        return;
    const RichTextBox &box = m_tools.box;
    const LineSpan lines = linesToActOn(box);
    ColouredText copy = lineBreak();
    append(copy, coloured(lines));
    m_tools.carryOut({{{lineEnd(box, lines.last), 0}}, {copy}, {}, selectionOf(box)});
}

void LineBlocks::remove() const
{
    if (!m_tools.begin())
        return;
    const RichTextBox &box = m_tools.box;
    const LineSpan lines = linesToActOn(box);
    const qint32 offset = offsetInLine(box, selectionOf(box).caret);
    qint32 start = box.lineStart(lines.first);
    qint32 end = lineEnd(box, lines.last);
    qint32 caretLine = start;
    qint32 rest = 0; // of the line that the caret comes to
    if (lines.last < box.lineCount() - 1) {
        end += lineEndLength;
        rest = static_cast<qint32>(box.lineText(lines.last + 1).size());
    } else if (lines.first > 0) {
        start -= lineEndLength;
        caretLine = box.lineStart(lines.first - 1);
        rest = start - caretLine;
    }
    if (start == end)
        return;
    const qint32 caret = caretLine + std::min(offset, rest);
    m_tools.carryOut({{{start, end - start}}, {ColouredText()}, {}, {caret, caret}});
}

void LineBlocks::join() const
{
    if (!m_tools.begin())
        return;
    const RichTextBox &box = m_tools.box;
    LineSpan lines = selectedLines(box);
    if (lines.first == lines.last)
        lines.last = std::min(lines.last + 1, box.lineCount() - 1);
    const QList<TextEdit> edits = joints(textsOf(box, lines), box.lineStart(lines.first));
    CommandChange change;
    for (const auto &[piece, text] : edits) {
        change.pieces.append(piece);
        change.texts.append({text, {{text.size(), ColouredText::automatic}}});
    }
    const auto [anchor, caret] = selectionOf(box);
    change.selection = {placeAfter(edits, anchor, false), placeAfter(edits, caret, false)};
    change.linesToFinish = {lines.first};
    m_tools.carryOut(change);
}

// The selection keeps its lines and, as far as these are long enough, its offsets there;
// where it reached to a line's end it still does.
void LineBlocks::sort() const
{
    if (!m_tools.begin())
        return;
    const RichTextBox &box = m_tools.box;
    const LineSpan lines = selectedLines(box);
    const QList<qsizetype> places = sortedPlaces(textsOf(box, lines));
    if (std::is_sorted(places.begin(), places.end()))
        return;
    const qint32 start = box.lineStart(lines.first);
    const BoxSelection now = selectionOf(box);
    BoxSelection then = now;
    ColouredText sorted;
    for (qsizetype i = 0; i < places.size(); ++i) {
        if (i > 0)
            append(sorted, lineBreak());
        const auto line = lines.first + static_cast<qint32>(i);
        const auto source = lines.first + static_cast<qint32>(places[i]);
        const qint32 place = start + static_cast<qint32>(sorted.text.size());
        const ColouredText text = coloured({source, source});
        const auto length = static_cast<qint32>(text.text.size());
        const auto placed = [&](qint32 from, qint32 &to) {
            if (box.GetLineFromChar(from) != line)
                return;
            const qint32 offset = offsetInLine(box, from);
            const bool isAtEnd = offset > 0 && from == lineEnd(box, line);
            to = place + (isAtEnd ? length : std::min(offset, length));
        };
        placed(now.anchor, then.anchor);
        placed(now.caret, then.caret);
        append(sorted, text);
    }
    m_tools.carryOut(
        {{{start, lineEnd(box, lines.last) - start}}, {sorted}, {}, then, {lines.first, places}});
}

} // namespace ORVTListview
