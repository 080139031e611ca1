#include "project/ProjectReader.h"

#include "project/ProjectColumns.h"
#include "project/ProjectTexts.h"
#include "project/TextFile.h"

#include "base/FilePlace.h"
#include "base/TextRules.h"
#include "project/EditorAppearance.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <limits>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

// Tables count their rows with 16 bits.
constexpr qsizetype mostRows = std::numeric_limits<qint16>::max();

// The vocabulary takes no larger family.
constexpr qint64 mostNamesOfAFamily = 100000;

constexpr qint32 knownFormat = formOfSeveralPrograms;

QVariant readValue(const JsonPlace &place)
{
    if (place.isText())
        return place.text();
    if (!place.isNumber())
        place.fail(ProjectTexts::tr("a number or a text is expected"));
    return place.number();
}

QVariant readCell(const JsonPlace &place, CellKind kind)
{
    if (kind == CellKind::Name)
        return readName(place);
    if (!place.isPresent())
        return {};
    switch (kind) {
    case CellKind::Number:
        return place.number();
    case CellKind::Value:
        return readValue(place);
    case CellKind::YesNo:
        return place.boolean();
    default:
        return place.text();
    }
}

ProjectRow readRow(const JsonPlace &place, LwType type, qint32 number)
{
    ProjectRow row;
    QStringList members;
    for (const ProjectColumn &column : projectColumns(type)) {
        members.append(column.member);
        row.cells.append(readCell(place.member(column.member), column.kind));
        if (column.kind == CellKind::Name)
            row.name = row.cells.constLast().toString();
    }
    if (isVocabularyType(type)) {
        members.append(u"data"_s);
        row.data = place.member(u"data"_s).integer(number);
        row.isDataGiven = place.member(u"data"_s).isPresent();
    }
    place.allowOnly(members);
    return row;
}

QList<ProjectRow> readRows(const JsonPlace &list, LwType type)
{
    QList<ProjectRow> rows;
    QHash<QString, QString> places; // folded name to the place that has it
    for (const JsonPlace &item : list.items(mostRows)) {
        rows.append(readRow(item, type, static_cast<qint32>(rows.size()) + 1));
        const QString &name = rows.constLast().name;
        QString &former = places[foldedCase(name)];
        if (!name.isEmpty() && !former.isEmpty())
            item.member(u"name"_s).fail(
                ProjectTexts::tr("\"%1\" is the name of %2 too").arg(name, former));
        former = item.place();
    }
    return rows;
}

ControllerInfo readController(const JsonPlace &place)
{
    place.allowOnly({u"model"_s, u"address"_s, u"location"_s, u"sqrt"_s, u"hoa"_s});
    return {place.member(u"model"_s).text(), place.member(u"address"_s).text(),
            place.member(u"location"_s).text(), place.member(u"sqrt"_s).boolean(),
            place.member(u"hoa"_s).boolean()};
}

ProjectFamily readFamily(const JsonPlace &place)
{
    place.allowOnly({u"name"_s, u"format"_s, u"lower"_s, u"upper"_s});
    ProjectFamily family = {readName(place.member(u"name"_s)), place.member(u"format"_s).text(),
                            place.member(u"lower"_s).required().integer(),
                            place.member(u"upper"_s).required().integer()};
    if (qint64(family.upperBound) - family.lowerBound >= mostNamesOfAFamily)
        place.fail(ProjectTexts::tr("has more than %1 names").arg(mostNamesOfAFamily));
    return family;
}

// The form of the file.
qint32 checkedForm(const JsonPlace &root)
{
    const JsonPlace format = root.member(u"format"_s);
    const qint32 version = format.required().integer();
    if (version > knownFormat)
        format.fail(ProjectTexts::tr("the form %1 is newer than the form %2 that can be read here; "
                                     "a newer version opens the file, which stays as it is")
                        .arg(QString::number(version), QString::number(knownFormat)));
    if (version < 1)
        format.fail(ProjectTexts::tr("a form from 1 to %1 is expected").arg(knownFormat));
    QStringList members = {
        u"format"_s,     u"name"_s,
        u"controller"_s, u"indexedNames"_s,
        u"editor"_s,     version < formOfSeveralPrograms ? u"program"_s : u"programs"_s};
    for (const LwType type : projectTypes())
        members.append(projectMember(type));
    root.allowOnly(members);
    return version;
}

} // namespace

ProjectContents readContents(const JsonPlace &root)
{
    const qint32 form = checkedForm(root);
    ProjectContents contents;
    contents.name = readName(root.member(u"name"_s));
    contents.controller = readController(root.member(u"controller"_s));
    for (const LwType type : projectTypes())
        contents.rows.insert(type, readRows(root.member(projectMember(type)), type));
    for (const JsonPlace &item : root.member(u"indexedNames"_s).items(mostRows))
        contents.indexedNames.append(readFamily(item));
    contents.editor = readAppearance(root.member(u"editor"_s));
    contents.programs = readProgramEntries(root, form);
    return contents;
}

namespace {

// Two names may stand for one file, through links or "./": saving one program would then
// take the other's text away.
void refuseOneFileTwice(const JsonPlace &root, const QString &projectFile,
                        const QList<ProgramEntry> &programs)
{
    QStringList former{projectFile};
    for (const ProgramEntry &program : programs) {
        const QString file = programPath(projectFile, program.file);
        for (const QString &other : std::as_const(former)) {
            if (isOneFile(file, other))
                root.fail(ProjectTexts::tr("\"%1\" and \"%2\" are one file")
                              .arg(program.file, QFileInfo(other).fileName()));
        }
        former.append(file);
    }
}

// All but the programs' texts, of a project whose file is to have the name.
ProjectContents readWithoutPrograms(const QString &file, const QString &fileName)
{
    const QByteArray json = readFile(file);
    const JsonPlace root = JsonPlace::parse(json, file);
    ProjectContents contents = readContents(root);
    refuseOneFileTwice(root, fileName, contents.programs);
    contents.json = json;
    return contents;
}

} // namespace

QString programPath(const QString &projectFile, const QString &program)
{
    return QFileInfo(projectFile).dir().filePath(program);
}

ProjectContents readProject(const QString &fileName)
{
    ProjectContents contents = readWithoutPrograms(fileName, fileName);
    for (const ProgramEntry &program : std::as_const(contents.programs))
        contents.texts.append(ProgramFile(readFile(programPath(fileName, program.file))));
    return contents;
}

ProjectContents readVersionBefore(const QString &fileName)
{
    ProjectContents contents = readWithoutPrograms(fileName + u'~', fileName);
    for (const ProgramEntry &program : std::as_const(contents.programs)) {
        const QString file = programPath(fileName, program.file);
        contents.texts.append(ProgramFile(readFile(QFileInfo(file).isFile() ? file : file + u'~')));
    }
    return contents;
}

} // namespace ORVTListview
