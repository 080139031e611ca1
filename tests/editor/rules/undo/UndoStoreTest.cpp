#include "editor/rules/undo/UndoStore.h"

#include "base/ThreadState.h"
#include "editor/rules/undo/UndoSlot.h"
#include "editor/rules/undo/UndoStoreSteps.h"
#include "support/QtPrinters.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <thread>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

int stepsBack(UndoStore &ring)
{
    int steps = 0;
    while (ring.UndoStepBack())
        ++steps;
    return steps;
}

int stepsForward(UndoStore &ring)
{
    int steps = 0;
    while (ring.RedoStepForward())
        ++steps;
    return steps;
}

QString textAt(const UndoStore &ring, std::optional<qint16> index)
{
    return index ? splitUndoRecord(ring.FetchUndoSnapshot(*index)).text : u"none"_s;
}

} // namespace

TEST(UndoStore, BeginsEmpty)
{
    UndoStore ring;
    EXPECT_EQ(indices(ring), u"0 0 0"_s);
    EXPECT_FALSE(ring.CanUndo());
    EXPECT_FALSE(ring.CanRedo());
    EXPECT_FALSE(ring.IsRestoringUndo());
    EXPECT_FALSE(ring.isEncodingPending());
    for (qint16 index = 0; index < UndoStore::slotCount; ++index) {
        EXPECT_EQ(ring.UndoSlots(index), QString());
        EXPECT_EQ(ring.FetchUndoSnapshot(index), QString());
    }
    EXPECT_EQ(ring.UndoStepBack(), std::nullopt);
    EXPECT_EQ(ring.RedoStepForward(), std::nullopt);
    EXPECT_EQ(ring.unsoundness(), QString());
}

TEST(UndoStore, BaseAloneIsNoStep)
{
    UndoStore ring;
    ring.ResetUndoBase(u"A = 1"_s);
    EXPECT_EQ(indices(ring), u"0 0 0"_s);
    EXPECT_FALSE(ring.CanUndo());
    EXPECT_FALSE(ring.CanRedo());
    EXPECT_EQ(ring.UndoSlots(0), u"%A = 1\r\n%%%%%%\r\n0\r\n%%%%%%\r\n0"_s);
    EXPECT_TRUE(ring.isSound());
}

TEST(UndoStore, SnapshotsFollowTheBase)
{
    UndoStore ring;
    ring.ResetUndoBase(u"base"_s);
    push(ring, 1, 2);
    EXPECT_EQ(indices(ring), u"0 2 2"_s);
    EXPECT_EQ(textAt(ring, qint16(0)), u"base"_s);
    EXPECT_EQ(textAt(ring, qint16(1)), u"step 1"_s);
    EXPECT_EQ(textAt(ring, qint16(2)), u"step 2"_s);
    EXPECT_EQ(splitUndoRecord(ring.FetchUndoSnapshot(2)), numbered(2));
}

TEST(UndoStore, StepMovesFirstAndReachesTheSlotBefore)
{
    UndoStore ring;
    ring.ResetUndoBase(u"base"_s);
    push(ring, 1, 2);
    EXPECT_EQ(textAt(ring, ring.UndoStepBack()), u"step 1"_s);
    EXPECT_TRUE(ring.CanUndo());
    EXPECT_TRUE(ring.CanRedo());
    EXPECT_EQ(textAt(ring, ring.RedoStepForward()), u"step 2"_s);
    EXPECT_FALSE(ring.CanRedo());
    EXPECT_EQ(textAt(ring, ring.RedoStepForward()), u"none"_s);
    EXPECT_EQ(textAt(ring, ring.UndoStepBack()), u"step 1"_s);
    EXPECT_EQ(textAt(ring, ring.UndoStepBack()), u"base"_s);
    EXPECT_FALSE(ring.CanUndo());
    EXPECT_EQ(textAt(ring, ring.UndoStepBack()), u"none"_s);
    EXPECT_EQ(indices(ring), u"0 0 2"_s);
}

TEST(UndoStore, EqualSnapshotsAreTwoSteps)
{
    UndoStore ring;
    ring.StoreUndoSnapshot(numbered(1));
    ring.StoreUndoSnapshot(numbered(1));
    EXPECT_EQ(stepsBack(ring), 2);
}

TEST(UndoStore, SnapshotAfterAnUndoDropsWhatLayAhead)
{
    UndoStore ring;
    ring.ResetUndoBase(u"base"_s);
    push(ring, 1, 5);
    ring.UndoStepBack();
    ring.UndoStepBack();
    ring.StoreUndoSnapshot(numbered(9));
    EXPECT_EQ(indices(ring), u"0 4 4"_s);
    EXPECT_FALSE(ring.CanRedo());
    EXPECT_EQ(textAt(ring, qint16(4)), u"step 9"_s);
    EXPECT_EQ(textAt(ring, qint16(5)), u"step 5"_s); // out of reach, still there
    EXPECT_EQ(textAt(ring, ring.UndoStepBack()), u"step 3"_s);
    EXPECT_TRUE(ring.isSound());
}

