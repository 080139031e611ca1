#pragma once

#include <QtCore/QAbstractListModel>
#include <QtCore/QList>

namespace ORVTListview {

class ComboEntries;

// Those entries of a combo whose text holds what was typed, letter case ignored,
// in their order. Positions count matches from 0, rows count entries from 0; -1
// stands for none.
class ComboMatches : public QAbstractListModel
{
    Q_OBJECT

public:
    // All entries match at first, and again whenever they are replaced.
    explicit ComboMatches(const ComboEntries &entries, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    // An empty text matches every entry.
    void setFilter(const QString &filter);
    QString filter() const { return m_filter; }

    int size() const { return static_cast<int>(m_rows.size()); }
    int rowAt(int position) const { return m_rows.at(position); } // checked by the caller
    int positionOf(int row) const;

    // The one to offer first: that reads as the filter, else that begins with it,
    // else the first of all. None for an empty filter.
    int bestPosition() const;

private:
    void matchAll();

    const ComboEntries &m_entries;
    QString m_filter;
    QList<int> m_rows; // ascending
};

} // namespace ORVTListview
