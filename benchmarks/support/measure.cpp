#include "support/measure.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <ctime>

namespace ORVTListview::bench {

double Times::quantile(double part) const
{
    if (m_all.empty())
        return std::nan("");
    std::vector<double> sorted = m_all;
    std::sort(sorted.begin(), sorted.end());
    const auto last = static_cast<double>(sorted.size() - 1);
    return sorted[static_cast<std::size_t>(std::ceil(part * last))];
}

double timed(const std::function<void()> &work)
{
    using Clock = std::chrono::steady_clock;
    const Clock::time_point start = Clock::now();
    work();
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

double timedAtWork(const std::function<void()> &work)
{
    const auto now = [] {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
    };
    const double start = now();
    work();
    return now() - start;
}

Sides sideBySide(int repetitions, const Contender &ours, const Contender &peers)
{
    ours();
    peers();
    Sides sides;
    for (int i = 0; i < repetitions; ++i) {
        sides.ours.add(ours());
        sides.peers.add(peers());
    }
    return sides;
}

Times repeated(int repetitions, const Contender &ours)
{
    ours();
    Times times;
    for (int i = 0; i < repetitions; ++i)
        times.add(ours());
    return times;
}

} // namespace ORVTListview::bench
