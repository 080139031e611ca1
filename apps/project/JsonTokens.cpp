#include "project/JsonTokens.h"

#include "base/Utf8Text.h"

#include <algorithm>

namespace ORVTListview {
namespace {

// The toolkit's words, which are translated.
QString errorText(QJsonParseError::ParseError error)
{
    QJsonParseError known;
    known.error = error;
    return known.errorString();
}

} // namespace

void JsonTokens::skipBlanks()
{
    while (!isAtEnd() && QByteArrayView(" \t\r\n").contains(next()))
        ++m_at;
}

bool JsonTokens::take(char character)
{
    const bool isThere = !isAtEnd() && next() == character;
    m_at += isThere ? 1 : 0;
    return isThere;
}

bool JsonTokens::takeBehindBlanks(char character)
{
    skipBlanks();
    return take(character);
}

bool JsonTokens::takeWord(QByteArrayView word)
{
    const bool isThere = m_json.sliced(m_at).startsWith(word);
    m_at += isThere ? word.size() : 0;
    return isThere;
}

void JsonTokens::takeNumber()
{
    const qsizetype start = m_at;
    take('-');
    if (!take('0'))
        takeDigits();
    if (take('.'))
        takeDigits();
    if (take('e') || take('E')) {
        if (!take('+'))
            take('-');
        takeDigits();
    }
    bool isNumber = false;
    static_cast<void>(m_json.sliced(start, m_at - start).toDouble(&isNumber));
    if (!isNumber) // too large
        fail(QJsonParseError::IllegalNumber);
}

// At least one.
void JsonTokens::takeDigits()
{
    const qsizetype start = m_at;
    while (next() >= '0' && next() <= '9')
        ++m_at;
    if (m_at == start)
        fail(QJsonParseError::IllegalNumber);
}

QString JsonTokens::takeString()
{
    QString text;
    take('"');
    while (!take('"')) {
        if (isAtEnd())
            fail(QJsonParseError::UnterminatedString);
        if (take('\\'))
            text += escapedCharacter();
        else
            text += plainText();
    }
    return text;
}

QString JsonTokens::plainText()
{
    const qsizetype start = m_at;
    while (!isAtEnd() && next() != '"' && next() != '\\')
        ++m_at;
    const QByteArrayView bytes = m_json.sliced(start, m_at - start);
    if (!QUtf8StringView(bytes).isValidUtf8())
        throw JsonFault{start, errorText(QJsonParseError::IllegalUTF8String)};
    return utf8Text(bytes);
}

QChar JsonTokens::escapedCharacter()
{
    constexpr QByteArrayView letters = "\"\\/bfnrt";
    constexpr QByteArrayView meanings = "\"\\/\b\f\n\r\t";
    if (take('u'))
        return hexCharacter();
    const qsizetype letter = next() == '\0' ? -1 : letters.indexOf(next());
    if (letter < 0)
        fail(QJsonParseError::IllegalEscapeSequence);
    ++m_at;
    return QLatin1Char(meanings[letter]);
}

// Half a pair stands for itself, as the toolkit takes it.
QChar JsonTokens::hexCharacter()
{
    constexpr QByteArrayView hexDigits = "0123456789abcdefABCDEF";
    const QByteArrayView digits = m_json.sliced(m_at, std::min<qsizetype>(4, m_json.size() - m_at));
    const bool isHex = digits.size() == 4 && std::ranges::all_of(digits, [&](char digit) {
                           return hexDigits.contains(digit);
                       });
    if (!isHex)
        fail(QJsonParseError::IllegalEscapeSequence);
    m_at += 4;
    return QChar(digits.toUShort(nullptr, 16));
}

void JsonTokens::fail(QJsonParseError::ParseError error) const
{
    throw JsonFault{m_at, errorText(error)};
}

} // namespace ORVTListview
