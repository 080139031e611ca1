#include "editor/rules/undo/UndoStore.h"

#include "editor/rules/undo/UndoSlot.h"
#include "editor/rules/undo/UndoStoreSteps.h"
#include "support/MemoryLimit.h"
#include "support/QtPrinters.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

TEST(UndoStoreEncoding, StoringKeepsTheTextShared)
{
    UndoStore ring;
    const UndoRecord record = longRecord(1'000'000);
    ring.StoreUndoSnapshot(record);
    EXPECT_FALSE(record.text.isDetached());
    EXPECT_TRUE(ring.isEncodingPending());
    encodeAll(ring);
    EXPECT_TRUE(ring.UndoSlots(1).startsWith(u'*'));
    EXPECT_FALSE(record.text.isDetached());
    const std::optional<UndoState> state = ring.FetchUndoState(1);
    ASSERT_TRUE(state);
    EXPECT_EQ(state->record(), record);
}

TEST(UndoStoreEncoding, TextsStayBesideTheirSlotsAsFarAsThereIsRoom)
{
    UndoStore ring(4000);
    const UndoRecord first = longRecord(1000, u'a');
    const UndoRecord second = longRecord(1000, u'b');
    ring.StoreUndoSnapshot(first);
    ring.StoreUndoSnapshot(second);
    encodeAll(ring);
    EXPECT_TRUE(first.text.isDetached());
    EXPECT_FALSE(second.text.isDetached());
    EXPECT_EQ(ring.FetchUndoState(1)->record(), first);
    EXPECT_EQ(ring.FetchUndoState(2)->record(), second);
    EXPECT_TRUE(ring.isSound());
}

TEST(UndoStoreEncoding, AnEmptySlotHasNoState)
{
    EXPECT_FALSE(UndoStore().FetchUndoState(3));
}

// The separator may lie across what the text is held in, and reach into what follows it.
TEST(UndoStoreEncoding, AStateIsTakenApartAsItsRecordIs)
{
    const QString sign(1, u'%');
    for (const int before : {0, 3, 1000}) {
        for (const QString &end : {sign.repeated(5), sign.repeated(6), u"\r\n%%%%%%"_s,
                                   u"\r\n%%%%%%\r\n"_s, u"\r\n%%%%%%\r\n1"_s}) {
            const SharedText text = SharedText(QString(before, u'x') + u'%' + end)
                                        .replaced(before, 1, QString(5000, u'y'));
            UndoStore ring;
            ring.StoreUndoSnapshot({text, 1, 2});
            const auto record = [&] { return splitUndoRecord(ring.FetchUndoSnapshot(1)); };
            const std::optional<Error> error = raisedBy(record);
            EXPECT_EQ(error.has_value(), raisedBy([&] { ring.FetchUndoState(1); }).has_value());
            if (!error) {
                EXPECT_EQ(ring.FetchUndoState(1)->record(), record());
            }
        }
    }
}

TEST(UndoStoreEncoding, ShortRecordsDoNotWait)
{
    UndoStore ring;
    ring.ResetUndoBase(u"short"_s);
    push(ring, 1, 60);
    EXPECT_FALSE(ring.isEncodingPending());
    EXPECT_FALSE(ring.encodePending());
}

TEST(UndoStoreEncoding, GoesInSlicesTheOldestSlotFirst)
{
    UndoStore ring;
    ring.StoreUndoSnapshot(longRecord(1000, u'a'));
    ring.StoreUndoSnapshot(longRecord(1000, u'b'));
    ring.StoreUndoSnapshot(longRecord(1000, u'c'));
    EXPECT_EQ(ring.pendingBytes(), 4000); // the newest is not counted
    for (int step = 0; step < 3; ++step) {
        EXPECT_TRUE(ring.encodePending(300));
        EXPECT_EQ(ring.pendingBytes(), 4000);
    }
    EXPECT_TRUE(ring.encodePending(300));
    EXPECT_EQ(ring.pendingBytes(), 2000);
    EXPECT_TRUE(ring.encodePending(1000));
    EXPECT_EQ(ring.pendingBytes(), 0);
    EXPECT_FALSE(ring.encodePending(1000));
    for (qint16 index = 1; index <= 3; ++index)
        EXPECT_EQ(ring.UndoSlots(index), encodedSlot(longRecord(1000, QChar(u'`' + index))));
}

