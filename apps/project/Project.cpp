#include "project/Project.h"

#include "base/TextRules.h"
#include "project/JsonEdit.h"
#include "project/KeptVersion.h"
#include "project/NewProject.h"
#include "project/PointNames.h"
#include "project/ProjectColumns.h"
#include "project/ProjectError.h"
#include "project/ProjectTexts.h"
#include "project/TextFile.h"

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
    bool isWanted = true;
};

// All or none.
void writeAll(const QList<NewFile> &files)
{
    QList<NewFile> before;
    try {
        for (const NewFile &file : files) {
            const bool wasThere = QFileInfo::exists(file.name);
            const NewFile former{file.name, wasThere ? readFile(file.name) : QByteArray()};
            writeFile(file.name, file.bytes);
            before.prepend(wasThere ? former : NewFile{file.name, {}, false});
        }
    } catch (const Error &) {
        for (const NewFile &file : std::as_const(before)) {
            if (file.isWanted)
                writeFile(file.name, file.bytes);
            else
                QFile::remove(file.name);
        }
        throw;
    }
}

// The files of the programs that belong to a project; none for what is none.
QStringList programsOf(const QString &projectFile)
{
    QStringList files;
    try {
        const QList<ProgramEntry> programs =
            readContents(JsonPlace::parse(readFile(projectFile), projectFile)).programs;
        for (const ProgramEntry &program : programs)
            files.append(program.file);
    } catch (const Error &) {
        return {};
    }
    return files;
}

// Where the text is another one, or nothing is.
bool isToBeWritten(const QString &fileName, const QByteArray &bytes, const ProgramFile &former)
{
    return bytes != former.bytes() || !QFileInfo::exists(fileName);
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
    m_savedPrograms = m_programs.entries();
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

// UTF-8 is for programs that need it.
QByteArray Project::programBytes(qint32 id, const QString &program, Encoding encoding) const
{
    const ProjectPrograms::Part &part = m_programs.part(id);
    try {
        return part.text.with(program, part.shown, programFile(id));
    } catch (const Error &error) {
        if (encoding != Encoding::Utf8 || error.Number() != TextNotEncodable)
            throw;
    }
    return part.text.inUtf8().with(program, part.shown, programFile(id));
}

QMap<qint32, QByteArray> Project::bytesOf(const ProgramTexts &texts, Encoding encoding) const
{
    QMap<qint32, QByteArray> bytes;
    for (const ProjectProgram &program : programs())
        bytes.insert(program.id, programBytes(program.id, texts.value(program.id), encoding));
    return bytes;
}

void Project::saveProgram(const QString &program)
{
    const qint32 id = firstProgram();
    const QByteArray bytes = programBytes(id, program, Encoding::ItsOwn);
    writeFile(programFile(id), bytes);
    m_programs.part(id) = {m_programs.part(id).file, ProgramFile(bytes), program};
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

// A program that has no file yet comes first: the project's file must not name what is not
// there.
Project::Saved Project::save(const ProgramTexts &texts, Theirs theirs, Encoding encoding)
{
    const QMap<qint32, QByteArray> bytes = bytesOf(texts, encoding); // before anything is written
    Saved saved;
    for (auto each = bytes.cbegin(); each != bytes.cend(); ++each) {
        if (!QFileInfo::exists(programFile(each.key())))
            writeFile(programFile(each.key()), *each);
    }
    if (hasChangedTables())
        saveProjectFile(theirs, saved);
    else if (!QFileInfo::exists(m_fileName))
        writeFile(m_fileName, m_contents.json);
    for (auto each = bytes.cbegin(); each != bytes.cend(); ++each) {
        ProjectPrograms::Part &part = m_programs.part(each.key());
        const QString file = programFile(each.key());
        if (isToBeWritten(file, *each, part.text)) {
            const QString notKept = keepVersionBefore(file);
            if (!notKept.isEmpty())
                saved.notKept = notKept;
            writeFile(file, *each);
        }
        part = {part.file, ProgramFile(*each), texts.value(each.key())};
    }
    return saved;
}

// Beside the project's file, each under its own name if that is free: no file has it, or it
// is a program of the very project that is replaced.
QMap<qint32, QString> Project::placesBeside(const QString &fileName) const
{
    const QStringList replaced = programsOf(fileName);
    const bool isSamePlace = QFileInfo(fileName) == QFileInfo(m_fileName);
    QMap<qint32, QString> places;
    for (const ProjectProgram &program : programs()) {
        const QFileInfo own(programFile(program.id));
        const auto isFree = [&](const QString &name) {
            const QFileInfo place(programPath(fileName, name));
            if (places.values().contains(name))
                return false;
            return place == own ? isSamePlace : !place.exists() || replaced.contains(name);
        };
        const QString base = QFileInfo(fileName).completeBaseName();
        const QString suffix = own.suffix().isEmpty() ? QString() : u'.' + own.suffix();
        QString name = own.fileName();
        for (int number = 1; !isFree(name); ++number)
            name = base + (number == 1 ? QString() : u'-' + QString::number(number)) + suffix;
        places.insert(program.id, name);
    }
    return places;
}

Project::Saved Project::saveAt(const QString &fileName, const ProgramTexts &texts,
                               Encoding encoding)
{
    const QMap<qint32, QByteArray> bytes = bytesOf(texts, encoding);
    const QMap<qint32, QString> places = placesBeside(fileName);
    QList<NewFile> files;
    ProgramList list = programs();
    QList<ProgramEntry> entries;
    for (ProjectProgram &program : list) {
        const QString &place = places[program.id];
        if (program.name == QFileInfo(programFile(program.id)).fileName())
            program.name = place;
        entries.append({program.name, place});
        files.append({programPath(fileName, place), bytes[program.id]});
    }
    TableSaving saving = tableSaving();
    saving.programs = entries;
    const QByteArray json = saving.into(m_contents.json, Theirs::Overwritten);
    files.append({fileName, json});
    Saved saved;
    for (const NewFile &file : std::as_const(files)) {
        const QString notKept = keepVersionBefore(file.name);
        if (!notKept.isEmpty())
            saved.notKept = notKept;
    }
    writeAll(files);
    m_fileName = fileName;
    m_programs.setList(list);
    for (const ProjectProgram &program : std::as_const(list))
        m_programs.part(program.id) = {places[program.id], ProgramFile(bytes[program.id]),
                                       texts.value(program.id)};
    m_contents.json = json;
    m_saved = m_contents.rows;
    m_savedPrograms = entries;
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
