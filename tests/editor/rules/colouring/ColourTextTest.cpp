#include "editor/rules/colouring/ColouringFixture.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

TEST(ColourText, TheWorkedExample)
{
    Colouring colouring;
    const QString head = BuildRtfHeader(QString(), defaultColours(), colouring.messages).Header;
    EXPECT_EQ(
        ColourText(colouring.engine(), u"if (temp1 >= 20)\r\nREM check"_s, head, false),
        u"{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}}\r\n"
        "{\\colortbl ;\\red223\\green223\\blue223;\\red0\\green128\\blue0;\\red128\\green0\\blue0;"
        "\\red255\\green0\\blue0;\\red128\\green0\\blue255;\\red0\\green0\\blue0;"
        "\\red0\\green0\\blue255;\\red128\\green128\\blue0;}\r\n"
        "\\viewkind4\\uc1\\pard\\lang1033\\b\\fs17 "
        "\\cf6 IF \\cf0 ( \\cf4 Temp1 \\cf6 >= \\cf0 20\\cf0  )\r\n\\par \\cf2 REM check}"_s);
}

TEST(ColourText, EmptyTextAndEmptyLines)
{
    Colouring colouring;
    EXPECT_EQ(colouring.text(u""_s), u"}"_s);
    EXPECT_EQ(ColourText(colouring.engine(), u"", u"head"_s, false), u"head}"_s);
    EXPECT_EQ(colouring.text(u"\r\n"_s), u"\r\n\\par }"_s);
    EXPECT_EQ(colouring.text(u"\r\n\r\n"_s), u"\r\n\\par \r\n\\par }"_s);
    EXPECT_EQ(colouring.text(u"A\r\n"_s), u"\\cf0 A\r\n\\par }"_s);
}

TEST(ColourText, OnlyCrLfSeparatesLines)
{
    Colouring colouring;
    EXPECT_EQ(colouring.text(u"A\nrem\rB"_s), u"\\cf0 A\nrem\rB}"_s);
}

TEST(ColourText, CommentLinesStayAsTheyAre)
{
    Colouring colouring;
    EXPECT_EQ(colouring.text(u"rem x > 1"_s), u"\\cf2 rem x > 1}"_s);
    EXPECT_EQ(colouring.text(u"\tREM  if\t( x )"_s), u"\\cf2 \tREM  if\t( x )}"_s);
    EXPECT_EQ(colouring.text(u"REMARK"_s), u"\\cf0 REMARK}"_s);
    EXPECT_EQ(colouring.text(u"REM \\ { }"_s), u"\\cf2 REM \\ { }}"_s);
}

TEST(ColourText, PiecesOfAnyLengthComeInTheirOrder)
{
    Colouring colouring;
    for (qsizetype length = 490; length < 530; ++length) {
        const QString comment = u"REM "_s + QString(length, u'x');
        const QString word(length, u'y');
        EXPECT_EQ(colouring.text(u"if a\r\n"_s + comment + u"\r\n"_s + word + u" if"_s),
                  u"\\cf6 IF \\cf0 a\r\n\\par \\cf2 "_s + comment + u"\r\n\\par \\cf0 "_s + word +
                      u" \\cf6 IF}"_s);
    }
}

TEST(ColourText, TheFirstLineCanContinueAComment)
{
    Colouring colouring;
    EXPECT_EQ(colouring.text(u"if x\r\nif x"_s, true), u"\\cf2 if x\r\n\\par \\cf6 IF \\cf0 x}"_s);
    EXPECT_EQ(colouring.text(u"\r\nif"_s, true), u"\r\n\\par \\cf6 IF}"_s);
}

TEST(ColourText, NothingIsEscaped)
{
    Colouring colouring;
    EXPECT_EQ(colouring.text(u"a\\b {c}"_s), u"\\cf0 a\\b \\cf0 {c}}"_s);
}

