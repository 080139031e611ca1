#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

// The steps without those that a failure does not need: halves are left out first,
// then smaller parts, at last single steps, until none can be missed. FAILS is asked
// with fewer steps whether they still fail.
template <typename Step, typename Fails>
std::vector<Step> shrunk(std::vector<Step> steps, const Fails &fails)
{
    std::size_t size = std::max<std::size_t>(steps.size() / 2, 1);
    for (bool isShorter = true; isShorter || size > 1; size = std::max<std::size_t>(size / 2, 1)) {
        isShorter = false;
        for (std::size_t start = 0; start < steps.size();) {
            const auto first = steps.begin() + static_cast<std::ptrdiff_t>(start);
            const auto left = static_cast<std::size_t>(steps.end() - first);
            const auto last = first + static_cast<std::ptrdiff_t>(std::min(size, left));
            std::vector<Step> fewer(steps.begin(), first);
            fewer.insert(fewer.end(), last, steps.end());
            if (fails(fewer)) {
                steps = std::move(fewer);
                isShorter = true;
            } else {
                start += size;
            }
        }
    }
    return steps;
}
