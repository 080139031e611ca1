#pragma once

#include <QtCore/qglobal.h>

namespace ORVTListview {

// How many points of each kind the host's controller has, kept for the host, once
// per thread. Nothing in the library reads them.
struct PointCounts
{
    qint16 inputs = 0;
    qint16 outputs = 0;
    qint16 constants = 0;
    qint16 variables = 0;
    qint16 controllers = 0;
    qint16 schedules = 0;
    qint16 timers = 0;
    qint16 oss = 0;
    qint16 fpaInputs = 0;
    qint16 fpaOutputs = 0;

    friend bool operator==(const PointCounts &, const PointCounts &) = default;
};

} // namespace ORVTListview
