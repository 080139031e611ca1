#include "shared/points/HostPoints.h"

#include "base/Failure.h"
#include "shared/points/NumberFormat.h"

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 mostNamesOfAFamily = 100'000;

void appendFamily(const IndexedName &family, const QString &source, QStringList &names)
{
    const qint64 lower = family.LowerBound();
    const qint64 upper = family.UpperBound();
    if (upper - lower + 1 > mostNamesOfAFamily)
        throw Error(Overflow, source,
                    u"\"%1\" has more than %2 names"_s.arg(family.Name(),
                                                           QString::number(mostNamesOfAFamily)));
    const QString name = family.Name();
    const QString format = family.NumberFormat();
    for (qint64 i = lower; i <= upper; ++i)
        names.append(name + formatNumber(static_cast<qint32>(i), format));
}

// The host may destroy or change the collection at any of these calls.
template <typename Collection, typename Take>
void readAll(const HostReference<Collection> &collection, const QString &source, Take take)
{
    raisingErrors(source, [&] {
        for (qint64 index = 1; collection && index <= collection->Count(); ++index) {
            if (!collection || !take(collection->Item(static_cast<qint32>(index))))
                return;
        }
    });
}

} // namespace

QList<Point> HostPoints::read(HostReference<PointCollection> points, const QString &source)
{
    QList<Point> all;
    readAll(points, source, [&all](const std::optional<Point> &point) {
        if (point)
            all.append(*point);
        return point.has_value();
    });
    return all;
}

QStringList HostPoints::read(HostReference<IndexedNameCollection> families, const QString &source)
{
    QStringList names;
    readAll(families, source, [&](const IndexedName *family) {
        if (family)
            appendFamily(*family, source, names);
        return family != nullptr;
    });
    return names;
}

std::optional<Point> HostPoints::find(const HostReference<PointCollection> &points,
                                      const QString &name)
{
    try {
        const PointCollection *collection = points.get();
        return collection ? collection->Find(name.toUpper()) : std::nullopt;
    } catch (...) {
        return std::nullopt;
    }
}

const KeyedCollection<Point> *HostPoints::contents(const HostReference<PointCollection> &points)
{
    const auto *list = dynamic_cast<const PointList *>(points.get());
    return list ? &list->contents() : nullptr;
}

} // namespace ORVTListview
