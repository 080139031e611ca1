#pragma once

#include <ORVTListview/Types.h>

#include <QtCore/QObject>

#include <optional>

class QPoint;

namespace ORVTListview {

class Node;
class ProjectView;

// What the tree offers for a category: its context menu, and the ways into the view by Enter
// and double click.
class CategoryMenu : public QObject
{
    Q_OBJECT

public:
    // Belongs to the view.
    explicit CategoryMenu(ProjectView &view);

    // Of the program or a table; none for the device and the pages.
    static std::optional<LwType> typeOf(const Node *node);

private:
    void open(const QPoint &place);
    void enter(const Node *node);
    void split(LwType type, Qt::Orientation orientation);

    ProjectView &m_view;
};

} // namespace ORVTListview
