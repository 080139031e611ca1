#include "editor/rules/colouring/TextParts.h"
#include "editor/rules/colouring/ColouringFixture.h"
#include "editor/rules/colouring/LineColouring.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <stdexcept>
#include <vector>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// Lines that begin with blanks, which go on in the colour of the line before.
const QString someLines = u"\t if (temp1 ) \r\n\r\n  \r\n  rem fan1\r\n x fan1 "_s;

QString longText(qsizetype parts)
{
    QStringList lines;
    for (qsizetype size = 0; size < parts * shortestPart; size += someLines.size() + 2)
        lines << someLines;
    return lines.join(u"\r\n"_s);
}

std::vector<Colour> coloursOf(const ColouredText &text)
{
    std::vector<Colour> colours;
    for (const ColouredText::Run &run : text.runs)
        colours.insert(colours.end(), static_cast<std::size_t>(run.length), run.colour);
    return colours;
}

// That the text is of lines as in `few`, which has three times someLines, and so are its
// colours, and that none is missing.
void expectRepeated(const ColouredText &text, const ColouredText &few, qsizetype times)
{
    const qsizetype period = (few.text.size() + 2) / 3;
    ASSERT_EQ(text.text.size(), times * period - 2);
    const std::vector<Colour> colours = coloursOf(text);
    const std::vector<Colour> expected = coloursOf(few);
    ASSERT_EQ(static_cast<qsizetype>(colours.size()), text.text.size());
    for (qsizetype i = 0; i < text.text.size(); ++i) {
        const qsizetype place = i < period ? i : period + (i - period) % period;
        ASSERT_EQ(text.text[i], few.text[place]) << i;
        ASSERT_EQ(colours[static_cast<std::size_t>(i)], expected[static_cast<std::size_t>(place)])
            << i;
    }
}

} // namespace

TEST(TextParts, AreWholeLinesOfTheText)
{
    const QString text = longText(5);
    for (const int processors : {1, 2, 3, 4, 64}) {
        const QList<QStringView> parts = partsOfLines(text, processors);
        EXPECT_EQ(parts.size(), std::min(processors, 4));
        QString joined = parts.first().toString();
        for (qsizetype i = 1; i < parts.size(); ++i)
            joined.append(u"\r\n").append(parts[i]);
        EXPECT_TRUE(joined == text);
    }
}

TEST(TextParts, AShortTextOrLineIsOne)
{
    EXPECT_EQ(partsOfLines(QString(), 4).size(), 1);
    EXPECT_EQ(partsOfLines(someLines, 4), QList<QStringView>{someLines});
    const QString line(3 * shortestPart, u'x');
    EXPECT_EQ(partsOfLines(line, 4), QList<QStringView>{line});
}

TEST(TextParts, AllAreCalledOnce)
{
    for (const qsizetype count : {0, 1, 2, 7}) {
        std::vector<std::atomic<int>> calls(static_cast<std::size_t>(count));
        atTheSameTime(count, [&](qsizetype i) { ++calls[static_cast<std::size_t>(i)]; });
        EXPECT_TRUE(std::all_of(calls.begin(), calls.end(), [](const auto &n) { return n == 1; }));
    }
}

TEST(TextParts, WhatACallRaisesIsRaisedWhenAllAreDone)
{
    for (const qsizetype failing : {0, 1, 3}) {
        std::atomic<int> calls = 0;
        const auto call = [&](qsizetype i) {
            ++calls;
            if (i == failing)
                throw std::runtime_error("no");
        };
        EXPECT_THROW(atTheSameTime(4, call), std::runtime_error);
        EXPECT_EQ(calls, 4);
    }
}

TEST(TextParts, ALongTextIsColouredAsAShortOne)
{
    Colouring colouring;
    const QString few = QStringList{someLines, someLines, someLines}.join(u"\r\n"_s);
    const QString many = longText(4);
    const qsizetype times = (many.size() + 2) / (someLines.size() + 2);
    const ColourEngine engine = colouring.engine();
    expectRepeated(finishedText(engine, many, defaultColours()),
                   finishedText(engine, few, defaultColours()), times);
    expectRepeated(colouredText(engine, many, false, defaultColours()),
                   colouredText(engine, few, false, defaultColours()), times);
}
