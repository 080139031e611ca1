#include "editor/MatchModel.h"

#include "base/TextRules.h"

#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

QStringList textsOf(const QAbstractItemModel &entries)
{
    QStringList texts;
    texts.reserve(entries.rowCount());
    for (int i = 0; i < entries.rowCount(); ++i)
        texts.append(entries.index(i, 0).data().toString());
    return texts;
}

} // namespace

MatchModel::MatchModel(const QAbstractItemModel &entries, Telling telling)
    : m_entries(entries)
    , m_telling(std::move(telling))
{
    connect(&entries, &QAbstractItemModel::modelReset, this, &MatchModel::forget);
    connect(&entries, &QAbstractItemModel::rowsInserted, this, &MatchModel::forget);
    connect(&entries, &QAbstractItemModel::rowsRemoved, this, &MatchModel::forget);
    connect(&entries, &QAbstractItemModel::rowsMoved, this, &MatchModel::forget);
    connect(&entries, &QAbstractItemModel::layoutChanged, this, &MatchModel::forget);
    connect(&entries, &QAbstractItemModel::dataChanged, this, &MatchModel::forget);
}

// The rows stand for other entries now: there are none until the next word.
void MatchModel::forget()
{
    m_words.reset();
    if (m_rows.isEmpty())
        return;
    beginResetModel();
    m_rows.clear();
    endResetModel();
}

void MatchModel::show(const QString &word)
{
    if (m_words && word == m_word && !m_rows.isEmpty())
        return;
    if (!m_words)
        m_words.emplace(textsOf(m_entries));
    beginResetModel();
    m_word = word;
    m_rows = m_words->find(word);
    m_isMatched = !m_rows.isEmpty();
    if (!m_isMatched)
        m_rows = m_words->find(QString());
    endResetModel();
}

bool MatchModel::isMore() const
{
    if (!m_isMatched || m_rows.size() != 1)
        return m_isMatched;
    return !isSameWord(index(0).data().toString(), m_word);
}

int MatchModel::entryOf(int row) const
{
    return row >= 0 && row < m_rows.size() ? m_rows[row] : -1;
}

int MatchModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QString MatchModel::textOf(int entry) const
{
    return m_entries.index(entry, 0).data().toString();
}

QVariant MatchModel::data(const QModelIndex &index, int role) const
{
    const int entry = entryOf(index.row());
    switch (role) {
    case KindRole:
        return m_telling.kind(textOf(entry));
    case DescriptionRole:
        return m_telling.description(textOf(entry));
    case Qt::AccessibleTextRole:
        return accessibleText(entry);
    default:
        return m_entries.index(entry, 0).data(role);
    }
}

QString MatchModel::accessibleText(int entry) const
{
    const QString text = textOf(entry);
    QStringList texts{text, m_telling.kind(text), m_telling.description(text)};
    texts.removeAll(QString());
    return texts.join(u", "_s);
}

} // namespace ORVTListview
