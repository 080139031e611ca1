#pragma once

#include "base/TextHash.h"
#include "widgets/combo/ComboEntry.h"

#include <QtCore/QAbstractListModel>
#include <QtCore/QList>

namespace ORVTListview {

class ImageList;

// The entries of an ImageCombo as a model. Rows count from 0, -1 stands for none.
class ComboEntries : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    // Replaces all entries as one change.
    void setEntries(QList<ComboEntry> entries);

    int size() const { return static_cast<int>(m_entries.size()); }

    // The caller has checked the row.
    const ComboEntry &at(int row) const { return m_entries.at(row); }

    int rowOfKey(const QString &key) const { return m_rows.value(key, -1); }

    // The first entry that reads so; if none does, the first that does without
    // regard to letter case.
    int rowOfText(const QString &text) const;

    // The text of the most characters.
    QString longestText() const;

    // Kept by reference; null for no pictures.
    void setImages(const ImageList *images);
    const ImageList *images() const { return m_images; }

private:
    QList<ComboEntry> m_entries;
    TextHash<int> m_rows; // by key
    const ImageList *m_images = nullptr;
};

} // namespace ORVTListview
