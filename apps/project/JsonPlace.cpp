#include "project/JsonPlace.h"

#include "project/JsonParser.h"
#include "project/ProjectError.h"
#include "project/ProjectTexts.h"
#include "project/TextFile.h"

#include "base/Utf8Text.h"

#include <cmath>
#include <limits>
#include <utility>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

[[noreturn]] void failAt(const QString &file, const QString &place, const QString &reason)
{
    const QString where = place.isEmpty() ? file : ProjectTexts::about(file, place);
    throw Error(ProjectNotValid, u"readProject"_s, ProjectTexts::about(where, reason));
}

// Columns count characters, of which the file's byte order mark is none.
QString lineAndColumn(const QByteArray &json, qsizetype offset)
{
    QByteArrayView before = QByteArrayView(json).first(offset);
    if (before.startsWith(byteOrderMark))
        before = before.sliced(byteOrderMark.size());
    const QString line = utf8Text(before.sliced(before.lastIndexOf('\n') + 1));
    return ProjectTexts::tr("line %1, column %2")
        .arg(QString::number(before.count('\n') + 1), QString::number(line.size() + 1));
}

QString expectation(JsonNode::Kind kind)
{
    switch (kind) {
    case JsonNode::Kind::Object:
        return ProjectTexts::tr("an object is expected");
    case JsonNode::Kind::Array:
        return ProjectTexts::tr("an array is expected");
    case JsonNode::Kind::Text:
        return ProjectTexts::tr("a text is expected");
    case JsonNode::Kind::Boolean:
        return ProjectTexts::tr("true or false is expected");
    case JsonNode::Kind::Number:
    case JsonNode::Kind::Null:
        break;
    }
    return ProjectTexts::tr("a number is expected");
}

std::shared_ptr<const JsonTree> parsed(const QByteArray &json, const QString &fileName)
{
    try {
        return std::make_shared<const JsonTree>(JsonParser::parse(json));
    } catch (const JsonFault &fault) {
        failAt(fileName, lineAndColumn(json, fault.offset), fault.reason);
    }
}

} // namespace

JsonPlace::JsonPlace(QString file, Root root, QString place, JsonNode node)
    : m_file(std::move(file))
    , m_root(std::move(root))
    , m_place(std::move(place))
    , m_node(node)
{
}

JsonPlace JsonPlace::parse(const QByteArray &json, const QString &fileName)
{
    const Root root = parsed(json, fileName);
    return {fileName, root, {}, JsonNode::rootOf(*root)};
}

const JsonPlace &JsonPlace::required() const
{
    if (!isPresent())
        fail(ProjectTexts::tr("is missing"));
    return *this;
}

JsonPlace JsonPlace::member(const QString &name) const
{
    expect(JsonNode::Kind::Object);
    const QString place = m_place.isEmpty() ? name : u"%1, %2"_s.arg(m_place, name);
    return below(place, isPresent() ? m_node.member(name) : JsonNode());
}

void JsonPlace::allowOnly(const QStringList &members) const
{
    expect(JsonNode::Kind::Object);
    for (JsonNode node = firstInside(); node.isThere(); node = node.next()) {
        if (!members.contains(node.name()))
            member(node.name()).fail(ProjectTexts::tr("is not known here"));
    }
}

JsonPlace JsonPlace::item(qsizetype index) const
{
    expect(JsonNode::Kind::Array);
    JsonNode node = index < 0 ? JsonNode() : firstInside();
    for (qsizetype i = 0; i < index && node.isThere(); ++i)
        node = node.next();
    return element(index, node);
}

QList<JsonPlace> JsonPlace::items(qsizetype atMost) const
{
    expect(JsonNode::Kind::Array);
    QList<JsonPlace> result;
    for (JsonNode node = firstInside(); node.isThere(); node = node.next()) {
        if (result.size() == atMost)
            fail(ProjectTexts::tr("holds more than %1 elements").arg(atMost));
        result.append(element(result.size(), node));
    }
    return result;
}

QString JsonPlace::text(const QString &absent) const
{
    if (!isPresent())
        return absent;
    expect(JsonNode::Kind::Text);
    return m_node.text();
}

bool JsonPlace::boolean(bool absent) const
{
    if (!isPresent())
        return absent;
    expect(JsonNode::Kind::Boolean);
    return m_node.boolean();
}

qint32 JsonPlace::integer(qint32 absent) const
{
    using Limits = std::numeric_limits<qint32>;
    if (!isPresent())
        return absent;
    const double value = isNumber() ? m_node.number() : std::nan("");
    if (!(value >= Limits::min() && value <= Limits::max()) || value != std::floor(value))
        fail(ProjectTexts::tr("a whole number of 32 bits is expected"));
    return static_cast<qint32>(value);
}

double JsonPlace::number() const
{
    required().expect(JsonNode::Kind::Number);
    return m_node.number();
}

void JsonPlace::fail(const QString &reason) const
{
    failAt(m_file, m_place, reason);
}

JsonPlace JsonPlace::below(const QString &place, JsonNode node) const
{
    return {m_file, m_root, place, node};
}

JsonPlace JsonPlace::element(qsizetype index, JsonNode node) const
{
    return below(u"%1 #%2"_s.arg(m_place, QString::number(index + 1)), node);
}

JsonNode JsonPlace::firstInside() const
{
    return isPresent() ? m_node.first() : JsonNode();
}

void JsonPlace::expect(JsonNode::Kind kind) const
{
    if (isPresent() && !isA(kind))
        fail(expectation(kind));
}

} // namespace ORVTListview
