#pragma once

#include "project/Project.h"

#include <QtCore/QObject>
#include <QtCore/QString>

class QWidget;

namespace ORVTListview {

class Error;
class ProjectDocument;

// Saves the project that is open, and asks where that is not the user's own decision. The
// window shows by its modified mark whether there is something to save.
class ProjectSaving : public QObject
{
    Q_OBJECT

public:
    // Belongs to the window.
    ProjectSaving(ProjectDocument &document, QWidget &window);

    // Puts what has changed into its files and returns true, or tells the user why not and
    // offers another place. When somebody else has changed a file meanwhile, the user is
    // asked.
    bool save();

    // Asks for the place.
    bool saveElsewhere();

    // Whether the project may go: when it has unsaved changes, the user is asked.
    bool mayLeave();

Q_SIGNALS:
    // Several files are about to be written. Until settled(), those on the disk may not belong
    // together.
    void writingSeveral();

    // Nothing is left to save, or the user does not want it.
    void settled();

    // The project is at another place now.
    void movedElsewhere();

    // What else there is to be known of it.
    void told(const QString &text);

private:
    struct Attempt
    {
        QString place; // empty: where the project is
        Project::Theirs theirs = Project::Theirs::Kept;
        Project::Encoding encoding = Project::Encoding::ItsOwn;
    };
    bool carryOut(const Attempt &attempt);
    bool changesSeveralFiles() const;
    bool mayOverwrite(const QString &fileName);
    bool offerWayOut(const Error &error, Attempt attempt);
    QStringList changedPrograms() const;
    QString questionOnLeaving() const;

    ProjectDocument &m_document;
    QWidget &m_window;
};

} // namespace ORVTListview
