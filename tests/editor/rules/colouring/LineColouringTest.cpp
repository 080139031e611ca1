#include "editor/rules/colouring/LineColouring.h"
#include "editor/rules/colouring/ColouringFixture.h"
#include "editor/rules/language/CodeText.h"

#include "support/RandomSeed.h"

#include <gtest/gtest.h>

#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

ColouredText finished(Colouring &colouring, const QString &line)
{
    return finishedLine(colouring.engine(), line, defaultColours());
}

// The colour of each character that is neither blank nor tab, with the character.
QString colouredCharacters(const ColouredText &text)
{
    QString result;
    qsizetype at = 0;
    for (const ColouredText::Run &run : text.runs) {
        for (qsizetype i = 0; i < run.length; ++i, ++at) {
            const QChar c = text.text[at];
            if (c != u' ' && c != u'\t')
                result += c + QString::number(run.colour, 16) + u' ';
        }
    }
    return result;
}

} // namespace

TEST(FinishedLine, TakesColoursAndListedSpelling)
{
    Colouring colouring;
    const ColouredText line = finished(colouring, u"if temp1"_s);
    EXPECT_EQ(line.text, u"IF Temp1"_s);
    EXPECT_EQ(line.runs, (QList<ColouredText::Run>{{3, 0x000000}, {5, 0x0000FF}}));
}

TEST(FinishedLine, KeepsASpellingOfAnotherLength)
{
    Colouring colouring;
    colouring.inputs.Add(u"Maß"_s);
    colouring.refill();
    const ColouredText line = finished(colouring, u"mass maß temp1"_s);
    EXPECT_EQ(line.text, u"mass Maß Temp1"_s);
    EXPECT_EQ(line.runs, (QList<ColouredText::Run>{{14, 0x0000FF}}));
}

TEST(FinishedLine, KeepsBlanksTabsAndBrackets)
{
    Colouring colouring;
    EXPECT_EQ(finished(colouring, u"\tif(temp1  )\tx"_s).text, u"\tif(temp1  )\tx"_s);
    EXPECT_EQ(finished(colouring, u"if  (temp1  )"_s).text, u"IF  (Temp1  )"_s);
    EXPECT_EQ(finished(colouring, u"A\tif"_s).text, u"A\tIF"_s);
    EXPECT_EQ(finished(colouring, u""_s), ColouredText());
}

TEST(FinishedLine, AListedWordAcrossABlankKeepsItsLength)
{
    Colouring colouring;
    colouring.inputs.Add(u"Odd)"_s);
    colouring.refill();
    EXPECT_EQ(finished(colouring, u"odd  )"_s).text, u"odd  )"_s);
}

TEST(FinishedLine, CommentsAreOneColour)
{
    Colouring colouring;
    const ColouredText line = finished(colouring, u"  rem if (temp1 )"_s);
    EXPECT_EQ(line.text, u"  rem if (temp1 )"_s);
    EXPECT_EQ(line.runs, (QList<ColouredText::Run>{{17, 0x008000}}));
}

TEST(FinishedText, AsTypedItHasTheColoursAlone)
{
    Colouring colouring;
    const QString text = u"if ( temp1 )\r\n\r\nrem fan1\r\nday\tfan1 "_s;
    const auto in = [&](Spelling spelling) {
        return finishedText(colouring.engine(), text, defaultColours(), spelling);
    };
    EXPECT_EQ(in(Spelling::Listed).text, u"IF ( Temp1 )\r\n\r\nrem fan1\r\nDAY\tFan1 "_s);
    EXPECT_EQ(in(Spelling::AsTyped).text, text);
    EXPECT_EQ(in(Spelling::AsTyped).runs, in(Spelling::Listed).runs);
}

TEST(FinishedLine, WordsHaveTheColoursOfTheWholeText)
{
    const unsigned seed = randomSeed(991);
    std::mt19937 random(seed);
    const QStringList pieces{u"if"_s, u"Temp1"_s, u"fan1"_s, u"x"_s, u"("_s, u")"_s,   u"(("_s,
                             u" "_s,  u"  "_s,    u"\t"_s,   u"4"_s, u"_"_s, u"day"_s, u">="_s};
    Colouring colouring;
    const int rounds = randomSteps(10'000);
    for (int round = 0; round < rounds; ++round) {
        QString line;
        for (unsigned i = 0; i < random() % 14; ++i)
            line += pieces[static_cast<qsizetype>(random() % pieces.size())];
        const ColouredText typed = finished(colouring, line);
        ASSERT_EQ(typed.text.size(), line.size());
        ASSERT_EQ(typed.text.compare(line, Qt::CaseInsensitive), 0);
        ASSERT_EQ(
            colouredCharacters(typed),
            colouredCharacters(colouredText(colouring.engine(), line, false, defaultColours())))
            << "seed " << seed << " round " << round << ": " << line.toStdString();
    }
}
