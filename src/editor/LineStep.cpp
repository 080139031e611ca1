#include "editor/LineStep.h"

#include "base/TextPiece.h"
#include "editor/FarPieces.h"
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
constexpr int farthest = 1000; // lines to the next word

// From the top, those that touch as one.
QList<Range> joined(QList<Range> lines)
{
    std::sort(lines.begin(), lines.end(),
              [](const Range &one, const Range &other) { return one.first < other.first; });
    QList<Range> result;
    for (const Range &range : std::as_const(lines)) {
        if (!result.isEmpty() && result.constLast().last + 1 >= range.first)
            result.last().last = std::max(result.constLast().last, range.last);
        else
            result.append(range);
    }
    return result;
}

bool areWholeLines(const SharedText &text, qsizetype start, qsizetype length)
{
    const qsizetype end = start + length;
    return length >= 0 && (start == 0 || text.mid(start - 2, 2) == lineEnd) &&
           (end == text.size() || text.mid(end, 2) == lineEnd);
}

// Told before the lines of the source are listed, which takes time in its length.
bool areLong(const QList<SharedText::Difference> &differ)
{
    qsizetype length = 0;
    for (const auto &part : differ)
        length += std::max(part.length, part.otherLength);
    return length > LateColours::shortest;
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

LineStep::LineStep(RichTextBox &box, const SettledLines &settled, const StepSource &source)
    : m_box(box)
    , m_settled(settled)
    , m_source(source)
{
}

bool LineStep::show(const SharedText &text, const Colour &colour)
{
    if (!m_settled.areKnown() || !mayKeepLines())
        return false;
    const Differences differ = differing(text);
    if (areLong(differ) || m_source.lineCount() != boxText().lineCount())
        return false;
    if (!colourParts(linesToShow(differ, colour.goesOn), differ, text, colour))
        return false;
    giveLateColours();
    replaceLines();
    if (m_isShown)
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

// One place at least.
LineStep::Differences LineStep::differing(const SharedText &text) const
{
    const SharedText &shown = m_source.text();
    const Differences found = shown.differences(text);
    return found.isEmpty() ? Differences{{shown.size(), 0, text.size(), 0}} : found;
}

QList<Range> LineStep::linesToShow(const Differences &differ, bool goOn) const
{
    QList<Range> lines = m_settled.unsettled();
    for (const auto &part : differ)
        lines.append({m_source.lineOf(part.start), m_source.lineOf(part.end())});
    if (goOn) {
        for (Range &range : lines)
            range.last = withNextWord(range.last);
    }
    return joined(lines);
}

// The next line with a word, where no colour goes on; the last one, if that is far.
int LineStep::withNextWord(int line) const
{
    const int last = m_source.lineCount() - 1;
    for (int next = line + 1; next <= std::min(line + farthest, last); ++next) {
        if (m_source.hasWord(next))
            return next;
    }
    return line < last ? last : line;
}

// By the last word before the line; unknown if that is far.
std::optional<ColouredLines> LineStep::coloured(const QString &part, int line,
                                                const Colour &colour) const
{
    int before = line - 1;
    while (colour.goesOn && before >= 0 && !m_source.hasWord(before)) {
        if (line - --before > farthest)
            return std::nullopt;
    }
    if (!colour.goesOn || before < 0)
        return ColouredLines(colour.lines(part));
    const qsizetype start = m_source.lineStart(before);
    const QString word = m_source.text().mid(start, m_source.lineEnd(before) - start);
    const ColouredLines whole(colour.lines(word + lineEnd + part));
    return ColouredLines(whole.between(1, whole.count() - 1, false));
}

// Behind lines that differ the text stands elsewhere than in the source.
bool LineStep::colourParts(const QList<Range> &ranges, const Differences &differ,
                           const SharedText &text, const Colour &colour)
{
    qsizetype length = 0;
    qsizetype grown = 0;
    auto next = differ.cbegin();
    for (const Range &lines : ranges) {
        const qsizetype former = m_source.lineStart(lines.first);
        const qsizetype end = m_source.lineEnd(lines.last);
        const qsizetype start = former + grown;
        const auto first = next;
        for (; next != differ.cend() && next->start <= end; ++next)
            grown += next->grown();
        const qsizetype wanted = end + grown - start;
        length += std::max(end - former, wanted);
        if (length > LateColours::shortest || !areWholeLines(text, start, wanted))
            return false;
        const QString part = text.mid(start, wanted);
        if (!LateColours::suits(part))
            return false;
        const auto finished = coloured(part, lines.first, colour);
        if (!finished)
            return false;
        m_parts.append({lines, *finished, next != first});
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
        if (lines) {
            const int front = lines->first - part.lines.first;
            const int back = part.lines.last - lines->last;
            const bool isFirst = lines->first == 0;
            const TextPiece piece = pieceOf(boxText(), *lines);
            places.append(isFirst ? piece : TextPiece{piece.start - 2, piece.length + 2});
            texts.append(part.text.between(front, part.text.count() - 1 - back, !isFirst));
        }
        const int formerLines = part.lines.last - part.lines.first + 1;
        part.lines.first += grown;
        grown += part.text.count() - formerLines;
    }
    m_isShown = replaceFarPieces(m_box, places, texts);
}

void LineStep::colourLines() const
{
    for (const Part &part : m_parts)
        LateColours::of(*m_box.document()).colourNow(part.lines.first, part.text);
}

} // namespace ORVTListview
