#pragma once

#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVTreeview.h>

#include <QtWidgets/QSplitter>

namespace ORVTListview {

class PointTables;
class ProgramNodes;
class ProgramViews;
class Project;
class ProjectDocument;
class TableViews;
class ViewDock;
class Workplace;

// A project's tree, and beside it the programs and the tables that were opened in the tree.
// A table that was only looked at from the tree, without going into it, makes way for the
// next one.
class ProjectView : public QSplitter
{
    Q_OBJECT

public:
    ProjectView(ProjectDocument &document, QWidget *parent);

    // The editor of the program that is used, or was used last.
    ORVListView &program() const;
    ProgramViews &programs() const { return *m_programs; }
    ProgramNodes &programNodes() const { return *m_nodes; }

    // The program or table that is used, or was used last: what commands are for.
    ORVListView &current() const;

    // Of the current table; null where that is none.
    PointTables *currentTable() const;

    ORVTreeview &tree() const { return *m_tree; }
    Workplace &workplace() const { return *m_workplace; }
    TableViews &tables() const { return *m_tables; }

    // Hands the project's names to the components. The project must live until the
    // next call.
    void setProject(Project &project);

    // Shows that program, or the table of a type, which is the current one then; the second
    // one takes the focus there, too.
    void showType(LwType type);
    void enterType(LwType type);
    void enterProgram(qint32 program);

    // There are other programs, or they have other names.
    void takePrograms();

    // The project's tables have changed.
    void refresh();

    // Puts the point's name into the program at the caret, or shows its row where a
    // table is the current one.
    void takePoint(LwType type, const QString &name);

    // After a change of language.
    void retranslate();

Q_SIGNALS:
    // Another one is current.
    void shown(ORVTListview::LwType type);

    // The points of a table are to be drawn.
    void trendWanted(ORVTListview::LwType type);

private:
    int treeWidth() const;
    ViewDock &dockOf(LwType type) const;
    void followTree(const Node *node);
    void look(ViewDock &dock);
    Node *currentNode() const;
    void followViews();
    void applyFunctionWords();
    void refillWords();
    void nameParts();

    ORVTreeview *m_tree;
    ProgramNodes *m_nodes;
    Workplace *m_workplace;
    ProgramViews *m_programs;
    TableViews *m_tables;
    ViewDock *m_looked = nullptr; // only looked at from the tree
    Project *m_project = nullptr;
};

} // namespace ORVTListview
