// What is kept where there is room for little.

#include "editor/rules/undo/KeptStates.h"
#include "editor/rules/undo/UndoStore.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype roomForOne = 1000; // bytes

UndoState stateOf(QChar letter, qsizetype length = 300)
{
    return {QString(length, letter), 0, 0};
}

QString textOf(const std::optional<UndoState> &state)
{
    return state ? state->text.toString() : u"none"_s;
}

class KeptStatesRoom : public testing::Test
{
protected:
    // The editor showed it and was changed.
    void leaveByEdit(const UndoState &state)
    {
        kept.offer(state);
        kept.noteEdit(ring);
    }

    UndoStore ring;
    KeptStates kept{roomForOne};
};

} // namespace

TEST_F(KeptStatesRoom, OfTwoTheOneThatIsNotShownStays)
{
    leaveByEdit(stateOf(u'a'));
    EXPECT_EQ(textOf(kept.go(ring, stateOf(u'b'), KeptStates::Way::Back)), QString(300, u'a'));
    EXPECT_FALSE(kept.isShownSafe(ring)); // what is shown had to make room
    EXPECT_FALSE(kept.canGo(KeptStates::Way::Back));
    EXPECT_EQ(textOf(kept.go(ring, stateOf(u'a'), KeptStates::Way::Forward)), QString(300, u'b'));
    EXPECT_EQ(textOf(kept.bringBack(ring, stateOf(u'b'))), QString(300, u'a'));
}

TEST_F(KeptStatesRoom, WhatIsShownIsNotSafeAnyMoreWhenItMakesRoom)
{
    leaveByEdit(stateOf(u'a', 150));
    EXPECT_EQ(textOf(kept.go(ring, stateOf(u'b', 150), KeptStates::Way::Back)), QString(150, u'a'));
    EXPECT_TRUE(kept.isShownSafe(ring));
    kept.keepUnreachable(ring, stateOf(u'c', 400));
    EXPECT_FALSE(kept.isShownSafe(ring));
    EXPECT_TRUE(kept.canBringBack());
}

// The text beside its encoding goes first, and comes back from it.
TEST(KeptStates, EncodedOnesMakeRoomByTheirPlainTexts)
{
    UndoStore ring;
    KeptStates kept(5000);
    for (const QChar letter : u"abcd"_s) {
        kept.offer(stateOf(letter, 1000));
        kept.noteEdit(ring);
        while (kept.encodePending(1000))
            ;
    }
    for (const QChar letter : u"dcba"_s)
        EXPECT_EQ(textOf(kept.bringBack(ring, {})), QString(1000, letter));
}
