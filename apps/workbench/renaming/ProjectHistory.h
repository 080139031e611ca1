#pragma once

#include "project/ProjectDocument.h"

#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtCore/QStringList>

namespace ORVTListview {

class ORVListView;
class ProjectView;

// One undo for steps of the project and for what the editors do by themselves: a step comes
// when undo has led the program that one is in back to what the step made of it. Keys and
// context menus of editor and tables end here, too.
class ProjectHistory : public QObject
{
    Q_OBJECT

public:
    // Belongs to the views.
    ProjectHistory(ProjectDocument &document, ProjectView &views);

    using Way = ProjectDocument::Way;
    bool canGo(Way way) const;
    void go(Way way);

Q_SIGNALS:
    // What has changed is there, in that row of the table.
    void reached(ORVTListview::LwType type, qsizetype row);

    // What has changed by a step back or forward.
    void went(const QString &text);

    // Something else was done since, or is about to be.
    void wentOn();

    // What went wrong.
    void told(const QString &text);

private:
    void follow(qint32 program, ORVListView &view);
    const ProjectStep *next(Way way) const;
    qint32 here() const;
    ORVListView &code() const;
    bool isOfEditor() const;
    void goInEditor(Way way);
    void goInProject(Way way, const ProjectStep &step);
    void showPlace(const ProjectStep &step);
    bool showPrograms(const ProjectStep &step, Way way);
    bool showProgram(qint32 id, const QString &program, Way way);
    QString nameOf(qint32 program) const;
    QString placesOf(const ProjectStep &step) const;
    QStringList programsOf(const ProjectStep &step) const;

    ProjectDocument &m_document;
    ProjectView &m_views;
    QSet<qint32> m_typedIn; // programs, since the latest step or the latest undo in them
    bool m_isGoing = false;
};

} // namespace ORVTListview
