// What two texts have in common.

#include "base/SharedText.h"
#include "base/TextSearch.h"

#include <algorithm>
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

// Two texts that are gone through together.
class Pair
{
public:
    Pair(const SharedText &mine, const SharedText &theirs)
        : m_mine(mine)
        , m_theirs(theirs)
    {
    }

    qsizetype alikeFrom(qsizetype start, qsizetype otherStart, qsizetype most)
    {
        const auto next = [&](qsizetype alike, qsizetype longest) {
            const QStringView theirs = m_theirs.behind(otherStart + alike, longest);
            const QStringView mine = m_mine.behind(start + alike, theirs.size());
            return std::pair(mine, theirs.first(mine.size()));
        };
        return lengthAlike(most, next, [](QStringView mine, QStringView theirs) {
            return alikeAtStart(mine, theirs);
        });
    }

    qsizetype alikeUpTo(qsizetype end, qsizetype otherEnd, qsizetype most)
    {
        const auto next = [&](qsizetype alike, qsizetype longest) {
            const QStringView theirs = m_theirs.before(otherEnd - alike, longest);
            const QStringView mine = m_mine.before(end - alike, theirs.size());
            return std::pair(mine, theirs.last(mine.size()));
        };
        return lengthAlike(most, next, [](QStringView mine, QStringView theirs) {
            return alikeAtEnd(mine, theirs, mine.size());
        });
    }

private:
    SharedText::Walk m_mine;
    SharedText::Walk m_theirs;
};

} // namespace

qsizetype SharedText::alikeAtStart(const SharedText &other) const
{
    return Pair(*this, other).alikeFrom(0, 0, std::min(m_size, other.m_size));
}

qsizetype SharedText::alikeAtEnd(const SharedText &other, qsizetype most) const
{
    return Pair(*this, other).alikeUpTo(m_size, other.m_size, most);
}

// Parts of the same strings, one behind the other in both texts.
QList<SharedText::Alike> SharedText::sharedParts(const SharedText &other) const
{
    struct Placed
    {
        const Piece *piece;
        qsizetype begin; // in its text

        qsizetype end() const { return piece->start + piece->length; } // in its string
    };
    std::unordered_map<const QChar *, std::vector<Placed>> theirs;
    qsizetype place = 0;
    for (const Piece &piece : other.m_pieces) {
        std::vector<Placed> &there = theirs[piece.string.constData()];
        if (there.empty() || there.back().end() <= piece.start) // as in the string
            there.push_back({&piece, place});
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
        const std::vector<Placed> &there = same->second;
        const qsizetype mineEnd = mine.start + mine.length;
        auto next = std::upper_bound(
            there.begin(), there.end(), mine.start,
            [](qsizetype start, const Placed &placed) { return start < placed.end(); });
        for (; next != there.end() && next->piece->start < mineEnd; ++next) {
            const qsizetype toMine = begin - mine.start; // from a place in the string
            const qsizetype toTheirs = next->begin - next->piece->start;
            const qsizetype from = std::max({mine.start, next->piece->start, behind.start - toMine,
                                             behind.otherStart - toTheirs});
            const qsizetype to = std::min(mineEnd, next->end());
            if (from >= to)
                continue;
            parts.append({toMine + from, toTheirs + from, to - from});
            behind = {toMine + to, toTheirs + to};
        }
    }
    return parts;
}

QList<SharedText::Difference> SharedText::differences(const SharedText &other) const
{
    QList<Difference> result;
    Pair pair(*this, other);
    QList<Alike> alike = sharedParts(other);
    alike.append({m_size, other.m_size, 0});
    Alike done;
    for (const Alike &next : std::as_const(alike)) {
        const qsizetype most = std::min(next.start - done.start, next.otherStart - done.otherStart);
        const qsizetype front = pair.alikeFrom(done.start, done.otherStart, most);
        const qsizetype back = pair.alikeUpTo(next.start, next.otherStart, most - front);
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

} // namespace ORVTListview