TEST(UndoStore, BaseStaysInReachUntilTheRingWraps)
{
    UndoStore ring;
    ring.ResetUndoBase(u"base"_s);
    push(ring, 1, 49);
    EXPECT_EQ(indices(ring), u"0 49 49"_s);
    EXPECT_EQ(stepsBack(ring), 49);
    EXPECT_EQ(textAt(ring, ring.UndoCurrent()), u"base"_s);
    EXPECT_EQ(stepsForward(ring), 49);
}

TEST(UndoStore, WrapsAtTheFiftiethSnapshot)
{
    UndoStore ring;
    ring.ResetUndoBase(u"base"_s);
    push(ring, 1, 50);
    EXPECT_EQ(indices(ring), u"1 0 0 w"_s);
    EXPECT_EQ(textAt(ring, qint16(0)), u"step 50"_s);
    for (int number = 49; number >= 1; --number)
        ASSERT_EQ(textAt(ring, ring.UndoStepBack()), numbered(number).text);
    EXPECT_FALSE(ring.CanUndo());
    EXPECT_EQ(indices(ring), u"1 1 0 w"_s);
    for (int number = 2; number <= 50; ++number)
        ASSERT_EQ(textAt(ring, ring.RedoStepForward()), numbered(number).text);
    EXPECT_FALSE(ring.CanRedo());
}

TEST(UndoStore, GoesRoundManyTimes)
{
    UndoStore ring;
    push(ring, 1, 1000);
    EXPECT_EQ(indices(ring), u"1 0 0 w"_s);
    push(ring, 1001, 1023);
    EXPECT_EQ(indices(ring), u"24 23 23 w"_s);
    EXPECT_EQ(stepsBack(ring), 49);
    EXPECT_EQ(textAt(ring, ring.UndoCurrent()), u"step 974"_s);
    EXPECT_EQ(stepsForward(ring), 49);
    EXPECT_TRUE(ring.isSound());
}

TEST(UndoStore, WrappedStaysSetAndFortyNineStepsStay)
{
    UndoStore ring;
    push(ring, 1, 52);
    for (int step = 0; step < 10; ++step)
        ring.UndoStepBack();
    EXPECT_EQ(indices(ring), u"3 42 2 w"_s);
    ring.StoreUndoSnapshot(numbered(99));
    EXPECT_EQ(indices(ring), u"44 43 43 w"_s);
    EXPECT_FALSE(ring.CanRedo());
    EXPECT_EQ(stepsBack(ring), 49);
    EXPECT_EQ(textAt(ring, ring.UndoCurrent()), u"step 44"_s); // dropped, met again
    EXPECT_TRUE(ring.isSound());
}

TEST(UndoStore, LaterBaseOverwritesSlot0Only)
{
    UndoStore ring;
    ring.ResetUndoBase(u"base"_s);
    push(ring, 1, 3);
    ring.UndoStepBack();
    ring.ResetUndoBase(u"other"_s);
    EXPECT_EQ(indices(ring), u"0 2 3"_s);
    EXPECT_EQ(textAt(ring, qint16(0)), u"other"_s);
    EXPECT_EQ(textAt(ring, qint16(1)), u"step 1"_s);

    push(ring, 3, 60);
    EXPECT_EQ(indices(ring), u"11 10 10 w"_s);
    ring.ResetUndoBase(u"third"_s);
    EXPECT_EQ(indices(ring), u"11 10 10 w"_s);
    EXPECT_EQ(textAt(ring, qint16(0)), u"third"_s);
    EXPECT_EQ(textAt(ring, qint16(49)), u"step 49"_s);
}

TEST(UndoStore, LongBaseIsEncodedLikeAnyRecord)
{
    UndoStore ring;
    const QString text(1000, u'x');
    ring.ResetUndoBase(text);
    EXPECT_EQ(ring.UndoSlots(0), encodedSlot({text, 0, 0}));
    EXPECT_TRUE(ring.UndoSlots(0).startsWith(u'*'));
    encodeAll(ring);
    EXPECT_EQ(ring.UndoSlots(0), encodedSlot({text, 0, 0}));
}

TEST(UndoStore, ClearingBeginsAnew)
{
    UndoStore ring;
    ring.ResetUndoBase(QString(1000, u'x'));
    push(ring, 1, 70);
    ring.StoreUndoSnapshot(longRecord(100000));
    ring.encodePending(10);
    ring.ClearUndoHistory();
    EXPECT_EQ(indices(ring), u"0 0 0"_s);
    EXPECT_FALSE(ring.CanUndo());
    EXPECT_FALSE(ring.CanRedo());
    EXPECT_FALSE(ring.isEncodingPending());
    for (qint16 index = 0; index < UndoStore::slotCount; ++index)
        EXPECT_EQ(ring.UndoSlots(index), QString());
    EXPECT_EQ(ring.unsoundness(), QString());
    push(ring, 1, 1);
    EXPECT_EQ(stepsBack(ring), 1);
    EXPECT_EQ(ring.FetchUndoSnapshot(0), QString());
}

