#pragma once

#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVTreeview.h>

#include <QtWidgets/QSplitter>

namespace ORVTListview {

class PointCells;
class PointTables;
class Project;
class ProjectDocument;

// A project's tree, and beside it the program or the table of the category that is
// chosen in the tree.
class ProjectView : public QSplitter
{
    Q_OBJECT

public:
    ProjectView(ProjectDocument &document, QWidget *parent);

    ORVListView &list() const { return *m_list; }
    PointTables &tables() const { return *m_tables; }
    PointCells &cells() const { return *m_cells; }

    // Hands the project's names to the components. The project must live until the
    // next call.
    void setProject(Project &project);

    void showType(LwType type);

    // The project's tables have changed.
    void refresh();

    // Puts the point's name into the program at the caret, or shows its row where a
    // table is shown.
    void takePoint(LwType type, const QString &name);

    // After a change of language.
    void retranslate();

Q_SIGNALS:
    void shown(ORVTListview::LwType type);

private:
    void followTree(const Node *node);
    void applyFunctionWords();

    ORVTreeview *m_tree;
    ORVListView *m_list;
    PointTables *m_tables;
    PointCells *m_cells;
    Project *m_project = nullptr;
};

} // namespace ORVTListview
