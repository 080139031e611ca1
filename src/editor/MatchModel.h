#pragma once

#include "editor/rules/language/WordMatches.h"

#include <QtCore/QAbstractListModel>
#include <QtCore/QString>

#include <functional>
#include <optional>

namespace ORVTListview {

// The entries of a word list that hold a word, those that begin so first; all when
// none does.
class MatchModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { KindRole = Qt::UserRole, DescriptionRole };

    // What is told of an entry beside its text, as it is shown.
    struct Telling
    {
        std::function<QString(const QString &text)> kind;
        std::function<QString(const QString &text)> description;
    };

    // The first column of the entries has their texts and pictures.
    MatchModel(const QAbstractItemModel &entries, Telling telling);

    void show(const QString &word);
    const QString &word() const { return m_word; }

    // Whether any entry holds the word, and whether one does that is not the word itself.
    bool isMatched() const { return m_isMatched; }
    bool isMore() const;

    // The place among the entries, from 0; -1 for a row that is not there.
    int entryOf(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    void forget();
    QString textOf(int entry) const;
    QString accessibleText(int entry) const;

    const QAbstractItemModel &m_entries;
    const Telling m_telling;
    std::optional<WordMatches> m_words; // none when the entries have changed
    QString m_word;
    QList<int> m_rows;
    bool m_isMatched = false;
};

} // namespace ORVTListview
