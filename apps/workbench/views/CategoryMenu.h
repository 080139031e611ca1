#pragma once

#include <ORVTListview/Types.h>

#include <QtCore/QObject>

#include <optional>

class QMenu;
class QPoint;

namespace ORVTListview {

class Node;
class ProgramNaming;
class ProjectView;

// What the tree offers for a category, or a program below it: its context menu, and the ways
// into the view by Enter and double click.
class CategoryMenu : public QObject
{
    Q_OBJECT

public:
    // Belongs to the view.
    CategoryMenu(ProjectView &view, ProgramNaming &naming);

    // Of the program or a table; none for the device and the pages.
    static std::optional<LwType> typeOf(const Node *node);

private:
    // What a node leads to: a table, the program used last, or that program.
    struct Target
    {
        LwType type = dsCode;
        qint32 program = 0;
    };
    static std::optional<Target> targetOf(const Node *node);

    void open(const QPoint &place);
    void addViews(QMenu &menu, const Target &target);
    void addPrograms(QMenu &menu, qint32 program);
    void enter(const Target &target);
    void split(const Target &target, Qt::Orientation orientation);

    ProjectView &m_view;
    ProgramNaming &m_naming;
};

} // namespace ORVTListview
