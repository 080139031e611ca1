#pragma once

#include "project/importing/PointImport.h"

#include <QtCore/QAbstractTableModel>

namespace ORVTListview {

class Project;

// The rows of a text as they would come into a table: a tick, what becomes of each, and its
// cells.
class ImportModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    ImportModel(const Project &project, LwType type, QObject *parent);

    // All that can be taken is ticked. Numbers of rows are those of the text, the first of
    // which is firstLine.
    void setRows(const QList<ImportedRow> &rows, qsizetype firstLine);

    const QList<ImportedRow> &rows() const { return m_rows; }
    qsizetype count(ImportedRow::Fate fate) const;
    const QList<bool> &ticks() const { return m_ticks; }
    void setAll(bool ticked);
    qsizetype ticked() const { return m_ticks.count(true); }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    static constexpr int firstCell = 2; // column

Q_SIGNALS:
    void ticksChanged();

private:
    bool canBeTaken(qsizetype row) const;
    QString fate(const ImportedRow &row) const;
    QVariant cell(const ImportedRow &row, qsizetype column, int role) const;

    const Project &m_project;
    LwType m_type;
    QList<ImportedRow> m_rows;
    QList<bool> m_ticks;
    qsizetype m_firstLine = 1;
};

// The titles of projectColumns(type), as tables show them.
QStringList columnTitles(LwType type);

} // namespace ORVTListview
