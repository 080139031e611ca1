#pragma once

#include "widgets/grid/CellTable.h"
#include "widgets/list/ReportListParts.h"

namespace ORVTListview {

// The rows and columns of a report list, for its grid.
class ReportCells final : public CellTable
{
public:
    explicit ReportCells(ReportListParts &parts);

    ListItem *itemAt(const QModelIndex &place) const override;
    QModelIndex placeOf(const ListItem *item, int column) const override;
    void check(const ListItem *item, const QString &member) const override;
    QString text(const ListItem &item, int column) const override;
    void setText(ListItem &item, int column, const QString &text) override;
    int columns() const override;
    QString columnKey(int column) const override;
    QString columnText(int column) const override;
    void setEdited(int column, bool edited) override;
    bool selectsCells() const override;
    void setSelectsCells(bool on) override;
    void settle() override;

private:
    ReportListParts &m_parts;
};

} // namespace ORVTListview
