#include "editor/rules/undo/UndoSlot.h"

#include "editor/rules/undo/UndoRecord.h"
#include "shared/compression/Compression.h"
#include "support/QtPrinters.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <climits>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

UndoRecord recordOfLength(qsizetype length)
{
    const qsizetype besides = undoRecordTail({QString(), 0, 0}).size();
    const QString line = u"IF TEMP1 > 20 THEN FAN = ON\r\n"_s;
    return {line.repeated(length / line.size() + 1).first(length - besides), 0, 0};
}

QString encodedInSteps(const UndoRecord &record, qsizetype characters)
{
    using Progress = UndoSlotEncoder::Progress;
    const SharedText text(record.text);
    UndoSlotEncoder encoder(text, undoRecordTail(record));
    Progress progress = Progress::Going;
    while (progress == Progress::Going)
        progress = encoder.advance(characters);
    return progress == Progress::Done ? encoder.slot() : QString();
}

} // namespace

TEST(UndoSlot, RecordOf399CharactersIsPlain)
{
    const UndoRecord record = recordOfLength(399);
    ASSERT_EQ(joinUndoRecord(record).size(), 399);
    EXPECT_EQ(encodeUndoSlot(joinUndoRecord(record)), u'%' + joinUndoRecord(record));
    EXPECT_EQ(decodeUndoSlot(encodeUndoSlot(joinUndoRecord(record))), joinUndoRecord(record));
}

TEST(UndoSlot, RecordOf400CharactersIsCompressed)
{
    const UndoRecord record = recordOfLength(400);
    const QString text = joinUndoRecord(record);
    ASSERT_EQ(text.size(), 400);
    EXPECT_EQ(encodeUndoSlot(joinUndoRecord(record)), u'*' + ModZlib::CompressString(text));
    EXPECT_EQ(decodeUndoSlot(encodeUndoSlot(joinUndoRecord(record))), text);
}

TEST(UndoSlot, SelectionCountsTowardsTheLength)
{
    UndoRecord record = recordOfLength(399);
    record.selectionStart = 10;
    EXPECT_TRUE(encodeUndoSlot(joinUndoRecord(record)).startsWith(u"*400:"_s));
}

TEST(UndoSlot, RecordOutsideTheCodePageIsPlainAtAnyLength)
{
    for (const qsizetype length : {100, 399, 400, 401, 100000}) {
        UndoRecord record = recordOfLength(length);
        record.text[0] = u'Ω';
        EXPECT_EQ(encodeUndoSlot(joinUndoRecord(record)), u'%' + joinUndoRecord(record));
        EXPECT_EQ(decodeUndoSlot(encodeUndoSlot(joinUndoRecord(record))), joinUndoRecord(record));
    }
}

TEST(UndoSlot, EmptySlotIsAnEmptyRecord)
{
    EXPECT_EQ(decodeUndoSlot(QString()), QString());
    EXPECT_EQ(decodeUndoSlot(u"%"_s), QString());
}

TEST(UndoSlot, OnlyAnAsteriskMeansCompressed)
{
    EXPECT_EQ(decodeUndoSlot(u"%*5:"_s), u"*5:"_s);
    EXPECT_EQ(decodeUndoSlot(u"#abc"_s), u"abc"_s);
}

TEST(UndoSlot, DamageRaisesTheErrorOfUncompressing)
{
    const QString slot = encodeUndoSlot(joinUndoRecord(recordOfLength(1000)));
    const QString stream = slot.mid(6);
    ASSERT_TRUE(slot.startsWith(u"*1000:"_s));
    const auto number = [](const QString &damaged) {
        const auto error = raisedBy([&] { decodeUndoSlot(damaged); });
        return error && error->Source() == u"UncompressString"_s ? error->Number() : 0;
    };
    EXPECT_EQ(number(u"*"_s), -2147221501);
    EXPECT_EQ(number(slot.first(20)), -2147221501);
    EXPECT_EQ(number(u"*999:"_s + stream), -2147221499);
    EXPECT_EQ(number(u"*0:"_s + stream), -2147221499);
    EXPECT_EQ(number(u"*99999999999:"_s + stream), -2147221500);
    EXPECT_EQ(number(u"*1O00:"_s + stream), -2147221501);
    EXPECT_EQ(number(u"*1000:"_s + stream.mid(1)), -2147221501);
    EXPECT_EQ(decodeUndoSlot(u"*1001:"_s + stream), decodeUndoSlot(slot) + u' ');
}

TEST(UndoSlotEncoder, SameAsInOneShot)
{
    for (const qsizetype length : {400, 401, 5000}) {
        UndoRecord record = recordOfLength(length);
        record.selectionLength = 17;
        for (const qsizetype step : {1, 7, 399, 4096, INT_MAX})
            ASSERT_EQ(encodedInSteps(record, step), encodeUndoSlot(joinUndoRecord(record)))
                << length << ' ' << step;
    }
}

TEST(UndoSlotEncoder, TakesNoMoreThanItIsToldTo)
{
    UndoSlotEncoder encoder(SharedText(QString(1000, u'x')), undoRecordTail({}));
    for (int step = 0; step < 9; ++step)
        ASSERT_EQ(encoder.advance(100), UndoSlotEncoder::Progress::Going);
    EXPECT_EQ(encoder.advance(100), UndoSlotEncoder::Progress::Done);
}

TEST(UndoSlotEncoder, FindsThatTheCodePageLacksACharacter)
{
    for (const qsizetype place : {0, 500, 977}) {
        UndoRecord record = recordOfLength(1000);
        record.text[place] = u'Ω';
        EXPECT_EQ(encodedInSteps(record, 100), QString());
    }
}
