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

    // A point at the end of a table. The user is asked for its name, and for the table where
    // the type is dsCode; the name given is one to begin with.
    void add(LwType type, const QString &name = {});

    // The same without a question; the name must be one that such a point can have.
    void append(LwType type, const QString &name);

    // A point with the cells of another one; the user is asked for its name.
    void duplicate(LwType type, qsizetype row);

    void remove(LwType type, qsizetype row);

Q_SIGNALS:
    void added(ORVTListview::LwType type, qsizetype row);

private:
    void putBehind(LwType type, ProjectRow row);

    ProjectDocument &m_document;
    const ProgramViews &m_programs;
    QWidget &m_window;
};

} // namespace ORVTListview
