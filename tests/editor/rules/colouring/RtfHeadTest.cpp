#include "editor/rules/colouring/RtfHead.h"
#include "support/QtPrinters.h"
#include "support/RecordedMessages.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const auto neverSplits = [](qint32) { return std::optional<SplitColours>(); };

} // namespace

TEST(RtfHead, IsTakenFromTheSample)
{
    RecordedMessages messages;
    const RtfHead head = BuildRtfHeader(
        u"{\\rtf1\\ansi{\\fonttbl{\\f0 Courier;}}\r\n\\pard\\f0\\fs20 #GetInfo#\\par\r\n#Another word}"_s,
        defaultColours(), messages);
    EXPECT_TRUE(head.FromSample);
    EXPECT_EQ(head.Header, u"{\\rtf1\\ansi{\\fonttbl{\\f0 Courier;}}\r\n"_s + defaultColourTable() +
                               u"\r\n\\pard\\f0\\fs20 "_s);
    EXPECT_TRUE(messages.messages.isEmpty());
}

TEST(RtfHead, AMarkAtTheVeryStartOfTheSecondLineCounts)
{
    RecordedMessages messages;
    const RtfHead head = BuildRtfHeader(u"{\\rtf1\r\n#x}"_s, defaultColours(), messages);
    EXPECT_TRUE(head.FromSample);
    EXPECT_EQ(head.Header, u"{\\rtf1\r\n"_s + defaultColourTable() + u"\r\n"_s);
}

TEST(RtfHead, FallsBackWithoutAMarkOnTheSecondLine)
{
    const QString fallback =
        u"{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}}\r\n"_s +
        defaultColourTable() + u"\r\n\\viewkind4\\uc1\\pard\\lang1033\\b\\fs17 "_s;
    for (const QString &sample : {u""_s, u"#"_s, u"{\\rtf1\r\nno mark\r\n#late"_s, u"#a\r\nb"_s}) {
        RecordedMessages messages;
        const RtfHead head = BuildRtfHeader(sample, defaultColours(), messages);
        EXPECT_FALSE(head.FromSample);
        EXPECT_EQ(head.Header, fallback);
    }
}

TEST(RtfHead, ShowsBadColoursOnlyWithASample)
{
    RecordedMessages messages;
    BuildRtfHeader(u"x\r\n#"_s, defaultColours(), messages, neverSplits);
    ASSERT_EQ(messages.messages.size(), 1);
    EXPECT_EQ(messages.messages[0].title, u"Code Text Setting"_s);
    EXPECT_EQ(messages.messages[0].icon, Message::Icon::Exclamation);
    EXPECT_TRUE(
        messages.messages[0].text.startsWith(u"\r\nBad BackColor for Editer of Code!\r\n"_s));
    messages.messages.clear();
    BuildRtfHeader(u""_s, defaultColours(), messages, neverSplits);
    EXPECT_TRUE(messages.messages.isEmpty());
}

TEST(RtfHead, KeepsTheDefaultTableWhenTheBuilderFailsOutright)
{
    RecordedMessages messages;
    const auto throws = [](qint32) -> std::optional<SplitColours> {
        throw std::runtime_error("no colours");
    };
    RichTextSettings settings;
    const RtfHead head = BuildRtfHeader(u"x\r\n#"_s, settings, messages, throws);
    EXPECT_EQ(head.Header, u"x\r\n"_s + defaultColourTable() + u"\r\n"_s);
}
