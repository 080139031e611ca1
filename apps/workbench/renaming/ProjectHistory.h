#pragma once

#include "project/ProjectDocument.h"

#include <QtCore/QObject>

namespace ORVTListview {

class ORVListView;
class ProjectView;

// One undo for steps of the project and for what the editor does by itself: a step comes
// when the program is again what the step made of it.
class ProjectHistory : public QObject
{
    Q_OBJECT

public:
    ProjectHistory(ProjectDocument &document, const ProjectView &views);

    bool canUndo() const;
    bool canRedo() const;
    void undo();
    void redo();

Q_SIGNALS:
    // Something went wrong, with the reason.
    void told(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    ProjectDocument::Among among() const;
    bool isOfEditor() const;
    bool showProgram(const QString &program, bool isUndo);

    ProjectDocument &m_document;
    const ProjectView &m_views;
    ORVListView &m_code;
};

} // namespace ORVTListview
