#include <ORVTListview/PointCollection.h>

#include <ORVTListview/Error.h>
#include <ORVTListview/KeyedCollection.h>

namespace ORVTListview {

PointCollection::~PointCollection() = default;

struct PointList::Private
{
    KeyedCollection<Point> points; // by name
};

PointList::PointList()
    : d(std::make_unique<Private>())
{
}

PointList::~PointList() = default;

void PointList::Add(const QString &Name, qint32 Data)
{
    if (d->points.Contains(Name))
        throw Error(InvalidCall, QStringLiteral("PointList.Add"),
                    QStringLiteral("A point named \"%1\" is present already").arg(Name));
    d->points.Add({Name, Data}, Name);
}

void PointList::Remove(const QString &Key)
{
    if (!d->points.Contains(Key))
        throw Error(InvalidCall, QStringLiteral("PointList.Remove"),
                    QStringLiteral("There is no point named \"%1\"").arg(Key));
    d->points.Remove(Key);
}

void PointList::Clear()
{
    d->points.Clear();
}

qint32 PointList::Count() const
{
    return d->points.Count();
}

std::optional<Point> PointList::Item(qint32 Index) const
{
    if (Index < 1 || Index > Count())
        return std::nullopt;
    return d->points.Item(Index);
}

std::optional<Point> PointList::Find(const QString &Key) const
{
    const Point *found = d->points.find(Key);
    return found ? std::optional(*found) : std::nullopt;
}

const KeyedCollection<Point> &PointList::contents() const
{
    return d->points;
}

} // namespace ORVTListview

// The meta-object of a point is built here.
#include "published/moc_PointCollection.cpp"
