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

    // Where problems are listed, those of now, with the chosen row and the place of the
    // list as they were.
    void followProblems(const ProgramAnalysis &analysis);

    // Of the program, behind a line from 1.
    void moveLines(qint32 behind, qint32 by);

    // After a change of language.
    void retranslate();

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
