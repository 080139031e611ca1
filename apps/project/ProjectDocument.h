#pragma once

#include "project/Project.h"
#include "project/ProjectStep.h"

#include <QtCore/QObject>

#include <functional>
#include <memory>

namespace ORVTListview {

// The one project that is open: what it is, what of it is not saved, and the steps that
// can be taken back. Its programs are in the hands of editors, which it asks for the texts.
class ProjectDocument : public QObject
{
    Q_OBJECT

public:
    // What the editors hold, by the programs' numbers.
    struct Editors
    {
        std::function<QString(qint32 program)> text;
        std::function<qsizetype(qint32 program)> length; // without reading it
    };

    explicit ProjectDocument(Editors editors, QObject *parent = nullptr);
    ~ProjectDocument() override;

    // The former project ends with the return. Null before the first.
    void setProject(std::unique_ptr<Project> project);
    Project *project() const { return m_project.get(); }

    // For components while no project is open. Lives as long as the document.
    Project &none();

    // The editors show the project's programs; as they show them, they count as saved.
    void noteShown();

    // An editor's text is another one.
    void noteProgramChange();

    QString program(qint32 id) const { return m_editors.text(id); }

    // Those of the project, as they are now.
    ProgramTexts programs() const;

    bool isModified() const;
    bool isProgramModified(qint32 id) const;
    bool isAnyProgramModified() const;

    // Carries out the rows and the list of programs of a step; their texts are others already.
    void carryOut(ProjectStep step);

    // A step of the tables alone.
    void carryOut(const RowChanges &rows);

    // Another list of programs, as a step.
    void carryOut(const ProgramList &list);

    // The editors show the programs of the step that was carried out last.
    void noteStepShown();

    // Takes the tables and the list of programs of a project's file over. False, and nothing
    // is changed, for what cannot be read.
    bool restoreTables(const QByteArray &json);

    // The step that would be taken back, or made again, by who is in this program as it is
    // now; null when what its editor does comes before. For who is in a table, 0: one of
    // the tables alone, or one whose programs are all as it knows them.
    enum class Way { Back, Forward };
    const ProjectStep *next(Way way, qint32 program) const;

    // A program that the step would change or remove and that is not as it knows it; 0 for none.
    qint32 obstacle(const ProjectStep &step, Way way) const;

    // The rows and the list of that step.
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
    void programListChanged();
    void changed(); // tables or programs, or what is saved

    // There is a new one, or the editors show it by now.
    void stepCarriedOut();

private:
    void apply(const RowChanges &changes);
    void setPrograms(const ProgramList &list);
    ProgramState state() const;
    bool isAt(qint32 id, const QString &text) const;

    Editors m_editors;
    std::unique_ptr<Project> m_project;
    std::unique_ptr<Project> m_none; // made when it is first needed
    QList<ProjectStep> m_steps;
    qsizetype m_done = 0;
};

} // namespace ORVTListview
