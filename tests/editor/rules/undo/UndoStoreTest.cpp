#include "editor/rules/undo/UndoStore.h"

#include "base/ThreadState.h"
#include "editor/rules/undo/UndoSlot.h"
#include "support/MemoryLimit.h"
#include "support/QtPrinters.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <thread>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

UndoRecord numbered(int number)
{
    return {u"step %1"_s.arg(number), number, 0};
}

UndoRecord longRecord(qsizetype characters, QChar filler = u'x')
{
    return {QString(characters, filler), 1, 2};
}

void push(UndoStore &ring, int first, int last)
{
    for (int number = first; number <= last; ++number)
        ring.StoreUndoSnapshot(numbered(number));
}

// "oldest current newest", with a "w" once wrapped.
QString indices(const UndoStore &ring)
{
    return u"%1 %2 %3%4"_s.arg(ring.UndoOldest())
        .arg(ring.UndoCurrent())
        .arg(ring.UndoNewest())
        .arg(ring.UndoWrapped() ? u" w"_s : QString());
}

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

void encodeAll(UndoStore &ring)
{
    while (ring.encodePending()) {
    }
}

QString encodedSlot(const UndoRecord &record)
{
    return encodeUndoSlot(joinUndoRecord(record));
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

TEST(UndoStoreDamage, RaisesTheErrorOfItsKind)
{
    UndoStore ring;
    ring.StoreUndoSnapshot(longRecord(1000));
    const QString slot = ring.UndoSlots(1);
    const qsizetype stream = slot.indexOf(u':') + 1;
    const auto description = [&](const QString &damaged) {
        ring.setUndoSlot(1, damaged);
        const auto error = raisedBy([&] { splitUndoRecord(ring.FetchUndoSnapshot(1)); });
        return error ? error->Description() : QString();
    };
    EXPECT_EQ(description(slot), QString());
    EXPECT_EQ(description(slot.first(stream + 5)), u"Cannot uncompress corrupt data"_s);
    EXPECT_EQ(description(u"*7:"_s + slot.mid(stream)),
              u"Insufficient space in output buffer to uncompress string"_s);
    EXPECT_EQ(description(u"*99999999999:"_s + slot.mid(stream)),
              u"Insufficient memory to uncompress string"_s);
    EXPECT_EQ(description(u"*:"_s + slot.mid(stream)), u"Cannot uncompress corrupt data"_s);
    EXPECT_EQ(description(u"%A = 1"_s), u"The undo snapshot has fewer than three fields"_s);
    EXPECT_EQ(description(u"%A\r\n%%%%%%\r\nB\r\n%%%%%%\r\n0"_s),
              u"The undo snapshot's selection is not a number"_s);
    EXPECT_EQ(description(joinUndoRecord({u"*A"_s, 1, 2})), u"Cannot uncompress corrupt data"_s);
}

TEST(UndoStoreDamage, LengthRaisedByDamageStillYieldsTheRecord)
{
    UndoStore ring;
    ring.StoreUndoSnapshot(longRecord(1000));
    QString slot = ring.UndoSlots(1);
    slot[1] = u'9'; // of 1022
    ring.setUndoSlot(1, slot);
    EXPECT_EQ(splitUndoRecord(ring.FetchUndoSnapshot(1)), longRecord(1000));
}

TEST(UndoStoreSoundness, SeesAnEmptySlotWithinReach)
{
    UndoStore ring;
    push(ring, 1, 3);
    EXPECT_TRUE(ring.isSound());
    ring.setUndoSlot(0, QString()); // no base was set
    EXPECT_TRUE(ring.isSound());
    ring.setUndoSlot(3, QString());
    EXPECT_EQ(ring.unsoundness(), u"Slot 3 is empty"_s);
    ring.setUndoSlot(3, u"%x"_s);
    ring.setUndoSlot(4, QString());
    EXPECT_TRUE(ring.isSound());
    push(ring, 4, 60);
    EXPECT_TRUE(ring.isSound());
    ring.setUndoSlot(0, QString());
    EXPECT_EQ(ring.unsoundness(), u"Slot 0 is empty"_s);
}

TEST(UndoStoreSoundness, SeesASlotThatIsNone)
{
    UndoStore ring;
    push(ring, 1, 3);
    for (const QString &slot : {u"x"_s, u" %"_s}) {
        ring.setUndoSlot(2, slot);
        EXPECT_EQ(ring.unsoundness(), u"Slot 2 has no marker"_s);
    }
    for (const QString &slot : {u"*"_s, u"*x"_s, u"*:x"_s, u"*399:x"_s, u"*0400:x"_s, u"*400:"_s,
                                u"*400"_s, u"* 400:x"_s, u"*400:y"_s, u"*99999999999:x"_s}) {
        ring.setUndoSlot(2, slot);
        EXPECT_EQ(ring.unsoundness(), u"Slot 2 is not well compressed"_s) << slot.toStdString();
    }
    ring.setUndoSlot(2, encodedSlot(longRecord(1000)));
    EXPECT_TRUE(ring.isSound());
}
