// Documents made to do harm: what they may cost is bounded.

#include "rtf/RtfDump.h"

#include "rtf/RtfReader.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace ORVTListview::Testing {
namespace {

constexpr int keptGroups = 1024;

QString repeated(QStringView text, int count)
{
    return text.toString().repeated(count);
}

TEST(RtfReaderLimits, countsGroupsOfAnyDepth)
{
    const int depth = 1'000'000;
    const QString rtf = u"{\\rtf1 a%1b%2c}d"_s.arg(repeated(u"{", depth), repeated(u"}", depth));
    EXPECT_EQ(plainText(rtf), u"abc"_s);
}

TEST(RtfReaderLimits, keepsSettingsOfTheOuterGroups)
{
    const QString rtf = u"{\\rtf1 a%1{\\b b}c%2d}"_s.arg(repeated(u"{", keptGroups - 2),
                                                         repeated(u"}", keptGroups - 2));
    EXPECT_EQ(dump(rtf), u"\"a\"\n\"b\"  bold\n\"cd\"\n"_s);
}

TEST(RtfReaderLimits, sharesSettingsBeyondThem)
{
    const QString rtf = u"{\\rtf1 a%1{{\\b b}c}%2d}"_s.arg(repeated(u"{", keptGroups - 1),
                                                           repeated(u"}", keptGroups - 1));
    EXPECT_EQ(dump(rtf), u"\"a\"\n\"bc\"  bold\n\"d\"\n"_s);
}

TEST(RtfReaderLimits, skipsDestinationsAtAnyDepth)
{
    const int depth = 5000;
    const QString rtf =
        u"{\\rtf1 a%1{\\pict{b}c}d%2e}"_s.arg(repeated(u"{", depth), repeated(u"}", depth));
    EXPECT_EQ(plainText(rtf), u"ade"_s);
}

TEST(RtfReaderLimits, skipsGroupsOfAnyDepthInADestination)
{
    const int depth = 1'000'000;
    const QString rtf =
        u"{\\rtf1 a{\\pict%1b%2}c}"_s.arg(repeated(u"{", depth), repeated(u"}", depth));
    EXPECT_EQ(plainText(rtf), u"ac"_s);
}

TEST(RtfReaderLimits, keeps4096Fonts)
{
    QString rtf = u"{\\rtf1\\deff9999{\\fonttbl"_s;
    for (int i = 0; i < 10'000; ++i)
        rtf += u"{\\f%1 F%1;}"_s.arg(i);
    rtf += u"}\\f0 a\\f4095 b\\f4096 c\\f9999 d}"_s;
    EXPECT_EQ(dump(rtf), u"\"a\"  F0\n\"b\"  F4095\n\"cd\"\n"_s);
}

TEST(RtfReaderLimits, keeps4096Colours)
{
    const QString rtf = u"{\\rtf1{\\colortbl ;%1}\\cf1 a\\cf4095 b\\cf4096 c\\cf9999 d}"_s.arg(
        repeated(u"\\red1;", 10'000));
    EXPECT_EQ(dump(rtf), u"\"ab\"  colour 000001\n\"cd\"\n"_s);
}

TEST(RtfReaderLimits, cutsFontNames)
{
    const QString rtf = u"{\\rtf1{\\fonttbl{\\f0 %1;}}a}"_s.arg(repeated(u"x", 100'000));
    EXPECT_EQ(dump(rtf), u"\"a\"  %1\n"_s.arg(repeated(u"x", 255)));
    const QString pieces =
        u"{\\rtf1{\\fonttbl{\\f0 %1;}}a}"_s.arg(repeated(u"x\\'78\r\n", 100'000));
    EXPECT_EQ(dump(pieces), u"\"a\"  %1\n"_s.arg(repeated(u"x", 255)));
}

TEST(RtfReaderLimits, cutsControlWords)
{
    const QString tail = repeated(u"x", 100'000);
    EXPECT_EQ(plainText(u"{\\rtf1 a\\%1 b\\par%1 c}"_s.arg(tail)), u"abc"_s);
}

TEST(RtfReaderLimits, saturatesNumbers)
{
    const QString digits = repeated(u"9", 100'000);
    EXPECT_EQ(dump(u"{\\rtf1\\fs%1 a\\b%1 b\\cf%1 c\\f-%1 d\\fs-%1 e\\u-%1?f}"_s.arg(digits)),
              u"\"a\"  3276\n\"bcd\"  3276 bold\n\"e\\ufffdf\"  bold\n"_s);
    EXPECT_EQ(plainText(u"{\\rtf1{\\uc%1\\u97 b{c}}d\\bin%1 e}"_s.arg(digits)), u"acd"_s);
}

class Counter final : public RtfSink
{
public:
    void text(QStringView text, const RtfFormat &) override
    {
        ++pieces;
        characters += text.size();
    }
    void lineEnd() override { ++lineEnds; }

    qsizetype pieces = 0;
    qsizetype characters = 0;
    qsizetype lineEnds = 0;
};

Counter count(QStringView body, int times)
{
    const QString rtf = u"{\\rtf1{\\colortbl;\\red1;}%1}"_s.arg(repeated(body, times));
    Counter counter;
    readRtf(rtf, counter);
    return counter;
}

// Twice the document: twice the pieces, no copy of what went before.
TEST(RtfReaderLimits, handsOutTwiceAsMuchForTwiceAsMuch)
{
    for (const QStringView body :
         {u"\\cf1 a\\cf0 b\\par ", u"a\\'e4\\{", u"{\\b a}", u"\\u8364?\\line", u"{\\v a}b\\i0"}) {
        const Counter once = count(body, 1000);
        const Counter twice = count(body, 2000);
        EXPECT_LE(twice.pieces, 2 * once.pieces);
        EXPECT_EQ(twice.characters, 2 * once.characters);
        EXPECT_EQ(twice.lineEnds, 2 * once.lineEnds);
    }
}

} // namespace
} // namespace ORVTListview::Testing
