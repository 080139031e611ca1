// The document that is written, character for character.

#include "rtf/RtfDump.h"

#include "rtf/RtfWriter.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace ORVTListview::Testing {
namespace {

const RtfFormat base{.fontName = u"Arial"_s, .halfPoints = 17};
const QString head =
    u"{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}}\r\n"
    "\\viewkind4\\uc1\\pard\\f0\\fs17 "_s;

// The document of a text in the base format, without what every document has.
QString body(QStringView text)
{
    RtfWriter writer(base);
    writer.text(text, base);
    const QString rtf = writer.finish();
    EXPECT_TRUE(rtf.startsWith(head)) << rtf.toStdString();
    EXPECT_TRUE(rtf.endsWith(u"}\r\n")) << rtf.toStdString();
    return rtf.sliced(head.size()).chopped(3);
}

TEST(RtfWriter, putsTheSettingsOnTheSecondLineOfTheSample)
{
    const RtfFormat sample{.fontName = u"Courier New"_s, .halfPoints = 20, .bold = true};
    RtfWriter writer(sample);
    writer.text(u"#GetInfo#", sample);
    writer.lineEnd();
    writer.text(u"#Another word", sample);
    EXPECT_EQ(
        writer.finish(),
        u"{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Courier New;}}\r\n"
        "\\viewkind4\\uc1\\pard\\b\\f0\\fs20 #GetInfo#\\par\r\n"
        "#Another word}\r\n"_s);
}

TEST(RtfWriter, writesADocumentWithoutText)
{
    EXPECT_EQ(RtfWriter(base).finish(), head + u"}\r\n"_s);
    EXPECT_EQ(RtfWriter({}).finish(),
              u"{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 ;}}\r\n"
              "\\viewkind4\\uc1\\pard\\f0 }\r\n"_s);
    RtfWriter writer(base);
    writer.text(u"", {.bold = true});
    EXPECT_EQ(writer.finish(), head + u"}\r\n"_s);
}

TEST(RtfWriter, takesTheBaseForWhatARunLeavesOpen)
{
    RtfWriter writer(base);
    writer.text(u"a", {});
    writer.text(u"b", base);
    writer.text(u"c", {.italic = true});
    EXPECT_EQ(writer.finish(), head + u"ab\\i c}\r\n"_s);
}

TEST(RtfWriter, writesTheSettingsThatChange)
{
    RtfWriter writer(base);
    writer.text(u"a", {.bold = true});
    writer.text(u"b", {.bold = true, .italic = true});
    writer.text(u"c", {.underline = true, .strike = true});
    writer.text(u"d", {.fontName = u"Courier"_s, .halfPoints = 20});
    writer.text(u"e", {});
    EXPECT_EQ(writer.finish(),
              u"{\\rtf1\\ansi\\ansicpg1252\\deff0"
              "{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}{\\f1\\fnil\\fcharset0 Courier;}}\r\n"
              "\\viewkind4\\uc1\\pard\\b\\f0\\fs17 a\\i b\\b0\\i0\\ul\\strike c"
              "\\ulnone\\strike0\\f1\\fs20 d\\f0\\fs17 e}\r\n"_s);
}

TEST(RtfWriter, writesAColourTableWhereColoursAreUsed)
{
    RtfWriter writer(base);
    writer.text(u"a", {.colour = 0x030201});
    writer.text(u"b", {.colour = 0xFFFFFF, .backColour = 0x030201});
    writer.text(u"c", {});
    writer.text(u"d", {.colour = 0x030201});
    EXPECT_EQ(
        writer.finish(),
        u"{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}}\r\n"
        "{\\colortbl ;\\red1\\green2\\blue3;\\red255\\green255\\blue255;}\r\n"
        "\\viewkind4\\uc1\\pard\\cf1\\f0\\fs17 a\\cf2\\highlight1 b\\cf0\\highlight0 c\\cf1 d}\r\n"_s);
}

TEST(RtfWriter, takesBackASizeWithAllSettings)
{
    RtfWriter writer({.fontName = u"Arial"_s});
    writer.text(u"a", {.halfPoints = 20, .colour = 0, .bold = true});
    writer.text(u"b", {.colour = 0, .bold = true});
    EXPECT_EQ(writer.finish(),
              u"{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}}\r\n"
              "{\\colortbl ;\\red0\\green0\\blue0;}\r\n"
              "\\viewkind4\\uc1\\pard\\cf1\\b\\f0\\fs20 a\\plain\\cf1\\b b}\r\n"_s);
}

TEST(RtfWriter, escapesWhatIsNoPlainCharacter)
{
    EXPECT_EQ(body(u"a\\b{c}"), u"a\\\\b\\{c\\}"_s);
    EXPECT_EQ(body(u"\t1\t b"), u"\\tab 1\\tab  b"_s);
    EXPECT_EQ(body(u"\u00e4\u00a01\u20ac2\u8000"), u"\\u228?\\u160?1\\u8364?2\\u-32768?"_s);
    EXPECT_EQ(body(u"\U0001F600"), u"\\u-10179?\\u-8704?"_s);
    EXPECT_EQ(body(u"\x01\x0B\x1F\x7F"), u"\\'01\\'0b\\'1f\x7F"_s);
    EXPECT_EQ(body(u"a\0b"_s), u"ab"_s);
}

TEST(RtfWriter, keepsBlanksApart)
{
    EXPECT_EQ(body(u" a b"), u" a b"_s);
    EXPECT_EQ(body(u"   a  b "), u" {} {} a {} b "_s);
    RtfWriter writer(base);
    for (const QString &text : {u"a "_s, u" "_s, u"\t"_s, u" b "_s, u" \0 "_s})
        writer.text(text, {});
    writer.lineEnd();
    writer.text(u" ", {});
    EXPECT_EQ(writer.finish(), head + u"a {} \\tab  b {} {} \\par\r\n }\r\n"_s);
}

TEST(RtfWriter, writesNoSettingsForNothing)
{
    RtfWriter writer(base);
    writer.text(u"a", {});
    writer.text(u"\0"_s, {.fontName = u"Courier"_s, .colour = 1, .bold = true});
    writer.lineEnd();
    EXPECT_EQ(writer.finish(), head + u"a\\line\r\n}\r\n"_s);
}

TEST(RtfWriter, startsALineOfTheFileForEachLine)
{
    RtfWriter writer(base);
    writer.lineEnd();
    writer.text(u" a", {.bold = true});
    writer.lineEnd();
    writer.lineEnd();
    writer.text(u" 1", {.bold = true});
    EXPECT_EQ(writer.finish(), head + u"\\par\r\n\\b  a\\par\r\n\\par\r\n 1}\r\n"_s);
}

TEST(RtfWriter, endsTheDocumentWithALineRatherThanAParagraph)
{
    RtfWriter writer(base);
    writer.lineEnd();
    writer.text(u"a", {});
    writer.lineEnd();
    writer.lineEnd();
    EXPECT_EQ(writer.finish(), head + u"\\par\r\na\\line\r\n\\line\r\n}\r\n"_s);
}

TEST(RtfWriter, takesTextThatLooksLikeALineEndForText)
{
    RtfWriter writer(base);
    writer.text(u"\\par", {});
    EXPECT_EQ(writer.finish(), head + u"\\\\par}\r\n"_s);
}

TEST(RtfWriter, keeps4095ColoursAnd4096Fonts)
{
    RtfWriter writer(base);
    for (int i = 1; i <= 5000; ++i)
        writer.text(u"a", {.fontName = u"F%1"_s.arg(i), .colour = i});
    const QStringList lines = dump(writer.finish()).split(u'\n');
    EXPECT_EQ(lines[4094], u"\"a\"  F4095 17 colour 000fff"_s);
    EXPECT_EQ(lines[4095], u"\"%1\"  Arial 17"_s.arg(QString(5000 - 4095, u'a')));
}

} // namespace
} // namespace ORVTListview::Testing
