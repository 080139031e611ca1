#include "pointtable/rules/TableLayout.h"

#include "support/RandomSeed.h"

#include <gtest/gtest.h>

#include <ostream>
#include <random>

QT_BEGIN_NAMESPACE
inline void PrintTo(const QRectF &rect, std::ostream *out)
{
    *out << rect.left() << ", " << rect.top() << ", " << rect.width() << " x " << rect.height();
}
QT_END_NAMESPACE

using namespace ORVTListview;

TEST(TableLayout, EveryPartHasItsPlace)
{
    const TableLayout layout = layOutTable(9000, 6000, 255);
    EXPECT_EQ(layout.caption, QRectF(0, 0, 9000 - 45, 255));
    EXPECT_EQ(layout.read, QRectF(45, 30, 240, 240));
    EXPECT_EQ(layout.write, QRectF(9000 - 325, 30, 240, 240));
    EXPECT_EQ(layout.body, QRectF(0, 255 + 15, 9000 - 30, 6000 - 255 - 40));
}

TEST(TableLayout, ABodyIsNeverNarrowerThanNothing)
{
    EXPECT_EQ(layOutTable(31, 6000, 255).body.width(), 1);
    for (const double width : {30.0, 29.0, 1.0, 0.0})
        EXPECT_EQ(layOutTable(width, 6000, 255).body, QRectF(0, 270, 0, 5705)) << width;
}

TEST(TableLayout, ABodyIsNeverLowerThanNothing)
{
    EXPECT_EQ(layOutTable(9000, 296, 255).body.height(), 1);
    for (const double height : {295.0, 294.0, 15.0, 0.0})
        EXPECT_EQ(layOutTable(9000, height, 255).body, QRectF(0, 270, 8970, 0)) << height;
}

TEST(TableLayout, ACaptionIsNeverNarrowerThanNothing)
{
    for (const double width : {45.0, 44.0, 0.0})
        EXPECT_EQ(layOutTable(width, 6000, 255).caption, QRectF(0, 0, 0, 255)) << width;
}

TEST(TableLayout, PicturesEndAboveTheBody)
{
    EXPECT_EQ(layOutTable(9000, 6000, 1000).read.size(), QSizeF(240, 240));
    EXPECT_EQ(layOutTable(9000, 6000, 200).read.size(), QSizeF(185, 185));
    EXPECT_EQ(layOutTable(9000, 6000, 200).write.size(), QSizeF(185, 185));
    EXPECT_EQ(layOutTable(9000, 6000, 200).read.bottom(), 215);
    EXPECT_EQ(layOutTable(9000, 6000, 15).read.size(), QSizeF(0, 0));
    EXPECT_EQ(layOutTable(9000, 6000, 0).read.size(), QSizeF(0, 0));
}

TEST(TableLayout, HoldsForEverySize)
{
    const unsigned seed = randomSeed();
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> length(0, 12000);
    std::uniform_real_distribution<double> captionLength(0, 900);
    for (int round = 0; round < 5000; ++round) {
        const double width = length(random);
        const double height = length(random);
        const double caption = captionLength(random);
        const TableLayout layout = layOutTable(width, height, caption);
        SCOPED_TRACE(testing::Message() << "seed " << seed << ": " << width << " x " << height
                                        << ", caption " << caption);
        for (const QRectF &part :
             {layout.caption, layout.captionText, layout.read, layout.write, layout.body}) {
            ASSERT_GE(part.width(), 0);
            ASSERT_GE(part.height(), 0);
        }
        ASSERT_LE(layout.read.bottom(), std::max(30.0, layout.body.top()));
        ASSERT_EQ(layout.read.size(), layout.write.size());
        if (layout.captionText.width() > 0) {
            ASSERT_GT(layout.captionText.left(), layout.read.right());
            ASSERT_LT(layout.captionText.right(), layout.write.left());
        }
    }
}
