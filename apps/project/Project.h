#pragma once

#include "project/ProjectChange.h"
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

    // The program as its file has it, lines separated by CR LF.
    QString program() const { return m_contents.program.text(); }
    QString programFile() const { return m_contents.programFile; }

    // What an editor makes of program() when it shows it; the same at first. Saving takes
    // a line that is still so from the file.
    void setShownProgram(const QString &shown) { m_shown = shown; }
    const QString &shownProgram() const { return m_shown; }

    // The encoding that the program's file has, or UTF-8, which has all characters.
    enum class Encoding { ItsOwn, Utf8 };

    // The bytes that the program's file has with this text, lines separated by CR LF:
    // ProgramFile::with.
    QByteArray programBytes(const QString &program, Encoding encoding = Encoding::ItsOwn) const;

    // Puts the text into the program's file. Raises Error and leaves file and program()
    // as they were.
    void saveProgram(const QString &program);

    // Whether somebody else has changed the program's file, or the project's, since it was
    // read or saved here. A file that is gone counts as unchanged.
    bool isProgramChangedOutside() const;
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

    // Whether changes of the tables wait for being saved.
    bool hasChangedTables() const { return m_isOfVersionBefore || m_contents.rows != m_saved; }

    // The tables of now, for being put into the project's file.
    using Theirs = TableSaving::Theirs;
    TableSaving tableSaving() const { return {m_fileName, m_saved, m_contents.rows}; }

    // The project's file as it was read or saved.
    const QByteArray &json() const { return m_contents.json; }

    // Puts the changed tables into the project's file. Raises Error and leaves the file when
    // it cannot be written or would be none that can be read. Tables that somebody else has
    // changed meanwhile, and that are not changed here, are taken over; true if any is.
    bool saveTables(Theirs theirs = Theirs::Kept);

    // What came of saving beside what was asked for.
    struct Saved
    {
        bool takesOver = false; // tables that somebody else has changed
        QString notKept;        // why a version before could not be kept; empty when it could
    };

    // Both, each of them only if it has changed here or is gone. The version that a file had
    // before stays beside it, with a "~" behind its name, if that is possible. Raises Error;
    // what was saved by then is.
    Saved save(const QString &program, Theirs theirs, Encoding encoding = Encoding::ItsOwn);

    // Both at another place, the program beside the project's file; the project goes on
    // there. A program of another project is left alone: this one's has another name then.
    // Raises Error and leaves what is there.
    Saved saveAt(const QString &fileName, const QString &program,
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
    QString programPlace(const QString &fileName) const;
    void fillPoints(LwType type);
    void renumber(LwType type, qsizetype from, qint32 by);
    bool hasAnother(LwType type, qsizetype row, const QString &name) const;

    QString m_fileName;
    ProjectContents m_contents;
    ProjectTables m_saved;
    QString m_shown;
    bool m_isOfVersionBefore = false; // and not saved yet
    std::map<LwType, PointList> m_points;
    mutable IndexedNameList m_indexedNames; // those who look at it share their interface
};

} // namespace ORVTListview
