#pragma once

#include <ORVTListview/Error.h>
#include <ORVTListview/IndexedName.h>
#include <ORVTListview/PointCollection.h>

#include <limits>
#include <stdexcept>

// Collections of a host that fails. Where and how is set while they are in use.
namespace Misbehaving {

enum class Throws { Nothing, AnError, AnException, ANumber };
enum class In { Count, Item, Find, Name, NumberFormat, LowerBound, UpperBound };

struct Fault
{
    Throws what = Throws::Nothing;
    In where = In::Item;

    void raiseIn(In place) const
    {
        using namespace ORVTListview;
        if (place != where)
            return;
        if (what == Throws::AnError)
            throw Error(4711, QStringLiteral("Host"), QStringLiteral("The points are away"));
        if (what == Throws::AnException)
            throw std::runtime_error("The points are away");
        if (what == Throws::ANumber)
            throw 42;
    }
};

constexpr Fault noFault;

// Ten points, P1 to P10; the sixth fails.
class Points final : public ORVTListview::PointCollection
{
public:
    explicit Points(qint32 counted = 10)
        : count(counted)
    {
    }

    qint32 Count() const override
    {
        fault.raiseIn(In::Count);
        return count;
    }
    std::optional<ORVTListview::Point> Item(qint32 index) const override
    {
        if (index == 6)
            fault.raiseIn(In::Item);
        if (index > 10)
            return std::nullopt;
        return ORVTListview::Point{QStringLiteral("P%1").arg(index), index};
    }
    std::optional<ORVTListview::Point> Find(const QString &key) const override
    {
        fault.raiseIn(In::Find);
        for (qint32 index = 1; index <= 10; ++index) {
            if (key == QStringLiteral("P%1").arg(index))
                return ORVTListview::Point{key, index};
        }
        return std::nullopt;
    }

    qint32 count;
    Fault fault;
};

// Ten families of one name each, F1_1 to F10_1.
class Families final : public ORVTListview::IndexedNameCollection
{
public:
    explicit Families(qint32 counted = 10)
        : count(counted)
    {
    }

    qint32 Count() const override
    {
        fault.raiseIn(In::Count);
        return count;
    }
    const ORVTListview::IndexedName *Item(qint32 index) const override
    {
        if (index == 6)
            fault.raiseIn(In::Item);
        m_family.index = index;
        return index > 10 ? nullptr : &m_family;
    }

    qint32 count;
    Fault fault;

private:
    class Family final : public ORVTListview::IndexedName
    {
    public:
        explicit Family(const Families &all)
            : m_all(all)
        {
        }

        QString Name() const override
        {
            m_all.fault.raiseIn(In::Name);
            return QStringLiteral("F%1_").arg(index);
        }
        QString NumberFormat() const override
        {
            m_all.fault.raiseIn(In::NumberFormat);
            return QStringLiteral("0");
        }
        qint32 LowerBound() const override
        {
            m_all.fault.raiseIn(In::LowerBound);
            return 1;
        }
        qint32 UpperBound() const override
        {
            m_all.fault.raiseIn(In::UpperBound);
            return 1;
        }

        mutable qint32 index = 0;

    private:
        const Families &m_all;
    };

    Family m_family{*this};
};

constexpr qint32 boast = std::numeric_limits<qint32>::max();
constexpr Throws all[] = {Throws::AnError, Throws::AnException, Throws::ANumber};

} // namespace Misbehaving
