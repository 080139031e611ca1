#include "base/SharedText.h"

#include "base/TextSearch.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <unordered_map>
#include <utility>
#include <vector>

namespace ORVTListview {
namespace {

// Compared at once; where two differ is then looked for in it.
constexpr qsizetype blockLength = 4096;

bool areAlike(QStringView one, QStringView other)
{
    return one.data() == other.data() || one == other;
}

// Of two texts, of which NEXT gives the next blocks behind what is alike already, each as
// long as the other; WITHIN tells how much of two that differ is alike.
template <typename Next, typename Within>
qsizetype lengthAlike(qsizetype most, const Next &next, const Within &within)
{
    qsizetype alike = 0;
    while (alike < most) {
        const auto [mine, theirs] = next(alike, std::min(blockLength, most - alike));
        if (!areAlike(mine, theirs))
            return alike + within(mine, theirs);
        alike += mine.size();
    }
    return alike;
}

} // namespace

SharedText::SharedText(const QString &text)
{
    append({text, 0, text.size()});
}

void SharedText::append(const Piece &piece)
{
    if (piece.length == 0)
        return;
    m_size += piece.length;
    if (!m_pieces.isEmpty()) {
        Piece &last = m_pieces.last();
        if (last.view().end() == piece.view().begin() &&
            last.string.constData() == piece.string.constData()) {
            last.length += piece.length;
            return;
        }
    }
    m_pieces.append(piece);
}

void SharedText::append(const SharedText &text)
{
    for (const Piece &piece : text.m_pieces)
        append(piece);
}

QString SharedText::toString() const
{
    if (m_pieces.size() == 1 && m_pieces.first().string.size() == m_size)
        return m_pieces.first().string;
    QString text;
    text.reserve(m_size);
    for (const Piece &piece : m_pieces)
        text += piece.view();
    return text;
}

QStringView SharedText::behind(qsizetype position, qsizetype longest) const
{
    for (const Piece &piece : m_pieces) {
        if (position < piece.length)
            return piece.view().sliced(position).left(longest);
        position -= piece.length;
    }
    return {};
}

QStringView SharedText::before(qsizetype position, qsizetype longest) const
{
    for (const Piece &piece : m_pieces) {
        if (position <= piece.length)
            return piece.view().first(position).right(longest);
        position -= piece.length;
    }
    return {};
}

SharedText SharedText::part(qsizetype start, qsizetype length) const
{
    SharedText result;
    result.m_pieces.reserve(m_pieces.size());
    for (const Piece &piece : m_pieces) {
        const qsizetype first = std::clamp<qsizetype>(start, 0, piece.length);
        const qsizetype last = std::clamp<qsizetype>(start + length, 0, piece.length);
        result.append({piece.string, piece.start + first, last - first});
        start -= piece.length;
    }
    return result;
}

qsizetype SharedText::alikeFrom(qsizetype start, const SharedText &other, qsizetype otherStart,
                                qsizetype most) const
{
    const auto next = [&](qsizetype alike, qsizetype longest) {
        const QStringView theirs = other.behind(otherStart + alike, longest);
        const QStringView mine = behind(start + alike, theirs.size());
        return std::pair(mine, theirs.first(mine.size()));
    };
    return lengthAlike(most, next, [](QStringView mine, QStringView theirs) {
        return ORVTListview::alikeAtStart(mine, theirs);
    });
}

qsizetype SharedText::alikeUpTo(qsizetype end, const SharedText &other, qsizetype otherEnd,
                                qsizetype most) const
{
    const auto next = [&](qsizetype alike, qsizetype longest) {
        const QStringView theirs = other.before(otherEnd - alike, longest);
        const QStringView mine = before(end - alike, theirs.size());
        return std::pair(mine, theirs.last(mine.size()));
    };
    return lengthAlike(most, next, [](QStringView mine, QStringView theirs) {
        return ORVTListview::alikeAtEnd(mine, theirs, mine.size());
    });
}

qsizetype SharedText::alikeAtStart(const SharedText &other) const
{
    return alikeFrom(0, other, 0, std::min(m_size, other.m_size));
}

qsizetype SharedText::alikeAtEnd(const SharedText &other, qsizetype most) const
{
    return alikeUpTo(m_size, other, other.m_size, most);
}

// Parts of the same strings, one behind the other in both texts.
QList<SharedText::Alike> SharedText::sharedParts(const SharedText &other) const
{
    std::unordered_map<const QChar *, std::vector<std::pair<const Piece *, qsizetype>>> theirs;
    qsizetype place = 0;
    for (const Piece &piece : other.m_pieces) {
        theirs[piece.string.constData()].emplace_back(&piece, place);
        place += piece.length;
    }
    QList<Alike> parts;
    Alike behind; // what is found already
    place = 0;
    for (const Piece &mine : m_pieces) {
        const auto same = theirs.find(mine.string.constData());
        const auto begin = std::exchange(place, place + mine.length);
        if (same == theirs.end())
            continue;
        for (const auto &[piece, otherBegin] : same->second) {
            const qsizetype here = begin - mine.start; // of the string
            const qsizetype there = otherBegin - piece->start;
            const qsizetype from = std::max(
                {mine.start, piece->start, behind.start - here, behind.otherStart - there});
            const qsizetype to = std::min(mine.start + mine.length, piece->start + piece->length);
            if (from >= to)
                continue;
            parts.append({here + from, there + from, to - from});
            behind = {here + to, there + to};
        }
    }
    return parts;
}

QList<SharedText::Difference> SharedText::differences(const SharedText &other) const
{
    QList<Difference> result;
    QList<Alike> alike = sharedParts(other);
    alike.append({m_size, other.m_size, 0});
    Alike done;
    for (const Alike &next : std::as_const(alike)) {
        const qsizetype most = std::min(next.start - done.start, next.otherStart - done.otherStart);
        const qsizetype front = alikeFrom(done.start, other, done.otherStart, most);
        const qsizetype back = alikeUpTo(next.start, other, next.otherStart, most - front);
        const qsizetype start = done.start + front;
        const qsizetype otherStart = done.otherStart + front;
        const Difference found{start, next.start - back - start, otherStart,
                               next.otherStart - back - otherStart};
        if (found.length > 0 || found.otherLength > 0)
            result.append(found);
        done = {next.start + next.length, next.otherStart + next.length};
    }
    return result;
}

bool SharedText::equals(const SharedText &other) const
{
    return m_size == other.m_size && alikeAtStart(other) == m_size;
}

SharedText SharedText::sharedWith(const SharedText &other) const
{
    const qsizetype atStart = alikeAtStart(other);
    const qsizetype atEnd = alikeAtEnd(other, std::min(m_size, other.m_size) - atStart);
    const qsizetype alike = atStart + atEnd;
    if (alike < m_size - alike)
        return *this;
    SharedText result = other.part(0, atStart);
    result.append(SharedText(part(atStart, m_size - alike).toString()));
    result.append(other.part(other.m_size - atEnd, atEnd));
    return result.m_pieces.size() > mostPieces ? *this : result;
}

// The last pieces that together are not longer.
QString SharedText::takeShortEnd(qsizetype longest)
{
    QString taken;
    while (!m_pieces.isEmpty() && m_pieces.last().length + taken.size() <= longest) {
        const Piece piece = m_pieces.takeLast();
        taken.prepend(piece.view());
        m_size -= piece.length;
    }
    return taken;
}

QString SharedText::takeShortStart(qsizetype longest)
{
    QString taken;
    while (!m_pieces.isEmpty() && m_pieces.first().length + taken.size() <= longest) {
        const Piece piece = m_pieces.takeFirst();
        taken += piece.view();
        m_size -= piece.length;
    }
    return taken;
}

SharedText SharedText::replaced(qsizetype start, qsizetype length, const QString &text) const
{
    SharedText result = part(0, start);
    SharedText rest = part(start + length, m_size - start - length);
    QString joined = result.takeShortEnd(joinedLength - text.size()) + text;
    joined += rest.takeShortStart(joinedLength - joined.size());
    result.append({joined, 0, joined.size()});
    result.append(rest);
    return result;
}

qsizetype SharedText::bytes(CountedStrings &counted) const
{
    return bytes(counted, {});
}

qsizetype SharedText::bytes(CountedStrings &counted, const SharedText &before) const
{
    const auto isSame = [](const Piece &one, const Piece &other) {
        return one.string.constData() == other.string.constData();
    };
    const auto &theirs = before.m_pieces;
    const auto first =
        std::mismatch(m_pieces.begin(), m_pieces.end(), theirs.begin(), theirs.end(), isSame).first;
    const auto last = std::mismatch(m_pieces.rbegin(), std::make_reverse_iterator(first),
                                    theirs.rbegin(), theirs.rend(), isSame)
                          .first.base();
    qsizetype sum = 0;
    for (const Piece &piece : std::span(first, last)) {
        if (counted.insert(piece.string.constData()).second)
            sum += piece.string.size() * qsizetype(sizeof(QChar));
    }
    return sum;
}

} // namespace ORVTListview
