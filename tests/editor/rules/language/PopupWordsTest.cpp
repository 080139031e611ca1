#include "editor/rules/language/PopupWords.h"

#include "editor/rules/colouring/EditorState.h"
#include "editor/rules/language/Vocabulary.h"
#include "editor/rules/language/WordIndex.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

PopupWords wordsOf(const QStringList &texts)
{
    WordIndex index;
    for (const QString &text : texts)
        index.add(text, 0);
    return {index, Vocabulary(), RichTextSettings()};
}

} // namespace

TEST(PopupWords, AWordIsThereOnceWhateverItsCase)
{
    const PopupWords words = wordsOf({u"temp1"_s, u"TEMP1"_s, u"Fan"_s});
    ASSERT_EQ(words.words().size(), 2);
    EXPECT_EQ(words.find(u"Temp1"_s), 1);
    EXPECT_EQ(words.find(u"Temp"_s), -1);
    EXPECT_EQ(words.findBeginning(u"Te"_s), 1);
    EXPECT_EQ(words.findBeginning(u"Tu"_s), -1);
}

TEST(PopupWords, OnlyWhatIsLongerGoesOnBehind)
{
    const PopupWords words = wordsOf({u"Fan"_s, u"Temp1"_s, u"Temp12"_s});
    EXPECT_TRUE(words.goesOnBehind(u"Temp"_s));
    EXPECT_TRUE(words.goesOnBehind(u"temp1"_s));
    EXPECT_FALSE(words.goesOnBehind(u"temp12"_s));
    EXPECT_FALSE(words.goesOnBehind(u"Fan"_s));
    EXPECT_FALSE(words.goesOnBehind(u"Zone"_s));
}
