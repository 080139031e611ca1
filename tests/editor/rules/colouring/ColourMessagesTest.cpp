// The messages of colouring, in the user's language.

#include "base/ThreadState.h"
#include "editor/rules/colouring/ColourTable.h"
#include "editor/rules/colouring/ColourText.h"
#include "editor/rules/colouring/RtfHead.h"
#include "support/QtPrinters.h"
#include "support/RecordedMessages.h"
#include <ORVTListview/TextProvider.h>
#include <ORVTListview/TranslatedTexts.h>

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

class ColourMessages : public testing::Test
{
protected:
    ColourMessages() { setTextProvider(&m_german); }

    RecordedMessages messages;

private:
    ThreadState::Fresh m_fresh;
    TranslatedTexts m_german{QLocale(u"de"_s)};
};

std::optional<SplitColours> noBackground(qint32 colour)
{
    return colour == 7 ? std::nullopt : SplitColour(colour);
}

} // namespace

TEST_F(ColourMessages, ABadColour)
{
    RichTextSettings settings;
    settings.BackColor = 7;
    BuildRtfHeader(u"{\\rtf1\r\n\\pard #GetInfo#"_s, settings, messages, noBackground);
    ASSERT_EQ(messages.messages.size(), 1);
    EXPECT_EQ(messages.messages[0].title, u"Darstellung des Programms"_s);
    EXPECT_EQ(messages.messages[0].text,
              u"\r\nUngültige Farbe BackColor für den Programmeditor!"_s);
}

TEST_F(ColourMessages, AnEmptyWordList)
{
    const CodeWordList nothing;
    ColourText(ColourEngine(nothing, messages), u"IF", QString(), false);
    ASSERT_EQ(messages.messages.size(), 1);
    EXPECT_EQ(messages.messages[0].text, u"Wortliste nicht gefunden!"_s);
}
