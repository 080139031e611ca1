#include "editor/rules/language/CodeText.h"
#include "support/EveryFieldCounts.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

TEST(CommentLine, BeginsWithRemAndABlank)
{
    for (const QString &comment : {u"rem x"_s, u"  REM"_s, u"\tRem\tabc"_s, u"REM"_s, u"rem "_s,
                                   u" \t rem\t"_s, u"REM REM"_s})
        EXPECT_TRUE(IsCommentLine(comment)) << comment.toStdString();
    for (const QString &code : {u"REMARK"_s, u"REM_X"_s, u"REMOTE"_s, u""_s, u"   "_s, u"X REM"_s,
                                u"(REM x)"_s, u"RE"_s, u"REM:"_s, u"REMX"_s})
        EXPECT_FALSE(IsCommentLine(code)) << code.toStdString();
    EXPECT_TRUE(IsCommentLine(QStringView(u"REMX").first(3)));
}

TEST(LineBounds, OfEveryCaret)
{
    const QString text = u"ab\r\n\r\ncde"_s;
    EXPECT_EQ(LineBounds(text, -1), (LineRange{1, 2}));
    EXPECT_EQ(LineBounds(text, 0), (LineRange{1, 2}));
    EXPECT_EQ(LineBounds(text, 1), (LineRange{1, 2}));
    EXPECT_EQ(LineBounds(text, 2), (LineRange{1, 2}));
    EXPECT_EQ(LineBounds(text, 4), (LineRange{5, 4}));
    EXPECT_EQ(LineBounds(text, 6), (LineRange{7, 9}));
    EXPECT_EQ(LineBounds(text, 9), (LineRange{7, 9}));
    EXPECT_EQ(LineBounds(u"", 0), (LineRange{1, 0}));
    EXPECT_EQ(LineBounds(u"\r\n", 0), (LineRange{1, 0}));
    EXPECT_EQ(LineBounds(u"\r\n", 2), (LineRange{3, 2}));
}

TEST(LineBounds, ALoneCrOrLfEndsNoLine)
{
    EXPECT_EQ(LineBounds(u"a\nb\rc", 3), (LineRange{1, 5}));
}

TEST(CommentAt, LooksAtTheLineOfTheCaret)
{
    const QString text = u"REM a\r\nx\r\n rem b"_s;
    EXPECT_TRUE(IsCommentAt(text, 0));
    EXPECT_TRUE(IsCommentAt(text, 5));
    EXPECT_FALSE(IsCommentAt(text, 7));
    EXPECT_FALSE(IsCommentAt(text, 8));
    EXPECT_TRUE(IsCommentAt(text, 10));
    EXPECT_TRUE(IsCommentAt(text, 16));
}

TEST(WordBounds, BackwardsStopAtBlankTabOpeningBracketAndLf)
{
    EXPECT_EQ(FindWordStart(u"ab cd", 5), 4);
    EXPECT_EQ(FindWordStart(u"ab\tcd", 5), 4);
    EXPECT_EQ(FindWordStart(u"ab(cd", 5), 4);
    EXPECT_EQ(FindWordStart(u"ab\r\ncd", 6), 5);
    EXPECT_EQ(FindWordStart(u"ab)cd", 5), 1);
    EXPECT_EQ(FindWordStart(u"ab\rcd", 5), 1);
    EXPECT_EQ(FindWordStart(u"ab cd", 3), 4);
    EXPECT_EQ(FindWordStart(u"ab", 0), 1);
    EXPECT_EQ(FindWordStart(u"(ab", 1), 2);
    EXPECT_EQ(FindWordStart(u"", 0), 1);
}

TEST(WordBounds, ForwardsStopAtBlankTabClosingBracketAndCr)
{
    EXPECT_EQ(FindWordEnd(u"ab cd", 1), 3);
    EXPECT_EQ(FindWordEnd(u"ab\tcd", 1), 3);
    EXPECT_EQ(FindWordEnd(u"ab)cd", 1), 3);
    EXPECT_EQ(FindWordEnd(u"ab\r\ncd", 1), 3);
    EXPECT_EQ(FindWordEnd(u"ab(cd", 1), 6);
    EXPECT_EQ(FindWordEnd(u"ab\ncd", 1), 6);
    EXPECT_EQ(FindWordEnd(u"ab", 0), 3);
    EXPECT_EQ(FindWordEnd(u"", 0), 1);
}

TEST(WordBounds, ABlankAtThePositionItselfIsSteppedOver)
{
    EXPECT_EQ(FindWordEnd(u"ab cd", 3), 6);
    EXPECT_EQ(FindWordEnd(u"ab\tcd", 3), 6);
    EXPECT_EQ(FindWordEnd(u"ab  cd", 3), 4);
    EXPECT_EQ(FindWordEnd(u"ab)cd", 3), 3); // a bracket ends the word wherever it lies
    EXPECT_EQ(FindWordEnd(u"ab\rcd", 3), 3);
    EXPECT_EQ(FindWordEnd(u" ab", 0), 1); // after position 0, so it ends the word
}

TEST(WordAtTheCaret, IsTheWordAroundIt)
{
    EXPECT_EQ(wordAtCaret(u"IF Temp1 > 2", 5), (WordAtCaret{u"Temp1"_s, u"Te"_s, 4}));
    EXPECT_EQ(wordAtCaret(u"IF Temp1 > 2", 3), (WordAtCaret{u"Temp1"_s, u""_s, 4}));
    EXPECT_EQ(wordAtCaret(u"IF Temp1 > 2", 8), (WordAtCaret{u"Temp1"_s, u"Temp1"_s, 4}));
    EXPECT_EQ(wordAtCaret(u"IF(Temp1)", 4), (WordAtCaret{u"Temp1"_s, u"T"_s, 4}));
    EXPECT_EQ(wordAtCaret(u"ABC)", 3), (WordAtCaret{u"ABC"_s, u"ABC"_s, 1}));
    EXPECT_EQ(wordAtCaret(u"", 0), (WordAtCaret{u""_s, u""_s, 1}));
}

TEST(WordAtTheCaret, DirectlyAfterABracketBeforeTheLineEndIsEmpty)
{
    EXPECT_EQ(wordAtCaret(u"f(", 2).Word, QString());
    EXPECT_EQ(wordAtCaret(u"f()", 2).Word, QString());
    EXPECT_EQ(wordAtCaret(u"f(\r\nx", 2).Word, QString());
}

TEST(LineIndent, IsTheLeadingBlanksAndTabs)
{
    EXPECT_EQ(GetLineIndent(u"  IF x"_s), u"  "_s);
    EXPECT_EQ(GetLineIndent(u"\t \tIF x"_s), u"\t \t"_s);
    EXPECT_EQ(GetLineIndent(u"IF"_s), u""_s);
    EXPECT_EQ(GetLineIndent(u" \t "_s), u" \t "_s);
    EXPECT_EQ(GetLineIndent(u""_s), u""_s);
}

TEST(CodeText, LinesAndWordsAreEqualInAllFieldsOnly)
{
    expectEveryFieldCounts(
        LineRange{1, 4}, [](LineRange &other) { other.LineStart = 2; },
        [](LineRange &other) { other.LineEnd = 3; });
    expectEveryFieldCounts(
        WordAtCaret{u"Fan"_s, u"Fa"_s, 1}, [](WordAtCaret &other) { other.Word = u"fan"_s; },
        [](WordAtCaret &other) { other.PartBeforeCaret = u"F"_s; },
        [](WordAtCaret &other) { other.WordStart = 2; });
}
