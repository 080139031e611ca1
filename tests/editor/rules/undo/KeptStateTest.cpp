#include "editor/rules/undo/KeptState.h"

#include "editor/rules/undo/UndoStore.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <random>

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
        edit(program);
        ring.ResetUndoBase(text);
    }

    void edit(const QString &changed)
    {
        text = changed;
        kept.noteEdit();
    }

    void snapshot() { ring.StoreUndoSnapshot(shown()); }

    void undo()
    {
        if (ring.CanUndo())
            kept.beforeStep(ring, shown());
        show(ring.UndoStepBack());
    }

    void redo()
    {
        if (ring.CanRedo()) {
            kept.beforeStep(ring, shown());
            show(ring.RedoStepForward());
        } else {
            bringBack();
        }
    }

    void bringBack()
    {
        if (const auto state = kept.bringBack())
            text = state->text;
    }

    UndoRecord shown() const { return {text, qint32(text.size()), 0}; }

    static QString spaced(const QString &program)
    {
        return QString(program).remove(u' ').replace(u'=', u" = "_s);
    }

    UndoStore &ring;
    KeptState kept;
    QString text;

private:
    void show(std::optional<qint16> slot)
    {
        if (!slot)
            return;
        const UndoRecord record = splitUndoRecord(ring.FetchUndoSnapshot(*slot));
        text = spaced(record.text);
    }
};

} // namespace

TEST(KeptState, TypedTextComesBackWhenNoSlotLiesAhead)
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

TEST(KeptState, ComesBackAtOnceWhenAskedFor)
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

TEST(KeptState, SelectionComesBackToo)
{
    UndoStore ring;
    ring.StoreUndoSnapshot({u"A"_s, 0, 0});
    KeptState kept;
    kept.beforeStep(ring, {u"typed"_s, 2, 3});
    EXPECT_EQ(kept.bringBack(), (UndoRecord{u"typed"_s, 2, 3}));
}

TEST(KeptState, RingNeverSeesIt)
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

TEST(KeptState, LastsThroughUndoAndRedo)
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

TEST(KeptState, EndsAtTheNextEdit)
{
    UndoStore ring;
    Editor editor(ring);
    editor.load(u"A"_s);
    editor.snapshot();
    editor.edit(u"typed"_s);
    editor.undo();
    editor.edit(u"edited"_s);
    EXPECT_FALSE(editor.kept.canBringBack());
    editor.bringBack();
    EXPECT_EQ(editor.text, u"edited"_s);
}

TEST(KeptState, NotKeptWhenTheSlotAtHandHoldsIt)
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

TEST(KeptState, KeptWhenTheSlotAtHandIsDamaged)
{
    UndoStore ring;
    ring.StoreUndoSnapshot({u"A"_s, 0, 0});
    ring.setUndoSlot(1, u"*damaged"_s);
    KeptState kept;
    kept.beforeStep(ring, {u"A"_s, 0, 0});
    EXPECT_TRUE(kept.canBringBack());
}

TEST(KeptState, RestoredTextIsNotKeptThoughItsSpacingDiffers)
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

TEST(KeptState, EditAfterAnUndoIsKeptAtARedo)
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

TEST(KeptState, EditorsOnOneRingKeepTheirOwn)
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
    EXPECT_FALSE(second.kept.canBringBack());
}

TEST(KeptState, EmptiedEditorComesBackEmpty)
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
TEST(KeptState, NothingTypedIsEverLost)
{
    const unsigned seed = 31337;
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
        while (!isShown() && (ring.CanRedo() || editor.kept.canBringBack()))
            editor.redo();
        while (!isShown() && ring.CanUndo())
            editor.undo();
        ASSERT_TRUE(isShown()) << "round " << round << ": " << before.toStdString();
    }
}
