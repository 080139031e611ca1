#pragma once

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QString>

#include <string>

namespace ORVTListview {

// A file's name for the system's own functions, however long it is.
inline std::wstring systemPath(const QString &fileName)
{
    using namespace Qt::StringLiterals;
    const QString path = QDir::toNativeSeparators(QFileInfo(fileName).absoluteFilePath());
    if (path.startsWith(u"\\\\?\\"_s) || path.startsWith(u"\\\\.\\"_s))
        return path.toStdWString();
    if (path.startsWith(u"\\\\"_s)) // a folder that another machine shares
        return (u"\\\\?\\UNC"_s + path.sliced(1)).toStdWString();
    return (u"\\\\?\\"_s + path).toStdWString();
}

} // namespace ORVTListview
