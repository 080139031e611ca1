#include "editor/rules/colouring/ReplacedLines.h"

#include "base/TextRules.h"
#include "editor/rules/language/CodeText.h"

#include <algorithm>

namespace ORVTListview {
namespace {

constexpr QStringView lineBreak = u"\r\n";

qsizetype endOfLine(QStringView text, qsizetype from)
{
    const qsizetype end = text.indexOf(lineBreak, from);
    return end < 0 ? text.size() : end;
}

qsizetype firstWord(QStringView text, qsizetype from)
{
    while (from < text.size() && isBlank(text[from]))
        ++from;
    return from;
}

// As much of a line as tells whether it is a comment.
class LineBeginning
{
public:
    bool isEmpty() const { return m_text.isEmpty(); }
    bool isComment() const { return IsCommentLine(m_text); }

    void append(QStringView text)
    {
        constexpr qsizetype enough = 4;
        if (isEmpty())
            text = text.sliced(firstWord(text, 0));
        m_text += text.first(std::min(text.size(), enough - m_text.size()));
    }

private:
    QString m_text; // without leading blanks
};

// A program in which pieces are replaced, from front to back.
class Replacing
{
public:
    Replacing(QStringView program, QStringView text)
        : m_program(program)
        , m_text(text)
    {
    }

    ReplacedPiece replace(const TextPiece &piece)
    {
        if (piece.start > m_lineEnd)
            beginLineOf(piece.start);
        const bool wasComment = m_wasComment;
        m_line.append(m_program.sliced(m_done, piece.start - m_done));
        m_done = piece.end();
        if (m_done > m_lineEnd)
            joinLineOf(m_done);
        return {put(), wasComment || m_wasComment};
    }

private:
    void beginLineOf(qsizetype place)
    {
        const qsizetype before = m_program.first(place).lastIndexOf(lineBreak);
        m_done = before < 0 ? 0 : before + lineBreak.size();
        m_line = {};
        m_lineEnd = endOfLine(m_program, place);
        m_wasComment = IsCommentLine(m_program.sliced(m_done, m_lineEnd - m_done));
    }

    void joinLineOf(qsizetype place)
    {
        const qsizetype before = m_program.first(place).lastIndexOf(lineBreak);
        const qsizetype start = before + lineBreak.size();
        m_lineEnd = endOfLine(m_program, place);
        m_wasComment = IsCommentLine(m_program.sliced(start, m_lineEnd - start));
    }

    // Puts the text in and tells whether the line that it begins on is a comment.
    bool put()
    {
        const qsizetype last = m_text.lastIndexOf(lineBreak);
        LineBeginning begun = m_line;
        begun.append(m_text.first(endOfLine(m_text, 0)));
        if (last >= 0) {
            m_line = {};
            m_line.append(m_text.sliced(last + lineBreak.size()));
            return begun.isComment();
        }
        m_line = begun;
        begun.append(restOfLine());
        return begun.isComment();
    }

    // Leading blanks are looked at once only, however many pieces stand among them.
    QStringView restOfLine()
    {
        if (!m_line.isEmpty())
            return m_program.sliced(m_done, m_lineEnd - m_done);
        if (m_word < m_done)
            m_word = firstWord(m_program, m_done);
        const qsizetype from = std::min(m_word, m_lineEnd);
        return m_program.sliced(from, m_lineEnd - from);
    }

    QStringView m_program;
    QStringView m_text;
    LineBeginning m_line;      // as it stands after the replacements so far
    qsizetype m_done = 0;      // how far the program has gone into it
    qsizetype m_lineEnd = -1;  // of the program's line
    qsizetype m_word = -1;     // the first character behind m_done that is no blank
    bool m_wasComment = false; // the program's line
};

} // namespace

QList<ReplacedPiece> replacedPieces(QStringView program, const QList<TextPiece> &pieces,
                                    QStringView text)
{
    QList<ReplacedPiece> result;
    result.reserve(pieces.size());
    Replacing replacing(program, text);
    for (const TextPiece &piece : pieces)
        result.append(replacing.replace(piece));
    return result;
}

} // namespace ORVTListview
