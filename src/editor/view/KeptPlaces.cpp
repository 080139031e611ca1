#include "editor/view/KeptPlaces.h"

#include <QtGui/QTextDocument>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace ORVTListview {
namespace {

bool isGoneAt(const KeptPlaces::Span &span, bool hadText)
{
    return hadText && span.from == span.to;
}

bool holdsLine(int from, int to, const QTextBlock &line)
{
    return line.isValid() && line.position() <= to && line.position() + line.length() > from;
}

} // namespace

// As a cursor there would, when what is removed goes first.
int KeptPlaces::Change::moved(int place) const
{
    if (place < from)
        return place;
    return place >= formerEnd() ? place + shift() : end();
}

KeptPlaces::KeptPlaces(const QTextDocument &document, Kind kind)
    : m_document(document)
    , m_kind(kind)
{
}

void KeptPlaces::set(const QList<Span> &spans)
{
    m_kept.clear();
    m_kept.reserve(spans.size());
    for (const Span &span : spans) {
        Kept kept;
        kept.name = m_kept.size();
        kept.hadText = m_kind == Kind::Texts && span.from < span.to;
        m_kept.append(kept);
    }
    put(spans);
}

QList<KeptPlaces::Span> KeptPlaces::byName() const
{
    QList<Span> spans(m_kept.size());
    for (qsizetype i = 0; i < m_kept.size(); ++i)
        spans[m_kept[i].name] = at(i);
    return spans;
}

void KeptPlaces::put(const QList<Span> &spans)
{
    m_settled = m_kept.size();
    m_shift = m_lineShift = 0;
    m_longest = 0;
    m_lineCount = m_document.blockCount();
    for (Kept &kept : m_kept) {
        kept.span = spans[kept.name];
        kept.hadText = kept.hadText && m_kind == Kind::Texts; // lines are found out anew
        read(kept);
    }
    sort(0, m_kept.size());
}

KeptPlaces::Span KeptPlaces::at(qsizetype i) const
{
    const Span &span = m_kept[i].span;
    return i < m_settled ? span : Span{span.from + m_shift, span.to + m_shift};
}

QTextBlock KeptPlaces::lineAt(qsizetype i) const
{
    return m_document.findBlock(at(i).from);
}

bool KeptPlaces::isGone(qsizetype i) const
{
    return isGoneAt(m_kept[i].span, m_kept[i].hadText);
}

bool KeptPlaces::areGone(int from, int to) const
{
    for (qsizetype i = firstFrom(from); i < m_kept.size() && at(i).from <= to; ++i) {
        if (isGone(i))
            return true;
    }
    return false;
}

qsizetype KeptPlaces::firstFrom(int position) const
{
    const bool isAmongSettled = m_settled > 0 && m_kept[m_settled - 1].span.from >= position;
    const auto settled = m_kept.cbegin() + m_settled;
    const auto begin = isAmongSettled ? m_kept.cbegin() : settled;
    const auto end = isAmongSettled ? settled : m_kept.cend();
    const int wanted = isAmongSettled ? position : position - m_shift;
    const auto place = std::partition_point(
        begin, end, [wanted](const Kept &kept) { return kept.span.from < wanted; });
    return place - m_kept.cbegin();
}

KeptPlaces::Span KeptPlaces::wholeLine(const QTextBlock &line) const
{
    const int last = m_document.characterCount() - 1;
    return {line.position(), std::min(line.position() + line.length(), last)};
}

// Those before this one are where they say, those from it on are still to be moved. One who
// types goes on where he is, so that it seldom has far to go.
void KeptPlaces::settle(qsizetype i)
{
    const auto shift = [](Kept &kept, int by, int lines) {
        kept.span = {kept.span.from + by, kept.span.to + by};
        kept.line += lines;
    };
    for (; m_settled < i; ++m_settled)
        shift(m_kept[m_settled], m_shift, m_lineShift);
    for (; m_settled > i; --m_settled)
        shift(m_kept[m_settled - 1], -m_shift, -m_lineShift);
}

// The toolkit counts the end of the last line in where that line takes another form.
void KeptPlaces::noteChange(int from, int removed, int added)
{
    const int lineCount = m_document.blockCount();
    const int lastPlace = m_document.characterCount() - 1;
    const int beyond = std::max(0, from + added - lastPlace);
    const Change change{from, std::max(0, removed - beyond), added - beyond,
                        lineCount - std::exchange(m_lineCount, lineCount)};
    if (m_kept.isEmpty())
        return;
    const int firstLine = m_document.findBlock(std::min(from, lastPlace)).position();
    const QTextBlock lastLine = m_document.findBlock(std::min(change.end(), lastPlace));
    const qsizetype begin = firstFrom(std::min(firstLine, from - m_longest));
    const qsizetype behind = firstFrom(change.formerEnd());
    settle(behind);
    m_shift += change.shift();
    m_lineShift += change.moreLines;
    for (qsizetype i = begin; i < behind; ++i)
        move(m_kept[i], change);
    settle(std::max(behind, firstFrom(lastLine.position() + lastLine.length())));
    for (qsizetype i = begin; i < m_settled; ++i) {
        if (m_kept[i].span.to >= firstLine)
            read(m_kept[i]);
    }
    sort(begin, m_settled);
}

