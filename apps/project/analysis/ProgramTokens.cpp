#include "project/analysis/ProgramTokens.h"

#include "base/TextRules.h"
#include "editor/rules/language/CodeText.h"

#include <algorithm>

namespace ORVTListview {
namespace {

bool isPunctuation(QChar c)
{
    return c == u'(' || c == u')' || c == u',';
}

TokenKind kindOfPunctuation(QChar c)
{
    return c == u'(' ? TokenKind::Open : c == u')' ? TokenKind::Close : TokenKind::Comma;
}

bool isCompared(QChar c)
{
    return c == u'=' || c == u'<' || c == u'>';
}

bool isOperator(QChar c)
{
    return isCompared(c) || c == u'+' || c == u'-' || c == u'*' || c == u'/';
}

class LineDivision
{
public:
    LineDivision(QStringView line, const ProgramWords &words, QList<LineProblem> &problems)
        : m_line(line)
        , m_words(words)
        , m_problems(problems)
    {
    }

    QList<ProgramToken> tokens() &&;

private:
    void takeText(TextPiece text);
    void takeWord(TextPiece word);
    bool takeKnown(TextPiece word);
    bool takeDivided(TextPiece word);
    QList<TextPiece> dividedAtOperators(TextPiece word) const;
    bool isKnown(TextPiece word) const;
    QStringView at(TextPiece piece) const { return m_line.sliced(piece.start, piece.length); }

    QStringView m_line;
    const ProgramWords &m_words;
    QList<LineProblem> &m_problems;
    QList<ProgramToken> m_tokens;
};

QList<ProgramToken> LineDivision::tokens() &&
{
    const auto length = static_cast<qint32>(m_line.size());
    qint32 begin = 0;
    for (qint32 i = 0; i <= length; ++i) {
        if (i < length && !isBlank(m_line[i]))
            continue;
        if (i > begin)
            takeText({begin, i - begin});
        begin = i + 1;
    }
    return std::move(m_tokens);
}

// A name may hold brackets and commas; only where it does not do they divide words.
void LineDivision::takeText(TextPiece text)
{
    const QStringView whole = at(text);
    const bool isDivided = std::any_of(whole.begin(), whole.end(), isPunctuation);
    if (!isDivided || m_words.find(whole) >= 0)
        return takeWord(text);
    qint32 begin = text.start;
    for (qint32 i = text.start; i <= text.end(); ++i) {
        if (i < text.end() && !isPunctuation(m_line[i]))
            continue;
        if (i > begin)
            takeWord({begin, i - begin});
        if (i < text.end())
            m_tokens.append({kindOfPunctuation(m_line[i]), WordClass::Other, {i, 1}, -1});
        begin = i + 1;
    }
}

void LineDivision::takeWord(TextPiece word)
{
    if (takeKnown(word) || takeDivided(word))
        return;
    m_tokens.append({TokenKind::Unknown, WordClass::Other, word, -1});
}

bool LineDivision::takeKnown(TextPiece word)
{
    const qsizetype known = m_words.find(at(word));
    if (known >= 0) {
        const ProgramWords::Word &found = m_words.at(known);
        m_tokens.append({found.kind, found.wordClass, word, known});
    } else if (isNumeric(at(word))) {
        m_tokens.append({TokenKind::Number, WordClass::Other, word, -1});
    } else {
        return false;
    }
    return true;
}

// "x=1" is meant for three words, whatever x is; "AHU-2" only where AHU is a name.
bool LineDivision::takeDivided(TextPiece word)
{
    const QStringView text = at(word);
    const QList<TextPiece> pieces = dividedAtOperators(word);
    if (pieces.size() < 2)
        return false;
    const bool isMeant = std::any_of(text.begin(), text.end(), isCompared) ||
                         std::all_of(pieces.cbegin(), pieces.cend(),
                                     [this](const TextPiece &piece) { return isKnown(piece); });
    if (!isMeant)
        return false;
    m_problems.append({Fault::MissingBlanks, word, text.toString()});
    for (const TextPiece &piece : pieces) {
        if (!takeKnown(piece))
            m_tokens.append({TokenKind::Unknown, WordClass::Other, piece, -1});
    }
    return true;
}

QList<TextPiece> LineDivision::dividedAtOperators(TextPiece word) const
{
    QList<TextPiece> pieces;
    qint32 begin = word.start;
    for (qint32 i = word.start; i < word.end(); ++i) {
        const bool isUnequal = m_line[i] == u'!' && i + 1 < word.end() && m_line[i + 1] == u'=';
        if (!isOperator(m_line[i]) && !isUnequal)
            continue;
        if (i > begin)
            pieces.append({begin, i - begin});
        const bool isPair =
            isUnequal || (isCompared(m_line[i]) && i + 1 < word.end() && m_line[i + 1] == u'=');
        pieces.append({i, isPair ? 2 : 1});
        i += isPair ? 1 : 0;
        begin = i + 1;
    }
    if (begin < word.end())
        pieces.append({begin, word.end() - begin});
    return pieces;
}

bool LineDivision::isKnown(TextPiece word) const
{
    return m_words.find(at(word)) >= 0 || isNumeric(at(word));
}

} // namespace

QList<ProgramToken> tokensOf(QStringView line, const ProgramWords &words,
                             QList<LineProblem> &problems)
{
    if (IsCommentLine(line))
        return {};
    return LineDivision(line, words, problems).tokens();
}

} // namespace ORVTListview
