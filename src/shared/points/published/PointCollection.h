#pragma once

#include <ORVTListview/CoreExport.h>
#include <ORVTListview/HostObject.h>

#include <QtCore/QObject>
#include <QtCore/QString>

#include <memory>
#include <optional>

namespace ORVTListview {

template <typename T>
class KeyedCollection;

// A point of the controller: its name as it is to be shown, and a value of the
// host's own.
struct Point
{
    Q_GADGET_EXPORT(ORVT_CORE_EXPORT)
    Q_PROPERTY(QString Name MEMBER Name)
    Q_PROPERTY(qint32 Data MEMBER Data)

public:
    QString Name;    // as it is to be shown
    qint32 Data = 0; // the host's own; ORVDataCombo::ItemData gives it

    friend bool operator==(const Point &, const Point &) = default;
};

// The host's points of one kind. The library keeps a reference, never a copy,
// and never frees it. The host may destroy a collection at any time: from then
// on the library sees it as not set. All calls come from the user-interface
// thread.
class ORVT_CORE_EXPORT PointCollection : public HostObject
{
public:
    ~PointCollection() override;

    // How many points there are.
    virtual qint32 Count() const = 0;

    // Index runs from 1 to Count(); none outside it.
    virtual std::optional<Point> Item(qint32 Index) const = 0;

    // Key is the point's name in upper case (QString::toUpper); none if absent.
    virtual std::optional<Point> Find(const QString &Key) const = 0;
};

// A ready collection: keeps the order of adding, finds by name without regard to
// case. Editors follow its changes by themselves.
class ORVT_CORE_EXPORT PointList : public PointCollection
{
public:
    PointList();
    ~PointList() override;

    // Raises Error (InvalidCall) when a point of that name, in any letter case,
    // is present already.
    void Add(const QString &Name, qint32 Data = 0);

    // Raises Error (InvalidCall) when there is no such point. Key is a name in
    // any letter case.
    void Remove(const QString &Key);

    // Removes all points.
    void Clear();

    qint32 Count() const override;
    std::optional<Point> Item(qint32 Index) const override;
    std::optional<Point> Find(const QString &Key) const override;

private:
    friend class HostPoints;
    const KeyedCollection<Point> &contents() const;

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace ORVTListview
