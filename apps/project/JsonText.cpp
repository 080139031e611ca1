#include "project/JsonText.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

namespace ORVTListview {
namespace {

// As JSON writes it, with its quotes.
QByteArray quoted(const QString &text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return array.sliced(1, array.size() - 2);
}

} // namespace

bool JsonText::replace(const QString &array, qsizetype element, const QString &member,
                       const QString &text)
{
    m_position = 0;
    if (!enterMember(array) || !enterElement(element) || !enterMember(member))
        return false;
    skipBlanks();
    const qsizetype start = m_position;
    if (start >= m_json.size() || m_json[start] != '"')
        return false;
    skipString();
    m_json.replace(start, m_position - start, quoted(text));
    return true;
}

void JsonText::skipBlanks()
{
    while (m_position < m_json.size() && QByteArrayView(" \t\r\n").contains(m_json[m_position]))
        ++m_position;
}

bool JsonText::take(char character)
{
    skipBlanks();
    if (m_position >= m_json.size() || m_json[m_position] != character)
        return false;
    ++m_position;
    return true;
}

void JsonText::skipString()
{
    for (++m_position; m_position < m_json.size() && m_json[m_position] != '"'; ++m_position) {
        if (m_json[m_position] == '\\')
            ++m_position;
    }
    ++m_position;
}

QString JsonText::takeString()
{
    skipBlanks();
    const qsizetype start = m_position;
    skipString();
    const QByteArray array = '[' + m_json.sliced(start, m_position - start) + ']';
    return QJsonDocument::fromJson(array).array().first().toString();
}

// Whole objects and arrays count as one value.
void JsonText::skipValue()
{
    skipBlanks();
    int depth = 0;
    do {
        const char character = m_json[m_position];
        if (character == '"') {
            skipString();
            continue;
        }
        if (depth == 0 && QByteArrayView(",]}").contains(character))
            return;
        if (character == '{' || character == '[')
            ++depth;
        else if (character == '}' || character == ']')
            --depth;
        ++m_position;
    } while (m_position < m_json.size() &&
             (depth > 0 || !QByteArrayView(",]}").contains(m_json[m_position])));
}

bool JsonText::enterMember(const QString &name)
{
    if (!take('{'))
        return false;
    do {
        skipBlanks();
        if (m_position >= m_json.size() || m_json[m_position] != '"')
            return false;
        const QString key = takeString();
        take(':');
        if (key == name)
            return true;
        skipValue();
    } while (take(','));
    return false;
}

bool JsonText::enterElement(qsizetype index)
{
    if (!take('['))
        return false;
    for (; index > 0; --index) {
        skipValue();
        if (!take(','))
            return false;
    }
    return true;
}

} // namespace ORVTListview
