#include "find/rules/ProgramSearch.h"

#include "editor/rules/language/CodeText.h"

namespace ORVTListview {
namespace {

constexpr QChar underscore = u'_';

bool touchesUnderscore(QStringView text, qsizetype from, qsizetype to)
{
    return (to < text.size() && text[to] == underscore) ||
           (from > 0 && text[from - 1] == underscore);
}

// Whether carets at both ends see the bounds of a word there. One character on
// either side tells.
bool isBounded(QStringView text, qsizetype from, qsizetype to)
{
    const bool begins = from == 0 || FindWordStart(text.sliced(from - 1, 1), 1) == 2;
    return begins && FindWordEnd(text.mid(to - 1, 2), 1) == 2;
}

} // namespace

qsizetype findInProgram(QStringView text, QStringView wanted, qsizetype start, TextSearch how)
{
    qsizetype place = findText(text, wanted, start, text.size(), how);
    while (how.wholeWord && place >= 0 && touchesUnderscore(text, place, place + wanted.size()))
        place = findText(text, wanted, place + 1, text.size(), how);
    return place;
}

qsizetype findInProgramBefore(QStringView text, QStringView wanted, qsizetype end, TextSearch how)
{
    qsizetype last = -1;
    qsizetype place = findInProgram(text, wanted, 0, how);
    while (place >= 0 && place + wanted.size() <= end) {
        last = place;
        place = findInProgram(text, wanted, place + 1, how);
    }
    return last;
}

QList<qsizetype> placesToReplace(QStringView text, QStringView wanted, TextSearch how)
{
    QList<qsizetype> places;
    qsizetype place = findInProgram(text, wanted, 0, how);
    while (place >= 0) {
        places.append(place);
        place = findInProgram(text, wanted, place + wanted.size() + 1, how);
    }
    return places;
}

QList<qsizetype> placesOfWord(QStringView text, QStringView word)
{
    QList<qsizetype> places;
    qsizetype place = findText(text, word, 0, text.size());
    while (place >= 0) {
        const qsizetype end = place + word.size();
        const bool isWord = isBounded(text, place, end);
        if (isWord)
            places.append(place);
        place = findText(text, word, isWord ? end : place + 1, text.size());
    }
    return places;
}

} // namespace ORVTListview
