#pragma once

#include <ORVTListview/ReportList.h>

#include <QtCore/QObject>
#include <QtCore/QStringList>

// Every event of a list but drag and drop, as text, in order. Mouse moves are left
// out unless asked for.
class ListEvents : public QObject
{
public:
    explicit ListEvents(ORVTListview::ReportList *list)
    {
        using namespace ORVTListview;
        using namespace Qt::StringLiterals;
        const auto note = [this](const QString &event) { log.append(event); };
        connect(list, &ReportList::Click, this, [note] { note(u"Click"_s); });
        connect(list, &ReportList::DblClick, this, [note] { note(u"DblClick"_s); });
        connect(list, &ReportList::ColumnClick, this,
                [note](ColumnHeader *header) { note(u"ColumnClick "_s + header->Key()); });
        connect(list, &ReportList::ItemClick, this,
                [note](ListItem *item) { note(u"ItemClick "_s + item->Key()); });
        connect(list, &ReportList::ItemCheck, this, [note](ListItem *item) {
            note(u"ItemCheck %1 %2"_s.arg(item->Key()).arg(item->Checked()));
        });
        connect(list, &ReportList::KeyDown, this, [note](qint16 &code, qint16 shift) {
            note(u"KeyDown %1 %2"_s.arg(code).arg(shift));
        });
        connect(list, &ReportList::KeyPress, this,
                [note](qint16 &code) { note(u"KeyPress %1"_s.arg(code)); });
        connect(list, &ReportList::KeyUp, this, [note](qint16 &code, qint16 shift) {
            note(u"KeyUp %1 %2"_s.arg(code).arg(shift));
        });
        connect(list, &ReportList::BeforeLabelEdit, this,
                [note](qint16 &) { note(u"BeforeLabelEdit"_s); });
        connect(list, &ReportList::AfterLabelEdit, this,
                [note](qint16 &, QString &text) { note(u"AfterLabelEdit "_s + text); });
        const auto mouse = [note](const QString &name) {
            return [note, name](qint16 button, qint16 shift, float, float) {
                note(u"%1 %2 %3"_s.arg(name).arg(button).arg(shift));
            };
        };
        connect(list, &ReportList::MouseDown, this, mouse(u"MouseDown"_s));
        connect(list, &ReportList::MouseUp, this, mouse(u"MouseUp"_s));
    }

    QString take() { return std::exchange(log, {}).join(QStringLiteral(", ")); }

    QStringList log;
};
