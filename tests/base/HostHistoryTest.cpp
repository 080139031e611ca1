#include "base/HostHistory.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

using namespace ORVTListview;

namespace {

// Whether what the host gave is there until it is done, though it ends the history in it.
bool isThereUntilDone(std::function<bool()> UndoHistory::*question,
                      bool (HostHistory::*ask)() const)
{
    HostHistory history;
    bool isThere = false;
    UndoHistory host;
    host.*question = [&history, &isThere, part = std::make_shared<int>()] {
        const std::weak_ptr<int> held(part);
        bool &answer = isThere;
        history.set(std::nullopt);
        answer = !held.expired();
        return true;
    };
    history.set(host);
    host = {};
    EXPECT_TRUE((history.*ask)());
    EXPECT_FALSE(history.isSet());
    return isThere;
}

} // namespace

TEST(HostHistory, MayEndWhileItIsAsked)
{
    EXPECT_TRUE(isThereUntilDone(&UndoHistory::canUndo, &HostHistory::canUndo));
    EXPECT_TRUE(isThereUntilDone(&UndoHistory::canRedo, &HostHistory::canRedo));
}

TEST(HostHistory, AnswersNoToWhatIsMissing)
{
    HostHistory history;
    EXPECT_FALSE(history.canUndo());
    history.set(UndoHistory{});
    EXPECT_TRUE(history.isSet());
    EXPECT_FALSE(history.canUndo());
    EXPECT_FALSE(history.canRedo());
    history.undo();
    history.redo();
}
