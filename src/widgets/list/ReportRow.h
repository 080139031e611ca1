#pragma once

#include <ORVTListview/RowContent.h>

#include <QtCore/QByteArray>
#include <QtCore/Qt>

namespace ORVTListview {

class HandedOut;

// A row as the model keeps it, with the handle that was given out for it, if any.
// Dying, it tells the handle.
struct ReportRow
{
    explicit ReportRow(RowContent held);
    ~ReportRow();
    Q_DISABLE_COPY_MOVE(ReportRow) // handles and keys point to it

    RowContent content;
    int position = 0;      // ask ReportModel::positionOf instead
    int place = 0;         // likewise, placeOf
    bool selected = false; // RowSelection's
    bool isHidden = false; // by the host, while views do not have it
    bool isGoing = false;  // ReportModel's, while it takes rows away
    QByteArray states;     // of cells, by position: a CellState each; may be shorter
    HandedOut *handle = nullptr;
};

struct ReportColumn
{
    ReportColumn(const QString &heldKey, const QString &heldText, Qt::Alignment held);
    ~ReportColumn();
    Q_DISABLE_COPY_MOVE(ReportColumn) // handles point to it

    QString key;
    QString text;
    Qt::Alignment alignment;
    bool isEdited = false; // by users, cell by cell
    int sortRank = 0;      // from 1; below zero for downwards, 0 when rows are not sorted by it
    HandedOut *handle = nullptr;
};

} // namespace ORVTListview
