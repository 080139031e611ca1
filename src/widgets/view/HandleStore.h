#pragma once

#include "widgets/view/HandlePage.h"

#include <QtCore/QtGlobal>

#include <new>

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

// Makes the handles of what a model keeps when they are asked for. Nobody can know
// which of them a host still holds, so all can be asked for as long as the store lives,
// those of what was removed too. A handle of nothing is all zeros, and memory of zeros
// only is given back: see HandlePage.
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
            held.handle = make(held, keeper);
        return &static_cast<Kept *>(held.handle)->handle;
    }

private:
    struct Kept final : HandedOut
    {
        template <typename Keeper>
        Kept(Keeper &keeper, Held &held, HandlePage &heldBy)
            : handle(keeper, held)
            , page(heldBy)
        {
        }
        void letGo() override
        {
            handle.letGo();
            page.letGo(); // the last thing: this may be zeros now
        }

        Handle handle;
        HandlePage &page;
    };

    // Handles own nothing, so nothing ends them but the end of their page.
    template <typename Keeper>
    Kept *make(Held &held, Keeper &keeper)
    {
        const HandlePages::Place place = m_pages.allocate(sizeof(Kept));
        return new (place.memory) Kept(keeper, held, place.page);
    }

    HandlePages m_pages;
};

} // namespace ORVTListview
