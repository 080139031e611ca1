#include "project/ProjectFileName.h"

#include <QtCore/QFileInfo>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr auto projectEnding = ".orvt.json"_L1;

} // namespace

// What one of the usual systems does not take becomes a line.
QString fileNameFor(const QString &name)
{
    QString base = name;
    for (QChar &c : base) {
        if (u"\\/:*?\"<>|"_s.contains(c) || c < u' ')
            c = u'-';
    }
    while (base.startsWith(u'.') || base.startsWith(u' '))
        base.remove(0, 1);
    while (base.endsWith(u'.') || base.endsWith(u' '))
        base.chop(1);
    return base.isEmpty() ? u"project"_s : base;
}

QString projectFileName(const QString &name)
{
    return fileNameFor(name) + projectEnding;
}

QString projectBaseName(const QString &fileName)
{
    const QFileInfo file(fileName);
    return file.fileName().endsWith(projectEnding, Qt::CaseInsensitive)
               ? file.fileName().chopped(projectEnding.size())
               : file.completeBaseName();
}

} // namespace ORVTListview
