#include "editor/rules/colouring/ColourEngine.h"

#include "base/TextSearch.h"
#include "editor/rules/language/CodeText.h"
#include "shared/texts/TextTable.h"

#include <QtCore/QVarLengthArray>

namespace ORVTListview {
namespace {

bool hasBlankBeforeBracket(QStringView line)
{
    qsizetype bracket = line.indexOf(u')');
    while (bracket >= 0 && !(bracket > 0 && line[bracket - 1] == u' '))
        bracket = line.indexOf(u')', bracket + 1);
    return bracket >= 0;
}

// Moves a word's offset in a normalised line back to the line as it was given.
class OffsetShift final : public ColourSink
{
public:
    OffsetShift(QStringView line, ColourSink &target)
        : m_target(target)
    {
        m_origins.resize(line.size());
        qsizetype *next = m_origins.data();
        qsizetype blanks = 0;
        for (qsizetype i = 0; i < line.size(); ++i) {
            if (line[i] == u')')
                next -= blanks;
            *next++ = i;
            blanks = line[i] == u' ' ? blanks + 1 : 0;
        }
    }

    void run(const ColourRun &run) override
    {
        const qsizetype first = m_origins[run.offset];
        const qsizetype last = m_origins[run.offset + run.length - 1];
        m_target.run({first, last - first + 1, run.colourIndex, run.shown});
    }
    void blank() override { m_target.blank(); }
    void tab() override { m_target.tab(); }
    void lineEnd() override { m_target.lineEnd(); }

private:
    ColourSink &m_target;
    QVarLengthArray<qsizetype, 256> m_origins;
};

// Only a token that no line was split for holds any.
void trimBlanks(QStringView &word, qsizetype &offset)
{
    while (word.endsWith(u' '))
        word.chop(1);
    for (; word.startsWith(u' '); ++offset)
        word = word.sliced(1);
}

} // namespace

ColourSink::~ColourSink() = default;

ColourEngine::ColourEngine(const CodeWordList &words, MessageService &messages)
    : m_words(words.index())
    , m_messages(messages)
{
}

bool ColourEngine::isForThreads() const
{
    m_words.findExact({}); // puts them in order
    return !m_words.isEmpty();
}

void ColourEngine::colourText(QStringView text, bool firstLineIsComment, ColourSink &sink) const
{
    const MessageBatch oneBox(m_messages);
    colourLines(text, firstLineIsComment, sink);
}

void ColourEngine::colourLines(QStringView text, bool firstLineIsComment, ColourSink &sink) const
{
    if (text.isEmpty())
        return;
    qsizetype from = 0;
    while (true) {
        const qsizetype found = findCrLf(text, from);
        const qsizetype end = found < 0 ? text.size() : found;
        const QStringView line = text.sliced(from, end - from);
        const bool isComment = (firstLineIsComment && from == 0) || IsCommentLine(line);
        if (isComment && !line.isEmpty())
            sink.run({0, line.size(), CommentColour, line});
        else if (!line.isEmpty())
            colourLine(line, sink);
        if (found < 0)
            return;
        sink.lineEnd();
        from = found + 2;
    }
}

void ColourEngine::colourLine(QStringView line, ColourSink &sink) const
{
    if (!hasBlankBeforeBracket(line)) {
        colourTokens(line, sink);
        return;
    }
    const QString normalised = NormaliseClosingParens(line);
    OffsetShift shift(line, sink);
    colourTokens(normalised, shift);
}

// Tokens are short: looking at each character is faster than a search for the next
// blank and another for a tab.
void ColourEngine::colourTokens(QStringView line, ColourSink &sink) const
{
    qsizetype from = 0;
    bool hasTab = false;
    for (qsizetype i = 0; i <= line.size(); ++i) {
        const bool isEnd = i == line.size();
        if (!isEnd && line[i] != u' ') {
            hasTab = hasTab || line[i] == u'\t';
            continue;
        }
        const QStringView token = line.sliced(from, i - from);
        if (hasTab)
            colourTabbed(token, from, sink);
        else
            colourWord(token, from, sink);
        if (!isEnd)
            sink.blank();
        from = i + 1;
        hasTab = false;
    }
}

void ColourEngine::colourToken(QStringView token, qsizetype offset, ColourSink &sink) const
{
    if (token.contains(u'\t'))
        colourTabbed(token, offset, sink);
    else
        colourWord(token, offset, sink);
}

void ColourEngine::colourTabbed(QStringView token, qsizetype offset, ColourSink &sink) const
{
    reportEmptyList();
    // Only a tab that leaves an empty piece counts, and of a token of nothing but
    // tabs the pieces are one more than the tabs.
    bool hasWord = false;
    qsizetype emptyPieces = 0;
    qsizetype from = 0;
    const auto flushTabs = [&] {
        for (; emptyPieces > 0; --emptyPieces)
            sink.tab();
    };
    while (from <= token.size()) {
        const qsizetype tab = token.indexOf(u'\t', from);
        const qsizetype end = tab < 0 ? token.size() : tab;
        if (end > from) {
            flushTabs();
            colourWord(token.sliced(from, end - from), offset + from, sink);
            hasWord = true;
        } else {
            ++emptyPieces;
        }
        from = end + 1;
    }
    if (!hasWord)
        --emptyPieces;
    flushTabs();
}

void ColourEngine::colourWord(QStringView word, qsizetype offset, ColourSink &sink) const
{
    QVarLengthArray<qsizetype, 16> closing; // where the brackets stood that were taken off
    const auto close = [&] {
        for (auto place = closing.crbegin(); place != closing.crend(); ++place)
            sink.run({*place, 1, AutomaticColour, u" )"});
    };
    while (true) {
        reportEmptyList();
        if (word.isEmpty())
            return;
        if (tryListedWord(word, offset, sink))
            return close();
        if (word.front() == u'(') {
            const bool isLast = word.size() == 1;
            sink.run({offset, 1, AutomaticColour, isLast ? u"(" : u"( "});
            word = word.sliced(1);
            ++offset;
            if (isLast)
                return close();
        } else if (word.back() == u')') {
            word.chop(1);
            closing.append(offset + word.size());
            trimBlanks(word, offset);
            if (word.isEmpty())
                return close();
        } else {
            sink.run({offset, word.size(), AutomaticColour, word});
            return close();
        }
    }
}

bool ColourEngine::tryListedWord(QStringView word, qsizetype offset, ColourSink &sink) const
{
    const qsizetype found = m_words.findExact(word);
    if (found < 0)
        return false;
    const WordIndex::Entry &entry = m_words.at(found);
    sink.run({offset, word.size(), entry.data, entry.text});
    return true;
}

void ColourEngine::reportEmptyList() const
{
    if (m_words.isEmpty())
        m_messages.show(
            {Message::Icon::None, QString(), Localise(QStringLiteral("List not found!"))});
}

QString NormaliseClosingParens(QStringView Line)
{
    QString result;
    result.reserve(Line.size());
    for (const QChar c : Line) {
        while (c == u')' && result.endsWith(u' '))
            result.chop(1);
        result.append(c);
    }
    return result;
}

} // namespace ORVTListview
