#include "project/JsonParser.h"
#include "support/QtPrinters.h"
#include "support/RandomSeed.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QRandomGenerator>

#include <gtest/gtest.h>

#include <optional>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

std::optional<JsonFault> faultIn(const QByteArray &json)
{
    try {
        JsonParser::parse(json);
    } catch (const JsonFault &fault) {
        return fault;
    }
    return std::nullopt;
}

bool agrees(const JsonNode &node, const QJsonValue &value);

bool elementsAgree(const JsonNode &node, const QJsonArray &array)
{
    qsizetype count = 0;
    JsonNode item = node.first();
    for (; item.isThere() && agrees(item, array.at(count)); item = item.next())
        ++count;
    return !item.isThere() && count == array.size();
}

bool membersAgree(const JsonNode &node, const QJsonObject &object)
{
    qsizetype count = 0;
    JsonNode member = node.first();
    for (; member.isThere() && agrees(member, object[member.name()]); member = member.next())
        ++count;
    return !member.isThere() && count == object.size();
}

// Whether the toolkit has read the same.
bool agrees(const JsonNode &node, const QJsonValue &value)
{
    switch (node.kind()) {
    case JsonNode::Kind::Null:
        return value.isNull();
    case JsonNode::Kind::Boolean:
        return value.isBool() && value.toBool() == node.boolean();
    case JsonNode::Kind::Number:
        return value.isDouble() && value.toDouble() == node.number();
    case JsonNode::Kind::Text:
        return value.isString() && value.toString() == node.text();
    case JsonNode::Kind::Array:
        return value.isArray() && elementsAgree(node, value.toArray());
    case JsonNode::Kind::Object:
        break;
    }
    return value.isObject() && membersAgree(node, value.toObject());
}

// Every value's bytes are that value by themselves.
void expectPlaces(const JsonNode &node, const QByteArray &json)
{
    const QByteArray own = json.sliced(node.start(), node.end() - node.start());
    ASSERT_TRUE(agrees(node, QJsonDocument::fromJson('[' + own + ']').array().at(0)))
        << own.constData();
    for (JsonNode item = node.first(); item.isThere(); item = item.next())
        expectPlaces(item, json);
}

class RandomJson
{
public:
    explicit RandomJson(quint32 seed)
        : m_random(seed)
    {
    }

    int below(int bound) { return m_random.bounded(bound); }

    QString text()
    {
        static const QString letters = u"ab\"\\[]{},:/é\u20ac\n\b\u0001\U0001F600"_s;
        QString made;
        for (int length = below(6); length > 0; --length)
            made += letters[below(static_cast<int>(letters.size()))];
        return made.isValidUtf16() ? made : u"x"_s;
    }

    QJsonValue value(int depth = 0)
    {
        switch (below(depth < 4 ? 7 : 5)) {
        case 0:
            return QJsonValue::Null;
        case 1:
            return below(2) == 0;
        case 2:
            return below(2000) - 1000;
        case 3:
            return (below(2000) - 1000) * 1.0e-7;
        case 4:
            return text();
        case 5:
            return array(depth);
        default:
            return object(depth);
        }
    }

    QJsonArray array(int depth)
    {
        QJsonArray made;
        for (int length = below(4); length > 0; --length)
            made.append(value(depth + 1));
        return made;
    }

    QJsonObject object(int depth)
    {
        QJsonObject made;
        for (int length = below(4); length > 0; --length)
            made.insert(text(), value(depth + 1));
        return made;
    }

    QByteArray document()
    {
        const auto form = below(2) ? QJsonDocument::Indented : QJsonDocument::Compact;
        return QJsonDocument(object(0)).toJson(form);
    }

    void spoil(QByteArray &json)
    {
        static const QByteArray pieces = "{}[]\",:\\0-+.eEtu x\xC3\n";
        const int at = below(static_cast<int>(json.size()));
        if (below(3) == 0)
            json.remove(at, 1 + below(3));
        else if (below(2) == 0)
            json.insert(at, pieces[below(static_cast<int>(pieces.size()))]);
        else
            json[at] = pieces[below(static_cast<int>(pieces.size()))];
    }

private:
    QRandomGenerator m_random;
};

} // namespace

TEST(JsonParser, KnowsWhereValuesStand)
{
    const QByteArray json = "\xEF\xBB\xBF {\"a\" : [1, \"\xC2\xB0\\u0041\" ] }";
    const JsonTree tree = JsonParser::parse(json);
    const JsonNode root = JsonNode::rootOf(tree);
    EXPECT_EQ(root.start(), 4);
    EXPECT_EQ(root.end(), json.size());
    const JsonNode array = root.first();
    EXPECT_EQ(array.name(), u"a"_s);
    EXPECT_FALSE(array.next().isThere());
    EXPECT_EQ(json.sliced(array.start(), array.end() - array.start()), "[1, \"\xC2\xB0\\u0041\" ]");
    const JsonNode text = array.first().next();
    EXPECT_EQ(text.text(), u"°A"_s);
    EXPECT_EQ(text.start(), json.indexOf("\"\xC2"));
    EXPECT_FALSE(text.next().isThere());
}

