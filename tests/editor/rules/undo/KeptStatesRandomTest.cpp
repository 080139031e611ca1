// What was typed, and what stood for a while, over random steps.

#include "editor/rules/undo/SimpleEditor.h"
#include "support/QtPrinters.h"
#include "support/RandomSeed.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

// However one goes back and forth, the text that was there before is met again
// on the way forward to the end and back to the start.
TEST(KeptStates, NothingTypedIsEverLost)
{
    const unsigned seed = randomSeed(31337);
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    UndoStore ring;
    SimpleEditor editor(ring);
    editor.load(u"A=0"_s);
    for (int round = 0; round < 20000; ++round) {
        for (auto left = random() % 4; left > 0; --left) {
            if (random() % 2 == 0)
                editor.snapshot();
            if (random() % 3 != 0)
                editor.edit(u"A=%1"_s.arg(random() % 20));
        }
        const QString before = SimpleEditor::spaced(editor.text);
        for (auto left = random() % 60; left > 0; --left)
            random() % 3 == 0 ? editor.redo() : editor.undo();
        const auto isShown = [&] { return SimpleEditor::spaced(editor.text) == before; };
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
    SimpleEditor editor(ring);
    editor.load(u"A=0"_s);
    std::map<QString, qint64> stood; // and how many snapshots there were then
    for (int round = 0; round < 300; ++round) {
        for (auto left = random() % 30; left > 0; --left) {
            const QString changed = u"A=%1"_s.arg(random() % 100000);
            if (random() % 4 == 0) {
                stood[SimpleEditor::spaced(editor.text)] = ring.snapshotCount();
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
        const auto look = [&](void (SimpleEditor::*act)(), int times) {
            for (; times > 0; --times) {
                found.insert(SimpleEditor::spaced(editor.text));
                (editor.*act)();
            }
        };
        look(&SimpleEditor::undo, 100);
        look(&SimpleEditor::redo, 100);
        look(&SimpleEditor::bringBack, 1100);
        for (const auto &[text, snapshots] : stood)
            ASSERT_TRUE(found.contains(text)) << "round " << round << ": " << text.toStdString();
    }
}
