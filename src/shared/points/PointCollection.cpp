#include <ORVTListview/PointCollection.h>

#include <ORVTListview/Error.h>

namespace ORVTListview {

PointCollection::~PointCollection() = default;

PointList::PointList() = default;
PointList::~PointList() = default;

void PointList::Add(const QString &Name, qint32 Data)
{
    const QString key = Name.toUpper();
    if (m_positions.contains(key))
        throw Error(InvalidCall, QStringLiteral("PointList.Add"),
                    QStringLiteral("A point named \"%1\" is present already").arg(Name));
    m_positions.insert(key, m_points.size());
    m_points.append({Name, Data});
}

void PointList::Remove(const QString &Key)
{
    const auto found = m_positions.constFind(Key.toUpper());
    if (found == m_positions.cend())
        throw Error(InvalidCall, QStringLiteral("PointList.Remove"),
                    QStringLiteral("There is no point named \"%1\"").arg(Key));
    const qsizetype removed = *found;
    m_positions.erase(found);
    m_points.removeAt(removed);
    for (qsizetype i = removed; i < m_points.size(); ++i)
        m_positions[m_points.at(i).Name.toUpper()] = i;
}

void PointList::Clear()
{
    m_points.clear();
    m_positions.clear();
}

qint32 PointList::Count() const
{
    return static_cast<qint32>(m_points.size());
}

std::optional<Point> PointList::Item(qint32 Index) const
{
    if (Index < 1 || Index > m_points.size())
        return std::nullopt;
    return m_points.at(Index - 1);
}

std::optional<Point> PointList::Find(const QString &Key) const
{
    const auto found = m_positions.constFind(Key.toUpper());
    if (found == m_positions.cend())
        return std::nullopt;
    return m_points.at(*found);
}

} // namespace ORVTListview
