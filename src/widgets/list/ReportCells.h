#pragma once

#include "widgets/grid/CellTable.h"
#include "widgets/list/ReportListParts.h"

namespace ORVTListview {

class ReportHeader;

// The rows and columns of a report list, for its grid.
class ReportCells final : public CellTable
{
public:
    explicit ReportCells(ReportListParts &parts);

    ListItem *itemAt(const QModelIndex &place) const override;
    QModelIndex placeOf(const ListItem *item, int column) const override;
    bool isThere(const ListItem *item, int column) const override;
    void check(const ListItem *item, const QString &member) const override;
    const QString &text(const ListItem &item, int column) const override;
    const QString *textIn(const ListItem *item, int column) const override;
    QString exchangeText(ListItem &item, int column, const QString &text) override;
    void setTexts(const std::function<void()> &change) override;
    int columns() const override;
    QString columnKey(int column) const override;
    QString columnText(int column) const override;
    const ColumnHeader *headerOf(int column) const override;
    int columnOf(const ColumnHeader *header) const override;
    CellState state(const ListItem *item, int column) const override;
    void setState(const ListItem *item, int column, CellState state) override;
    int rows() const override;
    const QString &textOf(int position, int column) const override;
    int positionOf(const ListItem &item) const override;
    QList<ListItem *> insertRows(int position, const QList<ListItem *> &likes) override;
    void removeShown(int place, int count) override;
    void doAtEnd(const QList<ListItem *> &items, const std::function<void()> &act) override;
    void moveRows(const QList<int> &positions, int step) override;
    void setUnseenFollower(const std::function<void()> &follow) override;
    bool isOrdered() const override;
    void show(const Order &positions) override;
    void setOrderer(const std::function<Order()> &order) override;
    void setSortRank(int column, int rank) override;
    void fitColumn(int column) override;
    bool isHeaderHeld() const override;
    bool hasHeaderRoom() const override;
    void setHeaderRoom(int above, int below) override;
    bool keepsColumns() const override;
    void setKeepsColumns(bool on) override;
    int shift(int column) const override;
    QRect keptArea() const override;
    int columnAt(int x) const override;
    void setEdited(int column, bool edited) override;
    bool selectsCells() const override;
    void setSelectsCells(bool on) override;
    void settle() override;

private:
    ReportHeader *header() const;
    ReportRow *rowOf(const ListItem *item) const;

    ReportListParts &m_parts;
};

} // namespace ORVTListview
