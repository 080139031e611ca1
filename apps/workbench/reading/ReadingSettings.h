#pragma once

#include "project/controller/SimulatedController.h"

class QSettings;

namespace ORVTListview {

// How the values are read.
struct ReadingSettings
{
    bool isCyclic = false;
    int seconds = 5; // of the cycle
    SimulatedBehaviour simulated;

    // What is missing or cannot be read is as it was.
    void read(const QSettings &store);
    void write(QSettings &store) const;

    static constexpr int mostSeconds = 3600;
    static constexpr int mostDelay = 60000;

    friend bool operator==(const ReadingSettings &, const ReadingSettings &) = default;
};

} // namespace ORVTListview
