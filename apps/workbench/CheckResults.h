#pragma once

#include "ResultPlace.h"
#include "project/ProjectProgram.h"
#include "project/analysis/ProgramFault.h"
#include "project/analysis/ProgramListing.h"

#include <QtWidgets/QDockWidget>

class QTreeView;

namespace ORVTListview {

class CheckModel;

// The list under the editors: what the analysis found, the statements of the programs, or
// the uses of a point.
class CheckResults : public QDockWidget
{
    Q_OBJECT

public:
    explicit CheckResults(QWidget *parent);

    // Of several programs, one after the other; what is found tells of which.
    struct Problems
    {
        QList<ProgramProblem> listed;
        qsizetype count = 0; // with those that are not listed
    };
    void showProblems(const Problems &problems);
    void showStatements(const QList<ListedStatement> &statements);
    void showUses(const QList<ShownUse> &uses);

    // Where problems are listed, those of now, with the chosen one and the place of the
    // list as they were.
    void followProblems(const Problems &problems);

    void setPrograms(const ProgramList &programs);
    void moveLines(qint32 program, const ReplacedLines &lines);

    // Hides it; there are no results of the former project any more.
    void clear();

    // After a change of language.
    void retranslate();

protected:
    void showEvent(QShowEvent *event) override;

Q_SIGNALS:
    // A row was clicked, or Enter pressed on it.
    void chosen(const ORVTListview::ResultPlace &place);

private:
    void choose(const QModelIndex &index);
    void showModel();
    void describe();
    void fitColumns();

    CheckModel *m_model;
    QTreeView *m_view;
};

} // namespace ORVTListview
