#pragma once

#include "project/ProjectChange.h"
#include "project/ProjectPrograms.h"
#include "project/ProjectReader.h"
#include "project/TableSaving.h"

#include <ORVTListview/IndexedName.h>
#include <ORVTListview/PointCollection.h>

#include <map>
#include <memory>

namespace ORVTListview {

// A controller project read from a file. It owns the collections that it hands
// out; they live as long as it does.
class Project
{
public:
    // Raises Error with a ProjectErrorNumber; then there is no project at all.
    explicit Project(const QString &fileName);

    // The project as it was before it was saved last, where its file cannot be read: it is
    // to be saved into that file. Raises Error as well.
    static std::unique_ptr<Project> versionBefore(const QString &fileName);

    // One without points and files, for components while no project is open.
    static std::unique_ptr<Project> none();
    Q_DISABLE_COPY_MOVE(Project) // components keep its collections by address

    QString fileName() const { return m_fileName; }
    QString name() const { return m_contents.name; }
    const ControllerInfo &controller() const { return m_contents.controller; }
    const RichTextSettings &editor() const { return m_contents.editor; }

    // There is always one.
    const ProgramList &programs() const { return m_programs.list(); }
    qint32 firstProgram() const { return m_programs.first(); }

    // Programs that leave the list can come back into it; their files stay in any case. The
    // file of the list is written by save().
    void setPrograms(const ProgramList &programs) { m_programs.setList(programs); }

    // A program without a text, whose file, beside the project's, nobody has; save() writes
    // it once it is in the list.
    qint32 makeProgram(const QString &name);

    // The list as the text of a project's file tells it: programs are known by their files.
    ProgramList listOf(const QList<ProgramEntry> &entries) { return m_programs.listOf(entries); }

    // Why a program cannot have this name, as a sentence; empty when it can. 0 for a new one.
    QString programNameFault(qint32 program, const QString &name) const;

    // A program as its file has it, lines separated by CR LF; without a number the first.
    QString program(qint32 id) const { return m_programs.part(id).text.text(); }
    QString program() const { return program(firstProgram()); }
    QString programFile(qint32 id) const;
    QString programFile() const { return programFile(firstProgram()); }

    // What an editor makes of program() when it shows it; the same at first, nothing for one
    // taken over from somebody else. Saving takes a line that is still so from the file.
    void setShownProgram(qint32 id, const QString &shown) { m_programs.part(id).shown = shown; }
    const QString &shownProgram(qint32 id) const { return m_programs.part(id).shown; }

    // The encoding that a program's file has; or UTF-8, which has all characters, where that
    // lacks one.
    enum class Encoding { ItsOwn, Utf8 };

    // Puts the text into the first program's file. Raises Error and leaves file and program()
    // as they were.
    void saveProgram(const QString &program);

    // Whether somebody else has changed a program's file, or the project's, since it was
    // read or saved here. A file that is gone counts as unchanged.
    bool isProgramChangedOutside(qint32 id) const;
    bool isProgramChangedOutside() const { return isProgramChangedOutside(firstProgram()); }
    bool isChangedOutside() const;

    // Why a point cannot be given this name, as a sentence; empty when it can. Not a name
    // (pointNameFault), no names in such a table, or another point has it: one of the type,
    // for a word of the program one of any type whose points are such words. A row behind
    // the last stands for a new point.
    QString nameFault(LwType type, qsizetype row, const QString &name) const;

    // The row with another name. Raises Error (NameNotUsable) with that sentence.
    ProjectRow renamed(LwType type, qsizetype row, const QString &name) const;

    // Gives a point another name, here and in its collection; saveTables() takes it into
    // the file. Raises Error (NameNotUsable) and changes nothing.
    void rename(LwType type, qsizetype row, const QString &name);

    // Carries changes out one after the other, here and in the collections.
    void apply(const RowChanges &changes);

    // Whether changes of the tables, or of the list of programs, wait for being saved.
    bool hasChangedTables() const;

    // These as they are now, for being put into the project's file.
    using Theirs = TableSaving::Theirs;
    TableSaving tableSaving() const;

    // The project's file as it was read or saved.
    const QByteArray &json() const { return m_contents.json; }

    // Puts the changed tables into the project's file. Raises Error and leaves the file when
    // it cannot be written or would be none that can be read. Tables, and the list of programs,
    // that somebody else has changed, and nobody here, are taken over; true if any is.
    bool saveTables(Theirs theirs = Theirs::Kept);

    // What came of saving beside what was asked for.
    struct Saved
    {
        bool takesOver = false; // what somebody else has changed, tables or the list of programs
        QString notKept;        // why a version before could not be kept; empty when it could
    };

    // The project's file and those of all programs, each of them only if it has changed here
    // or is gone. The version that a file had before stays beside it, with a "~" behind its
    // name, if that is possible. Raises Error; what was saved by then is. The texts are those
    // of all programs.
    Saved save(const ProgramTexts &texts, Theirs theirs, Encoding encoding = Encoding::ItsOwn);

    // All at another place, the programs beside the project's file; the project goes on
    // there. A program of another project is left alone: this one's has another name then.
    // Raises Error and leaves what is there.
    Saved saveAt(const QString &fileName, const ProgramTexts &texts,
                 Encoding encoding = Encoding::ItsOwn);

    // Keeps what the controller answered for a cell of projectColumns(type). Not saved.
    void setReading(LwType type, qsizetype row, qsizetype column, const QVariant &cell);

    // The rows of a type's table in the order of the file; none for other types.
    const QList<ProjectRow> &rows(LwType type) const;
    const ProjectTables &tables() const { return m_contents.rows; }

    // The names of a type's points: dsVariable, dsConst, dsInput, dsOutput and
    // dsNvi have a collection, perhaps an empty one; null for any other type.
    PointList *points(LwType type);
    IndexedNameList *indexedNames() { return &m_indexedNames; }
    const QList<ProjectFamily> &families() const { return m_contents.indexedNames; }

private:
    Project(const QString &fileName, ProjectContents contents);

    void takeOver(const ProjectTables &theirs);
    QByteArray jsonForSaving() const;
    void saveProjectFile(Theirs theirs, Saved &saved);
    QByteArray programBytes(qint32 id, const QString &program, Encoding encoding) const;
    QMap<qint32, QByteArray> bytesOf(const ProgramTexts &texts, Encoding encoding) const;
    QMap<qint32, QString> placesBeside(const QString &fileName) const;
    ProgramList listAt(const QMap<qint32, QString> &places) const;
    void noteSaved(const QByteArray &json);
    void fillPoints(LwType type);
    void renumber(LwType type, qsizetype from, qint32 by);
    bool hasAnother(LwType type, qsizetype row, const QString &name) const;

    QString m_fileName;
    ProjectContents m_contents;
    ProjectTables m_saved;
    ProjectPrograms m_programs;
    QList<ProgramEntry> m_savedPrograms; // as the file has them
    bool m_isOfVersionBefore = false;    // and not saved yet
    std::map<LwType, PointList> m_points;
    mutable IndexedNameList m_indexedNames; // those who look at it share their interface
};

} // namespace ORVTListview
