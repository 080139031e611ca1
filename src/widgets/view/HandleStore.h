#pragma once

#include <QtCore/QtGlobal>

#include <memory>
#include <vector>

namespace ORVTListview {

// What something that a model keeps knows of the handle that was given out for it:
// how to tell it, dying.
class HandedOut
{
public:
    HandedOut() = default;
    Q_DISABLE_COPY_MOVE(HandedOut) // known by address
    virtual ~HandedOut() = default;
    virtual void letGo() = 0;
};

// Makes the handles of what a model keeps when they are asked for. All of them are
// kept, those of what was removed too, since nobody can know which of them a host
// still holds: 40 bytes for each that was ever asked for.
template <typename Handle, typename Held>
class HandleStore
{
public:
    HandleStore() = default;
    Q_DISABLE_COPY_MOVE(HandleStore) // handles are held by address

    // The keeper is what a new handle stands on.
    template <typename Keeper>
    Handle *of(Held &held, Keeper &keeper)
    {
        if (!held.handle)
            held.handle = m_all.emplace_back(std::make_unique<Kept>(keeper, held)).get();
        return &static_cast<Kept *>(held.handle)->handle;
    }

private:
    struct Kept final : HandedOut
    {
        template <typename Keeper>
        Kept(Keeper &keeper, Held &held)
            : handle(keeper, held)
        {
        }
        void letGo() override { handle.letGo(); }

        Handle handle;
    };

    std::vector<std::unique_ptr<HandedOut>> m_all;
};

} // namespace ORVTListview
