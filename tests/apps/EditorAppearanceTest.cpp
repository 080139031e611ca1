#include "project/EditorAppearance.h"

#include "project/ProjectError.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

RichTextSettings settings(const QByteArray &json)
{
    return readAppearance(JsonPlace::parse(json, u"p"_s));
}

QString failure(const QByteArray &json)
{
    try {
        settings(json);
    } catch (const Error &error) {
        EXPECT_EQ(error.Number(), ProjectNotValid);
        return error.Description();
    }
    return u"no error"_s;
}

} // namespace

TEST(Colour, HasRedInTheLowByte)
{
    EXPECT_EQ(colourFromText(u"#010203"_s), 0x00030201);
    EXPECT_EQ(colourFromText(u"#ffAA00"_s), 0x0000AAFF);
    EXPECT_EQ(colourFromText(u"#000000"_s), 0);
}

TEST(Colour, NamesSystemColours)
{
    EXPECT_EQ(colourFromText(u"system:window"_s), static_cast<qint32>(0x80000005U));
    EXPECT_EQ(colourFromText(u"system:windowText"_s), static_cast<qint32>(0x80000008U));
    EXPECT_EQ(colourFromText(u"system:toolTip"_s), static_cast<qint32>(0x80000018U));
}

TEST(Colour, RefusesOtherTexts)
{
    for (const QString &text : {u""_s, u"#"_s, u"red"_s, u"#fff"_s, u"#12345g"_s, u"#1234567"_s,
                                u"0010203"_s, u"#+12345"_s, u"#\u0661\u0662\u0663456"_s,
                                u"system:"_s, u"system:Window"_s, u"system:sofa"_s})
        EXPECT_FALSE(colourFromText(text)) << text.toStdString();
}

TEST(Appearance, HasTheDefaultTableWhereNothingIsSaid)
{
    const RichTextSettings expected = {
        .BackColor = 0x00DFDFDF,
        .FontName = u"Monospace"_s,
        .FontSize = 10,
        .FontStyle = {},
        .VariableColor = 0x00FF0000,
        .ConstantColor = 0x00000080,
        .InputColor = 0x000000FF,
        .OutputColor = 0x00FF0080,
        .ReservedWordColor = 0,
        .CommentColor = 0x00008000,
        .nviFPAColor = 0x00008080,
        .nvoFPAColor = 0,
    };
    EXPECT_EQ(settings("{}"), expected);
}

TEST(Appearance, EveryMemberReachesItsField)
{
    const RichTextSettings expected = {
        .BackColor = static_cast<qint32>(0x80000005U),
        .FontName = u"Courier 10 Pitch"_s,
        .FontSize = 12,
        .FontStyle = u"b1i1"_s,
        .VariableColor = 1,
        .ConstantColor = 2,
        .InputColor = 3,
        .OutputColor = 4,
        .ReservedWordColor = 5,
        .CommentColor = 6,
        .nviFPAColor = 7,
        .nvoFPAColor = 8,
    };
    EXPECT_EQ(settings(R"({
        "backColour": "system:window", "fontName": "Courier 10 Pitch", "fontSize": 12,
        "fontStyle": "b1i1", "variableColour": "#010000", "constantColour": "#020000",
        "inputColour": "#030000", "outputColour": "#040000", "reservedWordColour": "#050000",
        "commentColour": "#060000", "networkInputColour": "#070000",
        "networkOutputColour": "#080000" })"),
              expected);
}

TEST(Appearance, SaysWhatIsWrong)
{
    EXPECT_EQ(failure(R"({"inputColour": "rouge"})"),
              u"p: inputColour: \"rouge\" is no colour (\"#rrggbb\" or a system colour)"_s);
    EXPECT_EQ(failure(R"({"inputColour": 7})"), u"p: inputColour: a text is expected"_s);
    EXPECT_EQ(failure(R"({"inputColor": "#000000"})"), u"p: inputColor: is not known here"_s);
    EXPECT_EQ(failure(R"({"fontSize": 0})"),
              u"p: fontSize: a size from 1 to 400 points is expected"_s);
    EXPECT_EQ(failure(R"({"fontSize": 401})"),
              u"p: fontSize: a size from 1 to 400 points is expected"_s);
}
