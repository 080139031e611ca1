#include "base/TextSearch.h"

#include <QtCore/QStringMatcher>

#include <algorithm>

namespace ORVTListview {
namespace {

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

} // namespace ORVTListview
