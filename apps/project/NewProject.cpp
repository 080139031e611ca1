#include "project/NewProject.h"

#include "project/JsonEdit.h"
#include "project/ProjectError.h"
#include "project/ProjectFileName.h"
#include "project/ProjectReader.h"
#include "project/ProjectTexts.h"
#include "project/TextFile.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

QString programOf(const QString &fileName)
{
    return QFileInfo(fileName).path() + u'/' + projectBaseName(fileName) + u".prog"_s;
}

} // namespace

QString newProjectFault(const QString &fileName)
{
    for (const QString &file : {fileName, programOf(fileName)}) {
        if (QFileInfo::exists(file) || QFileInfo(file).isSymLink())
            return ProjectTexts::tr("%1 is there already.").arg(QFileInfo(file).fileName());
    }
    return {};
}

void makeProject(const QString &fileName, const QString &name, const QByteArray &form)
{
    const QString fault = newProjectFault(fileName);
    if (!fault.isEmpty())
        throw Error(FileNotWritable, u"makeProject"_s, fault);
    const QString program = programOf(fileName);
    const JsonPlace root = JsonPlace::parse(form, fileName);
    JsonEdit edit(form);
    edit.replace(root.member(u"name"_s), name);
    edit.replace(root.member(u"program"_s), QFileInfo(program).fileName());
    const QByteArray json = edit.bytes();
    readContents(JsonPlace::parse(json, fileName)); // what is made can be opened
    const QString folder = QFileInfo(fileName).path();
    if (!QDir().mkpath(folder))
        throw Error(FileNotWritable, u"makeProject"_s,
                    ProjectTexts::tr("The folder %1 cannot be made.").arg(folder));
    writeFile(program, {});
    try {
        writeFile(fileName, json);
    } catch (const Error &) {
        QFile::remove(program);
        throw;
    }
}

} // namespace ORVTListview