void KeptPlaces::noteLetters(int from, int added)
{
    const QTextBlock last = m_document.findBlock(from + added);
    const qsizetype end = firstFrom(last.position() + last.length());
    settle(std::max(m_settled, end));
    for (qsizetype i = firstFrom(m_document.findBlock(from).position()); i < end; ++i)
        read(m_kept[i]);
}

// Several changes that are told of as one may have left what is between them.
void KeptPlaces::move(Kept &kept, const Change &change) const
{
    Span &span = kept.span;
    if (change.removed > 0 && change.added > 0 && !isGoneAt(span, kept.hadText)) {
        const bool isBefore = span.from < span.to && span.to <= change.from;
        const bool isAround = span.from < change.from && span.to > change.formerEnd();
        const auto there = isBefore || isAround ? std::nullopt : found(kept, change);
        if (there || isBefore) {
            span = there.value_or(span);
            return;
        }
    }
    span = {change.moved(span.from), change.moved(span.to)};
}

std::optional<KeptPlaces::Span> KeptPlaces::found(const Kept &kept, const Change &change) const
{
    const QTextBlock line = sameLine(kept, change);
    if (!line.isValid())
        return onChangedLine(kept, change);
    const int from = line.position() + kept.column;
    const int last = m_document.characterCount() - 1;
    return Span{from, std::min(from + kept.span.to - kept.span.from, last)};
}

// Counted from the change's begin, or from its end; or else the nearest one.
QTextBlock KeptPlaces::sameLine(const Kept &kept, const Change &change) const
{
    const int former = kept.span.from - kept.column;
    for (const int place : {former, former + change.shift()}) {
        const QTextBlock line = m_document.findBlock(place);
        if (line.position() == place && holdsLine(change.from, change.end(), line) &&
            line.text() == kept.text)
            return line;
    }
    return kept.text.isEmpty() ? QTextBlock() : nearestLine(kept, change);
}

QTextBlock KeptPlaces::nearestLine(const Kept &kept, const Change &change) const
{
    constexpr int most = 200; // lines away
    const auto isSame = [&](const QTextBlock &line) {
        return line.length() - 1 == kept.text.size() && line.text() == kept.text;
    };
    const auto isInside = [&](const QTextBlock &line) {
        return holdsLine(change.from, change.end(), line);
    };
    const int last = m_document.characterCount() - 1;
    const int lastLine = m_document.findBlock(std::min(change.end(), last)).blockNumber();
    QTextBlock above = m_document.findBlockByNumber(std::min(kept.line, lastLine));
    QTextBlock below = above.next();
    for (int i = 0; i < most && (isInside(above) || isInside(below)); ++i) {
        if (isInside(above)) {
            if (isSame(above))
                return above;
            above = above.previous();
        }
        if (isInside(below)) {
            if (isSame(below))
                return below;
            below = below.next();
        }
    }
    return {};
}

std::optional<KeptPlaces::Span> KeptPlaces::onChangedLine(const Kept &kept,
                                                          const Change &change) const
{
    const QTextBlock line = m_document.findBlockByNumber(kept.line);
    if (change.moreLines != 0 || !holdsLine(change.from, change.end(), line))
        return {};
    if (m_kind == Kind::Lines)
        return wholeLine(line);
    const int length = kept.span.to - kept.span.from;
    const QString wanted = kept.text.mid(kept.column, length);
    if (wanted.isEmpty() || wanted.size() < length)
        return {};
    const QString text = line.text();
    std::optional<Span> nearest;
    const auto distance = [&](int from) { return std::abs(from - line.position() - kept.column); };
    for (qsizetype i = text.indexOf(wanted); i >= 0; i = text.indexOf(wanted, i + 1)) {
        const int from = line.position() + static_cast<int>(i);
        const bool isInside = from >= change.from && from + length <= change.end();
        if (isInside && (!nearest || distance(from) < distance(nearest->from)))
            nearest = Span{from, from + length};
    }
    return nearest;
}

void KeptPlaces::read(Kept &kept)
{
    const QTextBlock line = m_document.findBlock(kept.span.from);
    if (m_kind == Kind::Lines && !isGoneAt(kept.span, kept.hadText)) {
        kept.span = wholeLine(line);
        kept.hadText = kept.span.from < kept.span.to; // an empty last line has none
    }
    kept.line = line.blockNumber();
    kept.column = kept.span.from - line.position();
    kept.text = line.text();
    m_longest = std::max(m_longest, kept.span.to - kept.span.from);
}

void KeptPlaces::sort(qsizetype from, qsizetype to)
{
    std::stable_sort(
        m_kept.begin() + from, m_kept.begin() + to,
        [](const Kept &one, const Kept &other) { return one.span.from < other.span.from; });
}

} // namespace ORVTListview
