#include "shared/Types.h"

// The meta-objects of the namespace and the records are built here.
#include "moc_Types.cpp"