TEST(UndoStoreEncoding, OldestIsCountedAroundTheRing)
{
    UndoStore ring;
    push(ring, 1, 47);
    for (int slot = 48; slot <= 51; ++slot)
        ring.StoreUndoSnapshot(longRecord(slot * 1000));
    EXPECT_EQ(indices(ring), u"2 1 1 w"_s);
    EXPECT_EQ(ring.pendingBytes(), 2 * (48000 + 49000 + 50000));
    ring.encodePending(100000);
    EXPECT_EQ(ring.pendingBytes(), 2 * (49000 + 50000));
    ring.encodePending(100000);
    EXPECT_EQ(ring.pendingBytes(), 2 * 50000);
}

TEST(UndoStoreEncoding, SlotThatIsOverwrittenMeanwhileIsStartedAgain)
{
    UndoStore ring;
    ring.ResetUndoBase(QString(1000, u'a'));
    ring.encodePending(500);
    ring.ResetUndoBase(QString(1000, u'b'));
    EXPECT_TRUE(ring.encodePending(500));
    EXPECT_FALSE(ring.encodePending(500));
    EXPECT_EQ(ring.UndoSlots(0), encodedSlot({QString(1000, u'b'), 0, 0}));

    ring.ResetUndoBase(QString(1000, u'c'));
    ring.encodePending(500);
    ring.setUndoSlot(0, u"%short"_s);
    EXPECT_FALSE(ring.encodePending(500));
    EXPECT_EQ(ring.UndoSlots(0), u"%short"_s);
    EXPECT_TRUE(ring.isSound());
}

TEST(UndoStoreEncoding, SlotThatIsBegunIsFinishedFirst)
{
    UndoStore ring;
    ring.StoreUndoSnapshot(longRecord(1000));
    ring.encodePending(700);
    ring.ResetUndoBase(QString(2000, u'b'));
    EXPECT_EQ(ring.pendingBytes(), 4000);
    EXPECT_TRUE(ring.encodePending(300)); // the rest of slot 1
    EXPECT_TRUE(ring.encodePending(1999));
    EXPECT_FALSE(ring.encodePending(1));
    EXPECT_EQ(ring.UndoSlots(1), encodedSlot(longRecord(1000)));
}

TEST(UndoStoreEncoding, LookingAtASlotDoesNotDisturbIt)
{
    UndoStore ring;
    ring.StoreUndoSnapshot(longRecord(1000));
    ring.encodePending(500);
    EXPECT_EQ(ring.FetchUndoSnapshot(1), joinUndoRecord(longRecord(1000)));
    EXPECT_EQ(ring.UndoSlots(1), encodedSlot(longRecord(1000)));
    EXPECT_FALSE(ring.encodePending(500));
    EXPECT_EQ(ring.FetchUndoSnapshot(1), joinUndoRecord(longRecord(1000)));
}

TEST(UndoStoreEncoding, RecordOutsideTheCodePageStopsWaitingAndStays)
{
    UndoStore ring;
    UndoRecord record = longRecord(1000);
    record.text[900] = u'Ω';
    ring.StoreUndoSnapshot(record);
    EXPECT_TRUE(ring.encodePending(500));
    EXPECT_FALSE(ring.encodePending(500));
    EXPECT_EQ(ring.UndoSlots(1), u'%' + joinUndoRecord(record));
    EXPECT_EQ(ring.FetchUndoSnapshot(1), joinUndoRecord(record));
    EXPECT_TRUE(ring.isSound());
}

TEST(UndoStoreBound, IsKeptByEncodingTheOldest)
{
    UndoStore ring(10000);
    for (int step = 0; step < 6; ++step)
        ring.StoreUndoSnapshot(longRecord(2000, QChar(u'a' + char16_t(step))));
    EXPECT_EQ(ring.pendingBytes(), 8000);
    ring.StoreUndoSnapshot(longRecord(2000, u'g'));
    EXPECT_EQ(ring.pendingBytes(), 8000);
    EXPECT_TRUE(ring.isSound());
}

