#include "project/TableSaving.h"

#include "project/ProjectColumns.h"
#include "project/ProjectError.h"
#include "project/ProjectReader.h"
#include "project/ProjectTexts.h"
#include "project/TableEdit.h"

namespace ORVTListview {

using namespace Qt::StringLiterals;

QByteArray TableSaving::into(const QByteArray &json, Theirs theirs) const
{
    const ProjectContents contents = readContents(JsonPlace::parse(json, fileName));
    const ProjectTables &there = contents.rows;
    QByteArray result = json;
    if (programs != savedPrograms && programs != contents.programs) {
        if (theirs == Theirs::Kept && contents.programs != savedPrograms)
            throw Error(FileNotWritable, u"Project"_s,
                        ProjectTexts::tr("%1: its %2 have been changed elsewhere")
                            .arg(fileName, u"programs"_s));
        result = withProgramEntries(result, fileName, programs);
    }
    for (const LwType type : projectTypes()) {
        const QList<ProjectRow> list = now.value(type);
        if (list == saved.value(type) || list == there.value(type))
            continue;
        if (theirs == Theirs::Kept && there.value(type) != saved.value(type))
            throw Error(FileNotWritable, u"Project"_s,
                        ProjectTexts::tr("%1: its %2 have been changed elsewhere")
                            .arg(fileName, projectMember(type)));
        result = withRows(result, fileName, type, there.value(type), list);
    }
    readContents(JsonPlace::parse(result, fileName)); // it may have changed meanwhile
    return result;
}

} // namespace ORVTListview
