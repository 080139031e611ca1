// JSON texts of any bytes: our parser takes what the toolkit's takes and reads the same;
// property bags give each value back as the kind that is asked for.

#include "fuzz/FuzzBytes.h"

#include "project/JsonParser.h"
#include <ORVTListview/JsonPropertyBag.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <optional>

using namespace ORVTListview;
using namespace ORVTListview::Fuzzing;

namespace {

std::optional<JsonNode> parsed(const QByteArray &json)
{
    try {
        return JsonParser::parse(json);
    } catch (const JsonFault &fault) {
        demand(fault.offset >= 0 && fault.offset <= json.size(), "a fault has a place");
        demand(!fault.reason.isEmpty(), "and a reason");
        return std::nullopt;
    }
}

void compare(const JsonNode &node, const QJsonValue &value);

// The toolkit takes a byte order mark that begins a text or a name away, ours does not.
bool hasMark(const QString &text)
{
    return text.startsWith(QChar(QChar::ByteOrderMark));
}

void compareMembers(const JsonNode &node, const QJsonObject &object)
{
    if (std::any_of(node.names.begin(), node.names.end(), hasMark))
        return;
    demand(object.size() == node.names.size(), "an object has the members");
    for (qsizetype i = 0; i < node.names.size(); ++i)
        compare(node.items[static_cast<std::size_t>(i)], object.value(node.names[i]));
}

void compare(const JsonNode &node, const QJsonValue &value)
{
    demand(node.start >= 0 && node.start < node.end, "a value has a place");
    switch (node.kind) {
    case JsonNode::Kind::Null:
        demand(value.isNull(), "null");
        break;
    case JsonNode::Kind::Boolean:
        demand(value.isBool() && value.toBool() == node.boolean, "true or false");
        break;
    case JsonNode::Kind::Number:
        demand(value.isDouble() && value.toDouble() == node.number, "a number");
        break;
    case JsonNode::Kind::Text:
        demand(value.isString() &&
                   (value.toString() == node.text ||
                    (hasMark(node.text) && value.toString() == node.text.sliced(1))),
               "a text");
        break;
    case JsonNode::Kind::Array:
        demand(value.toArray().size() == qsizetype(node.items.size()), "an array has the elements");
        for (std::size_t i = 0; i < node.items.size(); ++i)
            compare(node.items[i], value.toArray().at(qsizetype(i)));
        break;
    case JsonNode::Kind::Object:
        compareMembers(node, value.toObject());
        break;
    }
}

void checkBag(const QJsonObject &object)
{
    JsonPropertyBag bag(object);
    const QVariant defaults[] = {true, qint16(7), 8, qint64(9), 1.5F, 2.5, QStringLiteral("d")};
    for (auto member = object.begin(); member != object.end(); ++member) {
        if (object.value(member.key()) != member.value())
            continue; // the toolkit has taken a byte order mark from its name
        for (const QVariant &Default : defaults) {
            const QVariant read = bag.ReadProperty(member.key(), Default);
            demand(read.metaType() == Default.metaType(), "a property has the kind of its default");
            JsonPropertyBag copy;
            copy.WriteProperty(member.key(), read, Default);
            demand(copy.ReadProperty(member.key(), Default) == read, "what is written is read");
        }
        demand(bag.ReadProperty(member.key(), QVariant()) == member.value().toVariant() ||
                   member.value().isNull(),
               "without a default it is what is kept");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray json(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const std::optional<JsonNode> root = parsed(json);
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (root && (root->kind == JsonNode::Kind::Object || root->kind == JsonNode::Kind::Array)) {
        demand(!document.isNull(), "what our parser takes the toolkit's takes");
        compare(*root,
                document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object()));
    }
    if (document.isObject())
        checkBag(document.object());
    return 0;
}
