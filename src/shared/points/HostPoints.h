#pragma once

#include "base/HouseExport.h"
#include <ORVTListview/IndexedName.h>
#include <ORVTListview/KeyedCollection.h>
#include <ORVTListview/PointCollection.h>

#include <QtCore/QList>

namespace ORVTListview {

// The one reader of the host's collections, which may fail, count wrongly, and change
// or go while they are read. Reading ends at Count or at the first index at which there
// is nothing. What a collection throws leaves as Error, whatever it was.
// Why it is so: docs/decisions/collections.md.
class ORVT_HOUSE_EXPORT HostPoints
{
public:
    // None when the collection is not set or gone.
    static QList<Point> read(HostReference<PointCollection> points, const QString &source);

    // Every name of every family. Raises Error (Overflow) when a family has more than
    // 100,000 names.
    static QStringList read(HostReference<IndexedNameCollection> families, const QString &source);

    // The point of that name, in any letter case. A failure is "not found".
    static std::optional<Point> find(const HostReference<PointCollection> &points,
                                     const QString &name);

    // What a ready collection holds, to tell later whether it has changed; null for a
    // host's own, which does not tell.
    static const KeyedCollection<Point> *contents(const HostReference<PointCollection> &points);
};

} // namespace ORVTListview
