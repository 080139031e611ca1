// How a project and its programs get to another place.

#include "project/Project.h"

#include "base/FilePlace.h"
#include "project/KeptVersion.h"
#include "project/ProjectFileName.h"
#include "project/TextFile.h"

#include <ORVTListview/Error.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <functional>
#include <utility>

namespace ORVTListview {

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

// Its own one, else the project's, with a number.
QString freeName(const QString &projectFile, const QFileInfo &program,
                 const std::function<bool(const QString &name)> &isFree)
{
    const QString suffix = program.suffix().isEmpty() ? QString() : u'.' + program.suffix();
    QString name = program.fileName();
    for (int number = 1; !isFree(name); ++number)
        name = projectBaseName(projectFile) +
               (number == 1 ? QString() : u'-' + QString::number(number)) + suffix;
    return name;
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

// Beside the project's file, each under its own name if that is free: no file has it, or it
// is a program of the very project that is replaced. One that has left the list replaces none.
QMap<qint32, QString> Project::placesBeside(const QString &fileName) const
{
    const QStringList replaced = programsOf(fileName);
    const bool isSamePlace = isOneFile(fileName, m_fileName);
    QMap<qint32, QString> places;
    const auto add = [&](qint32 id, const QStringList &replaceable) {
        const QFileInfo own(programFile(id));
        places.insert(id, freeName(fileName, own, [&](const QString &name) {
                          const QString place = programPath(fileName, name);
                          const auto isPlace = [&](const QString &taken) {
                              return isOneFile(place, programPath(fileName, taken));
                          };
                          if (isOneFile(place, fileName) || std::ranges::any_of(places, isPlace))
                              return false;
                          if (isOneFile(place, own.filePath()))
                              return isSamePlace;
                          return !QFileInfo::exists(place) || replaceable.contains(name);
                      }));
    };
    for (const ProjectProgram &program : programs())
        add(program.id, replaced);
    for (const qint32 id : m_programs.removed())
        add(id, {});
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
    for (const qint32 id : m_programs.removed())
        m_programs.part(id).file = places[id];
    noteSaved(json);
    return saved;
}

} // namespace ORVTListview
