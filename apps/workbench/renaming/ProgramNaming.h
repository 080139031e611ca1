#pragma once

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

    // Both for the current program. Only the list of the project changes, never a file.
    void rename();
    void remove();

    // A project has at least one.
    bool canRemove() const;

private:
    QString askName(const QString &title, qint32 program, const QString &name);
    qsizetype currentIndex() const;

    ProjectDocument &m_document;
    ProjectView &m_views;
    QWidget &m_window;
};

} // namespace ORVTListview
