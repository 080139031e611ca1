#pragma once

#include "project/Project.h"

#include <QtCore/QObject>

#include <functional>
#include <memory>

namespace ORVTListview {

// What belongs together: rows of tables, and what the program is before and after.
struct ProjectStep
{
    RowChanges rows;
    QString programBefore; // both the same for a step of the tables alone
    QString programAfter;

    bool isOfTablesAlone() const { return programBefore == programAfter; }
};

// The one project that is open: what it is, what of it is not saved, and the steps that
// can be taken back. Its program is in an editor's hands, which it asks for the text.
class ProjectDocument : public QObject
{
    Q_OBJECT

public:
    // What an editor holds.
    struct Editor
    {
        std::function<QString()> program;
        std::function<qsizetype()> length; // of program, without reading it
    };

    explicit ProjectDocument(Editor editor, QObject *parent = nullptr);
    ~ProjectDocument() override;

    // The former project ends with the return. Null before the first.
    void setProject(std::unique_ptr<Project> project);
    Project *project() const { return m_project.get(); }

    // For components while no project is open. Lives as long as the document.
    Project &none();

    // The editor shows the project's program; as it shows it, it counts as saved.
    void noteShown();

    // The editor's text is another one.
    void noteProgramChange();

    QString program() const { return m_editor.program(); }
    bool isModified() const;
    bool isProgramModified() const;

    // Carries out the rows of a step; the program has changed already.
    void carryOut(ProjectStep step);

    // A step of the tables alone.
    void carryOut(const RowChanges &rows);

    // The editor shows the program of the step that was carried out last.
    void noteStepShown();

    // Takes the tables of a project's file over. False, and nothing is changed, for what
    // cannot be read.
    bool restoreTables(const QByteArray &json);

    // The step that would be taken back, or made again, from the program of now; null
    // when what the editor does comes before it. Of the tables alone: whatever the
    // program is.
    enum class Way { Back, Forward };
    enum class Among { All, TablesAlone };
    const ProjectStep *next(Way way, Among among) const;

    // The rows of that step.
    void go(Way way);

    // Both raise Error. What was saved counts as unchanged. No step goes back behind tables
    // that were taken over from somebody else.
    Project::Saved save(Project::Theirs theirs, Project::Encoding encoding);

    // Puts project and program beside each other at another place and goes on there.
    Project::Saved saveAt(const QString &fileName, Project::Encoding encoding);

Q_SIGNALS:
    // There is another one, or none.
    void projectReplaced();

    void tablesChanged();
    void changed(); // tables or program, or what is saved

private:
    void apply(const RowChanges &changes);

    Editor m_editor;
    std::unique_ptr<Project> m_project;
    std::unique_ptr<Project> m_none; // made when it is first needed
    QList<ProjectStep> m_steps;
    qsizetype m_done = 0;
};

} // namespace ORVTListview
