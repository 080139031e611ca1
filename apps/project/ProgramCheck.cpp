#include "project/ProgramCheck.h"

#include "base/TextRules.h"
#include "editor/rules/language/CodeText.h"
#include "editor/rules/language/PopupWords.h"
#include "editor/rules/language/Vocabulary.h"

#include <algorithm>

namespace ORVTListview {
namespace {

bool isPunctuation(QChar c)
{
    return c == u'(' || c == u')' || c == u',';
}

// Calls take(piece) for what stands between the separators.
template <typename IsSeparator, typename Take>
void splitAt(QStringView text, IsSeparator isSeparator, Take take)
{
    const auto *begin = text.begin();
    while (begin != text.end()) {
        const auto *const end = std::find_if(begin, text.end(), isSeparator);
        if (end != begin)
            take(QStringView(begin, end));
        begin = end == text.end() ? end : end + 1;
    }
}

class ProgramReader
{
public:
    ProgramReader(const Vocabulary &vocabulary, const WordIndex &words)
        : m_vocabulary(vocabulary)
        , m_index(words)
    {
    }

    ProgramReport read(QStringView program);

private:
    void readLine(QStringView line);
    void readText(QStringView text);
    void takeWord(QStringView word);
    void noteUnknown(QStringView word);
    void balance(QStringView word);
    void find(Fault fault, qint32 line, QStringView word);

    struct OpenIf
    {
        qint32 line;
        QString word;
        bool hasElse = false;
    };

    const Vocabulary &m_vocabulary;
    const WordIndex &m_index;
    ProgramReport m_report;
    QList<OpenIf> m_openIfs;
    QStringList m_unknownInLine;
    qint32 m_line = 0;
};

ProgramReport ProgramReader::read(QStringView program)
{
    for (const QStringView line : program.tokenize(u"\r\n")) {
        ++m_line;
        m_unknownInLine.clear();
        if (!IsCommentLine(line))
            readLine(line);
    }
    for (const OpenIf &open : std::as_const(m_openIfs))
        find(Fault::IfWithoutEndif, open.line, open.word);
    std::stable_sort(m_report.findings.begin(), m_report.findings.end(),
                     [](const auto &a, const auto &b) { return a.line < b.line; });
    return std::move(m_report);
}

void ProgramReader::readLine(QStringView line)
{
    splitAt(line, isBlank, [this](QStringView text) { readText(text); });
}

// A name may hold brackets and commas; only where it does not do they divide words.
void ProgramReader::readText(QStringView text)
{
    if (m_index.findExact(text) >= 0)
        takeWord(text);
    else
        splitAt(text, isPunctuation, [this](QStringView word) { takeWord(word); });
}

void ProgramReader::takeWord(QStringView word)
{
    balance(word);
    const qsizetype place = m_index.findExact(word);
    if (place >= 0)
        m_report.words.append({m_line, word.toString(), classOf(m_index.at(place), m_vocabulary)});
    else if (isNumeric(word))
        m_report.words.append({m_line, word.toString(), WordClass::Other});
    else
        noteUnknown(word);
}

void ProgramReader::noteUnknown(QStringView word)
{
    const QString folded = foldedCase(word);
    if (m_unknownInLine.contains(folded))
        return;
    m_unknownInLine.append(folded);
    find(Fault::UnknownName, m_line, word);
}

void ProgramReader::balance(QStringView word)
{
    const auto is = [word](QStringView keyword) { return isSameWord(word, keyword); };
    if (is(u"IF")) {
        m_openIfs.append({m_line, word.toString()});
    } else if (is(u"ENDIF")) {
        if (m_openIfs.isEmpty())
            find(Fault::EndifWithoutIf, m_line, word);
        else
            m_openIfs.removeLast();
    } else if (is(u"ELSE")) {
        if (m_openIfs.isEmpty())
            find(Fault::ElseWithoutIf, m_line, word);
        else if (m_openIfs.last().hasElse)
            find(Fault::SecondElse, m_line, word);
        else
            m_openIfs.last().hasElse = true;
    }
}

void ProgramReader::find(Fault fault, qint32 line, QStringView word)
{
    m_report.findings.append({fault, line, word.toString()});
}

} // namespace

ProgramReport checkProgram(QStringView program, const Vocabulary &vocabulary,
                           const WordIndex &words)
{
    return ProgramReader(vocabulary, words).read(program);
}

} // namespace ORVTListview
