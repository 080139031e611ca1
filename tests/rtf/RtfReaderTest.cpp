// What of a document is text, and which.

#include "rtf/RtfDump.h"

#include "rtf/RtfReader.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace ORVTListview::Testing {
namespace {

QString bodyText(QStringView body)
{
    return plainText(u"{\\rtf1\\ansi %1}"_s.arg(body));
}

TEST(RtfReader, tellsRtfByItsBeginning)
{
    EXPECT_TRUE(isRtf(u"{\\rtf1 x}"));
    EXPECT_TRUE(isRtf(u"{\\rtf"));
    EXPECT_TRUE(isRtf(u"{\\RtF1 x}"));
    EXPECT_FALSE(isRtf(u""));
    EXPECT_FALSE(isRtf(u"{\\rt"));
    EXPECT_FALSE(isRtf(u" {\\rtf1 x}"));
    EXPECT_FALSE(isRtf(u"\\rtf1 x"));
    EXPECT_FALSE(isRtf(u"IF x THEN"));
}

TEST(RtfReader, readsTheWordThatBeginsADocumentInAnyCase)
{
    EXPECT_EQ(plainText(u"{\\RTF1 x}"), u"x"_s);
}

TEST(RtfReader, readsTheBodyThatColouringWrites)
{
    EXPECT_EQ(
        bodyText(u"\\cf6 IF \\cf0 ( \\cf4 Temp1 \\cf6 >= \\cf0 20\\cf0  )\r\n\\par \\cf2 REM x"),
        u"IF ( Temp1 >= 20 )\r\nREM x"_s);
}

TEST(RtfReader, givesALineEndForEveryPar)
{
    EXPECT_EQ(bodyText(u"A\\par"), u"A\r\n"_s);
    EXPECT_EQ(bodyText(u"A\r\n\\par "), u"A\r\n"_s);
    EXPECT_EQ(bodyText(u"A"), u"A"_s);
    EXPECT_EQ(bodyText(u"\r\n\\par \r\n\\par "), u"\r\n\r\n"_s);
    EXPECT_EQ(bodyText(u"A\\par{}\\par B"), u"A\r\n\r\nB"_s);
}

TEST(RtfReader, givesALineEndForWhatElseEndsALine)
{
    for (const auto *word : {"line", "lbr0", "row", "nestrow", "sect", "page", "column"})
        EXPECT_EQ(bodyText(u"A\\%1 B"_s.arg(QLatin1StringView(word))), u"A\r\nB"_s) << word;
    EXPECT_EQ(bodyText(u"A\\\rB"), u"A\r\nB"_s);
    EXPECT_EQ(bodyText(u"A\\\nB"), u"A\r\nB"_s);
    EXPECT_EQ(bodyText(u"A\\\r\nB"), u"A\r\nB"_s);
    EXPECT_EQ(bodyText(u"A\\'0dB"), u"A\r\nB"_s);
    EXPECT_EQ(bodyText(u"A\\u10?B"), u"A\r\nB"_s);
}

TEST(RtfReader, takesRawLineEndsAndNulForNothing)
{
    EXPECT_EQ(bodyText(u"A\r\nB\nC\rD"), u"ABCD"_s);
    EXPECT_EQ(bodyText(u"A\0B"_s), u"AB"_s);
    EXPECT_EQ(bodyText(u"A\\'00\\u0?B"), u"AB"_s);
}

TEST(RtfReader, keepsRawCharactersAsTheyAre)
{
    EXPECT_EQ(bodyText(u"a\tb"), u"a\tb"_s);
    EXPECT_EQ(bodyText(u"\u00e4\u00a0\u2028\u20ac\U0001F600 "),
              u"\u00e4\u00a0\u2028\u20ac\U0001F600 "_s);
    EXPECT_EQ(bodyText(u"\x01\x0B\x0C\x7F"), u"\x01\x0B\x0C\x7F"_s);
}

TEST(RtfReader, readsEscapedCharacters)
{
    EXPECT_EQ(bodyText(u"\\\\ \\{ \\}"), u"\\ { }"_s);
    EXPECT_EQ(bodyText(u"a\\~b\\-c\\_d"), u"a\u00a0b\u00adc\u2011d"_s);
    EXPECT_EQ(bodyText(u"a\\\tb"), u"a\tb"_s);
    EXPECT_EQ(bodyText(u"a\\|b\\:c\\\u00e4d"), u"abcd"_s);
}

TEST(RtfReader, readsNamedCharacters)
{
    EXPECT_EQ(bodyText(u"\\tab.\\emdash.\\endash.\\emspace.\\enspace.\\qmspace.\\bullet.\\lquote."
                       "\\rquote.\\ldblquote.\\rdblquote.\\ltrmark.\\rtlmark.\\zwj.\\zwnj."),
              u"\t.\u2014.\u2013.\u2003.\u2002.\u2005.\u2022.\u2018."
              "\u2019.\u201c.\u201d.\u200e.\u200f.\u200d.\u200c."_s);
}

TEST(RtfReader, readsATableAsTabsAndLines)
{
    EXPECT_EQ(bodyText(u"\\trowd\\cellx100\\cellx200 a\\cell b\\cell\\row c\\cell d\\cell\\row e"),
              u"a\tb\t\r\nc\td\t\r\ne"_s);
}

TEST(RtfReader, readsTablesInTablesOnce)
{
    EXPECT_EQ(bodyText(u"\\intbl\\itap2 a\\nestcell b\\nestcell"
                       "{\\*\\nesttableprops\\trowd\\cellx1000\\cellx2000\\nestrow}"
                       "{\\nonesttables a b\\par }"
                       "c\\nestcell{\\*\\nesttableprops\\nestrow}{\\nonesttables\\par}"
                       "\\itap1 d\\cell\\row e"),
              u"a\tb\t\r\nc\t\r\nd\t\r\ne"_s);
}

TEST(RtfReader, takesOneBlankBehindAControlWord)
{
    EXPECT_EQ(bodyText(u"a\\b b\\b0  c\\b\r\n d"), u"ab c d"_s);
    EXPECT_EQ(bodyText(u"\\{ a\\~ b\\'41 c"), u"{ a\u00a0 bA c"_s);
}

TEST(RtfReader, endsAControlWordAtWhatIsNoPartOfIt)
{
    EXPECT_EQ(bodyText(u"\\b-x"), u"-x"_s);
    EXPECT_EQ(bodyText(u"\\b1-2"), u"-2"_s);
    EXPECT_EQ(bodyText(u"\\fs-20x"), u"x"_s);
    EXPECT_EQ(bodyText(u"\\b\u00e4"), u"\u00e4"_s);
    EXPECT_EQ(bodyText(u"\\b;\\i,"), u";,"_s);
}

TEST(RtfReader, tellsControlWordsByCase)
{
    EXPECT_EQ(bodyText(u"a\\PAR b"), u"ab"_s);
}

TEST(RtfReader, skipsControlWordsThatItDoesNotKnow)
{
    EXPECT_EQ(bodyText(u"a\\unknown b\\pard\\lang1033\\sb120 c\\parx d"), u"abcd"_s);
}

TEST(RtfReader, readsUnicodeWithItsFallback)
{
    EXPECT_EQ(bodyText(u"\\u8364?x"), u"\u20acx"_s);
    EXPECT_EQ(bodyText(u"\\u8364 ?x"), u"\u20acx"_s);
    EXPECT_EQ(bodyText(u"\\u8364\\'80x"), u"\u20acx"_s);
    EXPECT_EQ(bodyText(u"\\uc0\\u8364 x\\u8364 ?"), u"\u20acx\u20ac?"_s);
    EXPECT_EQ(bodyText(u"\\uc3\\u8364\\'80b\\b x"), u"\u20acx"_s);
    EXPECT_EQ(bodyText(u"\\uc2\\u8364\r\na\r\nbx"), u"\u20acx"_s);
    EXPECT_EQ(bodyText(u"\\uc2\\u8364\\{\\~x"), u"\u20acx"_s);
    EXPECT_EQ(bodyText(u"\\uc\\u8364?x"), u"\u20acx"_s);
    EXPECT_EQ(bodyText(u"\\uc-4\\u8364?x"), u"\u20ac?x"_s);
}

TEST(RtfReader, readsNegativeUnicodeAndSurrogatePairs)
{
    EXPECT_EQ(bodyText(u"\\u-10179?\\u-8704?"), u"\U0001F600"_s);
    EXPECT_EQ(bodyText(u"\\u55357?\\u56832?"), u"\U0001F600"_s);
    EXPECT_EQ(bodyText(u"\\u-4?"), u"\ufffc"_s);
    EXPECT_EQ(bodyText(u"\\u128512?"), u"\U0001F600"_s);
    EXPECT_EQ(bodyText(u"\\u1114112?\\u-32769?\\u99999999999?"), u"\ufffd\ufffd\ufffd"_s);
    EXPECT_EQ(bodyText(u"\\u x"), u"x"_s);
}

TEST(RtfReader, endsAFallbackWithItsGroup)
{
    EXPECT_EQ(bodyText(u"{\\uc5\\u8364 a}b"), u"\u20acb"_s);
    EXPECT_EQ(bodyText(u"\\uc5\\u8364 a{b}"), u"\u20acb"_s);
    EXPECT_EQ(bodyText(u"{\\uc0 }\\u8364?x"), u"\u20acx"_s);
}

TEST(RtfReader, takesBinaryDataForOneCharacterOfAFallback)
{
    EXPECT_EQ(bodyText(u"\\uc2\\u8364\\bin3 }{\\ax"), u"\u20acx"_s);
}

TEST(RtfReader, jumpsOverBinaryData)
{
    EXPECT_EQ(bodyText(u"a\\bin4 }}\\{b"), u"ab"_s);
    EXPECT_EQ(bodyText(u"a{\\pict\\bin5 }}\\{{ffff}b"), u"ab"_s);
    EXPECT_EQ(bodyText(u"a\\bin0 b\\bin-7 c\\bin d"), u"abcd"_s);
}

TEST(RtfReader, endsBinaryDataWithTheInput)
{
    EXPECT_EQ(bodyText(u"a\\bin2147483647 b"), u"a"_s);
    EXPECT_EQ(bodyText(u"a\\bin99999999999999999999 b"), u"a"_s);
}

TEST(RtfReader, skipsOptionalDestinationsThatItDoesNotKnow)
{
    EXPECT_EQ(bodyText(u"a{\\*\\unknown b{c}\\par d}e"), u"ae"_s);
    EXPECT_EQ(bodyText(u"a{\\*\r\n\\unknown b}e"), u"ae"_s);
    EXPECT_EQ(bodyText(u"a{\\*\\b b}e"), u"ae"_s);
    EXPECT_EQ(bodyText(u"a{\\* b}e"), u"a be"_s);
}

TEST(RtfReader, takesAStarInsideAGroupForNothing)
{
    EXPECT_EQ(bodyText(u"{\\loch\\f2\\fs24\\lang1033\\*\\cs7\\cf0\\b a}b"), u"ab"_s);
    EXPECT_EQ(bodyText(u"a\\*\\unknown b\\par c"), u"ab\r\nc"_s);
    EXPECT_EQ(bodyText(u"a{b\\*\\unknown c}d"), u"abcd"_s);
    EXPECT_EQ(bodyText(u"a{{}\\*\\unknown c}d"), u"acd"_s);
}

TEST(RtfReader, readsWhatAStarAllowsToSkip)
{
    EXPECT_EQ(bodyText(u"a{\\field{\\*\\fldinst X}{\\*\\fldrslt b}}c"), u"abc"_s);
}

class SkippedDestination : public testing::TestWithParam<const char *>
{
};

TEST_P(SkippedDestination, leavesNoTraceInTheText)
{
    const auto name = QLatin1StringView(GetParam());
    EXPECT_EQ(bodyText(u"a{\\%1 x\\par\\'41\\u65?{y}\\}}b"_s.arg(name)), u"ab"_s);
}

INSTANTIATE_TEST_SUITE_P(
    RtfReader, SkippedDestination,
    testing::Values("pict", "object", "header", "headerl", "headerr", "headerf", "footer",
                    "footerl", "footerr", "footerf", "stylesheet", "info", "fldinst", "footnote",
                    "listtable", "listoverridetable", "filetbl", "revtbl", "generator", "themedata",
                    "colorschememapping", "datastore", "latentstyles", "rsidtbl", "xmlnstbl",
                    "pgptbl", "fonttbl", "colortbl", "template", "private", "userprops", "xe", "tc",
                    "pntext", "listtext", "shpinst", "shprslt", "nonshppict", "bkmkstart", "ftnsep",
                    "aftnsep", "comment", "nonesttables", "upr", "NeXTGraphic"),
    [](const auto &each) { return std::string(each.param); });

TEST(RtfReader, showsTheResultOfAField)
{
    EXPECT_EQ(bodyText(u"a{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt{\\ul b}}}c"), u"abc"_s);
    EXPECT_EQ(bodyText(u"a{\\field{\\fldinst PAGE}{\\fldrslt 7}}c"), u"a7c"_s);
}

TEST(RtfReader, showsTextThatIsStatedTwiceOnce)
{
    EXPECT_EQ(bodyText(u"{\\upr{a}{\\*\\ud{\\u97?}}}b"), u"ab"_s);
    EXPECT_EQ(bodyText(u"{\\upr{\\b ??\\par\\'41\\u97?{x}}{\\*\\ud{\\u945?\\b\\u946?}}}b"),
              u"\u03b1\u03b2b"_s);
    EXPECT_EQ(bodyText(u"{\\upr{?{\\upr{?}{\\*\\ud ?}}}{\\*\\ud a{\\upr{?}{\\*\\ud b}}c}}d"),
              u"abcd"_s);
    EXPECT_EQ(bodyText(u"{\\*\\ud a}b"), u"ab"_s);
    EXPECT_EQ(bodyText(u"{\\*\\shppict{\\pict 00}}{\\nonshppict{\\pict 00}}b"), u"b"_s);
}

TEST(RtfReader, showsTheResultOfAnObject)
{
    EXPECT_EQ(bodyText(u"a{\\object\\objemb{\\*\\objclass X}{\\*\\objdata 0102}"
                       "{\\result {\\pict 00}b\\par c}x}d"),
              u"ab\r\ncd"_s);
}

TEST(RtfReader, skipsHiddenAndDeletedText)
{
    EXPECT_EQ(bodyText(u"a{\\v b\\par c}d\\v e\\v0 f\\v g\\plain h"), u"adfh"_s);
    EXPECT_EQ(bodyText(u"a{\\deleted b\\tab}c"), u"ac"_s);
    EXPECT_EQ(bodyText(u"a{\\v\\deleted b\\v0 c}d"), u"ad"_s);
}

TEST(RtfReader, endsWithTheGroupThatBeganTheDocument)
{
    EXPECT_EQ(plainText(u"{\\rtf1 a}b{c}"), u"a"_s);
    EXPECT_EQ(plainText(u"{\\rtf1 a}}}{b"), u"a"_s);
}

TEST(RtfReader, readsABrokenDocumentUpToWhereItBroke)
{
    EXPECT_EQ(plainText(u"{\\rtf1 a\\b b"), u"ab"_s);
    EXPECT_EQ(plainText(u"{\\rtf1 a{b{c"), u"abc"_s);
    EXPECT_EQ(plainText(u"{\\rtf1 a\\"), u"a"_s);
    EXPECT_EQ(plainText(u"{\\rtf1 a\\'"), u"a"_s);
    EXPECT_EQ(plainText(u"{\\rtf1 a\\'4"), u"a4"_s);
    EXPECT_EQ(plainText(u"{\\rtf1 a\\'e4"), u"a\u00e4"_s);
    EXPECT_EQ(plainText(u"{\\rtf1 a\\par"), u"a\r\n"_s);
    EXPECT_EQ(plainText(u"{\\rtf1 a\\u"), u"a"_s);
    EXPECT_EQ(plainText(u"{\\rtf1 a\\u-"), u"a-"_s);
    EXPECT_EQ(plainText(u"{\\rtf1 a{\\pict 00"), u"a"_s);
    EXPECT_EQ(plainText(u"{\\rtf1{\\fonttbl{\\f0 Arial"), QString());
}

TEST(RtfReader, dropsAByteWithoutItsDigits)
{
    EXPECT_EQ(bodyText(u"a\\'zzb"), u"azzb"_s);
    EXPECT_EQ(bodyText(u"a\\'4zb"), u"a4zb"_s);
    EXPECT_EQ(bodyText(u"a\\'4\\par b"), u"a4\r\nb"_s);
    EXPECT_EQ(bodyText(u"\\'4A\\'4a"), u"JJ"_s);
}

TEST(RtfReader, givesNothingForWhatIsNoGroup)
{
    for (const QStringView input : {u"", u"x", u"\\par", u"}", u"}{a}", u"\\cf6 IF"})
        EXPECT_EQ(plainText(input), QString()) << input.toString().toStdString();
    EXPECT_EQ(plainText(u"{a}"), u"a"_s);
    EXPECT_EQ(plainText(u"{"), QString());
}

TEST(RtfReader, readsAStringViewThatIsNull)
{
    EXPECT_FALSE(isRtf(QStringView()));
    EXPECT_EQ(plainText(QStringView()), QString());
}

} // namespace
} // namespace ORVTListview::Testing