TEST(ColourText, EveryClassHasItsColour)
{
    Colouring colouring;
    colouring.indexed.Add(u"Tmp"_s, u"0"_s, 1, 1);
    colouring.vocabulary.setIndexedNames(&colouring.indexed);
    colouring.refill();
    EXPECT_EQ(colouring.line(u"limit1 var1 temp1 fan1 nettemp"_s),
              u"\\cf3 Limit1 \\cf7 Var1 \\cf4 Temp1 \\cf5 Fan1 \\cf8 NetTemp"_s);
    EXPECT_EQ(colouring.line(u"else day average clear tmp1 42 x"_s),
              u"\\cf6 ELSE \\cf6 DAY \\cf6 AVERAGE \\cf6 CLEAR \\cf6 Tmp1 \\cf0 42 \\cf0 x"_s);
}

TEST(ColourLine, RunsOfBlanksSurvive)
{
    Colouring colouring;
    EXPECT_EQ(colouring.line(u"A  B"_s), u"\\cf0 A  \\cf0 B"_s);
    EXPECT_EQ(colouring.line(u"   A"_s), u"   \\cf0 A"_s);
    EXPECT_EQ(colouring.line(u"A   "_s), u"\\cf0 A   "_s);
    EXPECT_EQ(colouring.line(u"  "_s), u"  "_s);
}

TEST(ColourLine, BlanksBeforeAClosingBracketGo)
{
    Colouring colouring;
    EXPECT_EQ(colouring.line(u"f( x )"_s), u"\\cf0 f( \\cf0 x\\cf0  )"_s);
    EXPECT_EQ(colouring.line(u"A   )"_s), u"\\cf0 A\\cf0  )"_s);
    EXPECT_EQ(colouring.line(u"A ) )"_s), u"\\cf0 A\\cf0  )\\cf0  )"_s);
    EXPECT_EQ(colouring.line(u"   )"_s), u"\\cf0  )"_s);
    EXPECT_EQ(colouring.line(u"( )"_s), u"\\cf0 ( \\cf0  )"_s);
}

TEST(NormaliseClosingParens, TakesBlanksOnly)
{
    EXPECT_EQ(NormaliseClosingParens(u"A   )"), u"A)"_s);
    EXPECT_EQ(NormaliseClosingParens(u"A ) )"), u"A))"_s);
    EXPECT_EQ(NormaliseClosingParens(u"A\t)"), u"A\t)"_s);
    EXPECT_EQ(NormaliseClosingParens(u" ( A"), u" ( A"_s);
    EXPECT_EQ(NormaliseClosingParens(u""), u""_s);
}

TEST(ColourToken, Tabs)
{
    Colouring colouring;
    EXPECT_EQ(colouring.token(u"\tIF"_s), u"\\tab \\cf6 IF"_s);
    EXPECT_EQ(colouring.token(u"IF\t"_s), u"\\cf6 IF\\tab "_s);
    EXPECT_EQ(colouring.token(u"\t"_s), u"\\tab "_s);
    EXPECT_EQ(colouring.token(u"\t\t"_s), u"\\tab \\tab "_s);
    EXPECT_EQ(colouring.token(u"A\tB"_s), u"\\cf0 A\\cf0 B"_s);
    EXPECT_EQ(colouring.token(u"A\t\tB"_s), u"\\cf0 A\\tab \\cf0 B"_s);
    EXPECT_EQ(colouring.token(u"\t\tA\t"_s), u"\\tab \\tab \\cf0 A\\tab "_s);
    EXPECT_EQ(colouring.token(u""_s), u""_s);
}

