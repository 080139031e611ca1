#include "editor/rules/undo/KeptStates.h"

#include "editor/rules/undo/SimpleEditor.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

UndoRecord recordOf(const std::optional<UndoState> &state)
{
    return state ? state->record() : UndoRecord();
}

} // namespace

TEST(KeptStates, TypedTextComesBackWhenNoSlotLiesAhead)
{
    UndoStore ring;
    SimpleEditor editor(ring);
    editor.load(u"A"_s);
    editor.edit(u"A=1"_s);
    editor.snapshot();
    editor.edit(u"A=1 typed since"_s);

    editor.undo();
    EXPECT_EQ(editor.text, u"A"_s);
    EXPECT_TRUE(editor.kept.canBringBack());
    editor.redo();
    EXPECT_EQ(editor.text, u"A = 1"_s);
    EXPECT_FALSE(ring.CanRedo());
    editor.redo();
    EXPECT_EQ(editor.text, u"A=1 typed since"_s);
    EXPECT_EQ(editor.kept.canBringBack(), false);
}

TEST(KeptStates, ComesBackAtOnceWhenAskedFor)
{
    UndoStore ring;
    SimpleEditor editor(ring);
    editor.load(u"A"_s);
    for (int step = 0; step < 5; ++step)
        editor.snapshot();
    editor.edit(u"typed"_s);
    for (int step = 0; step < 4; ++step)
        editor.undo();
    editor.bringBack();
    EXPECT_EQ(editor.text, u"typed"_s);
    EXPECT_EQ(ring.UndoCurrent(), 1);
    EXPECT_EQ(ring.UndoNewest(), 5);
}

TEST(KeptStates, SelectionComesBackToo)
{
    UndoStore ring;
    ring.StoreUndoSnapshot({u"A"_s, 0, 0});
    KeptStates kept;
    kept.beforeStep(ring, {u"typed"_s, 2, 3});
    kept.afterStep(ring);
    EXPECT_EQ(recordOf(kept.bringBack(ring, {})), (UndoRecord{u"typed"_s, 2, 3}));
}

TEST(KeptStates, RingNeverSeesIt)
{
    UndoStore ring;
    SimpleEditor editor(ring);
    editor.load(u"A"_s);
    editor.snapshot();
    editor.edit(u"typed"_s);
    editor.undo();
    editor.redo();
    EXPECT_FALSE(ring.CanRedo());
    EXPECT_EQ(ring.UndoCurrent(), 1);
    editor.redo();
    EXPECT_EQ(editor.text, u"typed"_s);
    EXPECT_FALSE(ring.CanRedo());
    EXPECT_EQ(ring.UndoCurrent(), 1);
    EXPECT_EQ(ring.UndoNewest(), 1);
}

TEST(KeptStates, LastsThroughUndoAndRedo)
{
    UndoStore ring;
    SimpleEditor editor(ring);
    editor.load(u"A"_s);
    editor.edit(u"B"_s);
    editor.snapshot();
    editor.edit(u"typed"_s);
    for (int round = 0; round < 3; ++round) {
        editor.undo();
        EXPECT_EQ(editor.text, u"A"_s);
        editor.redo();
        EXPECT_EQ(editor.text, u"B"_s);
        editor.redo();
        EXPECT_EQ(editor.text, u"typed"_s);
        editor.redo();
        EXPECT_EQ(editor.text, u"typed"_s);
    }
}

TEST(KeptStates, OutlastsEditsThoughNoRedoFindsItAnyMore)
{
    UndoStore ring;
    SimpleEditor editor(ring);
    editor.load(u"A"_s);
    editor.snapshot();
    editor.edit(u"typed"_s);
    editor.undo();
    editor.edit(u"edited"_s);
    EXPECT_FALSE(editor.kept.canGo(KeptStates::Way::Forward));
    editor.bringBack();
    EXPECT_EQ(editor.text, u"typed"_s);
    editor.redo(); // to slot 1
    editor.redo();
    EXPECT_EQ(editor.text, u"typed"_s);
    editor.redo();
    EXPECT_EQ(editor.text, u"edited"_s);
}

