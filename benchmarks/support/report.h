#pragma once

#include "support/measure.h"

#include <QtCore/QString>

#include <optional>

namespace ORVTListview::bench {

// A benchmark prints one JSON object a line on standard output; `bench` makes
// one table of those of all benchmarks.

// One side of a row. Its cost is in nanoseconds (or bytes), for one unit of the
// work where an amount of it was given.
struct Side
{
    QString what;
    double cost = 0;
    double least = 0;
    std::size_t repetitions = 0;
};

Side medianOf(const QString &what, const Times &times, qsizetype amount = 1);
Side percentile99Of(const QString &what, const Times &times);
Side slowestOf(const QString &what, const Times &times);

enum class Unit {
    Time,
    TimeEach,            // of one unit of the work
    CharactersPerSecond, // where the unit of the work is a character
    Bytes                // of memory, in place of a time
};

struct Row
{
    QString name;
    Side ours;
    std::optional<Side> peers = {};
    // The ratio of our cost to theirs; where there is no peer, our cost itself.
    // Without a bound the row is for information.
    std::optional<double> bound = {};
    Unit unit = Unit::Time;
};

constexpr double milliseconds = 1e6;

void printRow(const Row &row);

// What must be right before anything is measured. `found` helps when it is not.
void check(const QString &what, bool isRight, const QString &found = {});
void checkEqual(const QString &what, qsizetype found, qsizetype expected);
void checkEqual(const QString &what, const QString &found, const QString &expected);

// Runs the checks for --check, the measurements otherwise; returns what main is to
// return, 2 when a check failed.
int runBenchmark(int argc, char **argv, const std::function<void()> &checkWork,
                 const std::function<void()> &measure);

} // namespace ORVTListview::bench