TEST(JsonParser, AMemberThatStandsTwiceIsAFault)
{
    const QByteArray json = R"({"a": {"b": 1, "c": {"b": 1}, "\u0062": 2}, "b": 3})";
    const auto fault = faultIn(json);
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->offset, json.indexOf(R"("\u0062")"));
    EXPECT_EQ(fault->reason, u"\"b\" stands there twice"_s);
    EXPECT_FALSE(faultIn(R"({"a": 1, "A": 2, "": 3, " ": 4})"));
}

TEST(JsonParser, RefusesWhatIsNoJson)
{
    for (const QByteArray &json : {QByteArray(),
                                   QByteArray(" "),
                                   QByteArray("{"),
                                   QByteArray("{}}"),
                                   QByteArray("{,}"),
                                   QByteArray(R"({"a":1,})"),
                                   QByteArray(R"({"a" 1})"),
                                   QByteArray(R"({a:1})"),
                                   QByteArray(R"({'a':1})"),
                                   QByteArray("[1,]"),
                                   QByteArray("[1 2]"),
                                   QByteArray("[01]"),
                                   QByteArray("[-]"),
                                   QByteArray("[+1]"),
                                   QByteArray("[1.]"),
                                   QByteArray("[.5]"),
                                   QByteArray("[1e]"),
                                   QByteArray("[1e400]"),
                                   QByteArray("[tru]"),
                                   QByteArray("[truer]"),
                                   QByteArray("[NaN]"),
                                   QByteArray(R"(["\x"])"),
                                   QByteArray(R"(["\u12"])"),
                                   QByteArray(R"(["\u12g4"])"),
                                   QByteArray(R"(["a)"),
                                   QByteArray("[\"\\"),
                                   QByteArray("[\"\xFF\"]"),
                                   QByteArray("[\"\xED\xA0\x80\"]"),
                                   QByteArray("[\"\xC3"),
                                   QByteArray("[// no\n1]"),
                                   QByteArray("[\0]", 3),
                                   QByteArray("\xEF\xBB"),
                                   QByteArray("[").repeated(2000) + QByteArray("]").repeated(2000)})
        EXPECT_TRUE(faultIn(json)) << json.left(20).constData();
}

TEST(JsonParser, AByteOrderMarkInATextIsACharacter)
{
    const JsonTree tree = JsonParser::parse("{\"\xEF\xBB\xBF\": \"\xEF\xBB\xBF\\n\xEF\xBB\xBF\"}");
    const JsonNode text = JsonNode::rootOf(tree).first();
    EXPECT_EQ(text.name(), QString(QChar::ByteOrderMark));
    EXPECT_EQ(text.text(), u"\uFEFF\n\uFEFF"_s);
}

TEST(JsonParser, FindsMembersByTheNamesThatAreMeant)
{
    const JsonTree tree =
        JsonParser::parse(R"({"": 0, "a\"b": 1, "\u0061": 2, "a\\": 3, "\ufeffa": 4, "ab": 5})");
    const JsonNode root = JsonNode::rootOf(tree);
    const QStringList names{u""_s, u"a\"b"_s, u"a"_s, u"a\\"_s, u"\uFEFFa"_s, u"ab"_s};
    for (const QString &name : names)
        EXPECT_EQ(root.member(name).number(), names.indexOf(name)) << name.toStdString();
    for (const QString &name : {u"b"_s, u"A"_s, u"abc"_s, u"\\u0061"_s, u"a\\\"b"_s})
        EXPECT_FALSE(root.member(name).isThere()) << name.toStdString();
    EXPECT_FALSE(root.first().member(u""_s).isThere());
}

// Places have 32 bits.
TEST(JsonParser, RefusesWhatIsTooLargeUnread)
{
    const auto fault = faultIn(QByteArray::fromRawData("{}", qsizetype(1) << 32));
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->offset, 0);
    EXPECT_EQ(fault->reason, u"too large document"_s);
}

TEST(JsonParser, TakesManyValuesInOneAnother)
{
    const QByteArray json = QByteArray("[").repeated(1000) + QByteArray("]").repeated(1000);
    EXPECT_FALSE(faultIn(json));
}

TEST(JsonParser, AgreesWithTheToolkitOnRandomDocuments)
{
    const unsigned seed = randomSeed(7);
    SCOPED_TRACE(seed);
    RandomJson random(seed);
    for (int round = 0; round < 2000; ++round) {
        const QByteArray json = random.document();
        const JsonTree tree = JsonParser::parse(json);
        const JsonNode root = JsonNode::rootOf(tree);
        ASSERT_TRUE(agrees(root, QJsonDocument::fromJson(json).object())) << json.constData();
        expectPlaces(root, json);
    }
}

// What is taken, the toolkit takes too and reads as the same values.
TEST(JsonParser, TakesNoSpoiltDocumentThatTheToolkitRefuses)
{
    const unsigned seed = randomSeed(11);
    SCOPED_TRACE(seed);
    RandomJson random(seed);
    int taken = 0;
    for (int round = 0; round < 20000; ++round) {
        QByteArray json = random.document();
        random.spoil(json);
        if (faultIn(json))
            continue;
        ++taken;
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(json, &error);
        ASSERT_EQ(error.error, QJsonParseError::NoError) << json.constData();
        const JsonTree tree = JsonParser::parse(json);
        ASSERT_TRUE(agrees(JsonNode::rootOf(tree), document.object())) << json.constData();
    }
    EXPECT_GT(taken, 1000);
    EXPECT_LT(taken, 15000);
}
