#pragma once

#include "project/ProjectProgram.h"

#include <QtCore/QObject>
#include <QtCore/QString>

class QWidget;

namespace ORVTListview {

class ProjectDocument;
class ProjectView;

// Adds, renames and removes programs of the project, a step each that can be undone.
class ProgramNaming : public QObject
{
    Q_OBJECT

public:
    // Belongs to the window.
    ProgramNaming(ProjectDocument &document, ProjectView &views, QWidget &window);

    // The user is asked for the name. The file is made when the project is saved.
    void add();

    // Only the list of the project changes, never a file. The user is asked for the name; to
    // begin with it is the one that is wanted, which is taken at once where it can be.
    void rename(qint32 program);
    void renameTo(qint32 program, const QString &wanted);
    void remove(qint32 program);

    // Puts it so many places on in the list, or back.
    void move(qint32 program, int by);

    // For menus. A project has at least one program.
    qint32 current() const;
    bool canRemove() const;
    bool canMove(qint32 program, int by) const;

private:
    QString askName(const QString &title, qint32 program, const QString &name);
    void giveName(const ProjectProgram &program, const QString &name);
    ProgramList list() const;

    ProjectDocument &m_document;
    ProjectView &m_views;
    QWidget &m_window;
};

} // namespace ORVTListview
