#pragma once

#include <algorithm>
#include <cstddef>

namespace ORVTListview {

// Numbers what a model holds in an order, no sooner and no further than somebody asks. A
// change of the order says from where on it holds no longer.
class Positions
{
public:
    // Order is a sequence of pointers to what has the member. What is not in the order has
    // a negative one, which it keeps.
    template <typename Order, typename Held>
    int of(const Order &order, const Held &held, int Held::*member = &Held::position) const
    {
        const auto known = static_cast<std::size_t>(held.*member);
        if (known >= m_numbered || &*order[known] != &held) {
            for (bool isFound = false; !isFound && m_numbered < order.size(); ++m_numbered) {
                (*order[m_numbered]).*member = static_cast<int>(m_numbered);
                isFound = &*order[m_numbered] == &held;
            }
        }
        return held.*member;
    }

    void forgetFrom(int position)
    {
        m_numbered = std::min(m_numbered, static_cast<std::size_t>(position));
    }

private:
    mutable std::size_t m_numbered = 0; // those before this know their position
};

} // namespace ORVTListview
