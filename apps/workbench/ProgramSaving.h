#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

class QWidget;

namespace ORVTListview {

class ORVListView;
class Project;

// Sees to it that nobody loses what they typed. The window shows by its modified
// mark whether there is something to save.
class ProgramSaving : public QObject
{
    Q_OBJECT

public:
    // Belongs to the window.
    ProgramSaving(ORVListView &code, QWidget &window);

    // The editor now shows the project's program; the project must live until the
    // next call. Null for none.
    void setProject(Project *project);

    // Puts the program into its file and returns true, or tells the user why not.
    // When somebody else has changed the file meanwhile, the user is asked.
    bool save();

    // There are new names of points to save.
    void noteNewNames();

    // Whether the program may go: when it has unsaved changes, the user is asked.
    bool mayLeave();

private:
    bool isChanged() const;
    bool mayOverwrite();
    QString fileName() const;

    ORVListView &m_code;
    QWidget &m_window;
    Project *m_project = nullptr;
    QString m_savedText; // as the editor showed it
};

} // namespace ORVTListview
