#pragma once

#include <QtCore/QObject>

namespace ORVTListview {

class MainWindow;
class ProjectDocument;
class ProjectSaving;
class RecentProjects;

// How the user's project comes and goes: new, opened, opened again, closed. What is shown and
// not saved is asked for before it goes.
class ProjectLife : public QObject
{
    Q_OBJECT

public:
    struct Parts
    {
        MainWindow &window;
        const ProjectDocument &document;
        ProjectSaving &saving;
        RecentProjects &recent;
    };

    // Belongs to the window.
    explicit ProjectLife(const Parts &parts);

    // Asks for name and place.
    void create();

    // Asks for the file.
    void choose();

    // Where the file is gone the user is asked whether it leaves the list.
    void openRecent(const QString &fileName);
    void close();

private:
    void open(const QString &fileName);
    QString folder() const;

    Parts m_parts;
};

} // namespace ORVTListview
