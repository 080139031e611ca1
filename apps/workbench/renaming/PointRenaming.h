#pragma once

#include <ORVTListview/Types.h>

#include <QtCore/QObject>
#include <QtCore/QString>

class QWidget;

namespace ORVTListview {

class ProgramViews;
class ProjectDocument;
struct ProjectRow;

// Renames, adds and removes points, everywhere in the project and as one step each, after
// the user has seen the places.
class PointRenaming : public QObject
{
    Q_OBJECT

public:
    // Belongs to the window.
    PointRenaming(ProjectDocument &document, const ProgramViews &programs, QWidget &window);

    // The name must be one that the point can have.
    void rename(LwType type, qsizetype row, const QString &name);

    // A point at the end of its table; the user is asked for its name.
    void add(LwType type);

    // The same with the cells of another one.
    void duplicate(LwType type, qsizetype row);
    void remove(LwType type, qsizetype row);

private:
    QString askName(LwType type, const QString &title, const QString &name);
    void append(LwType type, ProjectRow row, const QString &title);

    ProjectDocument &m_document;
    const ProgramViews &m_programs;
    QWidget &m_window;
};

} // namespace ORVTListview
