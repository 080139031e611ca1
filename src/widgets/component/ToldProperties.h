#pragma once

#include "base/EventGuard.h"

#include <functional>
#include <utility>
#include <vector>

namespace ORVTListview {

// The properties of a control with the values that it has told last, so that each of
// its signals is raised for another value and for nothing else.
template <typename Control>
class ToldProperties
{
public:
    // The value that it has now counts as told.
    template <typename Value>
    void add(const Control &control, Value (Control::*read)() const, void (Control::*changed)())
    {
        auto isAnother = [&control, read, told = (control.*read)()]() mutable {
            const Value now = (control.*read)();
            return std::exchange(told, now) != now;
        };
        m_properties.push_back({std::move(isAnother), changed});
    }

    // In the order of adding. False when a receiver has destroyed the control, and
    // this with it.
    bool tell(Control &control)
    {
        for (std::size_t i = 0, count = m_properties.size(); i < count; ++i) {
            if (m_properties[i].isAnother() && !raiseEvent(control, m_properties[i].changed))
                return false;
        }
        return true;
    }

private:
    struct Property
    {
        std::function<bool()> isAnother;
        void (Control::*changed)();
    };
    std::vector<Property> m_properties;
};

} // namespace ORVTListview
