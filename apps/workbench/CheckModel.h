#pragma once

#include "project/ProgramCheck.h"

#include <QtCore/QAbstractTableModel>

namespace ORVTListview {

class ImageList;

// What a check of the program brought to light: findings, a sentence each, or
// words with their lines and classes. Holds a program of any size.
class CheckModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Line, Word, Class, ColumnCount };

    // The pictures are those of the word classes; the list must outlive the model.
    explicit CheckModel(const ImageList &pictures, QObject *parent = nullptr);

    void setFindings(const QList<ProgramFinding> &findings);
    void setWords(const QList<ProgramWord> &words);
    // After a change of language.
    void retranslate();
    bool isListOfWords() const { return m_isListOfWords; }

    // Where a row stands in the program; line 0 for nowhere.
    struct Place
    {
        QString word;
        qint32 line = 0;
    };
    Place place(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    QString text(const QModelIndex &index) const;
    QVariant picture(const QModelIndex &index) const;

    const ImageList &m_pictures;
    QList<ProgramFinding> m_findings;
    QList<ProgramWord> m_words;
    bool m_isListOfWords = false;
};

} // namespace ORVTListview
