#pragma once

#include "CheckModel.h"

#include <QtWidgets/QDockWidget>

class QTreeView;

namespace ORVTListview {

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

    // The problems of now: listed with the chosen one and the place of the list as they were,
    // unless users have asked for something else that is still true. Uses are, statements are
    // until a program is edited.
    void followProblems(const Problems &problems);
    void noteEdited() { m_isEdited = true; }

    // Uses that are others by now, or none; without any the problems are listed.
    using IsTrue = CheckModel::IsTrue;
    void keepUses(const IsTrue &isTrue);
    void forgetUses();

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
    void listProblems();
    bool isAskedTrue() const;
    void showModel();
    void describe();
    void fitColumns();

    CheckModel *m_model;
    QTreeView *m_view;
    Problems m_problems;     // of now
    bool m_isEdited = false; // a program, since its statements were listed
};

} // namespace ORVTListview
