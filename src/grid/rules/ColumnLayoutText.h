#pragma once

#include "base/HouseExport.h"

#include <QtCore/QList>
#include <QtCore/QString>

namespace ORVTListview {

// A column as a user has arranged it. The width is in twips.
struct ColumnPlace
{
    QString key;
    int width = 0;
    bool isHidden = false;

    friend bool operator==(const ColumnPlace &, const ColumnPlace &) = default;
};

// Columns from the first to the last as a text of one line, such as "Label:1440;Mode:-720"
// with the hidden ones below zero; and back. What is no column of such a text is left out.
ORVT_HOUSE_EXPORT QString columnLayoutText(const QList<ColumnPlace> &columns);
ORVT_HOUSE_EXPORT QList<ColumnPlace> columnsOfLayoutText(const QString &text);

} // namespace ORVTListview
