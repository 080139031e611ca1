#include "widgets/grid/GridDeeds.h"

const QList<GridDeed> &gridDeeds()
{
    static const QList<GridDeed> deeds = cellDeeds() + rowDeeds() + viewDeeds();
    return deeds;
}
