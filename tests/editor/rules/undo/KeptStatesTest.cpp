#include "editor/rules/undo/KeptStates.h"

#include "editor/rules/undo/UndoStore.h"
#include "support/QtPrinters.h"
#include "support/RandomSeed.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// An editor as far as undo sees it. Restoring spaces the text out, as colouring
// does; what is brought back is exact.
class Editor
{
public:
    explicit Editor(UndoStore &shared)
        : ring(shared)
    {
    }

    void load(const QString &program)
    {
        text = program;
        kept.clear();
        ring.ResetUndoBase(text);
    }

    void stand() { hasStood = true; }

    void edit(const QString &changed)
    {
        offerWhatStood();
        text = changed;
        kept.noteEdit(ring);
    }

    // As a selection is typed over.
    void replace(const QString &changed)
    {
        if (!kept.isShownSafe(ring))
            kept.offer(shown());
        edit(changed);
    }

    void snapshot()
    {
        kept.beforeSnapshot(ring);
        ring.StoreUndoSnapshot(shown());
        kept.afterSnapshot(ring);
    }

    void undo() { go(KeptStates::Way::Back, ring.CanUndo(), &UndoStore::UndoStepBack); }
    void redo() { go(KeptStates::Way::Forward, ring.CanRedo(), &UndoStore::RedoStepForward); }

    void bringBack()
    {
        offerWhatStood();
        if (const auto state = kept.bringBack(ring, shown()))
            text = state->text.toString();
    }

    UndoRecord shown() const { return {text, qint32(text.size()), 0}; }

    static QString spaced(const QString &program)
    {
        return QString(program).remove(u' ').replace(u'=', u" = "_s);
    }

    UndoStore &ring;
    KeptStates kept;
    QString text;
    bool hasStood = false;

private:
    void offerWhatStood()
    {
        if (std::exchange(hasStood, false))
            kept.offer(shown());
    }

    void go(KeptStates::Way way, bool canStep, std::optional<qint16> (UndoStore::*step)())
    {
        offerWhatStood();
        if (canStep) {
            kept.beforeStep(ring, shown());
            text = spaced(splitUndoRecord(ring.FetchUndoSnapshot(*(ring.*step)())).text);
            kept.afterStep(ring);
        } else if (const auto state = kept.go(ring, shown(), way)) {
            text = state->text.toString();
        }
    }
};

UndoRecord recordOf(const std::optional<UndoState> &state)
{
    return state ? state->record() : UndoRecord();
}

} // namespace

TEST(KeptStates, TypedTextComesBackWhenNoSlotLiesAhead)
{
    UndoStore ring;
    Editor editor(ring);
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
    Editor editor(ring);
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
    Editor editor(ring);
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
    Editor editor(ring);
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
    Editor editor(ring);
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
    Editor editor(ring);
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

TEST(KeptStates, AreGoneBackToOneByOne)
{
    UndoStore ring;
    Editor editor(ring);
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
    Editor editor(ring);
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
    Editor editor(ring);
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
    Editor editor(ring);
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
    Editor editor(ring);
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
    Editor editor(ring);
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
    Editor editor(ring);
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
    Editor editor(ring);
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
    Editor editor(ring);
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
    Editor first(ring);
    Editor second(ring);
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
    Editor editor(ring);
    editor.load(u"A"_s);
    editor.snapshot();
    editor.edit(QString());
    editor.undo();
    EXPECT_EQ(editor.text, u"A"_s);
    editor.bringBack();
    EXPECT_EQ(editor.text, QString());
}

// However one goes back and forth, the text that was there before is met again
// on the way forward to the end and back to the start.
TEST(KeptStates, NothingTypedIsEverLost)
{
    const unsigned seed = randomSeed(31337);
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    UndoStore ring;
    Editor editor(ring);
    editor.load(u"A=0"_s);
    for (int round = 0; round < 20000; ++round) {
        for (auto left = random() % 4; left > 0; --left) {
            if (random() % 2 == 0)
                editor.snapshot();
            if (random() % 3 != 0)
                editor.edit(u"A=%1"_s.arg(random() % 20));
        }
        const QString before = Editor::spaced(editor.text);
        for (auto left = random() % 60; left > 0; --left)
            random() % 3 == 0 ? editor.redo() : editor.undo();
        const auto isShown = [&] { return Editor::spaced(editor.text) == before; };
        while (!isShown() && (ring.CanRedo() || editor.kept.canGo(KeptStates::Way::Forward)))
            editor.redo();
        while (!isShown() && ring.CanUndo())
            editor.undo();
        ASSERT_TRUE(isShown()) << "round " << round << ": " << before.toStdString();
    }
}

// Whatever one does: what has stood for a while is found by undoing, redoing and
// telling it to come back, for 49 snapshots.
TEST(KeptStates, NoTextThatStoodIsEverOutOfReach)
{
    const unsigned seed = randomSeed(4711);
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    UndoStore ring;
    Editor editor(ring);
    editor.load(u"A=0"_s);
    std::map<QString, qint64> stood; // and how many snapshots there were then
    for (int round = 0; round < 300; ++round) {
        for (auto left = random() % 30; left > 0; --left) {
            const QString changed = u"A=%1"_s.arg(random() % 100000);
            if (random() % 4 == 0) {
                stood[Editor::spaced(editor.text)] = ring.snapshotCount();
                editor.stand();
            }
            switch (random() % 6) {
            case 0:
                editor.snapshot();
                [[fallthrough]];
            case 1:
                editor.edit(changed);
                break;
            case 2:
                editor.replace(changed);
                break;
            case 3:
                editor.undo();
                break;
            case 4:
                editor.redo();
                break;
            default:
                editor.bringBack();
            }
        }
        std::erase_if(stood,
                      [&](const auto &one) { return ring.snapshotCount() - one.second > 48; });
        std::set<QString> found;
        const auto look = [&](void (Editor::*act)(), int times) {
            for (; times > 0; --times) {
                found.insert(Editor::spaced(editor.text));
                (editor.*act)();
            }
        };
        look(&Editor::undo, 100);
        look(&Editor::redo, 100);
        look(&Editor::bringBack, 1100);
        for (const auto &[text, snapshots] : stood)
            ASSERT_TRUE(found.contains(text)) << "round " << round << ": " << text.toStdString();
    }
}
