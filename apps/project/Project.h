#pragma once

#include "project/ProjectReader.h"

#include <ORVTListview/IndexedName.h>
#include <ORVTListview/PointCollection.h>

#include <map>

namespace ORVTListview {

// A controller project read from a file. It owns the collections that it hands
// out; they live as long as it does.
class Project
{
public:
    // Raises Error with a ProjectErrorNumber; then there is no project at all.
    explicit Project(const QString &fileName);
    Q_DISABLE_COPY_MOVE(Project) // components keep its collections by address

    QString fileName() const { return m_fileName; }
    QString name() const { return m_contents.name; }
    const ControllerInfo &controller() const { return m_contents.controller; }
    const RichTextSettings &editor() const { return m_contents.editor; }

    // Lines separated by CR LF.
    QString program() const { return m_contents.program; }
    QString programFile() const { return m_contents.programFile; }

    // Puts the text, lines separated by CR LF, into the program's file, with the
    // line ends and the byte order mark that the file had. Raises Error and leaves
    // file and program() as they were.
    void saveProgram(const QString &program);

    // Whether somebody else has changed the program's file since it was read or
    // saved here. A file that is gone counts as unchanged.
    bool isProgramChangedOutside() const;

    // Gives a point another name, here and in its collection; saveNames() takes it
    // into the file. Raises Error (NameNotUsable) and changes nothing when the type's points
    // have no names, the name is not one (pointNameFault), or another point has it: one of
    // the type, for a word of the program one of any type whose points are such words.
    void rename(LwType type, qsizetype row, const QString &name);

    // Whether names wait for being saved.
    bool hasNewNames() const { return !m_newNames.isEmpty(); }

    // Puts the new names into the project's file, which keeps its layout. Raises Error
    // and leaves the file when it cannot be written or is another one meanwhile.
    void saveNames();

    // Keeps what the controller answered for a cell of projectColumns(type).
    void setCell(LwType type, qsizetype row, qsizetype column, const QVariant &cell);

    // The rows of a type's table in the order of the file; none for other types.
    const QList<ProjectRow> &rows(LwType type) const;

    // The names of a type's points: dsVariable, dsConst, dsInput, dsOutput and
    // dsNvi have a collection, perhaps an empty one; null for any other type.
    PointList *points(LwType type);
    IndexedNameList *indexedNames() { return &m_indexedNames; }
    const QList<ProjectFamily> &families() const { return m_contents.indexedNames; }

private:
    struct NewName
    {
        LwType type;
        qsizetype row;
        QString former; // as the file has it
    };

    void fillPoints(LwType type);
    bool hasAnother(LwType type, qsizetype row, const QString &name) const;
    void noteNewName(LwType type, qsizetype row, const QString &former);
    QByteArray withNewNames(const QByteArray &json) const;

    QString m_fileName;
    QList<NewName> m_newNames;
    ProjectContents m_contents;
    std::map<LwType, PointList> m_points;
    IndexedNameList m_indexedNames;
};

} // namespace ORVTListview
