// Whichever allocation of an operation fails: it comes to its end, or it raises and
// leaves everything as it was. Left out is what keeps something in one of the toolkit's
// hashes, which end the program for want of memory.

#include "faults/FailingAllocation.h"

#include "editor/rules/colouring/ColouringFixture.h"
#include "editor/rules/colouring/LineColouring.h"
#include "editor/rules/undo/KeptStates.h"
#include "editor/rules/undo/UndoStore.h"
#include "shared/compression/Compression.h"
#include "shared/settings/SettingsDocument.h"
#include "support/Gauge.h"
#include "support/QtPrinters.h"
#include <ORVTListview/LateCall.h>

#include <QtCore/QSet>

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

using Shortage = FailingAllocation::Shortage;

class AllocationFaults : public ::testing::TestWithParam<Shortage>
{
protected:
    // Each allocation in turn, on things made anew. A scene has act(), and state(),
    // which is what must not change when act() raises.
    template <typename Scene>
    void failEach()
    {
        QString finished;
        {
            Scene scene;
            scene.act();
            finished = scene.state();
        }
        int call = 1;
        for (; call < 100'000; ++call) {
            SCOPED_TRACE(call);
            Scene scene;
            const QString before = scene.state();
            const Outcome outcome =
                withFailingAllocation(call, GetParam(), [&scene] { scene.act(); });
            const QString after = scene.state();
            if (outcome == Outcome::Raised) {
                ASSERT_TRUE(after == before);
                scene.act(); // there is memory again
                ASSERT_TRUE(scene.state() == finished);
            } else {
                ASSERT_TRUE(after == finished);
            }
            if (outcome == Outcome::Finished)
                break;
        }
        EXPECT_GT(call, 1) << "the operation takes no memory that could fail";
    }
};

QString program(int lines)
{
    return u"IF Temp1 > 20 THEN Fan1 = ON\r\nREM {note} \u00e9\r\n"_s.repeated(lines);
}

QString contentOf(const UndoStore &ring)
{
    QString content = u"%1 %2 %3 %4 %5\n"_s.arg(ring.UndoOldest())
                          .arg(ring.UndoCurrent())
                          .arg(ring.UndoNewest())
                          .arg(ring.UndoWrapped())
                          .arg(ring.snapshotCount());
    for (qint16 slot = 0; slot < UndoStore::slotCount; ++slot)
        content += ring.FetchUndoSnapshot(slot) + u'\n';
    return content;
}

// Little may wait, so that storing one encodes others.
struct Ring
{
    Ring()
    {
        for (int i = 0; i < 3; ++i)
            ring.StoreUndoSnapshot({program(20 + i), i, 0});
    }
    QString state() const { return contentOf(ring); }

    UndoStore ring{3000};
};

struct Storing : Ring
{
    void act() { ring.StoreUndoSnapshot({program(30), 1, 2}); }
};

TEST_P(AllocationFaults, ASnapshotIsStoredOrNot)
{
    failEach<Storing>();
}

struct SettingTheBase : Ring
{
    void act() { ring.ResetUndoBase(program(31)); }
};

TEST_P(AllocationFaults, ABaseIsSetOrNot)
{
    failEach<SettingTheBase>();
}

struct EncodingSlots : Ring
{
    void act()
    {
        while (ring.encodePending(500)) {
        }
    }
};

TEST_P(AllocationFaults, EncodingLeavesTheRecords)
{
    failEach<EncodingSlots>();
}

// States that an editor has left. Their container takes memory for several at once, so
// that not every number of them needs some for the next.
constexpr int mostStates = 12;

struct Kept
{
    explicit Kept(int count)
    {
        for (int i = 0; i < count; ++i) {
            kept.offer(UndoState(program(15 + i), i, 0));
            kept.noteEdit(ring);
        }
    }

    void goBack() { kept.go(ring, UndoState(u"shown"_s, 0, 0), KeptStates::Way::Back); }

    // What can be brought back to an editor that shows something else.
    QSet<qint32> found()
    {
        QSet<qint32> starts;
        for (int i = 0; i < 2 * mostStates; ++i) {
            if (const auto record = kept.bringBack(ring, UndoState(u"another"_s, 0, 0)))
                starts.insert(record->selectionStart);
        }
        return starts;
    }

    UndoStore ring;
    KeptStates kept;
};

// Raised: how often the want of memory was told.
template <typename Prepare, typename Act>
void loseNoState(Shortage shortage, int &raised, const Prepare &prepare, const Act &act)
{
    for (int count = 1; count <= mostStates; ++count) {
        for (int call = 1; call < 100; ++call) {
            Kept scene(count);
            prepare(scene);
            const Outcome outcome = withFailingAllocation(call, shortage, [&] { act(scene); });
            raised += outcome == Outcome::Raised ? 1 : 0;
            scene.kept.noteEdit(scene.ring);
            ASSERT_GE(scene.found().size(), count) << count << " states, call " << call;
            if (outcome == Outcome::Finished)
                break;
        }
    }
}

