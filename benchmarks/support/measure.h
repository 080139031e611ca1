#pragma once

#include <functional>
#include <vector>

namespace ORVTListview::bench {

// How long the same work took each time, in nanoseconds.
class Times
{
public:
    void add(double nanoseconds) { m_all.push_back(nanoseconds); }
    std::size_t count() const { return m_all.size(); }
    double median() const { return quantile(0.5); }
    double minimum() const { return quantile(0); }
    double maximum() const { return quantile(1); }

    // The time that the given part of all stays within, from 0 to 1.
    double quantile(double part) const;

private:
    std::vector<double> m_all;
};

double timed(const std::function<void()> &work);

// The time that this thread was at work. The slowest of many is taken of this: on the
// clock it would be the time that another program took.
double timedAtWork(const std::function<void()> &work);

// Does the work once and returns how long the part of it took that counts.
using Contender = std::function<double()>;

struct Sides
{
    Times ours;
    Times peers;
};

// Once to warm up, then in turns, so that a disturbance meets both.
Sides sideBySide(int repetitions, const Contender &ours, const Contender &peers);

Times repeated(int repetitions, const Contender &ours);

// What the compiler must not leave out.
template <typename Result>
void keep(const Result &result)
{
    asm volatile("" : : "g"(&result) : "memory");
}

} // namespace ORVTListview::bench
