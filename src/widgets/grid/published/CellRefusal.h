#pragma once

#include <QtCore/QString>

namespace ORVTListview {

class ListItem;

// A cell that does not take what the user wants in it, and the sentence that says why.
struct CellRefusal
{
    ListItem *item = nullptr; // its list's
    qint16 column = 0;        // from 0, the row's own text
    QString reason;

    friend bool operator==(const CellRefusal &, const CellRefusal &) = default;
};

} // namespace ORVTListview
