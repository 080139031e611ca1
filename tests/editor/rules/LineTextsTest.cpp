#include "editor/rules/LineTexts.h"

#include "editor/rules/BlockIndent.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QString joined(const QString &text)
{
    QString result = QString(text).replace(u"\n"_s, u"\r\n"_s);
    const QList<TextEdit> edits = joints(text.split(u'\n'), 0);
    for (auto edit = edits.crbegin(); edit != edits.crend(); ++edit)
        result.replace(edit->piece.start, edit->piece.length, edit->text);
    return result;
}

QString sorted(const QString &text)
{
    const QStringList lines = text.split(u'|');
    QStringList result;
    for (const qsizetype place : sortedPlaces(lines))
        result << lines[place];
    return result.join(u'|');
}

QString toggled(const QString &text)
{
    return withCommentsToggled(text.split(u'|')).join(u'|');
}

// Each line's steps, from the first.
QString steps(const QString &program)
{
    BlockIndent indent;
    QString steps;
    for (const QString &line : program.split(u'|'))
        steps += QString::number(indent.read(line));
    return steps;
}

QString changed(const QString &before, const QString &after)
{
    const auto edit = difference(before, after, 10);
    return edit ? u"%1+%2:%3"_s.arg(edit->piece.start).arg(edit->piece.length).arg(edit->text)
                : u"same"_s;
}

} // namespace

TEST(LineTexts, JoinsWordsOneBlankApart)
{
    EXPECT_EQ(joined(u"a  \n\t b\nc"_s), u"a b c"_s);
    EXPECT_EQ(joined(u"  a\n  \n\nb "_s), u"  a b "_s);
    EXPECT_EQ(joined(u"a \n "_s), u"a"_s);
    EXPECT_EQ(joined(u"\n  a"_s), u"  a"_s);
    EXPECT_EQ(joined(u"\n"_s), QString());
    EXPECT_EQ(joined(u"a"_s), u"a"_s);
}

TEST(LineTexts, SortsNaturallyWhateverTheLetterCase)
{
    EXPECT_EQ(sorted(u"T10|t2|T1"_s), u"T1|t2|T10"_s);
    EXPECT_EQ(sorted(u"b|A|a|B"_s), u"A|a|b|B"_s); // equal ones stay in order
    EXPECT_EQ(sorted(u"a|A|"_s), u"|a|A"_s);
}

TEST(LineTexts, CommentsAllLinesOrNone)
{
    EXPECT_EQ(toggled(u"a|  b||\t"_s), u"REM a|  REM b||\t"_s);
    EXPECT_EQ(toggled(u"REM a|  rem b||\t"_s), u"a|  b||\t"_s);
    EXPECT_EQ(toggled(u"REM a|b"_s), u"REM REM a|REM b"_s);
    EXPECT_EQ(toggled(u"REM REM a|REM b"_s), u"REM a|b"_s);
    EXPECT_EQ(toggled(u"REM|REM\tx|REM  y"_s), u"|x| y"_s);
    EXPECT_EQ(toggled(u"remark"_s), u"REM remark"_s);
}

TEST(LineTexts, IndentsByBlocks)
{
    EXPECT_EQ(steps(u"IF a|x|ELSE|y|ENDIF|z"_s), u"010100"_s);
    EXPECT_EQ(steps(u"if a|IF b|x|endif ENDIF|z"_s), u"01200"_s);
    EXPECT_EQ(steps(u"IF a x = 1 ENDIF|y"_s), u"00"_s);
    EXPECT_EQ(steps(u"IF a|ELSE IF b|x|ENDIF|ENDIF|z"_s), u"002100"_s);
    EXPECT_EQ(steps(u"IF a|x ENDIF|y"_s), u"010"_s);
    EXPECT_EQ(steps(u"ENDIF|ELSE|x|REM IF|y"_s), u"00000"_s); // nothing to close
}

TEST(LineTexts, KnowsWhatALineOpensAndCloses)
{
    for (const QString &line : {u"IF a"_s, u"  else"_s, u"ENDIF IF b"_s, u"IF a x ELSE"_s})
        EXPECT_TRUE(opensBlock(line)) << line.toStdString();
    for (const QString &line : {u"IF a x ENDIF"_s, u"ENDIF"_s, u"REM IF"_s, u"IFFY"_s, u""_s})
        EXPECT_FALSE(opensBlock(line)) << line.toStdString();
    for (const QString &line : {u" else"_s, u"EndIf x"_s})
        EXPECT_TRUE(closesBlock(line)) << line.toStdString();
    for (const QString &line : {u"IF"_s, u"x ENDIF"_s, u"REM ENDIF"_s, u""_s})
        EXPECT_FALSE(closesBlock(line)) << line.toStdString();
}

TEST(TextEdits, TouchOnlyWhatDiffers)
{
    EXPECT_EQ(changed(u"abc"_s, u"abc"_s), u"same"_s);
    EXPECT_EQ(changed(u"  x"_s, u"    x"_s), u"12+0:  "_s);
    EXPECT_EQ(changed(u"aXc"_s, u"ac"_s), u"11+1:"_s);
    EXPECT_EQ(changed(u"\U0001F600"_s, u"\U0001F601"_s), u"10+2:\U0001F601"_s);
}

TEST(TextEdits, LeaveLettersOfTwoUnitsWhole)
{
    // U+10400, U+10401 and U+10800 share a unit with the one before.
    EXPECT_EQ(changed(u"a\U00010400b"_s, u"a\U00010401b"_s), u"11+2:\U00010401"_s);
    EXPECT_EQ(changed(u"a\U00010400b"_s, u"a\U00010800b"_s), u"11+2:\U00010800"_s);
    EXPECT_EQ(changed(u"\U00010400"_s, u"\U00010400\U00010400"_s), u"12+0:\U00010400"_s);
    EXPECT_EQ(changed(u"x\U00010400"_s, u"y\U00010400"_s), u"10+1:y"_s);
}

TEST(TextEdits, TakePlacesAlong)
{
    const QList<TextEdit> edits{{{4, 0}, u"xx"_s}, {{10, 4}, u"y"_s}};
    EXPECT_EQ(placeAfter(edits, 3, false), 3);
    EXPECT_EQ(placeAfter(edits, 4, true), 4);
    EXPECT_EQ(placeAfter(edits, 4, false), 6);
    EXPECT_EQ(placeAfter(edits, 10, false), 12);
    EXPECT_EQ(placeAfter(edits, 12, false), 13); // inside what went
    EXPECT_EQ(placeAfter(edits, 14, false), 13);
    EXPECT_EQ(placeAfter(edits, 20, false), 19);
}
