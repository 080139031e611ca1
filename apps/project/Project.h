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

    // The rows of a type's table in the order of the file; none for other types.
    const QList<ProjectRow> &rows(LwType type) const;

    // The names of a type's points: dsVariable, dsConst, dsInput, dsOutput and
    // dsNvi have a collection, perhaps an empty one; null for any other type.
    PointList *points(LwType type);
    IndexedNameList *indexedNames() { return &m_indexedNames; }
    const QList<ProjectFamily> &families() const { return m_contents.indexedNames; }

private:
    QString m_fileName;
    ProjectContents m_contents;
    std::map<LwType, PointList> m_points;
    IndexedNameList m_indexedNames;
};

} // namespace ORVTListview