TEST(ColourToken, Brackets)
{
    Colouring colouring;
    EXPECT_EQ(colouring.token(u"("_s), u"\\cf0 ("_s);
    EXPECT_EQ(colouring.token(u")"_s), u"\\cf0  )"_s);
    EXPECT_EQ(colouring.token(u"()"_s), u"\\cf0 ( \\cf0  )"_s);
    EXPECT_EQ(colouring.token(u"(("_s), u"\\cf0 ( \\cf0 ("_s);
    EXPECT_EQ(colouring.token(u"))"_s), u"\\cf0  )\\cf0  )"_s);
    EXPECT_EQ(colouring.token(u"((temp1))"_s), u"\\cf0 ( \\cf0 ( \\cf4 Temp1\\cf0  )\\cf0  )"_s);
    EXPECT_EQ(colouring.token(u"f(x)"_s), u"\\cf0 f(x\\cf0  )"_s);
    EXPECT_EQ(colouring.token(u")("_s), u"\\cf0 )("_s);
    EXPECT_EQ(colouring.token(u"(A\t)"_s), u"\\cf0 ( \\cf0 A\\cf0  )"_s);
}

TEST(ColourToken, TheRestBeforeAClosingBracketIsTrimmed)
{
    Colouring colouring;
    EXPECT_EQ(colouring.token(u"A )"_s), u"\\cf0 A\\cf0  )"_s);
    EXPECT_EQ(colouring.token(u" A )"_s), u"\\cf0 A\\cf0  )"_s);
    EXPECT_EQ(colouring.token(u"temp1  )"_s), u"\\cf4 Temp1\\cf0  )"_s);
    EXPECT_EQ(colouring.token(u"A ) )"_s), u"\\cf0 A\\cf0  )\\cf0  )"_s);
    EXPECT_EQ(colouring.token(u" )"_s), u"\\cf0  )"_s);
    EXPECT_EQ(colouring.token(u"( )"_s), u"\\cf0 ( \\cf0  )"_s);
    EXPECT_EQ(colouring.token(u"( A )"_s), u"\\cf0 ( \\cf0 A\\cf0  )"_s);
    EXPECT_EQ(colouring.token(u"A B )"_s), u"\\cf0 A B\\cf0  )"_s);
}

TEST(ColourToken, AListedWordWithABracketWins)
{
    Colouring colouring;
    colouring.inputs.Add(u"(odd)"_s);
    colouring.inputs.Add(u"even)"_s);
    colouring.refill();
    EXPECT_EQ(colouring.token(u"(ODD)"_s), u"\\cf4 (odd)"_s);
    EXPECT_EQ(colouring.token(u"((odd)"_s), u"\\cf0 ( \\cf4 (odd)"_s);
    EXPECT_EQ(colouring.token(u"EVEN)"_s), u"\\cf4 even)"_s);
}

TEST(ColourToken, AMillionBracketsAreNoDanger)
{
    Colouring colouring;
    const QString token = QString(1'000'000, u'(') + QString(1'000'000, u')');
    const QString rtf = colouring.token(token);
    EXPECT_EQ(rtf.count(u'('), 1'000'000);
    EXPECT_EQ(rtf.count(u')'), 1'000'000);
}

TEST(EmptyWordList, IsReportedForEachTokenAndColouringGoesOn)
{
    RecordedMessages messages;
    const CodeWordList none;
    const ColourEngine engine(none, messages);
    EXPECT_EQ(ColourText(engine, u"if x\r\n\r\nREM y", QString(), false),
              u"\\cf0 if \\cf0 x\r\n\\par \r\n\\par \\cf2 REM y}"_s);
    EXPECT_EQ(messages.messages.size(), 2);
    EXPECT_EQ(messages.messages[0],
              (Message{Message::Icon::None, QString(), u"List not found!"_s}));
}

TEST(EmptyWordList, IsReportedWithinBrackets)
{
    RecordedMessages messages;
    const CodeWordList none;
    EXPECT_EQ(ColourToken(ColourEngine(none, messages), u"(x)"), u"\\cf0 ( \\cf0 x\\cf0  )"_s);
    EXPECT_EQ(messages.messages.size(), 3); // "(x)", "x)" and "x"
}