TEST(UndoStoreBound, NewestIsNeverEncodedBeforeItsTime)
{
    UndoStore ring(0);
    const UndoRecord record = longRecord(1'000'000);
    ring.StoreUndoSnapshot(record);
    EXPECT_FALSE(record.text.isDetached());
    ring.StoreUndoSnapshot(longRecord(1000));
    EXPECT_TRUE(record.text.isDetached());
    EXPECT_EQ(ring.pendingBytes(), 0);
    EXPECT_TRUE(ring.isEncodingPending());

    ring.ResetUndoBase(record.text); // slot 0 is not the newest
    EXPECT_EQ(ring.pendingBytes(), 0);
    EXPECT_TRUE(ring.isSound());
}

TEST(UndoStoreBound, StatesOfOneTextAllWaitWithinAFewTimesItsSize)
{
    constexpr qsizetype textBytes = 200'000;
    UndoStore ring(5 * textBytes);
    UndoRecord record = longRecord(textBytes / 2);
    for (int step = 0; step < 300; ++step) {
        record.text.insert((step * 7919) % record.text.size(), u"Temp"_s);
        ring.StoreUndoSnapshot(record);
        ASSERT_TRUE(ring.isSound());
    }
    int encoded = 1;
    while (ring.encodePending(textBytes))
        ++encoded;
    EXPECT_EQ(encoded, UndoStore::slotCount);
}

TEST(UndoStoreBound, StatesOfOneTextComeBackEach)
{
    UndoStore ring(50'000);
    UndoRecord record = longRecord(10'000);
    QList<UndoRecord> stored;
    for (int step = 0; step < 49; ++step) {
        record.text.insert((step * 7919) % record.text.size(), QString::number(step));
        ring.StoreUndoSnapshot(record);
        stored.append(record);
    }
    EXPECT_LT(ring.pendingBytes(), 50'000);
    for (int round = 0; round < 2; ++round) {
        for (qint16 index = 1; index <= 49; ++index) {
            ASSERT_EQ(ring.FetchUndoSnapshot(index), joinUndoRecord(stored[index - 1]));
            ASSERT_EQ(ring.UndoSlots(index), encodedSlot(stored[index - 1]));
            ASSERT_TRUE(ring.holdsText(index, SharedText(stored[index - 1].text)));
            ASSERT_FALSE(ring.holdsText(index, SharedText(stored[index % 49].text)));
        }
        encodeAll(ring);
    }
}

TEST(UndoStoreBound, StatesOutsideTheCodePageShareWhatTheyHaveInCommon)
{
    UndoStore ring;
    UndoRecord first = longRecord(100'000, u'Ω');
    UndoRecord second = first;
    second.text[50'000] = u'x';
    const auto *memory = second.text.constData();
    ring.StoreUndoSnapshot(first);
    ring.StoreUndoSnapshot(second);
    encodeAll(ring);
    EXPECT_FALSE(first.text.isDetached());
    EXPECT_TRUE(second.text.isDetached()); // only its own part is kept
    EXPECT_EQ(second.text.constData(), memory);
    EXPECT_EQ(ring.FetchUndoSnapshot(2), joinUndoRecord(second));
}

#ifdef ORVT_HAS_MEMORY_LIMIT

TEST(UndoStoreEncodingDeathTest, SlotStaysPlainWhenMemoryRunsOut)
{
    const auto encodeWithLittleMemory = [] {
        UndoStore ring;
        const UndoRecord record = longRecord(20'000'000);
        ring.StoreUndoSnapshot(record);
        limitMemory(8'000'000);
        const bool isPending = ring.encodePending();
        std::exit(!isPending && ring.isSound() && ring.holdsText(1, SharedText(record.text)) ? 0
                                                                                             : 1);
    };
    EXPECT_EXIT(encodeWithLittleMemory(), testing::ExitedWithCode(0), "");
}

#endif
