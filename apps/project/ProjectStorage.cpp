// How a project and its programs get into their files.

#include "project/Project.h"

#include "base/FilePlace.h"
#include "project/KeptVersion.h"
#include "project/ProjectColumns.h"
#include "project/ProjectError.h"
#include "project/TextFile.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

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

void writeProgram(const QString &fileName, const QByteArray &bytes, ProjectPrograms::Part &part)
{
    writeFile(fileName, bytes);
    part.text = ProgramFile(bytes);
    part.shown = part.text.text();
}

// The list as somebody else has saved it, with the texts of the programs that are new here.
void takeList(ProjectPrograms &programs, const QList<ProgramEntry> &theirs, const QString &fileName)
{
    for (const ProgramEntry &entry : theirs) {
        if (programs.hasFile(entry.file))
            continue;
        ProjectPrograms::Part &part = programs.part(programs.make(entry.file));
        try {
            part.text = ProgramFile(readFile(programPath(fileName, entry.file)));
        } catch (const Error &) {
            continue; // it is told when the project is opened the next time
        }
    }
    programs.setList(programs.listOf(theirs));
}

Project::Saved keepVersionsBefore(const QList<NewFile> &files)
{
    Project::Saved saved;
    for (const NewFile &file : files) {
        const QString notKept = keepVersionBefore(file.name);
        if (!notKept.isEmpty())
            saved.notKept = notKept;
    }
    return saved;
}

} // namespace

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
    const ProgramList listBefore = programs();
    if (there != m_contents.json) {
        const ProjectContents contents = readContents(JsonPlace::parse(there, m_fileName));
        takeOver(contents.rows);
        if (m_programs.entries() == m_savedPrograms)
            takeList(m_programs, contents.programs, m_fileName);
    }
    noteSaved(json);
    return m_saved != before || programs() != listBefore;
}

void Project::noteSaved(const QByteArray &json)
{
    m_contents.json = json;
    m_saved = m_contents.rows;
    m_savedPrograms = m_programs.entries();
    m_isOfVersionBefore = false;
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
    writeProgram(programFile(id), bytes, m_programs.part(id));
    m_programs.part(id).shown = program;
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
        const QString file = programFile(each.key());
        if (!QFileInfo::exists(file))
            writeProgram(file, *each, m_programs.part(each.key()));
    }
    if (hasChangedTables())
        saveProjectFile(theirs, saved);
    else if (!QFileInfo::exists(m_fileName))
        writeFile(m_fileName, m_contents.json);
    for (auto each = bytes.cbegin(); each != bytes.cend(); ++each) {
        const QString file = programFile(each.key());
        ProjectPrograms::Part &part = m_programs.part(each.key());
        if (isToBeWritten(file, *each, part.text)) {
            const QString notKept = keepVersionBefore(file);
            if (!notKept.isEmpty())
                saved.notKept = notKept;
            writeProgram(file, *each, part);
        }
        part.shown = texts.value(each.key());
    }
    return saved;
}

// Beside the project's file, each under its own name if that is free: no file has it, or it
// is a program of the very project that is replaced.
QMap<qint32, QString> Project::placesBeside(const QString &fileName) const
{
    const QStringList replaced = programsOf(fileName);
    const bool isSamePlace = isOneFile(fileName, m_fileName);
    QMap<qint32, QString> places;
    for (const ProjectProgram &program : programs()) {
        const QFileInfo own(programFile(program.id));
        const auto isFree = [&](const QString &name) {
            const QString place = programPath(fileName, name);
            if (places.values().contains(name) || isOneFile(place, fileName))
                return false;
            if (isOneFile(place, own.filePath()))
                return isSamePlace;
            return !QFileInfo::exists(place) || replaced.contains(name);
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

// A name that was the file's goes on being that.
ProgramList Project::listAt(const QMap<qint32, QString> &places) const
{
    ProgramList list = programs();
    for (ProjectProgram &program : list) {
        if (program.name == QFileInfo(programFile(program.id)).fileName())
            program.name = places[program.id];
    }
    return list;
}

Project::Saved Project::saveAt(const QString &fileName, const ProgramTexts &texts,
                               Encoding encoding)
{
    const QMap<qint32, QByteArray> bytes = bytesOf(texts, encoding);
    const QMap<qint32, QString> places = placesBeside(fileName);
    const ProgramList list = listAt(places);
    TableSaving saving = tableSaving();
    saving.programs.clear();
    QList<NewFile> files;
    for (const ProjectProgram &program : list) {
        saving.programs.append({program.name, places[program.id]});
        files.append({programPath(fileName, places[program.id]), bytes[program.id]});
    }
    const QByteArray json = saving.into(m_contents.json, Theirs::Overwritten);
    files.append({fileName, json});
    Saved saved = keepVersionsBefore(files);
    writeAll(files);
    m_fileName = fileName;
    m_programs.setList(list);
    for (const ProjectProgram &program : list)
        m_programs.part(program.id) = {places[program.id], ProgramFile(bytes[program.id]),
                                       texts.value(program.id)};
    noteSaved(json);
    return saved;
}

} // namespace ORVTListview
