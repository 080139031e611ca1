#include "project/JsonEdit.h"
#include "support/QtPrinters.h"

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

JsonPlace nameOf(const JsonPlace &root, qsizetype row)
{
    return root.member(u"inputs"_s).item(row).member(u"name"_s);
}

} // namespace

TEST(JsonEdit, ReplacesTextsAndNothingElse)
{
    for (const QByteArray &mark : {QByteArray(), QByteArray("\xEF\xBB\xBF")}) {
        const QByteArray json = mark + sample;
        const JsonPlace root = JsonPlace::parse(json, u"p"_s);
        JsonEdit edit(json);
        edit.replace(nameOf(root, 1), u"Zwei \"x\" \\"_s);
        edit.replace(nameOf(root, 2), u""_s);
        edit.replace(nameOf(root, 0), u"Größe"_s);
        EXPECT_EQ(edit.bytes(), QByteArray(json)
                                    .replace("\"Two\"", R"("Zwei \"x\" \\")")
                                    .replace("\"Three\"", "\"\"")
                                    .replace("\"One\"", "\"Größe\""));
    }
}

TEST(JsonEdit, WithoutChangesTheTextStays)
{
    EXPECT_EQ(JsonEdit(sample).bytes(), sample);
}

TEST(JsonPlace, WhatIsNotThereIsAbsent)
{
    const JsonPlace root = JsonPlace::parse(sample, u"p"_s);
    EXPECT_TRUE(nameOf(root, 2).isPresent());
    EXPECT_FALSE(nameOf(root, 3).isPresent());
    EXPECT_FALSE(nameOf(root, -1).isPresent());
    EXPECT_FALSE(root.member(u"outputs"_s).item(0).member(u"name"_s).isPresent());
}
