#pragma once

#include <ORVTListview/IndexedName.h>

#include <QtCore/QString>

namespace ORVTListview {

// Why a point of the program cannot be given this name, as a sentence; empty when it
// can. Whether another point has it is not asked.
QString pointNameFault(const QString &name, IndexedNameCollection &families);

} // namespace ORVTListview
