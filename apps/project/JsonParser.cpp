#include "project/JsonParser.h"

#include "project/ProjectTexts.h"
#include "project/TextFile.h"

#include <limits>
#include <utility>

namespace ORVTListview {

JsonTree JsonParser::parse(const QByteArray &json)
{
    if (std::cmp_greater(json.size(), std::numeric_limits<quint32>::max()))
        JsonTokens(json).fail(QJsonParseError::DocumentTooLarge);
    JsonParser parser(json);
    parser.readValue(0);
    parser.m_tokens.skipBlanks();
    if (!parser.m_tokens.isAtEnd())
        parser.m_tokens.fail(QJsonParseError::GarbageAtEnd);
    return parser.m_tree;
}

JsonParser::JsonParser(const QByteArray &json)
    : m_tree{json, {}}
    , m_tokens(json, json.startsWith(byteOrderMark) ? byteOrderMark.size() : 0)
{
}

void JsonParser::readValue(qsizetype name)
{
    m_tokens.skipBlanks();
    const qsizetype index = m_tree.values.size();
    m_tree.values.append({static_cast<quint32>(name), static_cast<quint32>(m_tokens.at()), 0, 0});
    readContent();
    JsonTree::Value &value = m_tree.values[index];
    value.end = static_cast<quint32>(m_tokens.at());
    value.behind = static_cast<quint32>(m_tree.values.size());
}

void JsonParser::readContent()
{
    const char next = m_tokens.next();
    if (m_tokens.take('{'))
        readObject();
    else if (m_tokens.take('['))
        readArray();
    else if (next == '"')
        m_tokens.takeString();
    else if (next == '-' || (next >= '0' && next <= '9'))
        m_tokens.takeNumber();
    else
        readWord();
}

void JsonParser::readObject()
{
    enter();
    QSet<QString> names;
    if (!m_tokens.takeBehindBlanks('}')) {
        do {
            readMember(names);
        } while (m_tokens.takeBehindBlanks(','));
        if (!m_tokens.take('}'))
            m_tokens.fail(QJsonParseError::UnterminatedObject);
    }
    --m_depth;
}

void JsonParser::readMember(QSet<QString> &names)
{
    m_tokens.skipBlanks();
    const qsizetype start = m_tokens.at();
    if (m_tokens.next() != '"')
        m_tokens.fail(QJsonParseError::MissingObject);
    const QString name = m_tokens.takeString();
    if (names.contains(name))
        throw JsonFault{start, ProjectTexts::tr("\"%1\" stands there twice").arg(name)};
    names.insert(name);
    if (!m_tokens.takeBehindBlanks(':'))
        m_tokens.fail(QJsonParseError::MissingNameSeparator);
    readValue(start);
}

void JsonParser::readArray()
{
    enter();
    if (!m_tokens.takeBehindBlanks(']')) {
        do {
            readValue(0);
        } while (m_tokens.takeBehindBlanks(','));
        if (!m_tokens.take(']'))
            m_tokens.fail(QJsonParseError::UnterminatedArray);
    }
    --m_depth;
}

void JsonParser::readWord()
{
    if (!m_tokens.takeWord("true") && !m_tokens.takeWord("false") && !m_tokens.takeWord("null"))
        m_tokens.fail(QJsonParseError::IllegalValue);
}

void JsonParser::enter()
{
    constexpr int deepest = 1024; // values in one another
    if (++m_depth > deepest)
        m_tokens.fail(QJsonParseError::DeepNesting);
}

} // namespace ORVTListview
