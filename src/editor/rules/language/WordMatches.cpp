#include "editor/rules/language/WordMatches.h"

#include "base/TextRules.h"

namespace ORVTListview {
namespace {

// How many characters of a word its folded form has so many for, which may be longer.
// A character that is cut counts as a whole.
int charactersFor(const QString &word, qsizetype folded)
{
    qsizetype characters = 0;
    while (folded > 0 && characters < word.size()) {
        const QStringView rest = QStringView(word).sliced(characters);
        const bool isPair =
            rest.size() > 1 && rest[0].isHighSurrogate() && rest[1].isLowSurrogate();
        const QStringView character = rest.first(isPair ? 2 : 1);
        folded -= foldedCase(character).size();
        characters += character.size();
    }
    return static_cast<int>(characters);
}

} // namespace

WordMatches::WordMatches(const QStringList &words)
{
    m_folded.reserve(words.size());
    for (const QString &word : words)
        m_folded.append(foldedCase(word));
}

QList<int> WordMatches::find(const QString &typed) const
{
    const QString folded = foldedCase(typed);
    QList<int> places;
    QList<int> inside;
    for (int i = 0; i < m_folded.size(); ++i) {
        const qsizetype at = m_folded[i].indexOf(folded);
        if (at == 0)
            places.append(i);
        else if (at > 0)
            inside.append(i);
    }
    return places + inside;
}

MatchedLetters matchedLetters(const QString &word, const QString &typed)
{
    const QString letters = foldedCase(typed);
    const qsizetype at = foldedCase(word).indexOf(letters);
    if (at < 0 || letters.isEmpty())
        return {};
    // Of a character that is several in its folded form the last one may be met first.
    const int end = charactersFor(word, at + letters.size());
    int start = charactersFor(word, at);
    if (foldedCase(QStringView(word).first(start)).size() > at)
        --start;
    return {start, end - start};
}

} // namespace ORVTListview
