#include "project/JsonParser.h"

#include "project/ProjectTexts.h"
#include "project/TextFile.h"

#include <QtCore/QJsonParseError>
#include <QtCore/QStringConverter>

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

JsonNode JsonParser::parse(const QByteArray &json)
{
    JsonParser parser(json);
    if (json.startsWith(byteOrderMark))
        parser.m_at = byteOrderMark.size();
    JsonNode root = parser.value();
    parser.skipBlanks();
    if (parser.m_at < json.size())
        parser.fail(QJsonParseError::GarbageAtEnd);
    return root;
}

JsonNode JsonParser::value()
{
    skipBlanks();
    JsonNode node;
    node.start = m_at;
    if (take('{'))
        readObject(node);
    else if (take('['))
        readArray(node);
    else if (next() == '"')
        readText(node);
    else if (next() == '-' || (next() >= '0' && next() <= '9'))
        readNumber(node);
    else
        readWord(node);
    node.end = m_at;
    return node;
}

void JsonParser::readObject(JsonNode &object)
{
    enter();
    object.kind = JsonNode::Kind::Object;
    QSet<QString> names;
    if (!takeBehindBlanks('}')) {
        do {
            readMember(object, names);
        } while (takeBehindBlanks(','));
        if (!take('}'))
            fail(QJsonParseError::UnterminatedObject);
    }
    --m_depth;
}

void JsonParser::readMember(JsonNode &object, QSet<QString> &names)
{
    skipBlanks();
    const qsizetype start = m_at;
    if (next() != '"')
        fail(QJsonParseError::MissingObject);
    const QString name = string();
    if (names.contains(name))
        throw JsonFault{start, ProjectTexts::tr("\"%1\" stands there twice").arg(name)};
    names.insert(name);
    if (!takeBehindBlanks(':'))
        fail(QJsonParseError::MissingNameSeparator);
    object.names.append(name);
    object.items.push_back(value());
}

void JsonParser::readArray(JsonNode &array)
{
    enter();
    array.kind = JsonNode::Kind::Array;
    if (!takeBehindBlanks(']')) {
        do {
            array.items.push_back(value());
        } while (takeBehindBlanks(','));
        if (!take(']'))
            fail(QJsonParseError::UnterminatedArray);
    }
    --m_depth;
}

void JsonParser::readText(JsonNode &node)
{
    node.kind = JsonNode::Kind::Text;
    node.text = string();
}

void JsonParser::readNumber(JsonNode &node)
{
    take('-');
    if (!take('0'))
        skipDigits();
    if (take('.'))
        skipDigits();
    if (take('e') || take('E')) {
        if (!take('+'))
            take('-');
        skipDigits();
    }
    bool isNumber = false;
    node.kind = JsonNode::Kind::Number;
    node.number = m_json.sliced(node.start, m_at - node.start).toDouble(&isNumber);
    if (!isNumber)
        fail(QJsonParseError::IllegalNumber);
}

// At least one.
void JsonParser::skipDigits()
{
    const qsizetype start = m_at;
    while (next() >= '0' && next() <= '9')
        ++m_at;
    if (m_at == start)
        fail(QJsonParseError::IllegalNumber);
}

void JsonParser::readWord(JsonNode &node)
{
    const bool isTrue = takeWord("true");
    if (isTrue || takeWord("false")) {
        node.kind = JsonNode::Kind::Boolean;
        node.boolean = isTrue;
    } else if (!takeWord("null")) {
        fail(QJsonParseError::IllegalValue);
    }
}

QString JsonParser::string()
{
    QString text;
    take('"');
    while (!take('"')) {
        if (m_at >= m_json.size())
            fail(QJsonParseError::UnterminatedString);
        if (take('\\'))
            text += escapedCharacter();
        else
            text += plainText();
    }
    return text;
}

QString JsonParser::plainText()
{
    const qsizetype start = m_at;
    while (m_at < m_json.size() && next() != '"' && next() != '\\')
        ++m_at;
    const QByteArrayView bytes = QByteArrayView(m_json).sliced(start, m_at - start);
    if (!QUtf8StringView(bytes).isValidUtf8())
        throw JsonFault{start, errorText(QJsonParseError::IllegalUTF8String)};
    // Otherwise a byte order mark, which is a character here, would be taken away.
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::ConvertInitialBom);
    return decoder.decode(bytes);
}

QChar JsonParser::escapedCharacter()
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
QChar JsonParser::hexCharacter()
{
    constexpr QByteArrayView hexDigits = "0123456789abcdefABCDEF";
    const QByteArray digits = m_json.mid(m_at, 4);
    const bool isHex = digits.size() == 4 && std::ranges::all_of(digits, [&](char digit) {
                           return hexDigits.contains(digit);
                       });
    if (!isHex)
        fail(QJsonParseError::IllegalEscapeSequence);
    m_at += 4;
    return QChar(digits.toUShort(nullptr, 16));
}

void JsonParser::enter()
{
    constexpr int deepest = 1024; // values in one another
    if (++m_depth > deepest)
        fail(QJsonParseError::DeepNesting);
}

void JsonParser::skipBlanks()
{
    while (m_at < m_json.size() && QByteArrayView(" \t\r\n").contains(m_json[m_at]))
        ++m_at;
}

bool JsonParser::take(char character)
{
    const bool isThere = m_at < m_json.size() && m_json[m_at] == character;
    m_at += isThere ? 1 : 0;
    return isThere;
}

bool JsonParser::takeBehindBlanks(char character)
{
    skipBlanks();
    return take(character);
}

bool JsonParser::takeWord(QByteArrayView word)
{
    const bool isThere = QByteArrayView(m_json).sliced(m_at).startsWith(word);
    m_at += isThere ? word.size() : 0;
    return isThere;
}

void JsonParser::fail(QJsonParseError::ParseError error) const
{
    throw JsonFault{m_at, errorText(error)};
}

} // namespace ORVTListview
