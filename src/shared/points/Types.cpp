#include <ORVTListview/Types.h>

// The meta-objects of the namespace and the records are built here.
#include "published/moc_Types.cpp"
