#include <ORVTListview/RowContent.h>

// The meta-object is built here.
#include "published/moc_RowContent.cpp"
