#include "project/Project.h"

#include "base/TextRules.h"
#include "project/PointNames.h"
#include "project/ProjectColumns.h"
#include "project/ProjectError.h"
#include "project/ProjectFileName.h"
#include "project/ProjectTexts.h"
#include "project/TextFile.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSet>

#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

Project::Project(const QString &fileName)
    : Project(fileName, readProject(fileName))
{
}

Project::Project(const QString &fileName, ProjectContents contents)
    : m_fileName(fileName)
    , m_contents(std::move(contents))
    , m_saved(m_contents.rows)
    , m_programs(m_contents.programs, m_contents.texts)
    , m_savedPrograms(m_contents.programs)
{
    for (const LwType type : projectTypes()) {
        if (isVocabularyType(type))
            fillPoints(type);
    }
    for (const ProjectFamily &family : m_contents.indexedNames)
        m_indexedNames.Add(family.name, family.numberFormat, family.lowerBound, family.upperBound);
}

std::unique_ptr<Project> Project::versionBefore(const QString &fileName)
{
    std::unique_ptr<Project> project(new Project(fileName, readVersionBefore(fileName)));
    project->m_isOfVersionBefore = true;
    return project;
}

std::unique_ptr<Project> Project::none()
{
    ProjectContents contents;
    contents.programs.append(ProgramEntry());
    return std::unique_ptr<Project>(new Project({}, contents));
}

void Project::fillPoints(LwType type)
{
    PointList &list = m_points[type];
    list.Clear();
    for (const ProjectRow &row : rows(type))
        list.Add(row.name, row.data);
}

QString Project::nameFault(LwType type, qsizetype row, const QString &name) const
{
    if (nameColumn(type) < 0 || !isPointName(name))
        return ProjectTexts::tr("\"%1\" is not the name of a point").arg(name);
    QString fault = isVocabularyType(type) ? pointNameFault(name, m_indexedNames) : QString();
    if (fault.isEmpty() && hasAnother(type, row, name))
        return ProjectTexts::tr("Another point has the name \"%1\"").arg(name);
    return fault;
}

ProjectRow Project::renamed(LwType type, qsizetype row, const QString &name) const
{
    const QList<ProjectRow> &list = rows(type);
    const bool isThere = row >= 0 && row < list.size();
    if (isThere && list.at(row).name == name && !name.isEmpty())
        return list.at(row);
    const QString fault = isThere ? nameFault(type, row, name)
                                  : ProjectTexts::tr("\"%1\" is not the name of a point").arg(name);
    if (!fault.isEmpty())
        throw Error(NameNotUsable, u"Project"_s, fault);
    ProjectRow result = list.at(row);
    result.name = name;
    result.setCell(nameColumn(type), name);
    return result;
}

void Project::rename(LwType type, qsizetype row, const QString &name)
{
    const ProjectRow after = renamed(type, row, name);
    apply({{type, row, rows(type).at(row), after}});
}

void Project::apply(const RowChanges &changes)
{
    QSet<LwType> types;
    for (const RowChange &change : changes) {
        QList<ProjectRow> &list = m_contents.rows[change.type];
        if (change.before && change.after) {
            ProjectRow row = *change.after;
            row.takeReadings(list.at(change.row));
            list[change.row] = row;
        } else if (change.after) {
            renumber(change.type, change.row, 1);
            list.insert(change.row, *change.after);
        } else {
            list.removeAt(change.row);
            renumber(change.type, change.row, -1);
        }
        types.insert(change.type);
    }
    for (const LwType type : std::as_const(types)) {
        if (isVocabularyType(type))
            fillPoints(type);
    }
}

// A value of the host that is left out of the file is the row's number there.
void Project::renumber(LwType type, qsizetype from, qint32 by)
{
    QList<ProjectRow> &list = m_contents.rows[type];
    for (qsizetype i = from; i < list.size(); ++i) {
        const auto former = static_cast<qint32>(by > 0 ? i + 1 : i + 2);
        if (isVocabularyType(type) && !list.at(i).isDataGiven && list.at(i).data == former)
            list[i].data = former + by;
    }
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

void Project::setReading(LwType type, qsizetype row, qsizetype column, const QVariant &cell)
{
    m_contents.rows[type][row].setReading(column, cell);
}

QString Project::programFile(qint32 id) const
{
    return programPath(m_fileName, m_programs.part(id).file);
}

qint32 Project::makeProgram(const QString &name)
{
    const QString base = fileNameFor(name);
    for (int number = 1;; ++number) {
        const QString file = base + (number == 1 ? QString() : u'-' + QString::number(number));
        const QFileInfo place(programPath(m_fileName, file + u".prog"_s));
        if (!m_programs.hasFile(place.fileName()) && !place.exists() && !place.isSymLink())
            return m_programs.make(place.fileName());
    }
}

QString Project::programNameFault(qint32 program, const QString &name) const
{
    if (!isPointName(name))
        return ProjectTexts::tr("\"%1\" is not the name of a program").arg(name);
    for (const ProjectProgram &each : programs()) {
        if (each.id != program && isSameWord(each.name, name))
            return ProjectTexts::tr("Another program has the name \"%1\"").arg(name);
    }
    return {};
}

bool Project::hasChangedTables() const
{
    return m_isOfVersionBefore || m_contents.rows != m_saved ||
           m_programs.entries() != m_savedPrograms;
}

TableSaving Project::tableSaving() const
{
    return {m_fileName, m_saved, m_contents.rows, m_savedPrograms, m_programs.entries()};
}

namespace {

bool isAnother(const QString &fileName, const QByteArray &bytes)
{
    try {
        return readFile(fileName) != bytes;
    } catch (const Error &) {
        return false;
    }
}

} // namespace

bool Project::isProgramChangedOutside(qint32 id) const
{
    return isAnother(programFile(id), m_programs.part(id).text.bytes());
}

bool Project::isChangedOutside() const
{
    return !m_isOfVersionBefore && isAnother(m_fileName, m_contents.json);
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
