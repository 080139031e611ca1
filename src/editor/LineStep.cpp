#include "editor/LineStep.h"

#include "base/TextPiece.h"
#include "widgets/box/BoxText.h"
#include "widgets/box/LateColours.h"
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

#include <algorithm>
#include <utility>

namespace ORVTListview {
namespace {

using Range = SettledLines::Range;

const QString lineEnd = QStringLiteral("\r\n");

// The lines with one among them, joined with those that it touches.
QList<Range> joined(QList<Range> lines, const Range &added)
{
    const auto behind = std::find_if(lines.cbegin(), lines.cend(),
                                     [&](const Range &range) { return range.first > added.first; });
    lines.insert(behind, added);
    QList<Range> result;
    for (const Range &range : std::as_const(lines)) {
        if (!result.isEmpty() && result.constLast().last + 1 >= range.first)
            result.last().last = std::max(result.constLast().last, range.last);
        else
            result.append(range);
    }
    return result;
}

// A piece of the box's text, of whole lines.
TextPiece pieceOf(const BoxText &text, const Range &lines)
{
    const qint32 start = text.lineStart(lines.first);
    const bool isLast = lines.last + 1 >= text.lineCount();
    const qint32 end = isLast ? text.length() : text.lineStart(lines.last + 1) - 2;
    return {start, end - start};
}

} // namespace

LineStep::LineStep(RichTextBox &box, const SettledLines &settled)
    : m_box(box)
    , m_settled(settled)
{
}

bool LineStep::show(const SharedText &text, const Colour &colour)
{
    const auto unsettled = m_settled.unsettled();
    if (!unsettled || !mayKeepLines())
        return false;
    const Range differ = differing(text);
    if (!colourParts(joined(*unsettled, differ), differ, text, colour))
        return false;
    giveLateColours();
    replaceLines();
    colourLines();
    return true;
}

// Formats that nothing shows any more go with a new beginning only.
bool LineStep::mayKeepLines() const
{
    constexpr qsizetype mostFormats = 1000;
    const QTextDocument &document = *m_box.document();
    const QTextBlock first = document.firstBlock();
    return document.allFormats().size() <= mostFormats && first.blockFormat().isEmpty() &&
           first.charFormat().isEmpty();
}

const BoxText &LineStep::boxText() const
{
    return BoxText::of(*m_box.document());
}

// One line at least.
Range LineStep::differing(const SharedText &text) const
{
    const SharedText &shown = boxText().sharedText();
    const qsizetype most = std::min(shown.size(), text.size());
    const qsizetype atStart = shown.alikeAtStart(text);
    const qsizetype atEnd = shown.alikeAtEnd(text, most - atStart);
    return {boxText().lineOf(static_cast<qint32>(atStart)),
            boxText().lineOf(static_cast<qint32>(shown.size() - atEnd))};
}

// Behind the lines that differ the text stands elsewhere than in the box.
bool LineStep::colourParts(const QList<Range> &ranges, const Range &differ, const SharedText &text,
                           const Colour &colour)
{
    const qsizetype grown = text.size() - boxText().length();
    qsizetype length = 0;
    for (const Range &lines : ranges) {
        const TextPiece piece = pieceOf(boxText(), lines);
        const bool isBehind = lines.first > differ.last;
        const bool isAround = !isBehind && lines.last >= differ.first;
        const qsizetype start = piece.start + (isBehind ? grown : 0);
        const qsizetype wanted = piece.length + (isAround ? grown : 0);
        length += std::max<qsizetype>(piece.length, wanted);
        if (length > LateColours::shortest)
            return false;
        const QString part = text.mid(start, wanted);
        if (!LateColours::suits(part))
            return false;
        m_parts.append({lines, ColouredLines(colour(part)), isAround});
    }
    return true;
}

void LineStep::giveLateColours() const
{
    QList<LateColours::Range> places;
    for (const Part &part : m_parts) {
        const TextPiece piece = pieceOf(boxText(), part.lines);
        places.append({boxText().toDocument(piece.start), boxText().toDocument(piece.end())});
    }
    LateColours::of(*m_box.document()).give(places);
}

// Lines at both ends of a part stay where their text is the same already; one is put in at
// least where the texts differ, so that it is a change also for texts that are the same.
std::optional<Range> LineStep::Part::toReplace(const BoxText &box) const
{
    const int shown = lines.last - lines.first + 1;
    const int most = std::min(shown, text.count());
    const auto isSame = [&](int line, int wanted) {
        return box.lineText(line) == text.textOf(wanted);
    };
    int front = 0;
    while (front < most && isSame(lines.first + front, front))
        ++front;
    if (front == shown && front == text.count() && !differs)
        return std::nullopt;
    front = std::min(front, most - 1);
    int back = 0;
    while (back < most - 1 - front && isSame(lines.last - back, text.count() - 1 - back))
        ++back;
    return Range{lines.first + front, lines.last - back};
}

// With the line end before them.
void LineStep::replaceLines()
{
    QList<TextPiece> places;
    QList<ColouredText> texts;
    int grown = 0; // lines
    for (Part &part : m_parts) {
        const std::optional<Range> lines = part.toReplace(boxText());
        const int front = lines ? lines->first - part.lines.first : 0;
        const int back = lines ? part.lines.last - lines->last : 0;
        if (lines) {
            const bool isFirst = lines->first == 0;
            const TextPiece piece = pieceOf(boxText(), *lines);
            places.append(isFirst ? piece : TextPiece{piece.start - 2, piece.length + 2});
            texts.append(part.text.between(front, part.text.count() - 1 - back, !isFirst));
        }
        const int formerLines = part.lines.last - part.lines.first + 1;
        part.lines.first += grown;
        grown += part.text.count() - formerLines;
    }
    m_box.replacePieces(places, texts);
}

void LineStep::colourLines() const
{
    for (const Part &part : m_parts)
        LateColours::of(*m_box.document()).colourNow(part.lines.first, part.text);
}

} // namespace ORVTListview
