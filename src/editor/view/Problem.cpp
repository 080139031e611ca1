#include <ORVTListview/Problem.h>

// The meta-object is built here.
#include "published/moc_Problem.cpp"
