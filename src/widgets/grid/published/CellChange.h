#pragma once

#include <ORVTListview/Export.h>

#include <QtCore/QMetaType>
#include <QtCore/QObject>
#include <QtCore/QString>

namespace ORVTListview {

class ListItem;

// What has become of a cell.
struct CellChange
{
    Q_GADGET_EXPORT(ORVT_EXPORT)
    Q_MOC_INCLUDE("ORVTListview/ListItem.h")
    Q_PROPERTY(ORVTListview::ListItem *item MEMBER item)
    Q_PROPERTY(qint16 column MEMBER column)
    Q_PROPERTY(QString former MEMBER former)
    Q_PROPERTY(QString text MEMBER text)

public:
    ListItem *item = nullptr; // its list's; alive when it is told
    qint16 column = 0;        // from 0, the row's own text
    QString former;           // what stood there
    QString text;             // what stands there now

    friend bool operator==(const CellChange &, const CellChange &) = default;
};

} // namespace ORVTListview