TEST_P(AllocationFaults, NoKeptStateIsLostByGoingBack)
{
    int raised = 0;
    loseNoState(
        GetParam(), raised, [](Kept &) {}, [](Kept &scene) { scene.goBack(); });
    EXPECT_GT(raised, 0);
}

TEST_P(AllocationFaults, NoKeptStateIsLostByGoingBackFurther)
{
    int raised = 0;
    loseNoState(
        GetParam(), raised, [](Kept &scene) { scene.goBack(); },
        [](Kept &scene) { scene.goBack(); });
    EXPECT_EQ(raised, 0) << "a state that is kept already takes no memory to stay so";
}

TEST_P(AllocationFaults, NoKeptStateIsLostByAnEdit)
{
    int raised = 0;
    loseNoState(
        GetParam(), raised, [](Kept &scene) { scene.kept.offer(UndoState(program(40), 99, 0)); },
        [](Kept &scene) { scene.kept.noteEdit(scene.ring); });
    EXPECT_GT(raised, 0);
}

QString contentOf(const CodeWordList &words)
{
    QString content;
    for (qsizetype i = 0; i < words.index().count(); ++i)
        content += words.index().at(i).text + QString::number(words.index().at(i).data) + u' ';
    return content;
}

struct FillingTheWordList : Colouring
{
    FillingTheWordList()
    {
        variables.Add(u"Later"_s);
        variables.Remove(u"Var1"_s);
    }
    void act() { refill(); }
    QString state() const { return contentOf(words); }
};

TEST_P(AllocationFaults, TheWordListIsFilledOrNot)
{
    failEach<FillingTheWordList>();
}

struct RenamingAWord : Colouring
{
    void act()
    {
        words.UpdateWordListItem(u"Temp1"_s, u"Temperature of the supply air"_s, dsInput);
    }
    QString state() const { return contentOf(words); }
};

TEST_P(AllocationFaults, AWordIsRenamedOrNot)
{
    failEach<RenamingAWord>();
}

// A component that is called late; the arguments and the result are the host's.
struct CallingLate
{
    void act()
    {
        arguments = {21, u"x"_s, u"whatever"_s};
        result = u"before"_s;
        try {
            if (const auto error =
                    callLate(gauge, Gauge::members(), u"Doubled"_s, arguments, result)) {
                EXPECT_EQ(error->Number(), UnexpectedFailure);
                throw std::bad_alloc();
            }
        } catch (const std::bad_alloc &) { // also when there is none for the error
            EXPECT_EQ(result, QVariant(u"before"_s));
            EXPECT_EQ(arguments, QVariantList({21, u"x"_s, u"whatever"_s}));
            arguments.clear();
            throw;
        }
    }
    QString state() const { return arguments.isEmpty() ? u"none"_s : arguments[1].toString(); }

    Gauge gauge;
    QVariantList arguments;
    QVariant result;
};

TEST_P(AllocationFaults, ALateCallSucceedsOrChangesNothing)
{
    failEach<CallingLate>();
}

struct ChangingSettings
{
    ChangingSettings()
    {
        document.apply({{{u"App"_s, u"First"_s}, u"1"_s}, {{u"App"_s, u"Second"_s}, u"2"_s}});
    }
    void act()
    {
        SettingsDocument changed = document; // as the file does
        changed.apply({{{u"App"_s, u"First"_s}, u"one"_s},
                       {{u"App"_s, u"Second"_s}, std::nullopt},
                       {{u"Other"_s, u"Third"_s}, u" 3 "_s}});
        document = changed;
    }
    QString state() const { return QString::fromUtf8(document.toBytes()); }

    SettingsDocument document;
};

TEST_P(AllocationFaults, SettingsAreChangedOrNot)
{
    failEach<ChangingSettings>();
}

// What makes one value of another: the value is there or not.
struct Making
{
    QString state() const { return made; }

    QString made;
};

struct CompressingAText : Making
{
    void act() { made = ModZlib::UncompressString(ModZlib::CompressString(program(40))); }
};

TEST_P(AllocationFaults, ATextIsCompressedOrNot)
{
    failEach<CompressingAText>();
}

struct ColouringAText : Colouring
{
    void act()
    {
        const QString text = program(4) + u"else ( day"_s;
        const ColouredText whole = colouredText(engine(), text, false, defaultColours());
        const ColouredText lines = finishedText(engine(), text, defaultColours());
        made = whole.text + lines.text + ColourText(engine(), text, QString(), true);
    }
    QString state() const { return made; }

    QString made;
};

TEST_P(AllocationFaults, ATextIsColouredOrNot)
{
    failEach<ColouringAText>();
}

INSTANTIATE_TEST_SUITE_P(Memory, AllocationFaults,
                         testing::Values(Shortage::Once, Shortage::FromThenOn),
                         [](const auto &shortage) {
                             return shortage.param == Shortage::Once ? "FailsOnce" : "StaysShort";
                         });

} // namespace
