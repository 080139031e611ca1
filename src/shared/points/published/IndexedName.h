#pragma once

#include <ORVTListview/CoreExport.h>
#include <ORVTListview/HostObject.h>

#include <QtCore/QString>

#include <memory>

namespace ORVTListview {

// A family of numbered names, such as Tmp1 to Tmp16. The bounds are inclusive;
// an upper bound below the lower one means no names. NumberFormat is written
// with digit places: "0" or empty for the plain number, "000" for leading
// zeros, "#" for a number whose zero is left out.
class ORVT_CORE_EXPORT IndexedName : public HostObject
{
public:
    ~IndexedName() override;

    // What stands before the numbers.
    virtual QString Name() const = 0;

    // How the numbers are written.
    virtual QString NumberFormat() const = 0;

    // The first number and the last.
    virtual qint32 LowerBound() const = 0;
    virtual qint32 UpperBound() const = 0;
};

// The host's families. The library keeps a reference, never a copy, and never
// frees it; the host may destroy it at any time.
class ORVT_CORE_EXPORT IndexedNameCollection : public HostObject
{
public:
    ~IndexedNameCollection() override;

    // How many families there are.
    virtual qint32 Count() const = 0;

    // Index runs from 1 to Count(); null outside it. The collection owns the item.
    virtual const IndexedName *Item(qint32 Index) const = 0;
};

// A ready collection that owns its items.
class ORVT_CORE_EXPORT IndexedNameList : public IndexedNameCollection
{
public:
    IndexedNameList();
    ~IndexedNameList() override;

    // Appends a family.
    void Add(const QString &Name, const QString &NumberFormat, qint32 LowerBound,
             qint32 UpperBound);

    qint32 Count() const override;
    const IndexedName *Item(qint32 Index) const override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace ORVTListview
