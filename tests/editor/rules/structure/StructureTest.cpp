#include "editor/rules/structure/BlockWalk.h"
#include "editor/rules/structure/Brackets.h"
#include "editor/rules/structure/Folding.h"
#include "support/EveryFieldCounts.h"

#include <gtest/gtest.h>

#include <QtCore/QStringList>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// The words as "line:offset" in the order in which the walk meets them, "." for done.
// The walk begins at the word that "|" stands before.
QString walked(const QString &program, BlockWalk::Direction direction)
{
    QStringList lines = program.split(u'\n');
    qsizetype start = 0;
    while (!lines[start].contains(u'|'))
        ++start;
    const qsizetype offset = lines[start].indexOf(u'|');
    lines[start].remove(u'|');
    const bool isForwards = direction == BlockWalk::Direction::Forwards;
    BlockWalk walk(direction);
    QStringList found;
    for (qsizetype i = start; i >= 0 && i < lines.size(); i += isForwards ? 1 : -1) {
        QList<BlockWord> words = blockWordsOf(lines[i]);
        if (i == start)
            words.removeIf([=](const BlockWord &word) {
                return isForwards ? word.place.start <= offset : word.place.start >= offset;
            });
        for (const BlockWord &word : walk.read(words))
            found << u"%1:%2"_s.arg(i).arg(word.place.start);
    }
    return found.join(u' ') + (walk.isDone() ? u"."_s : QString());
}

QString forwards(const QString &program)
{
    return walked(program, BlockWalk::Direction::Forwards);
}

QString backwards(const QString &program)
{
    return walked(program, BlockWalk::Direction::Backwards);
}

QString words(QStringView line)
{
    QStringList texts;
    for (const TextPiece &word : wordsOf(line))
        texts << line.sliced(word.start, word.length).toString();
    return texts.join(u'|');
}

std::optional<BracketPair> pair(qsizetype bracket, std::optional<qsizetype> partner)
{
    return BracketPair{bracket, partner};
}

} // namespace

TEST(BlockWords, standBetweenBlanksBracketsAndCommas)
{
    EXPECT_EQ(words(u"IF (a,b)\tc )"), u"IF|a|b|c"_s);
    EXPECT_EQ(words(u""), QString());
    EXPECT_EQ(words(u" rem IF a"), QString());
}

TEST(BlockWords, areFoundInAnyLetterCaseAndWhole)
{
    const QList<BlockWord> found = blockWordsOf(u"if x (Else) ENDIF ifx endif_ END");
    ASSERT_EQ(found.size(), 3);
    EXPECT_EQ(found[0], (BlockWord{BlockWord::If, {0, 2}}));
    EXPECT_EQ(found[1], (BlockWord{BlockWord::Else, {6, 4}}));
    EXPECT_EQ(found[2], (BlockWord{BlockWord::EndIf, {12, 5}}));
}

TEST(BlockWalk, findsWhatBelongsToAnIf)
{
    EXPECT_EQ(forwards(u"|IF a\nb\nELSE\nc\nENDIF\nENDIF"_s), u"2:0 4:0."_s);
    EXPECT_EQ(forwards(u"|IF a ELSE b ENDIF"_s), u"0:5 0:12."_s);
}

TEST(BlockWalk, stepsOverBlocksInside)
{
    EXPECT_EQ(forwards(u"|IF a\nIF b\nELSE\nENDIF\nELSE\nENDIF"_s), u"4:0 5:0."_s);
    EXPECT_EQ(backwards(u"IF a\nIF b\nELSE\nENDIF\nELSE\n|ENDIF"_s), u"4:0 0:0."_s);
}

TEST(BlockWalk, goesBothWaysFromAnElse)
{
    const QString program = u"IF a\nx\n|ELSE\ny\nENDIF"_s;
    EXPECT_EQ(forwards(program), u"4:0."_s);
    EXPECT_EQ(backwards(program), u"0:0."_s);
}

TEST(BlockWalk, isNotDoneWithoutAnEnd)
{
    EXPECT_EQ(forwards(u"|IF a\nELSE\nIF b\nENDIF"_s), u"1:0"_s);
    EXPECT_EQ(backwards(u"ENDIF\nELSE\n|ENDIF"_s), u"1:0"_s);
}

TEST(BlockWalk, passesOverComments)
{
    EXPECT_EQ(forwards(u"|IF a\nREM ENDIF\n rem else\nENDIF"_s), u"3:0."_s);
}

TEST(BlockWalk, takesAnElseIfForAnIfInsideTheElse)
{
    EXPECT_EQ(forwards(u"|IF a\nELSE IF b\nELSE\nENDIF\nENDIF"_s), u"1:0 4:0."_s);
}

