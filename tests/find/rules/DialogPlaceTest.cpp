#include "find/rules/DialogPlace.h"

#include "support/RandomSeed.h"

#include <QtCore/QRect>

#include <gtest/gtest.h>

#include <random>

using namespace ORVTListview;

namespace {

const QRect screen(0, 0, 1000, 800);

} // namespace

TEST(DialogPlace, ADialogThatHidesNothingStaysWhereItIs)
{
    const QRect dialog(100, 100, 300, 200);
    EXPECT_EQ(dialogPlace(dialog, QRect(500, 500, 40, 20), screen), dialog);
    EXPECT_EQ(dialogPlace(dialog, QRect(400, 100, 40, 20), screen), dialog); // side by side
    EXPECT_EQ(dialogPlace(dialog, QRect(), screen), dialog);
}

TEST(DialogPlace, ComesBackOntoTheScreen)
{
    EXPECT_EQ(dialogPlace(QRect(-50, 700, 300, 200), QRect(), screen), QRect(0, 600, 300, 200));
    EXPECT_EQ(dialogPlace(QRect(900, -5, 300, 200), QRect(), screen), QRect(700, 0, 300, 200));
    EXPECT_EQ(dialogPlace(QRect(50, 50, 300, 200), QRect(), QRect(2000, 0, 800, 600)),
              QRect(2000, 50, 300, 200));
}

TEST(DialogPlace, GoesTheShortestWay)
{
    const QRect dialog(100, 100, 300, 200);
    EXPECT_EQ(dialogPlace(dialog, QRect(200, 110, 40, 20), screen).topLeft(), QPoint(100, 130));
    EXPECT_EQ(dialogPlace(dialog, QRect(200, 280, 40, 10), screen).topLeft(), QPoint(100, 80));
    EXPECT_EQ(dialogPlace(dialog, QRect(390, 200, 5, 20), screen).topLeft(), QPoint(90, 100));
    EXPECT_EQ(dialogPlace(dialog, QRect(105, 200, 5, 20), screen).topLeft(), QPoint(110, 100));
}

TEST(DialogPlace, OnASmallScreenCoversTheLeast)
{
    const QRect small(0, 0, 320, 240);
    EXPECT_EQ(dialogPlace(QRect(0, 0, 310, 200), QRect(0, 100, 320, 120), small).topLeft(),
              QPoint(0, 0));
    EXPECT_EQ(dialogPlace(QRect(0, 40, 310, 200), QRect(0, 150, 320, 90), small).topLeft(),
              QPoint(0, 0));
    EXPECT_EQ(dialogPlace(QRect(5, 5, 400, 300), QRect(10, 10, 5, 5), small).topLeft(),
              QPoint(0, 0)); // larger than the screen
}

TEST(DialogPlace, IsOnTheScreenAndOffThePlaceWheneverThereIsRoom)
{
    const unsigned seed = randomSeed();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const auto number = [&random](int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(random);
    };
    for (int i = 0; i < 10'000; ++i) {
        const QRect dialog(number(-500, 1500), number(-500, 1500), number(50, 450),
                           number(50, 350));
        const QRect seen(number(0, 900), number(0, 750), number(1, 100), number(1, 50));
        const QRect place = dialogPlace(dialog, seen, screen);
        EXPECT_EQ(place.size(), dialog.size());
        EXPECT_TRUE(screen.contains(place));
        EXPECT_FALSE(place.intersects(seen));
    }
}
