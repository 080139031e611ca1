#pragma once

#include "project/JsonNode.h"

#include <QtCore/QByteArray>
#include <QtCore/QJsonParseError>
#include <QtCore/QSet>

namespace ORVTListview {

// What is wrong with a JSON text, and at which byte.
struct JsonFault
{
    qsizetype offset;
    QString reason;
};

// Reads a JSON text (RFC 8259) in UTF-8, with or without a byte order mark, which
// belongs to the places. The toolkit's reader knows no places and takes the last of
// two members of one name; here the second is a fault.
class JsonParser
{
public:
    // The root, whatever kind of value it is. Throws JsonFault.
    static JsonNode parse(const QByteArray &json);

private:
    explicit JsonParser(const QByteArray &json)
        : m_json(json)
    {
    }

    JsonNode value();
    void readObject(JsonNode &object);
    void readMember(JsonNode &object, QSet<QString> &names);
    void readArray(JsonNode &array);
    void readText(JsonNode &node);
    void readNumber(JsonNode &node);
    void readWord(JsonNode &node);
    QString string();
    QString plainText();
    QChar escapedCharacter();
    QChar hexCharacter();

    void enter();
    void skipBlanks();
    void skipDigits();
    char next() const { return m_at < m_json.size() ? m_json[m_at] : '\0'; }
    bool take(char character);
    bool takeBehindBlanks(char character);
    bool takeWord(QByteArrayView word);
    [[noreturn]] void fail(QJsonParseError::ParseError error) const;

    const QByteArray &m_json;
    qsizetype m_at = 0;
    int m_depth = 0;
};

} // namespace ORVTListview
