#include "RtfDump.h"

#include "platform/RtfReader.h"
#include "platform/RtfWriter.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace ORVTListview::Testing {
namespace {

TEST(RtfWriter, putsTheSettingsOnTheSecondLineOfTheSample)
{
    const RtfFormat base{.fontName = u"Courier New"_s, .halfPoints = 20, .bold = true};
    RtfWriter writer(base);
    writer.text(u"#GetInfo#", base);
    writer.lineEnd();
    writer.text(u"#Another word", base);
    EXPECT_EQ(
        writer.finish(),
        u"{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Courier New;}}\r\n"
        "\\viewkind4\\uc1\\pard\\b\\f0\\fs20 #GetInfo#\\par\r\n"
        "#Another word}\r\n"_s);
}

TEST(RtfWriter, readsBack)
{
    RtfWriter writer({.fontName = u"Arial"_s, .halfPoints = 20});
    writer.text(u"a{b}\\ \u00A0\t1", {});
    writer.text(u"2 ", {.colour = 0x0000FF, .backColour = 0xFFFF});
    writer.lineEnd();
    writer.text(u" 3", {.fontName = u"Courier; New"_s, .italic = true});
    EXPECT_EQ(dump(writer.finish()), u"\"a{b}\\\\ \\u00a0\\t1\"  Arial 20\n"
                                     "\"2 \"  Arial 20 colour 0000ff back 00ffff\n"
                                     "line end\n"
                                     "\" 3\"  Courier; New 20 italic\n"_s);
}

} // namespace
} // namespace ORVTListview::Testing
