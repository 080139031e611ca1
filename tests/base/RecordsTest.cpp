#include "base/ColouredText.h"
#include "base/MessageService.h"
#include "support/EveryFieldCounts.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

TEST(Message, IsEqualInIconTitleAndText)
{
    expectEveryFieldCounts(
        Message{Message::Icon::None, u"Title"_s, u"Text"_s},
        [](Message &other) { other.icon = Message::Icon::Exclamation; },
        [](Message &other) { other.title.clear(); }, [](Message &other) { other.text.clear(); });
}

TEST(ColouredText, IsEqualInTextAndColours)
{
    ColouredText text{u"On"_s, {}};
    text.appendRun(2, 255);
    expectEveryFieldCounts(
        text, [](ColouredText &other) { other.text = u"on"_s; },
        [](ColouredText &other) { other.runs.first().colour = 0; },
        [](ColouredText &other) { other.runs.first().length = 1; },
        [](ColouredText &other) { other.appendRun(1, 0); });
}

TEST(ColouredText, NeighboursOfOneColourAreOneRun)
{
    ColouredText text;
    text.appendRun(2, 255);
    text.appendRun(0, 7);
    text.appendRun(3, 255);
    text.appendRun(1, ColouredText::automatic);
    EXPECT_EQ(text.runs, (QList<ColouredText::Run>{{5, 255}, {1, ColouredText::automatic}}));
}
