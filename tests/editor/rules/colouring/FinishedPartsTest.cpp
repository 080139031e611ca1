#include "editor/rules/colouring/FinishedParts.h"

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

ColouredText joined(FinishedParts &parts)
{
    ColouredText result;
    bool isFirst = true;
    while (const std::optional<ColouredText> part = parts.next()) {
        if (!std::exchange(isFirst, false)) {
            result.text += u"\r\n"_s;
            result.runs.append({2, ColouredText::automatic});
        }
        result.text += part->text;
        result.runs += part->runs;
    }
    return result;
}

} // namespace

// Lines of all lengths at the places where a part ends, and none.
TEST(FinishedParts, TogetherAreTheFinishedText)
{
    Colouring colouring;
    const QString line = u"if ( temp1 > 20 )\r\n\r\nrem temp1\r\n"_s;
    for (const QString &end : {QString(), u"endif"_s, u"\r\n"_s}) {
        for (const int lines : {0, 1, 5000, 20000}) {
            const QString text = line.repeated(lines) + end;
            FinishedParts parts(colouring.engine(), text, defaultColours());
            const ColouredText expected = finishedText(colouring.engine(), text, defaultColours());
            EXPECT_TRUE(joined(parts) == expected) << lines;
        }
    }
}

// Without words every name is looked up at the host's, which is asked by one thread.
TEST(FinishedParts, AreFinishedByOneThreadWhereTheHostIsAsked)
{
    Colouring colouring;
    colouring.words = {};
    ASSERT_FALSE(colouring.engine().isForThreads());
    const QString text = u"if temp1 > 20\r\n"_s.repeated(20000) + u"endif"_s;
    FinishedParts parts(colouring.engine(), text, defaultColours());
    const ColouredText expected = finishedText(colouring.engine(), text, defaultColours());
    EXPECT_EQ(expected.text, text);
    EXPECT_TRUE(joined(parts) == expected);
}

TEST(FinishedParts, MayBeLeftBeforeTheEnd)
{
    Colouring colouring;
    const QString text = u"if temp1 > 20\r\n"_s.repeated(50000);
    FinishedParts parts(colouring.engine(), text, defaultColours());
    const std::optional<ColouredText> first = parts.next();
    ASSERT_TRUE(first);
    EXPECT_TRUE(first->text.startsWith(u"IF "_s));
}
