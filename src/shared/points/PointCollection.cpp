#include <ORVTListview/PointCollection.h>

#include <ORVTListview/Error.h>

namespace ORVTListview {

PointCollection::~PointCollection() = default;

PointList::PointList() = default;
PointList::~PointList() = default;

void PointList::Add(const QString &Name, qint32 Data)
{
    if (m_points.Contains(Name))
        throw Error(InvalidCall, QStringLiteral("PointList.Add"),
                    QStringLiteral("A point named \"%1\" is present already").arg(Name));
    m_points.Add({Name, Data}, Name);
}

void PointList::Remove(const QString &Key)
{
    if (!m_points.Contains(Key))
        throw Error(InvalidCall, QStringLiteral("PointList.Remove"),
                    QStringLiteral("There is no point named \"%1\"").arg(Key));
    m_points.Remove(Key);
}

void PointList::Clear()
{
    m_points.Clear();
}

qint32 PointList::Count() const
{
    return m_points.Count();
}

std::optional<Point> PointList::Item(qint32 Index) const
{
    if (Index < 1 || Index > Count())
        return std::nullopt;
    return m_points.Item(Index);
}

std::optional<Point> PointList::Find(const QString &Key) const
{
    const Point *found = m_points.find(Key);
    return found ? std::optional(*found) : std::nullopt;
}

} // namespace ORVTListview
