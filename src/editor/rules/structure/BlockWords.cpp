#include "editor/rules/structure/BlockWords.h"

#include "base/TextRules.h"
#include "editor/rules/language/CodeText.h"

#include <optional>

namespace ORVTListview {
namespace {

bool endsWord(QChar c)
{
    return isBlank(c) || c == u'(' || c == u')' || c == u',';
}

template <typename Take>
void walkWords(QStringView line, Take take)
{
    if (IsCommentLine(line))
        return;
    qint32 begin = 0;
    for (qint32 i = 0; i <= line.size(); ++i) {
        if (i < line.size() && !endsWord(line[i]))
            continue;
        if (i > begin)
            take(TextPiece{begin, i - begin});
        begin = i + 1;
    }
}

std::optional<BlockWord::Kind> kindOf(QStringView word)
{
    const auto is = [word](QStringView keyword) {
        return word.compare(keyword, Qt::CaseInsensitive) == 0;
    };
    switch (word.size()) {
    case 2:
        return is(u"IF") ? std::optional(BlockWord::If) : std::nullopt;
    case 4:
        return is(u"ELSE") ? std::optional(BlockWord::Else) : std::nullopt;
    case 5:
        return is(u"ENDIF") ? std::optional(BlockWord::EndIf) : std::nullopt;
    default:
        return {};
    }
}

} // namespace

QList<TextPiece> wordsOf(QStringView line)
{
    QList<TextPiece> words;
    walkWords(line, [&](const TextPiece &word) { words.append(word); });
    return words;
}

QList<BlockWord> blockWordsOf(QStringView line)
{
    QList<BlockWord> words;
    walkWords(line, [&](const TextPiece &place) {
        if (const auto kind = kindOf(line.sliced(place.start, place.length)))
            words.append({*kind, place});
    });
    return words;
}

} // namespace ORVTListview
