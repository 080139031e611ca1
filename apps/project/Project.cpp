#include "project/Project.h"

#include "base/TextRules.h"
#include "project/JsonEdit.h"
#include "project/KeptVersion.h"
#include "project/PointNames.h"
#include "project/ProjectColumns.h"
#include "project/ProjectError.h"
#include "project/ProjectTexts.h"
#include "project/TextFile.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSet>

#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

struct NewFile
{
    QString name;
    QByteArray bytes;
};

// Both or none.
void writeBoth(const NewFile &first, const NewFile &second)
{
    const bool wasThere = QFileInfo::exists(first.name);
    const QByteArray before = wasThere ? readFile(first.name) : QByteArray();
    writeFile(first.name, first.bytes);
    try {
        writeFile(second.name, second.bytes);
    } catch (const Error &) {
        if (wasThere)
            writeFile(first.name, before);
        else
            QFile::remove(first.name);
        throw;
    }
}

// The file's name of the program that belongs to a project; empty for what is none.
QString programOf(const QString &projectFile)
{
    try {
        return JsonPlace::parse(readFile(projectFile), projectFile).member(u"program"_s).text();
    } catch (const Error &) {
        return {};
    }
}

} // namespace

Project::Project(const QString &fileName)
    : Project(fileName, readProject(fileName))
{
}

Project::Project(const QString &fileName, ProjectContents contents)
    : m_fileName(fileName)
    , m_contents(std::move(contents))
    , m_saved(m_contents.rows)
{
    for (const LwType type : projectTypes()) {
        if (isVocabularyType(type))
            fillPoints(type);
    }
    m_shown = program();
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
    return std::unique_ptr<Project>(new Project({}, ProjectContents()));
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

// A file that is gone, or that cannot be read, is written anew.
QByteArray Project::jsonForSaving() const
{
    return m_isOfVersionBefore || !QFileInfo::exists(m_fileName) ? m_contents.json
                                                                 : readFile(m_fileName);
}

bool Project::saveTables(Theirs theirs)
{
    if (!hasChangedTables())
        return false;
    const QByteArray there = jsonForSaving();
    const QByteArray json = tableSaving().into(there, theirs);
    writeFile(m_fileName, json);
    const ProjectTables before = m_contents.rows;
    if (there != m_contents.json)
        takeOver(readContents(JsonPlace::parse(there, m_fileName)).rows);
    m_contents.json = json;
    m_saved = m_contents.rows;
    m_isOfVersionBefore = false;
    return m_saved != before;
}

// The tables that are not changed here, as somebody else has saved them.
void Project::takeOver(const ProjectTables &theirs)
{
    for (const LwType type : projectTypes()) {
        const QList<ProjectRow> list = rows(type);
        if (list != m_saved.value(type) || list == theirs.value(type))
            continue;
        m_contents.rows[type] = theirs.value(type);
        if (isVocabularyType(type))
            fillPoints(type);
    }
}

void Project::setReading(LwType type, qsizetype row, qsizetype column, const QVariant &cell)
{
    m_contents.rows[type][row].setReading(column, cell);
}

QByteArray Project::programBytes(const QString &program, Encoding encoding) const
{
    const ProgramFile file =
        encoding == Encoding::Utf8 ? m_contents.program.inUtf8() : m_contents.program;
    return file.with(program, m_shown, programFile());
}

void Project::saveProgram(const QString &program)
{
    const QByteArray bytes = programBytes(program);
    writeFile(programFile(), bytes);
    m_contents.program = ProgramFile(bytes);
    m_shown = program;
}

// The version before is what is saved here; the file that it stands in for goes to its
// place when that has worked.
void Project::saveProjectFile(Theirs theirs, Saved &saved)
{
    const bool isTurned = m_isOfVersionBefore && QFileInfo(m_fileName).isFile();
    const QByteArray broken = isTurned ? readFile(m_fileName) : QByteArray();
    if (!m_isOfVersionBefore)
        saved.notKept = keepVersionBefore(m_fileName);
    saved.takesOver = saveTables(theirs);
    if (!isTurned)
        return;
    try {
        writeFile(m_fileName + u'~', broken);
    } catch (const Error &error) {
        saved.notKept = error.Description();
    }
}

Project::Saved Project::save(const QString &program, Theirs theirs, Encoding encoding)
{
    const QByteArray bytes = programBytes(program, encoding); // before anything is written
    Saved saved;
    if (hasChangedTables())
        saveProjectFile(theirs, saved);
    else if (!QFileInfo::exists(m_fileName))
        writeFile(m_fileName, m_contents.json);
    if (bytes != m_contents.program.bytes() || !QFileInfo::exists(programFile())) {
        const QString notKept = keepVersionBefore(programFile());
        if (!notKept.isEmpty())
            saved.notKept = notKept;
        writeFile(programFile(), bytes);
        m_contents.program = ProgramFile(bytes);
    }
    m_shown = program;
    return saved;
}

// Beside the project's file, under its own name if that is free: no file has it, or it is
// the program of the very project that is replaced.
QString Project::programPlace(const QString &fileName) const
{
    const QDir folder = QFileInfo(fileName).dir();
    const QFileInfo own(programFile());
    const QString replaced = programOf(fileName);
    const bool isSamePlace = QFileInfo(fileName) == QFileInfo(m_fileName);
    const QString base = QFileInfo(fileName).completeBaseName();
    const QString suffix = own.suffix().isEmpty() ? QString() : u'.' + own.suffix();
    QString name = own.fileName();
    for (int number = 1;; ++number) {
        const QFileInfo place(folder.filePath(name));
        const bool isOwn = place == own;
        const bool isFree = isOwn ? isSamePlace : !place.exists() || place.fileName() == replaced;
        if (isFree)
            return place.filePath();
        name = base + (number == 1 ? QString() : u'-' + QString::number(number)) + suffix;
    }
}

Project::Saved Project::saveAt(const QString &fileName, const QString &program, Encoding encoding)
{
    const QByteArray bytes = programBytes(program, encoding);
    const QString file = programPlace(fileName);
    QByteArray json = tableSaving().into(m_contents.json, Theirs::Overwritten);
    const QString name = QFileInfo(file).fileName();
    const JsonPlace place = JsonPlace::parse(json, fileName).member(u"program"_s);
    if (place.text() != name) {
        JsonEdit edit(json);
        edit.replace(place, name);
        json = edit.bytes();
    }
    Saved saved;
    for (const QString &replaced : {file, fileName}) {
        const QString notKept = keepVersionBefore(replaced);
        if (!notKept.isEmpty())
            saved.notKept = notKept;
    }
    writeBoth({file, bytes}, {fileName, json});
    m_fileName = fileName;
    m_contents.programFile = file;
    m_contents.program = ProgramFile(bytes);
    m_contents.json = json;
    m_saved = m_contents.rows;
    m_shown = program;
    m_isOfVersionBefore = false;
    return saved;
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
