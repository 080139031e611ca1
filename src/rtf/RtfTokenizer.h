#pragma once

#include <QtCore/QStringView>

namespace ORVTListview {

// A piece of an RTF document as it is written, its meaning aside.
struct RtfToken
{
    enum Kind {
        End,        // of the input
        GroupStart, // {
        GroupEnd,   // }
        Text,       // characters that stand for themselves
        Word,       // \name or \nameN
        Symbol,     // \ and a character that is no letter
        Byte,       // \'xx
    };

    Kind kind = End;
    QStringView text = {};   // Text: the characters; Word: the name
    bool hasNumber = false;  // Word
    qint32 number = 0;       // Word: N, saturated; 0 without
    char16_t symbol = u'\0'; // Symbol: the character; Byte: the value
};

// Cuts a document into tokens, in one pass. Raw CR, LF and NUL belong to no token,
// nor does the binary data behind \binN, which ends with the input at the latest.
class RtfTokenizer
{
public:
    // Letters of a longer control word are consumed, its name is cut.
    static constexpr qsizetype maximumNameLength = 32;

    explicit RtfTokenizer(QStringView rtf);

    RtfToken next();

private:
    bool atEnd() const { return m_next == m_end; }
    RtfToken text();
    RtfToken control();
    RtfToken word();
    RtfToken byte();
    void readNumber(RtfToken &token);
    void skip(qint32 units);

    const char16_t *m_next;
    const char16_t *m_end;
};

} // namespace ORVTListview
