#include <ORVTListview/MarginMark.h>

// The meta-object is built here.
#include "published/moc_MarginMark.cpp"
