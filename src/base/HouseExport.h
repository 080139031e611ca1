#pragma once

#include <ORVTListview/CoreExport.h>

// Leaves the core because the components' library and our own programs need it; no
// header of it is published, and it may change with every release.
#define ORVT_HOUSE_EXPORT ORVT_CORE_EXPORT
