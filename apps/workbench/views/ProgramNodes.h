#pragma once

#include "project/ProjectProgram.h"

#include <QtCore/QObject>

namespace ORVTListview {

class Node;
class ORVTreeview;

// The programs of a project below their category in its tree, where there are several; one is
// the category itself. Users rename them there as they do the other nodes.
class ProgramNodes : public QObject
{
    Q_OBJECT

public:
    // Belongs to the tree.
    explicit ProgramNodes(ORVTreeview &tree);

    // The programs that there are now, in their order.
    void setList(const ProgramList &list);

    // 0 for a node that is no program's.
    static qint32 programOf(const Node *node);

    // Null where there is only one, or the host of the tree has taken it away.
    Node *nodeOf(qint32 program) const;

Q_SIGNALS:
    // A name was entered, which may be one that no program can have.
    void renameWanted(qint32 program, const QString &name);

    // By keys: so many places on, or back; and out of the project.
    void moveWanted(qint32 program, int by);
    void removeWanted(qint32 program);

private:
    void add(const ProjectProgram &program);
    void takeKey(qint16 &key, qint16 shift);
    void takeName(qint16 &cancel, const QString &name);
    QString category() const;

    ORVTreeview &m_tree;
    ProgramList m_shown;
    qint32 m_named = 0; // whose label is edited
};

} // namespace ORVTListview
