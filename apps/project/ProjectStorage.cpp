// How a project and its programs get into their files.

#include "project/Project.h"

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

} // namespace ORVTListview
