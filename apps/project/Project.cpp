#include "project/Project.h"

#include "base/TextRules.h"
#include "project/JsonEdit.h"
#include "project/PointNames.h"
#include "project/ProjectError.h"
#include "project/ProjectTexts.h"

#include <algorithm>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

Project::Project(const QString &fileName)
    : m_fileName(fileName)
    , m_contents(readProject(fileName))
{
    for (const LwType type : projectTypes()) {
        if (isVocabularyType(type))
            fillPoints(type);
    }
    for (const ProjectFamily &family : m_contents.indexedNames)
        m_indexedNames.Add(family.name, family.numberFormat, family.lowerBound, family.upperBound);
}

void Project::fillPoints(LwType type)
{
    PointList &list = m_points[type];
    list.Clear();
    for (const ProjectRow &row : rows(type))
        list.Add(row.name, row.data);
}

void Project::rename(LwType type, qsizetype row, const QString &name)
{
    QList<ProjectRow> &list = m_contents.rows[type];
    const qsizetype column = nameColumn(type);
    if (column < 0 || row < 0 || row >= list.size() || !isPointName(name))
        throw Error(NameNotUsable, u"Project"_s,
                    ProjectTexts::tr("\"%1\" is not the name of a point").arg(name));
    if (list.at(row).name == name)
        return;
    const QString fault = isVocabularyType(type) ? pointNameFault(name, m_indexedNames) : QString();
    if (!fault.isEmpty())
        throw Error(NameNotUsable, u"Project"_s, fault);
    if (hasAnother(type, row, name))
        throw Error(NameNotUsable, u"Project"_s,
                    ProjectTexts::tr("Another point has the name \"%1\"").arg(name));
    noteNewName(type, row, list.at(row).name);
    list[row].name = name;
    list[row].cells[column] = name;
    if (isVocabularyType(type))
        fillPoints(type);
}

// The words of the program have one name each, whatever their type.
bool Project::hasAnother(LwType type, qsizetype row, const QString &name) const
{
    const auto shares = [type](LwType other) {
        return other == type || (isVocabularyType(type) && isVocabularyType(other));
    };
    for (const LwType other : projectTypes()) {
        const QList<ProjectRow> &list = rows(other);
        for (qsizetype i = 0; shares(other) && i < list.size(); ++i) {
            if ((other != type || i != row) && isSameWord(list.at(i).name, name))
                return true;
        }
    }
    return false;
}

void Project::noteNewName(LwType type, qsizetype row, const QString &former)
{
    const bool isNoted =
        std::any_of(m_newNames.cbegin(), m_newNames.cend(),
                    [&](const NewName &noted) { return noted.type == type && noted.row == row; });
    if (!isNoted)
        m_newNames.append({type, row, former});
}

void Project::saveNames()
{
    if (m_newNames.isEmpty())
        return;
    const QByteArray json = withNewNames(readFile(m_fileName));
    readContents(JsonPlace::parse(json, m_fileName)); // the file may have changed meanwhile
    writeFile(m_fileName, json);
    m_newNames.clear();
}

QByteArray Project::withNewNames(const QByteArray &json) const
{
    const JsonPlace root = JsonPlace::parse(json, m_fileName);
    JsonEdit edit(json);
    for (const NewName &changed : m_newNames) {
        const JsonPlace place =
            root.member(projectMember(changed.type)).item(changed.row).member(u"name"_s);
        if (!place.isText() || place.text() != changed.former)
            throw Error(FileNotWritable, u"Project"_s,
                        ProjectTexts::tr("%1: \"%2\" is no longer where it was")
                            .arg(m_fileName, changed.former));
        edit.replace(place, rows(changed.type).at(changed.row).name);
    }
    return edit.bytes();
}

void Project::setCell(LwType type, qsizetype row, qsizetype column, const QVariant &cell)
{
    m_contents.rows[type][row].cells[column] = cell;
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
