#pragma once

#include "base/HouseExport.h"
#include "base/MessageService.h"
#include "editor/rules/colouring/ColourSink.h"
#include "editor/rules/language/CodeWordList.h"

namespace ORVTListview {

// Walks a program once and tells a sink what it consists of. RTF, screen and
// tests are sinks of this one pass, so they cannot disagree.
// Why it is so: docs/decisions/colouring.md.
class ORVT_HOUSE_EXPORT ColourEngine
{
public:
    ColourEngine(const CodeWordList &words, MessageService &messages);

    // Whether several threads may colour lines at the same time from now on: with known
    // words there is nothing to tell the user.
    bool isForThreads() const;

    // Lines are separated by CR LF; a CR or LF alone is a character like any other.
    void colourText(QStringView text, bool firstLineIsComment, ColourSink &sink) const;

    // The same without a batch of messages.
    void colourLines(QStringView text, bool firstLineIsComment, ColourSink &sink) const;

    // A line that is no comment.
    void colourLine(QStringView line, ColourSink &sink) const;

    // A piece of a line without blanks, that stands at the offset in it.
    void colourToken(QStringView token, qsizetype offset, ColourSink &sink) const;

private:
    void colourTokens(QStringView line, ColourSink &sink) const;
    void colourTabbed(QStringView token, qsizetype offset, ColourSink &sink) const;
    void colourWord(QStringView word, qsizetype offset, ColourSink &sink) const;
    bool tryListedWord(QStringView word, qsizetype offset, ColourSink &sink) const;
    void reportEmptyList() const;

    const WordIndex &m_words;
    MessageService &m_messages;
};

// The line with every run of blanks before a closing parenthesis taken out.
QString NormaliseClosingParens(QStringView Line);

} // namespace ORVTListview
