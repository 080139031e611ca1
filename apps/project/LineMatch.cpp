#include "project/LineMatch.h"

#include <QtCore/QHash>

#include <algorithm>
#include <vector>

namespace ORVTListview {
namespace {

struct Range
{
    qsizetype begin;
    qsizetype end;

    qsizetype size() const { return end - begin; }
};

struct Pair
{
    qsizetype before;
    qsizetype now;
};

// The pairs of the longest chain that ascends on both sides; they ascend by `now`.
QList<Pair> longestChain(const QList<Pair> &pairs)
{
    std::vector<qsizetype> tops; // of the chains of each length, the one that ends first
    QList<qsizetype> previous(pairs.size(), -1);
    for (qsizetype i = 0; i < pairs.size(); ++i) {
        const auto top =
            std::lower_bound(tops.begin(), tops.end(), pairs[i].before,
                             [&](qsizetype at, qsizetype line) { return pairs[at].before < line; });
        previous[i] = top == tops.begin() ? -1 : *std::prev(top);
        if (top == tops.end())
            tops.push_back(i);
        else
            *top = i;
    }
    QList<Pair> chain;
    for (qsizetype i = tops.empty() ? -1 : tops.back(); i >= 0; i = previous[i])
        chain.prepend(pairs[i]);
    return chain;
}

// By lines that stand once on each side; between those, the same again.
class Matching
{
public:
    Matching(const LineViews &before, const LineViews &now)
        : m_partners(now.size(), -1)
    {
        QHash<QStringView, qsizetype> numbers;
        const auto numbered = [&numbers](const LineViews &lines) {
            QList<qsizetype> result;
            result.reserve(lines.size());
            for (const QStringView line : lines) {
                const auto found = numbers.constFind(line);
                result.append(found == numbers.cend() ? numbers.size() : *found);
                if (found == numbers.cend())
                    numbers.insert(line, result.constLast());
            }
            return result;
        };
        m_before = numbered(before);
        m_now = numbered(now);
        m_uses.resize(static_cast<std::size_t>(numbers.size()));
    }

    QList<qsizetype> partners()
    {
        std::vector<std::pair<Range, Range>> open{{{0, m_before.size()}, {0, m_now.size()}}};
        while (!open.empty()) {
            auto [before, now] = open.back();
            open.pop_back();
            matchEnds(before, now);
            if (before.size() == 0 || now.size() == 0)
                continue;
            const QList<Pair> anchors = uniquePairs(before, now);
            if (anchors.isEmpty())
                matchRepeated(before, now);
            for (const Pair &anchor : anchors) {
                open.push_back({{before.begin, anchor.before}, {now.begin, anchor.now}});
                m_partners[anchor.now] = anchor.before;
                before.begin = anchor.before + 1;
                now.begin = anchor.now + 1;
            }
            if (!anchors.isEmpty())
                open.emplace_back(before, now);
        }
        return m_partners;
    }

private:
    struct Uses
    {
        qsizetype before = 0;
        qsizetype now = 0;
        qsizetype place = -1; // on the side before
    };

    bool isSame(qsizetype before, qsizetype now) const { return m_before[before] == m_now[now]; }

    void matchEnds(Range &before, Range &now)
    {
        while (before.size() > 0 && now.size() > 0 && isSame(before.begin, now.begin))
            m_partners[now.begin++] = before.begin++;
        while (before.size() > 0 && now.size() > 0 && isSame(before.end - 1, now.end - 1))
            m_partners[--now.end] = --before.end;
    }

    Uses &usesOf(qsizetype number) { return m_uses[static_cast<std::size_t>(number)]; }

    QList<Pair> uniquePairs(Range before, Range now)
    {
        for (qsizetype i = before.begin; i < before.end; ++i)
            usesOf(m_before[i]) = {};
        for (qsizetype i = now.begin; i < now.end; ++i)
            usesOf(m_now[i]) = {};
        for (qsizetype i = before.begin; i < before.end; ++i) {
            ++usesOf(m_before[i]).before;
            usesOf(m_before[i]).place = i;
        }
        for (qsizetype i = now.begin; i < now.end; ++i)
            ++usesOf(m_now[i]).now;
        QList<Pair> pairs;
        for (qsizetype i = now.begin; i < now.end; ++i) {
            const Uses &uses = usesOf(m_now[i]);
            if (uses.before == 1 && uses.now == 1)
                pairs.append({uses.place, i});
        }
        return longestChain(pairs);
    }

    // Lines that stand there several times: each finds the next of its kind.
    void matchRepeated(Range before, Range now)
    {
        QHash<qsizetype, QList<qsizetype>> places;
        for (qsizetype i = before.begin; i < before.end; ++i)
            places[m_before[i]].append(i);
        for (qsizetype i = now.begin; i < now.end; ++i) {
            const QList<qsizetype> &found = places[m_now[i]];
            const auto next = std::lower_bound(found.begin(), found.end(), before.begin);
            if (next == found.end())
                continue;
            m_partners[i] = *next;
            before.begin = *next + 1;
        }
    }

    QList<qsizetype> m_before;
    QList<qsizetype> m_now;
    QList<qsizetype> m_partners;
    std::vector<Uses> m_uses;
};

} // namespace

LineViews linesOf(QStringView text)
{
    return text.split(u"\r\n");
}

QList<qsizetype> matchingLines(const LineViews &before, const LineViews &now)
{
    return Matching(before, now).partners();
}

} // namespace ORVTListview
