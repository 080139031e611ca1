#include "base/EventGuard.h"
#include "base/HostHistory.h"
#include "support/KeptLog.h"
#include "support/QtPrinters.h"

#include <QtCore/QObject>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const std::function<bool()> failing = []() -> bool { throw std::runtime_error("out of order"); };
const std::function<bool()> failingOddly = []() -> bool { throw 42; };

} // namespace

TEST(EventGuard, AnswersWhatTheActAnswers)
{
    const std::function<bool()> yes = [] { return true; };
    const std::function<bool()> no = [] { return false; };
    EXPECT_TRUE(EventGuard::run(yes));
    EXPECT_FALSE(EventGuard::run(no));
}

TEST(EventGuard, AFailureEndsInTheLogAndTheEventIsHandled)
{
    const KeptLog log;
    EXPECT_TRUE(EventGuard::run(failing));
    EXPECT_TRUE(EventGuard::run(failingOddly));
    EXPECT_EQ(log.lines, QStringList({u"default: An event handler failed: out of order"_s,
                                      u"default: An event handler failed"_s}));
}

TEST(RaiseEvent, TellsWhetherAReceiverDestroyedTheObject)
{
    auto raiser = std::make_unique<QObject>();
    int heard = 0;
    QObject::connect(raiser.get(), &QObject::objectNameChanged, raiser.get(), [&] { ++heard; });
    const auto raise = [&raiser] {
        return raiseEvent(*raiser, &QObject::destroyed, static_cast<QObject *>(nullptr));
    };
    EXPECT_TRUE(raise());
    QObject::connect(raiser.get(), &QObject::destroyed, [&raiser, &heard](QObject *object) {
        if (!object) {
            ++heard;
            raiser.reset();
        }
    });
    EXPECT_FALSE(raise());
    EXPECT_EQ(heard, 1);
}

TEST(HostHistory, AFailureOfTheHostEndsInTheLog)
{
    HostHistory history;
    history.set(UndoHistory{.canUndo = failing,
                            .canRedo = failingOddly,
                            .undo = [] { failing(); },
                            .redo = [] { failingOddly(); }});
    const KeptLog log;
    EXPECT_FALSE(history.canUndo());
    EXPECT_FALSE(history.canRedo());
    history.undo();
    history.redo();
    EXPECT_EQ(log.lines.size(), 4);
}

TEST(HostHistory, DoesWhatTheHostGave)
{
    QString done;
    HostHistory history;
    history.set(UndoHistory{.canUndo = [] { return true; },
                            .canRedo = [] { return false; },
                            .undo = [&done] { done += u'u'; },
                            .redo = [&done] { done += u'r'; }});
    EXPECT_TRUE(history.canUndo());
    EXPECT_FALSE(history.canRedo());
    history.undo();
    history.redo();
    EXPECT_EQ(done, u"ur"_s);
}
