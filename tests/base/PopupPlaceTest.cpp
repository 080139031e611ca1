#include "base/PopupPlace.h"

#include "support/RandomSeed.h"

#include <gtest/gtest.h>

#include <random>

using namespace ORVTListview;

namespace {

const QRect screen(100, 50, 1000, 800);
const Popup size{{150, 200}, 2};

} // namespace

TEST(PopupPlace, UnderTheLineAtTheWordsBeginning)
{
    const QRect word(300, 200, 40, 16);
    EXPECT_EQ(popupPlace(word, size, screen), QRect(300, 218, 150, 200));
}

TEST(PopupPlace, OverTheLineWhereTheScreenEnds)
{
    EXPECT_EQ(popupPlace(QRect(300, 632, 40, 16), size, screen), QRect(300, 650, 150, 200));
    EXPECT_EQ(popupPlace(QRect(300, 633, 40, 16), size, screen), QRect(300, 431, 150, 200));
}

TEST(PopupPlace, NotBeyondTheScreensSides)
{
    EXPECT_EQ(popupPlace(QRect(1080, 200, 40, 16), size, screen).left(), 950);
    EXPECT_EQ(popupPlace(QRect(-20, 200, 40, 16), size, screen).left(), 100);
    const QRect wide = popupPlace(QRect(300, 200, 40, 16), {{2000, 100}, 2}, screen);
    EXPECT_EQ(wide.left(), 100);
    EXPECT_EQ(wide.width(), 1000);
}

TEST(PopupPlace, ItsRightEdgeAtAFieldsFromTheRight)
{
    const QRect field(300, 200, 200, 30);
    const auto from = [&field](int width) {
        return popupPlace(field, {.wanted = {width, 200}, .isFromRight = true}, screen);
    };
    EXPECT_EQ(from(250), QRect(250, 230, 250, 200));
    EXPECT_EQ(from(600).left(), 100);
    EXPECT_EQ(popupPlace(field, {.wanted = {250, 200}}, screen), QRect(300, 230, 250, 200));
}

TEST(PopupPlace, LowerOnTheSideThatHasMoreRoom)
{
    const Popup high{{150, 700}, 2};
    EXPECT_EQ(popupPlace(QRect(300, 200, 40, 16), high, screen), QRect(300, 218, 150, 632));
    EXPECT_EQ(popupPlace(QRect(300, 700, 40, 16), high, screen), QRect(300, 50, 150, 648));
}

TEST(PopupPlace, NeverOutsideTheScreenAndNeverOverTheWord)
{
    std::mt19937 random(randomSeed(7));
    const auto between = [&random](int least, int most) {
        return std::uniform_int_distribution(least, most)(random);
    };
    for (int i = 0; i < 20'000; ++i) {
        const QRect word(between(-200, 1300), between(-100, 1000), between(1, 200), between(8, 60));
        const Popup popup{
            {between(20, 1500), between(20, 1200)}, between(0, 2), between(0, 1) == 1};
        const QRect place = popupPlace(word, popup, screen);
        ASSERT_TRUE(place.isEmpty() || screen.contains(place));
        ASSERT_FALSE(place.intersects(word));
        ASSERT_GE(place.height(), std::min(popup.wanted.height(), (screen.height() - 64) / 2));
    }
}