TEST(KeptStates, WhatWasReplacedComesBackWithoutASnapshot)
{
    UndoStore ring;
    SimpleEditor editor(ring);
    editor.load(u"program"_s);
    editor.replace(u"x"_s);
    EXPECT_FALSE(ring.CanUndo());
    editor.undo();
    EXPECT_EQ(editor.text, u"program"_s);
    editor.undo();
    EXPECT_EQ(editor.text, u"program"_s);
    editor.redo();
    EXPECT_EQ(editor.text, u"x"_s);
    editor.undo();
    EXPECT_EQ(editor.text, u"program"_s);
    EXPECT_FALSE(ring.CanUndo());
    EXPECT_FALSE(ring.CanRedo());
}

TEST(KeptStates, OneEditKeepsWhatWasOffered)
{
    UndoStore ring;
    SimpleEditor editor(ring);
    editor.load(u"A"_s);
    editor.edit(u"A=1"_s);
    editor.kept.offer(editor.shown());
    EXPECT_TRUE(editor.kept.noteEdit(ring));
    EXPECT_FALSE(editor.kept.noteEdit(ring));
}

TEST(KeptStates, AreGoneBackToOneByOne)
{
    UndoStore ring;
    SimpleEditor editor(ring);
    editor.load(u"A"_s);
    editor.replace(u"B"_s);
    editor.replace(u"C"_s);
    for (const QString &text : {u"B"_s, u"A"_s, u"A"_s}) {
        editor.undo();
        EXPECT_EQ(editor.text, text);
    }
    for (const QString &text : {u"B"_s, u"C"_s, u"C"_s}) {
        editor.redo();
        EXPECT_EQ(editor.text, text);
    }
}

TEST(KeptStates, UndoDoesNotGoOnFromTheBaseToLaterStates)
{
    UndoStore ring;
    SimpleEditor editor(ring);
    editor.load(u"A"_s);
    editor.snapshot();
    editor.edit(u"B"_s);
    editor.replace(u"C"_s);
    editor.undo();
    editor.undo();
    EXPECT_EQ(editor.text, u"A"_s);
    editor.bringBack();
    EXPECT_EQ(editor.text, u"C"_s);
    editor.bringBack();
    EXPECT_EQ(editor.text, u"B"_s);
}

TEST(KeptStates, UndoGoesOnToWhatIsOlderThanTheRing)
{
    UndoStore ring;
    SimpleEditor editor(ring);
    editor.text = u"program"_s; // and no base
    editor.replace(u"x"_s);
    editor.snapshot();
    editor.edit(u"x y"_s);
    editor.snapshot();
    editor.undo();
    EXPECT_EQ(editor.text, u"x"_s);
    ring.setUndoSlot(0, u"%damaged"_s); // which leaves the text as it is
    ring.UndoStepBack();
    editor.undo();
    EXPECT_EQ(editor.text, u"program"_s);
}

TEST(KeptStates, TellingItAgainGoesFurtherBackAndThenBeginsAnew)
{
    UndoStore ring;
    SimpleEditor editor(ring);
    editor.load(u"A"_s);
    editor.replace(u"B"_s);
    editor.replace(u"C"_s);
    for (const QString &text : {u"B"_s, u"A"_s, u"A"_s, u"C"_s}) {
        editor.bringBack();
        EXPECT_EQ(editor.text, text);
    }
}

TEST(KeptStates, SlotsThatASnapshotDropsAreKept)
{
    UndoStore ring;
    SimpleEditor editor(ring);
    editor.load(u"A"_s);
    for (const QString &text : {u"B"_s, u"C"_s}) {
        editor.edit(text);
        editor.snapshot();
    }
    editor.edit(u"typed"_s);
    editor.undo();
    editor.undo();
    editor.edit(u"D"_s);
    editor.snapshot();
    for (const QString &text : {u"typed"_s, u"C"_s, u"B"_s}) {
        editor.bringBack();
        EXPECT_EQ(editor.text, text);
    }
}

TEST(KeptStates, LastAsLongAsAStateInTheRing)
{
    UndoStore ring;
    SimpleEditor editor(ring);
    editor.load(u"A"_s);
    editor.replace(u"B"_s);
    for (int i = 0; i < 49; ++i)
        editor.snapshot();
    EXPECT_TRUE(editor.kept.canBringBack());
    editor.snapshot();
    EXPECT_FALSE(editor.kept.canBringBack());
}

