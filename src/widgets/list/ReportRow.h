#pragma once

#include <ORVTListview/RowContent.h>

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
    bool selected = false; // RowSelection's
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
    HandedOut *handle = nullptr;
};

} // namespace ORVTListview
