#pragma once

#include "base/HouseExport.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <functional>

namespace ORVTListview {

// By which column rows are sorted, and whether the last comes first.
struct SortKey
{
    int column = 0;
    bool isDescending = false;

    friend bool operator==(const SortKey &, const SortKey &) = default;
};

// The text of a cell; row and column count from 0.
using CellTexts = std::function<const QString &(int row, int column)>;

// The given rows in natural order (see NaturalKey) by the keys, the first of which decides
// first. Rows that are alike in all keep the order that they are given in. Empty cells come
// last in either direction.
ORVT_HOUSE_EXPORT QList<int> sortedRows(const QList<int> &rows, const QList<SortKey> &keys,
                                        const CellTexts &texts);

// What a click on a header makes of the keys: the column alone, up; then down; then none. One
// that was behind others begins anew.
// One that adds puts it behind the others, turns it round, and takes it out.
ORVT_HOUSE_EXPORT QList<SortKey> clickedKeys(const QList<SortKey> &keys, int column, bool adds);

} // namespace ORVTListview