TEST(KeptStates, OldestGoWhereThereIsNoRoom)
{
    UndoStore ring;
    KeptStates kept(1000); // bytes
    for (const QChar letter : u"abc"_s) {
        kept.offer({QString(200, letter), 0, 0});
        kept.noteEdit(ring);
    }
    EXPECT_EQ(recordOf(kept.bringBack(ring, {})).text, QString(200, u'c'));
    EXPECT_EQ(recordOf(kept.bringBack(ring, {})).text, QString(200, u'b'));
    EXPECT_FALSE(kept.bringBack(ring, {}));
}

TEST(KeptStates, LongOnesAreEncodedAndComeBackUnchanged)
{
    const QString euro = QString(5000, u'x') + QChar(0x20AC);
    const QString cyrillic = QString(5000, u'x') + QChar(0x0416); // no code page has it
    const QString separated = QString(5000, u'x') + UndoRecordSeparator.toString() + u'y';
    UndoStore ring;
    KeptStates kept;
    for (const QString &text : {euro, cyrillic, separated}) {
        kept.offer({text, 1, 2});
        kept.noteEdit(ring);
    }
    while (kept.encodePending(1000))
        ;
    for (const QString &text : {separated, cyrillic, euro})
        EXPECT_EQ(recordOf(kept.bringBack(ring, {})), (UndoRecord{text, 1, 2}));
}

TEST(KeptStates, NotKeptWhenTheSlotAtHandHoldsIt)
{
    UndoStore ring;
    SimpleEditor editor(ring);
    editor.load(u"A"_s);
    editor.edit(u"B"_s);
    editor.snapshot();
    editor.undo();
    EXPECT_FALSE(editor.kept.canBringBack());
    editor.redo();
    EXPECT_EQ(editor.text, u"B"_s);
    EXPECT_FALSE(editor.kept.canBringBack());
}

TEST(KeptStates, KeptWhenTheSlotAtHandIsDamaged)
{
    UndoStore ring;
    ring.StoreUndoSnapshot({u"A"_s, 0, 0});
    ring.setUndoSlot(1, u"*damaged"_s);
    KeptStates kept;
    kept.beforeStep(ring, {u"A"_s, 0, 0});
    kept.afterStep(ring);
    EXPECT_TRUE(kept.canBringBack());
}

TEST(KeptStates, RestoredTextIsNotKeptThoughItsSpacingDiffers)
{
    UndoStore ring;
    SimpleEditor editor(ring);
    editor.load(u"A=0"_s);
    for (const QString &program : {u"A=1"_s, u"A=2"_s, u"A=3"_s}) {
        editor.edit(program);
        editor.snapshot();
    }
    editor.undo();
    editor.undo();
    EXPECT_EQ(editor.text, u"A = 1"_s);
    EXPECT_FALSE(editor.kept.canBringBack());
    editor.redo();
    EXPECT_FALSE(editor.kept.canBringBack());
}

TEST(KeptStates, EditAfterAnUndoIsKeptAtARedo)
{
    UndoStore ring;
    SimpleEditor editor(ring);
    editor.load(u"A"_s);
    editor.edit(u"B"_s);
    editor.snapshot();
    editor.undo();
    editor.edit(u"A typed"_s);
    editor.redo();
    EXPECT_EQ(editor.text, u"B"_s);
    editor.redo();
    EXPECT_EQ(editor.text, u"A typed"_s);
}

TEST(KeptStates, EditorsOnOneRingKeepTheirOwn)
{
    UndoStore ring;
    SimpleEditor first(ring);
    SimpleEditor second(ring);
    first.load(u"A"_s);
    second.edit(u"B"_s);
    first.snapshot();
    second.snapshot();
    first.edit(u"first typed"_s);
    second.edit(u"second typed"_s);
    first.undo();
    second.undo();
    second.edit(u"more"_s);
    first.bringBack();
    EXPECT_EQ(first.text, u"first typed"_s);
    EXPECT_FALSE(second.kept.canGo(KeptStates::Way::Forward));
    second.bringBack();
    EXPECT_EQ(second.text, u"second typed"_s);
}

TEST(KeptStates, EmptiedEditorComesBackEmpty)
{
    UndoStore ring;
    SimpleEditor editor(ring);
    editor.load(u"A"_s);
    editor.snapshot();
    editor.edit(QString());
    editor.undo();
    EXPECT_EQ(editor.text, u"A"_s);
    editor.bringBack();
    EXPECT_EQ(editor.text, QString());
}
