#pragma once

#include "base/EventGuard.h"

#include <ORVTListview/UndoHistory.h>

#include <optional>

namespace ORVTListview {

// What a component asks a host that has given it a history; what the host throws ends here.
class HostHistory
{
public:
    void set(const std::optional<UndoHistory> &history) { m_history = history; }
    bool isSet() const { return m_history.has_value(); }

    bool canUndo() const { return isSet() && answers(m_history->canUndo); }
    bool canRedo() const { return isSet() && answers(m_history->canRedo); }

    // The component may be gone afterwards.
    void undo() const { act(m_history->undo); }
    void redo() const { act(m_history->redo); }

private:
    // Copies: the host may end what it is in.
    static bool answers(std::function<bool()> ask)
    {
        bool answer = false;
        EventGuard::run([&] {
            answer = ask && ask();
            return true;
        });
        return answer;
    }

    static void act(std::function<void()> act)
    {
        EventGuard::run([&] {
            if (act)
                act();
            return true;
        });
    }

    std::optional<UndoHistory> m_history;
};

} // namespace ORVTListview
