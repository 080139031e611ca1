#include "editor/rules/language/Vocabulary.h"
#include "editor/rules/language/WordClass.h"
#include "support/EveryFieldCounts.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

TEST(ClassifiedWord, IsEqualInClassAndSpelling)
{
    expectEveryFieldCounts(
        ClassifiedWord{WordClass::Input, u"Fan"_s},
        [](ClassifiedWord &other) { other.wordClass = WordClass::Output; },
        [](ClassifiedWord &other) { other.shown = u"FAN"_s; });
}

TEST(ClassStyle, IsEqualInColourAndPicture)
{
    expectEveryFieldCounts(
        ClassStyle{CommentColour, 255, 1},
        [](ClassStyle &other) { other.ColourIndex = InputColour; },
        [](ClassStyle &other) { other.Colour = 254; },
        [](ClassStyle &other) { other.ImageIndex = 0; });
}
