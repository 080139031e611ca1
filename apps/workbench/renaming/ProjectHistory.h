#pragma once

#include "project/ProjectDocument.h"

#include <QtCore/QObject>

namespace ORVTListview {

class ORVListView;
class ProjectView;

// One undo for steps of the project and for what the editor does by itself: a step comes
// when the program is again what the step made of it. Keys and context menus of editor and
// tables end here, too.
class ProjectHistory : public QObject
{
    Q_OBJECT

public:
    ProjectHistory(ProjectDocument &document, const ProjectView &views);

    using Way = ProjectDocument::Way;
    bool canGo(Way way) const;
    void go(Way way);

Q_SIGNALS:
    // What has changed is there, in that row of the table.
    void reached(ORVTListview::LwType type, qsizetype row);

    // What has changed, or what went wrong.
    void told(const QString &text);

private:
    ProjectDocument::Among among() const;
    bool isOfEditor() const;
    void goInEditor(Way way);
    void goInProject(Way way, const ProjectStep &step);
    void showPlace(const ProjectStep &step);
    bool showProgram(const QString &program, Way way);

    ProjectDocument &m_document;
    const ProjectView &m_views;
    ORVListView &m_code;
};

} // namespace ORVTListview
