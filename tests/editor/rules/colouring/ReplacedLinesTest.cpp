// Which lines are comments while pieces of a program are replaced, and what of a
// line keeps its colours.

#include "editor/rules/colouring/ReplacedLines.h"

#include "editor/rules/colouring/TouchedLine.h"
#include "editor/rules/language/CodeText.h"
#include "support/QtPrinters.h"
#include "support/RandomSeed.h"

#include <gtest/gtest.h>

#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// The pieces of the program between "[" and "]", which are taken out of it.
QList<TextPiece> takePieces(QString &program)
{
    QList<TextPiece> pieces;
    for (qsizetype at = program.indexOf(u'['); at >= 0; at = program.indexOf(u'[')) {
        program.remove(at, 1);
        const qsizetype end = program.indexOf(u']', at);
        program.remove(end, 1);
        pieces.append({static_cast<qint32>(at), static_cast<qint32>(end - at)});
    }
    return pieces;
}

// For each piece "C" where the text goes into a comment, else "-", and "c" behind it
// where there was one.
QString states(QString program, const QString &text)
{
    const QList<TextPiece> pieces = takePieces(program);
    QString result;
    for (const ReplacedPiece &piece : replacedPieces(program, pieces, text)) {
        result += piece.isComment ? u'C' : u'-';
        result += piece.wasComment ? u"c"_s : u""_s;
    }
    return result;
}

// Replaces one piece after the other in a text.
QString statesByTrying(QString program, const QString &text)
{
    const QList<TextPiece> pieces = takePieces(program);
    QString result;
    qint32 shift = 0;
    for (TextPiece piece : pieces) {
        piece.start += shift;
        program.replace(piece.start, piece.length, text);
        shift += static_cast<qint32>(text.size()) - piece.length;
        result += IsCommentAt(program, piece.start) ? u'C' : u'-';
    }
    return result;
}

} // namespace

TEST(ReplacedLines, ALineIsACommentOrNot)
{
    EXPECT_EQ(states(u"a [x] b"_s, u"y"_s), u"-"_s);
    EXPECT_EQ(states(u"rem [x] b"_s, u"y"_s), u"Cc"_s);
    EXPECT_EQ(states(u"a\r\n\t REM [x]\r\nb [x]"_s, u"y"_s), u"Cc-"_s);
}

TEST(ReplacedLines, TheNewTextMayMakeItOne)
{
    EXPECT_EQ(states(u"[x] a [x]"_s, u"REM"_s), u"CC"_s);
    EXPECT_EQ(states(u"a [x]"_s, u"REM"_s), u"-"_s);
    EXPECT_EQ(states(u"R[x]M a [x]"_s, u"E"_s), u"CC"_s);
    EXPECT_EQ(states(u"[x]REM a"_s, u""_s), u"C"_s);
    EXPECT_EQ(states(u"R[x]EM a"_s, u""_s), u"C"_s);
}

TEST(ReplacedLines, OrNoneAnyMore)
{
    EXPECT_EQ(states(u"[REM] a [x]"_s, u"IF"_s), u"-c-c"_s);
    EXPECT_EQ(states(u"REM[ ]a [x]"_s, u"_"_s), u"-c-c"_s);
}

TEST(ReplacedLines, LinesAreJoinedAndBroken)
{
    EXPECT_EQ(states(u"a[\r\nREM] b [x]"_s, u" "_s), u"-c-c"_s);
    EXPECT_EQ(states(u"REM a[\r\n]b [x]"_s, u" "_s), u"CcC"_s);
    EXPECT_EQ(states(u"a [x] REM b"_s, u"y\r\n"_s), u"-"_s);
    EXPECT_EQ(states(u"a [x] b [x]"_s, u"y\r\nREM"_s), u"-C"_s);
    EXPECT_EQ(states(u"REM a [x] b [x]"_s, u"y\r\n"_s), u"Cc-c"_s);
}

TEST(ReplacedLines, AgreeWithReplacingOneAfterTheOther)
{
    const unsigned seed = randomSeed();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const QStringList words{u"REM"_s, u"R"_s, u"EM"_s,   u" "_s,
                            u"\t"_s,  u"a"_s, u"\r\n"_s, u"rem "_s};
    const auto word = [&] {
        return words[std::uniform_int_distribution<qsizetype>(0, words.size() - 1)(random)];
    };
    for (int i = 0; i < 10'000; ++i) {
        QString program;
        for (int k = 0; k < 8; ++k)
            program += random() % 3 == 0 ? u'[' + word() + u']' : word();
        const QString text = random() % 4 == 0 ? QString() : word();
        ASSERT_EQ(states(program, text).remove(u'c'), statesByTrying(program, text))
            << program.toStdString() << " / " << text.toStdString();
    }
}

TEST(TouchedLine, KeepsWhatWasNotTouched)
{
    const ColouredText former{u"if if temp1 x"_s, {{13, ColouredText::automatic}}};
    ColouredText line{u"IF IF Temp1 x"_s, {{6, 6}, {5, 4}, {2, ColouredText::automatic}}};
    TouchedLine touched;
    touched.touch(8, 8);
    touched.keepTheRest(line, former);
    EXPECT_EQ(line.text, u"if if Temp1 x"_s);
    const QList<ColouredText::Run> runs{
        {6, ColouredText::automatic}, {5, 4}, {2, ColouredText::automatic}};
    EXPECT_EQ(line.runs, runs);
}

TEST(TouchedLine, WordsOnBothSidesOfAPlaceAreTouched)
{
    const ColouredText former{u"a b\tc d"_s, {{7, 1}}};
    ColouredText line{u"A B\tC D"_s, {{7, 2}}};
    TouchedLine touched;
    touched.touch(-5, 1);
    touched.touch(4, 99);
    touched.keepTheRest(line, former);
    EXPECT_EQ(line.text, u"A b\tC D"_s);
    const QList<ColouredText::Run> runs{{2, 2}, {2, 1}, {3, 2}}; // blanks with their words
    EXPECT_EQ(line.runs, runs);
}

TEST(TouchedLine, AnEmptyLineIsOne)
{
    ColouredText line;
    TouchedLine touched;
    touched.touch(0, 0);
    touched.keepTheRest(line, {});
    EXPECT_EQ(line, ColouredText());
}
