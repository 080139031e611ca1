#include <ORVTListview/CellRule.h>

// The meta-object is built here.
#include "published/moc_CellRule.cpp"
