#pragma once

#include <QtCore/QString>

namespace ORVTListview {

class ListItem;

// What has become of a cell.
struct CellChange
{
    ListItem *item = nullptr; // its list's; alive when it is told
    qint16 column = 0;        // from 0, the row's own text
    QString former;
    QString text;

    friend bool operator==(const CellChange &, const CellChange &) = default;
};

} // namespace ORVTListview
