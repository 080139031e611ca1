#include "project/JsonText.h"
#include "support/QtPrinters.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QRandomGenerator>

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const QByteArray sample = R"({
  "name": "inputs",
  "other": [ { "name": "no }]\" here" }, [1, [2]], -3.5e1, true, null, {} ],
  "inputs": [
    { "data": 1, "name" : "One", "units": "°C" },
    { "name":"Two","deep":{"name":"Inner"} },

    { "name": "Three" }
  ]
})";

} // namespace

TEST(JsonText, ReplacesOneTextAndNothingElse)
{
    JsonText json(sample);
    ASSERT_TRUE(json.replace(u"inputs"_s, 1, u"name"_s, u"Zwei \"x\" \\"_s));
    EXPECT_EQ(json.bytes(), QByteArray(sample).replace("\"Two\"", R"("Zwei \"x\" \\")"));
    ASSERT_TRUE(json.replace(u"inputs"_s, 2, u"name"_s, u"Drei"_s));
    ASSERT_TRUE(json.replace(u"inputs"_s, 0, u"name"_s, u"Größe"_s));
    EXPECT_EQ(json.bytes(), QByteArray(sample)
                                .replace("\"Two\"", R"("Zwei \"x\" \\")")
                                .replace("\"Three\"", "\"Drei\"")
                                .replace("\"One\"", "\"Größe\""));
}

TEST(JsonText, LeavesWhatIsNotThere)
{
    JsonText json(sample);
    EXPECT_FALSE(json.replace(u"outputs"_s, 0, u"name"_s, u"x"_s));
    EXPECT_FALSE(json.replace(u"inputs"_s, 3, u"name"_s, u"x"_s));
    EXPECT_FALSE(json.replace(u"inputs"_s, 0, u"label"_s, u"x"_s));
    EXPECT_FALSE(json.replace(u"inputs"_s, 0, u"data"_s, u"x"_s)); // a number
    EXPECT_FALSE(json.replace(u"name"_s, 0, u"name"_s, u"x"_s));
    EXPECT_FALSE(json.replace(u"other"_s, 1, u"name"_s, u"x"_s));
    EXPECT_EQ(json.bytes(), sample);
}

TEST(JsonText, AgreesWithTheToolkitOnRandomDocuments)
{
    constexpr quint32 seed = 7;
    SCOPED_TRACE(seed);
    QRandomGenerator random(seed);
    const QString letters = u"ab\"\\[]{},:é\n"_s;
    const auto text = [&] {
        QString made;
        for (quint32 length = random.bounded(6U); length > 0; --length)
            made += letters[random.bounded(static_cast<int>(letters.size()))];
        return made;
    };
    for (int round = 0; round < 2000; ++round) {
        QJsonArray rows;
        const int count = random.bounded(1, 6);
        for (int row = 0; row < count; ++row)
            rows.append(QJsonObject{
                {u"a"_s, text()}, {u"name"_s, text()}, {u"z"_s, QJsonArray{text(), row}}});
        QJsonObject object{{u"first"_s, text()}, {u"rows"_s, rows}, {u"zz"_s, QJsonArray{rows}}};
        const auto form = random.bounded(2) ? QJsonDocument::Indented : QJsonDocument::Compact;
        JsonText json(QJsonDocument(object).toJson(form));
        const int changed = random.bounded(count);
        const QString name = text();
        ASSERT_TRUE(json.replace(u"rows"_s, changed, u"name"_s, name));
        QJsonObject row = rows[changed].toObject();
        row[u"name"_s] = name;
        rows[changed] = row;
        object[u"rows"_s] = rows;
        ASSERT_EQ(json.bytes(), QJsonDocument(object).toJson(form));
    }
}
