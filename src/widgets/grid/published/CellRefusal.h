#pragma once

#include <ORVTListview/Export.h>

#include <QtCore/QMetaType>
#include <QtCore/QObject>
#include <QtCore/QString>

namespace ORVTListview {

class ListItem;

// A cell that does not take what the user wants in it, and the sentence that says why.
struct CellRefusal
{
    Q_GADGET_EXPORT(ORVT_EXPORT)
    Q_MOC_INCLUDE("ORVTListview/ListItem.h")
    Q_PROPERTY(ORVTListview::ListItem *item MEMBER item)
    Q_PROPERTY(qint16 column MEMBER column)
    Q_PROPERTY(QString reason MEMBER reason)

public:
    ListItem *item = nullptr; // its list's
    qint16 column = 0;        // from 0, the row's own text
    QString reason;           // a sentence, as it was shown

    friend bool operator==(const CellRefusal &, const CellRefusal &) = default;
};

} // namespace ORVTListview
