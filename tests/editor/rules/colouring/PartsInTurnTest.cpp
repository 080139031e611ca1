#include "editor/rules/colouring/PartsInTurn.h"

#include "base/SharedText.h"
#include "editor/rules/colouring/ColourTable.h"
#include "editor/rules/colouring/ColouringFixture.h"
#include "editor/rules/colouring/LineColouring.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <optional>
#include <utility>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// Line ends go on in the colour before them, or are of none.
ColouredText joined(PartsInTurn &parts, bool goOn)
{
    ColouredText result;
    bool isFirst = true;
    while (const std::optional<ColouredText> part = parts.next()) {
        if (!std::exchange(isFirst, false)) {
            const bool hasColour = goOn && !result.runs.isEmpty();
            result.text += u"\r\n"_s;
            result.appendRun(2,
                             hasColour ? result.runs.constLast().colour : ColouredText::automatic);
        }
        result.text += part->text;
        for (const ColouredText::Run &run : part->runs)
            result.appendRun(run.length, run.colour);
    }
    return result;
}

ColouredText asOneRunEach(const ColouredText &text)
{
    ColouredText result{text.text, {}};
    for (const ColouredText::Run &run : text.runs)
        result.appendRun(run.length, run.colour);
    return result;
}

// Lines of all lengths at the places where a part ends, and none.
QStringList programs(const QString &line)
{
    QStringList result;
    for (const QString &end : {QString(), u"endif"_s, u"\r\n"_s, u"\r\n \t"_s}) {
        for (const int lines : {0, 1, 5000, 20000})
            result << line.repeated(lines) + end;
    }
    return result;
}

PartsInTurn::Colouring finished()
{
    return PartsInTurn::finished(defaultColours(), Spelling::Listed);
}

} // namespace

TEST(PartsInTurn, TogetherAreTheFinishedText)
{
    Colouring colouring;
    for (const QString &text : programs(u"if ( temp1 > 20 )\r\n\r\nrem temp1\r\n"_s)) {
        PartsInTurn parts(colouring.engine(), text, finished());
        const ColouredText expected = finishedText(colouring.engine(), text, defaultColours());
        EXPECT_TRUE(joined(parts, false) == asOneRunEach(expected)) << text.size();
    }
}

// Blanks at the beginning of a part go on in the colour of a part before.
TEST(PartsInTurn, TogetherAreTheColouredText)
{
    Colouring colouring;
    const QString lines = u" if (temp1>20 )\r\n \t\r\nfan1\r\n\t\tlimit1\r\n  rem x\r\n"_s;
    QStringList texts = programs(lines);
    texts.append(QString(500'000, u' '));
    for (const QString &text : std::as_const(texts)) {
        PartsInTurn parts(colouring.engine(), text, PartsInTurn::coloured(defaultColours()));
        const ColouredText expected =
            colouredText(colouring.engine(), text, false, defaultColours());
        EXPECT_TRUE(joined(parts, true) == expected) << text.size();
    }
}

TEST(PartsInTurn, BlanksOfAWholePartGoOnToo)
{
    Colouring colouring;
    const QString blanks = u" \t\r\n"_s.repeated(100'000);
    const QString text = u"fan1\r\n"_s + blanks + u"temp1\r\n"_s + blanks + u"limit1"_s;
    PartsInTurn parts(colouring.engine(), text, PartsInTurn::coloured(defaultColours()));
    EXPECT_TRUE(joined(parts, true) ==
                colouredText(colouring.engine(), text, false, defaultColours()));
}

TEST(PartsInTurn, DifferMostlyFromATextWithNothingOfTheirEnds)
{
    Colouring colouring;
    const QString text = u"IF Temp1 > 20\r\nENDIF\r\n"_s.repeated(50'000);
    const auto differs = [&](const QString &other) {
        PartsInTurn parts(colouring.engine(), text, finished());
        const bool result = parts.differsMostlyFrom(SharedText(other));
        EXPECT_EQ(joined(parts, false).text, text);
        return result;
    };
    EXPECT_FALSE(differs(text));
    EXPECT_FALSE(differs(u"x"_s + text));
    EXPECT_FALSE(differs(text + u"x"_s));
    EXPECT_FALSE(differs(QString(text).insert(text.size() / 2, u"x"_s)));
    EXPECT_TRUE(differs(u"x"_s + text + u"x"_s));
    EXPECT_TRUE(differs(QString()));
}

TEST(PartsInTurn, AShortTextIsNotWorthIt)
{
    Colouring colouring;
    const QString text = u"IF Temp1 > 20\r\n"_s.repeated(100);
    PartsInTurn parts(colouring.engine(), text, finished());
    EXPECT_FALSE(parts.differsMostlyFrom(SharedText()));
}

// Without words every name is looked up at the host's, which is asked by one thread.
TEST(PartsInTurn, AreFinishedByOneThreadWhereTheHostIsAsked)
{
    Colouring colouring;
    colouring.words = {};
    ASSERT_FALSE(colouring.engine().isForThreads());
    const QString text = u"if temp1 > 20\r\n"_s.repeated(20000) + u"endif"_s;
    PartsInTurn parts(colouring.engine(), text, finished());
    const ColouredText expected = finishedText(colouring.engine(), text, defaultColours());
    EXPECT_EQ(expected.text, text);
    EXPECT_TRUE(joined(parts, false) == asOneRunEach(expected));
}

TEST(PartsInTurn, MayBeLeftBeforeTheEnd)
{
    Colouring colouring;
    const QString text = u"if temp1 > 20\r\n"_s.repeated(50000);
    PartsInTurn parts(colouring.engine(), text, finished());
    const std::optional<ColouredText> first = parts.next();
    ASSERT_TRUE(first);
    EXPECT_TRUE(first->text.startsWith(u"IF "_s));
}
