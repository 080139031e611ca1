#include "RtfDump.h"

#include "platform/RtfReader.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace ORVTListview::Testing {
namespace {

TEST(RtfReader, readsTheColouredBody)
{
    EXPECT_EQ(dump(u"{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}}\r\n"
                   "{\\colortbl ;\\red223\\green223\\blue223;\\red0\\green128\\blue0;}\r\n"
                   "\\viewkind4\\uc1\\pard\\lang1033\\b\\fs17 \\cf2 IF \\cf0 ( \\cf1 x\\cf0  )\r\n"
                   "\\par \\cf2 REM check}"),
              u"\"IF \"  Arial 17 colour 008000 bold\n"
              "\"( \"  Arial 17 bold\n"
              "\"x\"  Arial 17 colour dfdfdf bold\n"
              "\" )\"  Arial 17 bold\n"
              "line end\n"
              "\"REM check\"  Arial 17 colour 008000 bold\n"_s);
}

TEST(RtfReader, givesALineEndForAParBeforeTheEnd)
{
    EXPECT_EQ(plainText(u"{\\rtf1 A\\par}"), u"A\r\n"_s);
    EXPECT_EQ(plainText(u"{\\rtf1 A\r\n\\par }"), u"A\r\n"_s);
    EXPECT_EQ(plainText(u"{\\rtf1 A}"), u"A"_s);
    EXPECT_EQ(plainText(u"{\\rtf1 \r\n\\par \r\n\\par }"), u"\r\n\r\n"_s);
}

} // namespace
} // namespace ORVTListview::Testing
