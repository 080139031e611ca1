#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtGui/QColor>

namespace ORVTListview {

// What a row of a ReportList holds. Fields left out are empty.
struct RowContent
{
    QString key = {};  // unique in its list unless empty
    QString text = {}; // column 0
    QString tag = {};
    QStringList subItems = {};    // from column 1 on; may be shorter than the list is wide
    QStringList subItemTags = {}; // beside subItems, of any length
    QString picture = {};         // a key for the list's picture provider
    QColor foreground = {};       // invalid: the palette's text colour
    bool checked = false;
};

} // namespace ORVTListview
