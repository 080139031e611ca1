#include "base/TextSearch.h"

#include <QtCore/QStringMatcher>

#include <algorithm>

namespace ORVTListview {
namespace {

// Compared at once; where two differ is then looked for in it.
constexpr qsizetype comparedLength = 4096;

bool isPair(QChar first, QChar second)
{
    return (first.isHighSurrogate() && second.isLowSurrogate()) ||
           (first == u'\r' && second == u'\n');
}

bool isInsidePair(QStringView text, qsizetype place)
{
    return place > 0 && place < text.size() && isPair(text[place - 1], text[place]);
}

bool isWordBefore(QStringView text, qsizetype place)
{
    if (place == 0)
        return false;
    const QChar last = text[place - 1];
    if (last.isLowSurrogate() && place > 1 && text[place - 2].isHighSurrogate())
        return QChar::isLetterOrNumber(QChar::surrogateToUcs4(text[place - 2], last));
    return last.isLetterOrNumber();
}

bool isWordAfter(QStringView text, qsizetype place)
{
    if (place == text.size())
        return false;
    const QChar first = text[place];
    if (first.isHighSurrogate() && place + 1 < text.size() && text[place + 1].isLowSurrogate())
        return QChar::isLetterOrNumber(QChar::surrogateToUcs4(first, text[place + 1]));
    return first.isLetterOrNumber();
}

bool isMatch(QStringView text, qsizetype from, qsizetype to, TextSearch how)
{
    if (isInsidePair(text, from) || isInsidePair(text, to))
        return false;
    return !how.wholeWord || (!isWordBefore(text, from) && !isWordAfter(text, to));
}

} // namespace

qsizetype findText(QStringView text, QStringView wanted, qsizetype start, qsizetype end,
                   TextSearch how)
{
    if (wanted.isEmpty())
        return -1;
    const QStringView searched = text.first(std::clamp<qsizetype>(end, 0, text.size()));
    const QStringMatcher matcher(wanted, how.matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive);
    qsizetype place = std::clamp<qsizetype>(start, 0, text.size());
    for (;;) {
        place = matcher.indexIn(searched, place);
        if (place < 0 || isMatch(text, place, place + wanted.size(), how))
            return place;
        ++place;
    }
}

// Looking for one character is several times faster than for a text of two.
qsizetype findCrLf(QStringView text, qsizetype from)
{
    qsizetype cr = text.indexOf(u'\r', from);
    while (cr >= 0 && !(cr + 1 < text.size() && text[cr + 1] == u'\n'))
        cr = text.indexOf(u'\r', cr + 1);
    return cr;
}

qsizetype alikeAtStart(QStringView one, QStringView other)
{
    const qsizetype most = std::min(one.size(), other.size());
    qsizetype alike = 0;
    for (qsizetype length = 0; alike < most; alike += length) {
        length = std::min(comparedLength, most - alike);
        const QStringView mine = one.sliced(alike, length);
        const QStringView theirs = other.sliced(alike, length);
        if (mine != theirs)
            return alike +
                   (std::mismatch(mine.begin(), mine.end(), theirs.begin()).first - mine.begin());
    }
    return alike;
}

qsizetype alikeAtEnd(QStringView one, QStringView other, qsizetype most)
{
    qsizetype alike = 0;
    for (qsizetype length = 0; alike < most; alike += length) {
        length = std::min(comparedLength, most - alike);
        const QStringView mine = one.chopped(alike).last(length);
        const QStringView theirs = other.chopped(alike).last(length);
        if (mine != theirs)
            return alike + (std::mismatch(mine.rbegin(), mine.rend(), theirs.rbegin()).first -
                            mine.rbegin());
    }
    return alike;
}

} // namespace ORVTListview