TEST(UndoStore, MarkersFollowTheLength)
{
    UndoStore ring;
    const qsizetype besides = joinUndoRecord(longRecord(0)).size();
    ring.StoreUndoSnapshot(longRecord(399 - besides));
    ring.StoreUndoSnapshot(longRecord(400 - besides));
    ring.StoreUndoSnapshot(longRecord(400 - besides, u'Ω'));
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(ring.UndoSlots(1), encodedSlot(longRecord(399 - besides)));
        EXPECT_TRUE(ring.UndoSlots(1).startsWith(u'%'));
        EXPECT_EQ(ring.UndoSlots(2), encodedSlot(longRecord(400 - besides)));
        EXPECT_TRUE(ring.UndoSlots(2).startsWith(u"*400:"_s));
        EXPECT_TRUE(ring.UndoSlots(3).startsWith(u'%'));
        EXPECT_EQ(ring.FetchUndoSnapshot(3), joinUndoRecord(longRecord(400 - besides, u'Ω')));
        encodeAll(ring);
    }
}

TEST(UndoStore, IndexOutsideTheRingIsRefused)
{
    UndoStore ring;
    for (const qint16 index : {qint16(-1), qint16(50), qint16(32767), qint16(-32768)}) {
        for (const auto &error : {raisedBy([&] { ring.UndoSlots(index); }),
                                  raisedBy([&] { ring.FetchUndoSnapshot(index); }),
                                  raisedBy([&] { ring.setUndoSlot(index, u"%"_s); }),
                                  raisedBy([&] { ring.holdsText(index, SharedText()); })}) {
            ASSERT_TRUE(error);
            EXPECT_EQ(error->Number(), SubscriptOutOfRange);
            EXPECT_EQ(error->Description(), u"There is no such undo slot"_s);
        }
    }
}

TEST(UndoStore, HoldsTheTextWhateverTheSelection)
{
    UndoStore ring;
    const QString text(1000, u'x');
    ring.StoreUndoSnapshot({text, 5, 6});
    ring.StoreUndoSnapshot({u"short"_s, 1, 0});
    for (int round = 0; round < 2; ++round) {
        EXPECT_TRUE(ring.holdsText(1, SharedText(text)));
        EXPECT_FALSE(ring.holdsText(1, SharedText(text + u'x')));
        EXPECT_FALSE(ring.holdsText(1, SharedText(u"short"_s)));
        EXPECT_TRUE(ring.holdsText(2, SharedText(u"short"_s)));
        encodeAll(ring);
    }
    EXPECT_FALSE(ring.holdsText(0, SharedText())); // an empty slot
    ring.setUndoSlot(1, u"*1000:"_s);
    EXPECT_FALSE(ring.holdsText(1, SharedText(text)));
    ring.setUndoSlot(1, u"%only text"_s);
    EXPECT_FALSE(ring.holdsText(1, SharedText(u"only text"_s)));
}

TEST(UndoStoreRestoring, LastsAsLongAsTheGuardAndNests)
{
    UndoStore ring;
    {
        const UndoStore::Restoring outer(ring);
        EXPECT_TRUE(ring.IsRestoringUndo());
        {
            const UndoStore::Restoring inner(ring);
            EXPECT_TRUE(ring.IsRestoringUndo());
        }
        EXPECT_TRUE(ring.IsRestoringUndo());
        ring.ClearUndoHistory();
        EXPECT_TRUE(ring.IsRestoringUndo());
    }
    EXPECT_FALSE(ring.IsRestoringUndo());
    EXPECT_THROW(
        {
            const UndoStore::Restoring restoring(ring);
            throw Error(InvalidCall, QString(), QString());
        },
        Error);
    EXPECT_FALSE(ring.IsRestoringUndo());
}

TEST(UndoStoreThreads, EachThreadHasOneAndATestAFreshOne)
{
    const ThreadState::Fresh state;
    push(threadPart<UndoStore>(), 1, 3);
    EXPECT_EQ(&threadPart<UndoStore>(), &threadPart<UndoStore>());
    QString other;
    std::thread([&] { other = indices(threadPart<UndoStore>()); }).join();
    EXPECT_EQ(other, u"0 0 0"_s);
    {
        const ThreadState::Fresh inner;
        EXPECT_EQ(indices(threadPart<UndoStore>()), u"0 0 0"_s);
    }
    EXPECT_EQ(indices(threadPart<UndoStore>()), u"0 3 3"_s);
}
