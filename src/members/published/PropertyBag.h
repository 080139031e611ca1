#pragma once

#include <ORVTListview/CoreExport.h>

#include <QtCore/QString>
#include <QtCore/QVariant>

namespace ORVTListview {

// Where a host keeps the design-time properties of a component: named values that
// are read with a default and written with one.
class ORVT_CORE_EXPORT PropertyBag
{
public:
    PropertyBag() = default;
    Q_DISABLE_COPY_MOVE(PropertyBag)
    virtual ~PropertyBag();

    // The value kept under the name, or Default when there is none.
    virtual QVariant ReadProperty(const QString &Name, const QVariant &Default) const = 0;

    // Keeps the value. A bag may leave out a value that equals Default.
    virtual void WriteProperty(const QString &Name, const QVariant &Value,
                               const QVariant &Default) = 0;
};

} // namespace ORVTListview
