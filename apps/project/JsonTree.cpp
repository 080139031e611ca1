#include "project/JsonTree.h"

#include "project/JsonTokens.h"

namespace ORVTListview {

JsonNode::Kind JsonNode::kind() const
{
    switch (bytes().front()) {
    case '{':
        return Kind::Object;
    case '[':
        return Kind::Array;
    case '"':
        return Kind::Text;
    case 't':
    case 'f':
        return Kind::Boolean;
    case 'n':
        return Kind::Null;
    default:
        return Kind::Number;
    }
}

bool JsonNode::boolean() const
{
    return bytes().front() == 't';
}

double JsonNode::number() const
{
    return bytes().toDouble();
}

QString JsonNode::text() const
{
    return JsonTokens(m_tree->json, start()).takeString();
}

JsonNode JsonNode::first() const
{
    return sibling(m_index + 1, value().behind);
}

JsonNode JsonNode::next() const
{
    return sibling(value().behind, m_last);
}

JsonNode JsonNode::member(const QString &name) const
{
    const QByteArray wanted = name.toUtf8();
    for (JsonNode member = first(); member.isThere(); member = member.next()) {
        const QByteArrayView written = member.writtenName();
        if (written.contains('\\') ? member.name() == name : written == wanted)
            return member;
    }
    return {};
}

QString JsonNode::name() const
{
    return JsonTokens(m_tree->json, value().name).takeString();
}

JsonNode JsonNode::sibling(qsizetype index, qsizetype last) const
{
    return index < last ? JsonNode(m_tree, index, last) : JsonNode();
}

QByteArrayView JsonNode::bytes() const
{
    return QByteArrayView(m_tree->json).sliced(start(), end() - start());
}

// Between its quotes, escapes and all.
QByteArrayView JsonNode::writtenName() const
{
    const QByteArrayView rest = QByteArrayView(m_tree->json).sliced(value().name + 1);
    qsizetype length = 0;
    while (rest[length] != '"')
        length += rest[length] == '\\' ? 2 : 1;
    return rest.first(length);
}

} // namespace ORVTListview
