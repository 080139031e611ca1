#include "project/Project.h"

#include "project/ProjectError.h"

namespace ORVTListview {

Project::Project(const QString &fileName)
    : m_fileName(fileName)
    , m_contents(readProject(fileName))
{
    for (const LwType type : projectTypes()) {
        if (!isVocabularyType(type))
            continue;
        PointList &list = m_points[type];
        for (const ProjectRow &row : rows(type))
            list.Add(row.name, row.data);
    }
    for (const ProjectFamily &family : m_contents.indexedNames)
        m_indexedNames.Add(family.name, family.numberFormat, family.lowerBound, family.upperBound);
}

void Project::saveProgram(const QString &program)
{
    writeFile(programFile(), encodeProgram(program, m_contents.programFormat, programFile()));
    m_contents.program = program;
}

bool Project::isProgramChangedOutside() const
{
    try {
        return decodeProgram(readFile(programFile()), programFile()) != m_contents.program;
    } catch (const Error &error) {
        return error.Number() != FileNotReadable;
    }
}

const QList<ProjectRow> &Project::rows(LwType type) const
{
    static const QList<ProjectRow> none;
    const auto found = m_contents.rows.constFind(type);
    return found == m_contents.rows.cend() ? none : *found;
}

PointList *Project::points(LwType type)
{
    const auto found = m_points.find(type);
    return found == m_points.end() ? nullptr : &found->second;
}

} // namespace ORVTListview
