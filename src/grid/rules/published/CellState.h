#pragma once

#include <QtCore/QMetaType>

namespace ORVTListview {

// What there is to know of the value of a cell, beside its text.
enum class CellState : qint32 {
    Plain,
    Changed, // since somebody has looked, or is not written to the controller yet
    Old,     // the controller has not answered for a while
    Manual,  // set by hand, and not what the program would say
    Alarm
};

} // namespace ORVTListview

Q_DECLARE_METATYPE(ORVTListview::CellState)
