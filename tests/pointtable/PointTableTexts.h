#pragma once

#include <ORVTListview/ORVTListview.h>

#include <QtCore/QStringList>

// What a point table shows, as texts to be compared.
namespace PointTable {

template <typename Part>
Part &partOf(const ORVTListview::ORVListView &list, const QString &name)
{
    auto *part = list.findChild<Part *>(name);
    if (!part)
        qFatal("there is no %s", qPrintable(name));
    return *part;
}

inline QStringList headerKeys(const ORVTListview::ORVListView &list)
{
    QStringList keys;
    for (int index = 1; index <= list.ColumnHerders()->Count(); ++index)
        keys << list.ColumnHerders()->Item(index)->Key();
    return keys;
}

inline QStringList headerTexts(const ORVTListview::ORVListView &list)
{
    QStringList texts;
    for (int index = 1; index <= list.ColumnHerders()->Count(); ++index)
        texts << list.ColumnHerders()->Item(index)->Text();
    return texts;
}

// Key, text and sub-items of each row.
inline QStringList rowsOf(const ORVTListview::ORVListView &list)
{
    QStringList rows;
    for (int index = 1; index <= list.ListItems()->Count(); ++index) {
        const ORVTListview::ListItem &item = *list.ListItems()->Item(index);
        QString row = item.Key() + u':' + item.Text();
        for (int column = 1; column < list.ColumnHerders()->Count(); ++column)
            row += u'|' + item.SubItem(column);
        rows << row;
    }
    return rows;
}

} // namespace PointTable
