#include "project/Project.h"

#include "base/TextRules.h"
#include "project/JsonEdit.h"
#include "project/PointNames.h"
#include "project/ProjectColumns.h"
#include "project/ProjectError.h"
#include "project/ProjectTexts.h"
#include "project/TableEdit.h"
#include "project/TextFile.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSet>

#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// The version before the last that was saved. A file that is gone has none.
void keepBefore(const QString &fileName)
{
    if (QFileInfo(fileName).isFile())
        writeFile(fileName + u'~', readFile(fileName));
}

} // namespace

Project::Project(const QString &fileName)
    : m_fileName(fileName)
    , m_contents(readProject(fileName))
{
    for (const LwType type : projectTypes()) {
        if (isVocabularyType(type))
            fillPoints(type);
    }
    m_saved = m_contents.rows;
    m_shown = program();
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

QString Project::nameFault(LwType type, qsizetype row, const QString &name) const
{
    if (nameColumn(type) < 0 || !isPointName(name))
        return ProjectTexts::tr("\"%1\" is not the name of a point").arg(name);
    const QString fault = isVocabularyType(type) ? pointNameFault(name, m_indexedNames) : QString();
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
            list[change.row] = *change.after;
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
        if (isVocabularyType(type) && list.at(i).data == former)
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

QByteArray Project::tableBytes(const QByteArray &json, Theirs theirs) const
{
    const ProjectTables there = readContents(JsonPlace::parse(json, m_fileName)).rows;
    QByteArray result = json;
    for (const LwType type : projectTypes()) {
        const QList<ProjectRow> &list = rows(type);
        if (list == m_saved.value(type) || list == there.value(type))
            continue;
        if (theirs == Theirs::Kept && there.value(type) != m_saved.value(type))
            throw Error(FileNotWritable, u"Project"_s,
                        ProjectTexts::tr("%1: its %2 have been changed elsewhere")
                            .arg(m_fileName, projectMember(type)));
        result = withRows(result, m_fileName, type, there.value(type), list);
    }
    readContents(JsonPlace::parse(result, m_fileName)); // it may have changed meanwhile
    return result;
}

void Project::saveTables(Theirs theirs)
{
    if (!hasChangedTables())
        return;
    const QByteArray json = tableBytes(readFile(m_fileName), theirs);
    writeFile(m_fileName, json);
    m_contents.json = json;
    m_saved = m_contents.rows;
}

void Project::setReading(LwType type, qsizetype row, qsizetype column, const QVariant &cell)
{
    m_contents.rows[type][row].setReading(column, cell);
}

QByteArray Project::programBytes(const QString &program) const
{
    return m_contents.program.with(program, m_shown, programFile());
}

void Project::saveProgram(const QString &program)
{
    const QByteArray bytes = programBytes(program);
    writeFile(programFile(), bytes);
    m_contents.program = ProgramFile(bytes);
    m_shown = program;
}

void Project::save(const QString &program, Theirs theirs)
{
    const QByteArray bytes = programBytes(program); // before anything is written
    if (hasChangedTables()) {
        keepBefore(m_fileName);
        saveTables(theirs);
    }
    if (bytes != m_contents.program.bytes() || isProgramChangedOutside() ||
        !QFileInfo::exists(programFile())) {
        keepBefore(programFile());
        saveProgram(program);
    }
    m_shown = program;
}

void Project::saveAt(const QString &fileName, const QString &program)
{
    QByteArray json = tableBytes(m_contents.json, Theirs::Overwritten);
    const QString name = QFileInfo(programFile()).fileName();
    const JsonPlace place = JsonPlace::parse(json, fileName).member(u"program"_s);
    if (place.text() != name) {
        JsonEdit edit(json);
        edit.replace(place, name);
        json = edit.bytes();
    }
    const QString file = QFileInfo(fileName).dir().filePath(name);
    const QByteArray bytes = programBytes(program);
    keepBefore(file);
    keepBefore(fileName);
    writeFile(file, bytes);
    writeFile(fileName, json);
    m_fileName = fileName;
    m_contents.programFile = file;
    m_contents.program = ProgramFile(bytes);
    m_contents.json = json;
    m_saved = m_contents.rows;
    m_shown = program;
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

bool Project::isProgramChangedOutside() const
{
    return isAnother(programFile(), m_contents.program.bytes());
}

bool Project::isChangedOutside() const
{
    return isAnother(m_fileName, m_contents.json);
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
