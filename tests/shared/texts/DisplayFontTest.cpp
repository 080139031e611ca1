#include "support/EveryFieldCounts.h"
#include <ORVTListview/TextProvider.h>

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

TEST(DisplayFont, IsEqualInNameAndSize)
{
    expectEveryFieldCounts(
        DisplayFontSettings{u"Noto Sans"_s, 12},
        [](DisplayFontSettings &other) { other.FontName.clear(); },
        [](DisplayFontSettings &other) { other.FontSize = 0; });
}
