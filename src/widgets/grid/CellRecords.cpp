#include <ORVTListview/CellChange.h>
#include <ORVTListview/CellRefusal.h>

// The meta-objects are built here.
#include "published/moc_CellChange.cpp"
#include "published/moc_CellRefusal.cpp"
