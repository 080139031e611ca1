#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QJsonParseError>
#include <QtCore/QString>

namespace ORVTListview {

// What is wrong with a JSON text, and at which byte.
struct JsonFault
{
    qsizetype offset;
    QString reason;
};

// The signs, strings and numbers of a JSON text (RFC 8259) in UTF-8, one behind the
// other. What is none throws JsonFault.
class JsonTokens
{
public:
    // The bytes must outlive it.
    explicit JsonTokens(QByteArrayView json, qsizetype at = 0)
        : m_json(json)
        , m_at(at)
    {
    }

    qsizetype at() const { return m_at; }
    bool isAtEnd() const { return m_at >= m_json.size(); }
    char next() const { return isAtEnd() ? '\0' : m_json[m_at]; }

    void skipBlanks();
    bool take(char character);
    bool takeBehindBlanks(char character);
    bool takeWord(QByteArrayView word);
    void takeNumber();

    // The quote must be there.
    QString takeString();

    [[noreturn]] void fail(QJsonParseError::ParseError error) const;

private:
    void takeDigits();
    QString plainText();
    QChar escapedCharacter();
    QChar hexCharacter();

    QByteArrayView m_json;
    qsizetype m_at;
};

} // namespace ORVTListview
