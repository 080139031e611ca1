#include "project/ProgramEntries.h"

#include "base/TextRules.h"
#include "project/JsonEdit.h"
#include "project/ProjectColumns.h"
#include "project/ProjectTexts.h"

#include <QtCore/QFileInfo>

#include <limits>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostPrograms = std::numeric_limits<qint16>::max();

QString usualName(const QString &file)
{
    return QFileInfo(file).fileName();
}

ProgramEntry readEntry(const JsonPlace &place)
{
    place.allowOnly({u"name"_s, u"file"_s});
    const QString file = readName(place.member(u"file"_s));
    const JsonPlace name = place.member(u"name"_s);
    return {name.isPresent() ? readName(name) : usualName(file), file};
}

void refuseTwins(const JsonPlace &place, const ProgramEntry &entry, const ProgramEntry &former)
{
    if (isSameWord(entry.name, former.name))
        place.fail(ProjectTexts::tr("another program has the name \"%1\"").arg(entry.name));
    if (entry.file == former.file)
        place.fail(ProjectTexts::tr("another program has the file \"%1\"").arg(entry.file));
}

QByteArray written(const QList<ProgramEntry> &programs)
{
    QByteArrayList entries;
    for (const ProgramEntry &program : programs) {
        const bool isUsual = program.name == usualName(program.file);
        entries.append("\n    { " +
                       (isUsual ? QByteArray() : "\"name\": " + jsonText(program.name) + ", ") +
                       "\"file\": " + jsonText(program.file) + " }");
    }
    return '[' + entries.join(',') + "\n  ]";
}

// Where the name of the member begins whose value is known; no escape can hide its quotes.
qsizetype startOfName(const QByteArray &json, const JsonPlace &value)
{
    const qsizetype end = json.lastIndexOf('"', json.lastIndexOf(':', value.start() - 1));
    return json.lastIndexOf('"', end - 1);
}

} // namespace

QString readName(const JsonPlace &place)
{
    QString name = place.required().text();
    if (!isPointName(name))
        place.fail(ProjectTexts::tr(
            "a name is expected, without blanks around it and control characters"));
    return name;
}

QList<ProgramEntry> readProgramEntries(const JsonPlace &root, qint32 form)
{
    if (form < formOfSeveralPrograms) {
        const QString file = readName(root.member(u"program"_s));
        return {{usualName(file), file}};
    }
    const JsonPlace list = root.member(u"programs"_s).required();
    QList<ProgramEntry> programs;
    for (const JsonPlace &place : list.items(mostPrograms)) {
        const ProgramEntry entry = readEntry(place);
        for (const ProgramEntry &former : std::as_const(programs))
            refuseTwins(place, entry, former);
        programs.append(entry);
    }
    if (programs.isEmpty())
        list.fail(ProjectTexts::tr("a project has at least one program"));
    return programs;
}

QByteArray withProgramEntries(const QByteArray &json, const QString &fileName,
                              const QList<ProgramEntry> &programs)
{
    const JsonPlace root = JsonPlace::parse(json, fileName);
    const JsonPlace format = root.member(u"format"_s);
    const qint32 form = format.required().integer();
    if (readProgramEntries(root, form) == programs)
        return json;
    JsonEdit edit(json);
    if (form >= formOfSeveralPrograms) {
        const JsonPlace list = root.member(u"programs"_s);
        edit.replaceBytes(list.start(), list.end(), written(programs));
        return edit.bytes();
    }
    const JsonPlace program = root.member(u"program"_s);
    const ProgramEntry &first = programs.constFirst();
    if (programs.size() == 1 && first.name == usualName(first.file)) {
        edit.replace(program, first.file);
        return edit.bytes();
    }
    edit.replace(format, formOfSeveralPrograms);
    edit.replaceBytes(startOfName(json, program), program.end(),
                      "\"programs\": " + written(programs));
    return edit.bytes();
}

} // namespace ORVTListview