TEST(BlockFold, beginsWithAnIfThatDoesNotEndOnItsLine)
{
    EXPECT_TRUE(BlockFold::begins(u"if a"));
    EXPECT_TRUE(BlockFold::begins(u"ENDIF IF a"));
    EXPECT_TRUE(BlockFold::begins(u"IF a ENDIF IF b"));
    EXPECT_FALSE(BlockFold::begins(u"IF a ENDIF"));
    EXPECT_FALSE(BlockFold::begins(u"ELSE"));
    EXPECT_FALSE(BlockFold::begins(u"REM IF a"));
}

TEST(BlockFold, endsWithTheOutermostBlock)
{
    BlockFold fold;
    EXPECT_FALSE(fold.read(u"IF a IF b"));
    EXPECT_FALSE(fold.read(u"ENDIF"));
    EXPECT_FALSE(fold.read(u"IF c ENDIF ELSE"));
    EXPECT_FALSE(fold.read(u"REM ENDIF"));
    EXPECT_TRUE(fold.read(u"ENDIF x"));
}

TEST(Brackets, arePairedFromEitherSideOfTheCaret)
{
    const QString line = u"a ( b ( c ) ) d"_s;
    EXPECT_EQ(bracketAt(line, 2), pair(2, 12));
    EXPECT_EQ(bracketAt(line, 3), pair(2, 12));
    EXPECT_EQ(bracketAt(line, 6), pair(6, 10));
    EXPECT_EQ(bracketAt(line, 13), pair(12, 2));
    EXPECT_EQ(bracketAt(line, 4), std::nullopt);
    EXPECT_EQ(bracketAt(line, 0), std::nullopt);
}

TEST(Brackets, takeTheOneBehindTheCaretFirst)
{
    EXPECT_EQ(bracketAt(u"()()", 2), pair(2, 3));
    EXPECT_EQ(bracketAt(u"()()", 4), pair(3, 2));
}

TEST(Brackets, mayMissTheirPartner)
{
    EXPECT_EQ(bracketAt(u"( ( a )", 0), pair(0, std::nullopt));
    EXPECT_EQ(bracketAt(u"a )", 3), pair(2, std::nullopt));
}

TEST(Brackets, areNoneInAComment)
{
    EXPECT_EQ(bracketAt(u"REM (a)", 4), std::nullopt);
}

using Blocks = QList<ProgramBlocks::Lines>;

ProgramBlocks blocksOf(const QStringList &lines)
{
    ProgramBlocks blocks;
    for (const QString &line : lines)
        blocks.read(line);
    return blocks;
}

TEST(ProgramBlocks, areThoseInNoOther)
{
    const ProgramBlocks blocks = blocksOf({u"IF a"_s, u"IF b"_s, u"x"_s, u"ENDIF"_s, u"ELSE"_s,
                                           u"ENDIF"_s, u"IF c ENDIF"_s, u"if d"_s, u"endif"_s});
    EXPECT_EQ(blocks.outermost(), Blocks({{0, 5}, {7, 8}}));
    EXPECT_TRUE(blocks.open().isEmpty());
}

TEST(ProgramBlocks, standInOneThatHasNoEnd)
{
    const ProgramBlocks blocks =
        blocksOf({u"IF a"_s, u"IF b"_s, u"x"_s, u"ENDIF"_s, u"IF c"_s, u"ENDIF IF d"_s});
    EXPECT_EQ(blocks.outermost(), Blocks({{1, 3}, {4, 5}}));
    EXPECT_EQ(blocks.open(), QList<int>({0, 5}));
}

TEST(ProgramBlocks, needAnIf)
{
    EXPECT_TRUE(blocksOf({u"ENDIF"_s, u"REM IF"_s, u"ENDIF"_s}).outermost().isEmpty());
    EXPECT_EQ(blocksOf({u"IF a IF b"_s, u"ENDIF"_s, u"ENDIF"_s}).outermost(), Blocks({{0, 2}}));
    EXPECT_EQ(blocksOf({u"IF a ENDIF IF b"_s, u"ENDIF"_s}).outermost(), Blocks({{0, 1}}));
}

TEST(Structure, ItsPartsAreEqualInAllFieldsOnly)
{
    expectEveryFieldCounts(
        BlockWord{BlockWord::If, {0, 2}}, [](BlockWord &other) { other.kind = BlockWord::Else; },
        [](BlockWord &other) {
            other.place = {1, 2};
        });
    expectEveryFieldCounts(
        BracketPair{3, 7}, [](BracketPair &other) { other.bracket = 2; },
        [](BracketPair &other) { other.partner = 8; },
        [](BracketPair &other) { other.partner.reset(); });
    using Lines = ProgramBlocks::Lines;
    expectEveryFieldCounts(
        Lines{1, 4}, [](Lines &other) { other.first = 0; }, [](Lines &other) { other.last = 5; });
}
