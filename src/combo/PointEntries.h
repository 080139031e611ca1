#pragma once

#include "widgets/combo/ComboEntry.h"
#include <ORVTListview/Types.h>

#include <QtCore/QList>

#include <optional>

namespace ORVTListview {

// What a data combo shows of the points that this thread's components were told
// of. Only variables, constants, inputs and outputs have entries.

bool hasPointEntries(qint32 type);

// An entry for each point of the type, in the collection's order; none when the
// collection is not set or gone. Raises Error when it fails (HostPoints).
QList<ComboEntry> pointEntries(qint32 type);

// The colour of the type that the picture belongs to. None for other pictures, and
// as long as the host has given no colours.
std::optional<Colour> pointColour(qint32 image);

} // namespace ORVTListview
