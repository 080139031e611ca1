// How the text of a document looks.

#include "rtf/RtfDump.h"

#include "rtf/RtfReader.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace ORVTListview::Testing {
namespace {

// A document with fonts 0, 1 and 7 and the colours red, green and blue.
QString document(QStringView body)
{
    return u"{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}{\\f1 Courier New;}{\\f7 "
           u"Times;}}"
           "{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green255\\blue0;\\red0\\green0\\blue255;}%1}"_s
               .arg(body);
}

QString settings(QStringView body)
{
    return dump(document(body));
}

QString colours(QStringView table)
{
    return dump(
        u"{\\rtf1{\\colortbl %1}"
        "\\cf0 0\\cf1 1\\cf2 2\\cf3 3\\cf4 4\\cf5 5\\cf-1 6\\cf99999999999 7\\cf8}"_s.arg(table));
}

QString fonts(QStringView head)
{
    return dump(u"{\\rtf1%1\\f0 0\\f1 1\\f2 2\\plain 3}"_s.arg(head));
}

TEST(RtfReaderFormat, switchesCharacterSettings)
{
    EXPECT_EQ(settings(u"a\\b b\\i c\\ul d\\strike e\\b0 f\\i0 g\\ulnone h\\strike0 i"),
              u"\"a\"  Arial\n"
              "\"b\"  Arial bold\n"
              "\"c\"  Arial bold italic\n"
              "\"d\"  Arial bold italic underline\n"
              "\"e\"  Arial bold italic underline strike\n"
              "\"f\"  Arial italic underline strike\n"
              "\"g\"  Arial underline strike\n"
              "\"h\"  Arial strike\n"
              "\"i\"  Arial\n"_s);
}

TEST(RtfReaderFormat, switchesOnWithAnyNumberButZero)
{
    EXPECT_EQ(settings(u"\\b1 a\\b0 b\\b-1 c\\b00 d\\striked1 e\\striked0 f"),
              u"\"a\"  Arial bold\n\"b\"  Arial\n\"c\"  Arial bold\n\"d\"  Arial\n"
              "\"e\"  Arial strike\n\"f\"  Arial\n"_s);
}

TEST(RtfReaderFormat, takesEveryKindOfLineForAnUnderline)
{
    for (const auto *word : {"ul", "ulw", "uld", "uldb", "ulth", "uldash", "uldashd", "uldashdd",
                             "ulwave", "ulhwave", "ululdbwave", "ulldash", "ulthd", "ulthdash"}) {
        const QString on = QString::fromLatin1(word);
        const QString off = on + u'0';
        EXPECT_EQ(settings(u"\\%1 a\\ulnone b\\%1 c\\%2 d"_s.arg(on, off)),
                  u"\"a\"  Arial underline\n\"b\"  Arial\n\"c\"  Arial underline\n\"d\"  Arial\n"_s)
            << word;
    }
}

TEST(RtfReaderFormat, readsFontAndSize)
{
    EXPECT_EQ(settings(u"a\\f1\\fs17 b\\f7\\fs48 c\\f0 d"),
              u"\"a\"  Arial\n\"b\"  Courier New 17\n\"c\"  Times 48\n\"d\"  Arial 48\n"_s);
}

TEST(RtfReaderFormat, bringsTheSizeIntoTheRangeOfARealOne)
{
    EXPECT_EQ(settings(u"\\fs-20 a\\fs0 b\\fs99999999999 c\\fs d"),
              u"\"ab\"  Arial\n\"c\"  Arial 3276\n\"d\"  Arial\n"_s);
}

TEST(RtfReaderFormat, keepsSettingsInTheirGroup)
{
    EXPECT_EQ(settings(u"a{\\b\\cf1\\f1\\fs20 b{\\b0 c}d}e"),
              u"\"a\"  Arial\n"
              "\"b\"  Courier New 20 colour 0000ff bold\n"
              "\"c\"  Courier New 20 colour 0000ff\n"
              "\"d\"  Courier New 20 colour 0000ff bold\n"
              "\"e\"  Arial\n"_s);
}

TEST(RtfReaderFormat, resetsCharactersWithPlainAlone)
{
    EXPECT_EQ(settings(u"\\b\\i\\ul\\strike\\f1\\fs20\\cf1\\highlight2 a\\pard b\\plain c"),
              u"\"ab\"  Courier New 20 colour 0000ff back 00ff00 bold italic underline strike\n"
              "\"c\"  Arial\n"_s);
}

TEST(RtfReaderFormat, readsColours)
{
    EXPECT_EQ(settings(u"a\\cf1 b\\cf2 c\\cf3 d\\cf0 e\\cf1 f\\cf g"),
              u"\"a\"  Arial\n"
              "\"b\"  Arial colour 0000ff\n"
              "\"c\"  Arial colour 00ff00\n"
              "\"d\"  Arial colour ff0000\n"
              "\"e\"  Arial\n"
              "\"f\"  Arial colour 0000ff\n"
              "\"g\"  Arial\n"_s);
}

TEST(RtfReaderFormat, readsTheColourBehindTheTextFromEitherWord)
{
    EXPECT_EQ(settings(u"\\highlight1 a\\highlight0 b\\cb2 c\\cb0 d\\chcbpat3 e\\chcbpat0 f"),
              u"\"a\"  Arial back 0000ff\n"
              "\"b\"  Arial\n"
              "\"c\"  Arial back 00ff00\n"
              "\"d\"  Arial\n"
              "\"e\"  Arial back ff0000\n"
              "\"f\"  Arial\n"_s);
}

TEST(RtfReaderFormat, takesAnEntryWithoutColourAndOneThatIsNotThereForAutomatic)
{
    EXPECT_EQ(colours(u";\\red1\\green2\\blue3;;\\blue4;"),
              u"\"0\"\n\"1\"  colour 030201\n\"2\"\n\"3\"  colour 040000\n\"4567\"\n"_s);
}

TEST(RtfReaderFormat, readsATableWithoutAnAutomaticEntry)
{
    EXPECT_EQ(colours(u"\\red1\\green2\\blue3;\\red4\\green5\\blue6;"),
              u"\"0\"  colour 030201\n\"1\"  colour 060504\n\"234567\"\n"_s);
}

TEST(RtfReaderFormat, bringsColourComponentsIntoRange)
{
    EXPECT_EQ(colours(u";\\red-251\\green-255\\blue-32767;\\red256\\green99999\\blue99999999999;"),
              u"\"0\"\n\"1\"  colour 000000\n\"2\"  colour ffffff\n\"34567\"\n"_s);
}

TEST(RtfReaderFormat, takesTheLastOfRepeatedComponents)
{
    EXPECT_EQ(colours(u";\\red255\\green255\\blue255\\red1\\green2\\blue3;"),
              u"\"0\"\n\"1\"  colour 030201\n\"234567\"\n"_s);
}

TEST(RtfReaderFormat, needsTheEndOfAColour)
{
    EXPECT_EQ(colours(u";\\red1\\green2\\blue3"), u"\"01234567\"\n"_s);
}

TEST(RtfReaderFormat, readsColoursSpreadOverLinesAndGroups)
{
    EXPECT_EQ(colours(u"\r\n;\r\n\\red1\\green2\r\n\\blue3 ;{\\red9;}\r\n"),
              u"\"0\"\n\"1\"  colour 030201\n\"2\"  colour 000009\n\"34567\"\n"_s);
}

TEST(RtfReaderFormat, readsFontsInGroupsAndWithout)
{
    const QString expected = u"\"0\"  Arial\n\"1\"  Courier New\n\"23\"  Arial\n"_s;
    EXPECT_EQ(fonts(u"{\\fonttbl{\\f0\\fswiss Arial;}{\\f1\\fmodern Courier New;}}"), expected);
    EXPECT_EQ(fonts(u"{\\fonttbl\\f0\\fswiss Arial;\\f1\\fmodern Courier New;}"), expected);
    EXPECT_EQ(fonts(u"{\\fonttbl{\\f0\\fswiss Arial}{\\f1\\fmodern Courier New}}"), expected);
    EXPECT_EQ(fonts(u"{\\fonttbl\r\n{\\f0 Ari\r\nal;}\r\n{\\f1\\'43ourier New;}}"), expected);
}

TEST(RtfReaderFormat, readsOverWhatElseDescribesAFont)
{
    EXPECT_EQ(fonts(u"{\\fonttbl{\\f0\\fbidi\\froman\\fcharset0\\fprq2{\\*\\panose "
                    u"0202}Arial{\\*\\falt Sans};}"
                    "{\\f1{\\*\\panose 0207}Courier{\\*\\falt Mono} New;}}"),
              u"\"0\"  Arial\n\"1\"  Courier New\n\"23\"  Arial\n"_s);
}

TEST(RtfReaderFormat, fallsBackToTheDefaultFont)
{
    EXPECT_EQ(fonts(u"\\deff1{\\fonttbl{\\f0 A;}{\\f1 B;}}"), u"\"0\"  A\n\"123\"  B\n"_s);
    EXPECT_EQ(fonts(u"{\\fonttbl{\\f0 A;}{\\f1 B;}}\\deff1"), u"\"0\"  A\n\"123\"  B\n"_s);
    EXPECT_EQ(fonts(u"\\deff9{\\fonttbl{\\f0 A;}{\\f1 B;}}"), u"\"0\"  A\n\"1\"  B\n\"23\"\n"_s);
    EXPECT_EQ(fonts(u"\\deff0"), u"\"0123\"\n"_s);
}

TEST(RtfReaderFormat, readsFontNamesInTheirOwnCodePage)
{
    EXPECT_EQ(fonts(u"{\\fonttbl{\\f0\\fcharset204 \\'c0\\'e1;}{\\f1 \\u1041?\\'3b;}}"),
              u"\"0\"  \u0410\u0431\n\"1\"  \u0411;\n\"23\"  \u0410\u0431\n"_s);
}

TEST(RtfReaderFormat, takesTheLastOfFontsWithOneNumber)
{
    EXPECT_EQ(fonts(u"{\\fonttbl{\\f0 A;}{\\f1 B;}{\\f0 C;}}"),
              u"\"0\"  C\n\"1\"  B\n\"23\"  C\n"_s);
}

TEST(RtfReaderFormat, keepsTheFontOfTextInFrontOfAnotherTable)
{
    EXPECT_EQ(dump(u"{\\rtf1{\\fonttbl{\\f0 A;}}a{\\fonttbl{\\f0 B;}}b}"),
              u"\"a\"  A\n\"b\"  B\n"_s);
    EXPECT_EQ(dump(u"{\\rtf1{\\fonttbl{\\f0 A;}{\\f1 B;}}a\\deff1 b}"), u"\"a\"  A\n\"b\"  B\n"_s);
}

TEST(RtfReaderFormat, keepsTheColourOfTextInFrontOfAnotherTable)
{
    EXPECT_EQ(
        dump(u"{\\rtf1{\\colortbl;\\red1;\\red2;}\\cf1 a\\cf2 b{\\colortbl;\\red9;}c\\cf1 "
             u"d\\cf2 e}"),
        u"\"a\"  colour 000001\n\"b\"  colour 000002\n\"c\"  colour 000002\n\"d\"  colour 000009\n\"e\"\n"_s);
    EXPECT_EQ(dump(u"{\\rtf1{\\colortbl;\\red1;}\\cf1 a{{\\*\\colortbl;\\red9;}\\cf1 b}c}"),
              u"\"a\"  colour 000001\n\"b\"  colour 000009\n\"c\"  colour 000001\n"_s);
}

TEST(RtfReaderFormat, givesPiecesAsLongAsPossible)
{
    EXPECT_EQ(settings(u"a\\{b\r\nc\\'e4\\u8364?d\\b\\b0 e{f}g{\\b}h\\unknown i"),
              u"\"a{bc\\u00e4\\u20acdefghi\"  Arial\n"_s);
    EXPECT_EQ(settings(u"\\u-10179?\\u-8704?"), u"\"\\ud83d\\ude00\"  Arial\n"_s);
    EXPECT_EQ(settings(u"\\b\\par\\b0"), u"line end\n"_s);
}

class WhereTextLies final : public RtfSink
{
public:
    explicit WhereTextLies(QStringView source)
        : m_source(source)
    {
    }
    void text(QStringView text, const RtfFormat &) override
    {
        const std::less_equal<const QChar *> inOrder;
        isCopied =
            !inOrder(m_source.cbegin(), text.cbegin()) || !inOrder(text.cend(), m_source.cend());
    }
    void lineEnd() override {}

    bool isCopied = false;

private:
    QStringView m_source;
};

TEST(RtfReaderFormat, handsOutTheSourceItselfWherePossible)
{
    const QString rtf = document(u"\\cf1 a stretch of text\\par");
    WhereTextLies sink(rtf);
    readRtf(rtf, sink);
    EXPECT_FALSE(sink.isCopied);
}

} // namespace
} // namespace ORVTListview::Testing
