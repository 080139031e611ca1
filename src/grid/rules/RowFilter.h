#pragma once

#include "base/HouseExport.h"
#include "grid/rules/RowOrder.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <functional>

namespace ORVTListview {

// What a row must have in a column, or in any of them, to be shown.
struct CellFilter
{
    enum Way { Contains, Differs, IsEmpty, IsNotEmpty };

    static constexpr int anyColumn = -1; // for Contains

    int column = anyColumn;
    Way way = Contains;
    QString text = {};

    friend bool operator==(const CellFilter &, const CellFilter &) = default;
};

// What a user asks for in the field of a column, or of all: a part of a text in any letter
// case; in that of a column also "<>On" for what says something else, "=" for what is empty
// and "<>" for what is not. Outer blanks count for nothing; without a text every row is
// shown.
ORVT_HOUSE_EXPORT CellFilter typedFilter(const QString &typed, int column);

// What is seen of a text in a column, where it may be another one: a filter finds both.
using ShownText = std::function<QString(int column, const QString &text)>;

// The rows, of so many, that pass all filters, in their order. Columns are those that
// count for a filter of any.
ORVT_HOUSE_EXPORT QList<int> filteredRows(int rows, const QList<int> &columns,
                                          const QList<CellFilter> &filters, const CellTexts &texts,
                                          const ShownText &shown = {});

} // namespace ORVTListview
