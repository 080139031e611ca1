#include "CheckModel.h"

#include "CheckTexts.h"

#include <ORVTListview/ImageList.h>

#include <QtGui/QIcon>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

#include <algorithm>

namespace ORVTListview {

CheckModel::CheckModel(const ImageList &pictures, QObject *parent)
    : QAbstractTableModel(parent)
    , m_pictures(pictures)
{
}

void CheckModel::setFindings(const QList<ProgramFinding> &findings)
{
    beginResetModel();
    m_findings = findings;
    m_words.clear();
    m_isListOfWords = false;
    endResetModel();
}

void CheckModel::setWords(const QList<ProgramWord> &words)
{
    beginResetModel();
    m_findings.clear();
    m_words = words;
    m_isListOfWords = true;
    endResetModel();
}

void CheckModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1),
                           {Qt::DisplayRole});
}

CheckModel::Place CheckModel::place(int row) const
{
    if (m_isListOfWords)
        return {m_words[row].word, m_words[row].line};
    if (m_findings.isEmpty())
        return {};
    return {m_findings[row].word, m_findings[row].line};
}

// Without findings there is a row that says so.
int CheckModel::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    const qsizetype rows =
        m_isListOfWords ? m_words.size() : std::max<qsizetype>(m_findings.size(), 1);
    return static_cast<int>(rows);
}

int CheckModel::columnCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    return m_isListOfWords ? ColumnCount : 1;
}

QVariant CheckModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::DisplayRole)
        return text(index);
    if (role == Qt::DecorationRole)
        return picture(index);
    if (role == Qt::TextAlignmentRole && m_isListOfWords && index.column() == Line)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QString CheckModel::text(const QModelIndex &index) const
{
    if (!m_isListOfWords)
        return m_findings.isEmpty() ? tr("Nothing found.") : findingText(m_findings[index.row()]);
    const ProgramWord &word = m_words[index.row()];
    switch (index.column()) {
    case Line:
        return QString::number(word.line);
    case Word:
        return word.word;
    default:
        return classText(word);
    }
}

QVariant CheckModel::picture(const QModelIndex &index) const
{
    if (m_isListOfWords && index.column() == Class) {
        const WordClass wordClass = m_words[index.row()].wordClass;
        return m_pictures.Picture(styleOf(wordClass, RichTextSettings()).ImageIndex);
    }
    if (!m_findings.isEmpty())
        return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
    return {};
}

QVariant CheckModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || !m_isListOfWords)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant((section == Line ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Line:
        return tr("Line");
    case Word:
        return tr("Word");
    default:
        return tr("Class");
    }
}

} // namespace ORVTListview
