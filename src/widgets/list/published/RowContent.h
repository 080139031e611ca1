#pragma once

#include <ORVTListview/Export.h>

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtGui/QColor>

namespace ORVTListview {

// What a row of a ReportList holds. Fields left out are empty.
struct RowContent
{
    Q_GADGET_EXPORT(ORVT_EXPORT)
    Q_PROPERTY(QString key MEMBER key)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString tag MEMBER tag)
    Q_PROPERTY(QStringList subItems MEMBER subItems)
    Q_PROPERTY(QStringList subItemTags MEMBER subItemTags)
    Q_PROPERTY(QString picture MEMBER picture)
    Q_PROPERTY(QColor foreground MEMBER foreground)
    Q_PROPERTY(bool checked MEMBER checked)

public:
    QString key = {};             // unique in its list unless empty
    QString text = {};            // column 0
    QString tag = {};             // ListItem::Tag
    QStringList subItems = {};    // from column 1 on; may be shorter than the list is wide
    QStringList subItemTags = {}; // beside subItems, of any length
    QString picture = {};         // a key for the list's picture provider
    QColor foreground = {};       // invalid: the palette's text colour
    bool checked = false;         // seen where the list shows check boxes
};

} // namespace ORVTListview
