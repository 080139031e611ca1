#include "editor/rules/undo/UndoStore.h"

#include "editor/rules/undo/UndoSlot.h"
#include "editor/rules/undo/UndoStoreSteps.h"
#include "support/QtPrinters.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

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
