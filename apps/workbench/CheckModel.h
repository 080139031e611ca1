#pragma once

#include "ResultPlace.h"
#include "project/ProjectProgram.h"
#include "project/analysis/ProgramAnalysis.h"
#include "project/analysis/ProgramListing.h"

#include <QtCore/QAbstractTableModel>

#include <functional>

namespace ORVTListview {

// What a check of the program brought to light: problems, a sentence each, statements
// with their lines, or the uses of a point. Holds a program of any size.
class CheckModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum class Content { Problems, Statements, Uses };

    using QAbstractTableModel::QAbstractTableModel;

    // Of so many problems in all. The rows of those that are shown already stay.
    void setProblems(const QList<ProgramProblem> &problems, qsizetype count);
    void setStatements(const QList<ListedStatement> &statements);
    void setUses(const QList<ShownUse> &uses);

    // Each use is asked for, which may be written anew; those that are not true go.
    using IsTrue = std::function<bool(ShownUse &use)>;
    void keepUses(const IsTrue &isTrue);

    // After a change of language.
    void retranslate();

    Content content() const { return m_content; }
    const QList<ListedStatement> &statements() const { return m_statements; }

    // Which program a row is of is said where there are several.
    void setPrograms(const ProgramList &programs);

    void moveLines(qint32 program, const ReplacedLines &lines);

    ResultPlace place(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    void setContent(Content content);
    bool listsAll(const QList<ProgramProblem> &problems, qsizetype count) const;
    void replaceProblems(const QList<ProgramProblem> &problems);
    QString text(const QModelIndex &index) const;
    QString nameOf(qint32 program) const;
    QString lineText(qint32 program, qint32 line) const;
    QString problemRow(int row) const;
    QString useText(const ShownUse &use, int column) const;
    QVariant picture(int row) const;
    QString severity(int row) const;
    QStringList titles() const;

    Content m_content = Content::Problems;
    ProgramList m_programs;
    QList<ProgramProblem> m_problems;
    qsizetype m_problemCount = 0;
    QList<ListedStatement> m_statements;
    QList<ShownUse> m_uses;
};

} // namespace ORVTListview
