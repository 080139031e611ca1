#pragma once

#include "ResultPlace.h"
#include "project/analysis/ProgramListing.h"

#include <QtWidgets/QDockWidget>

class QTreeView;

namespace ORVTListview {

class CheckModel;
class ProgramAnalysis;

// The list under the editor: what the analysis found, the statements of the program, or
// the uses of a point.
class CheckResults : public QDockWidget
{
    Q_OBJECT

public:
    explicit CheckResults(QWidget *parent);

    void showProblems(const ProgramAnalysis &analysis);
    void showStatements(const QList<ListedStatement> &statements);
    void showUses(const QList<ShownUse> &uses);

    // Where problems are listed, those of now, with the chosen one and the place of the
    // list as they were.
    void followProblems(const ProgramAnalysis &analysis);

    // Of the program.
    void moveLines(const ReplacedLines &lines);

    // Hides it; there are no results of the former program any more.
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
    void fitColumns();

    CheckModel *m_model;
    QTreeView *m_view;
};

} // namespace ORVTListview
