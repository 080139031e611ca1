#include "project/KeptVersion.h"

#include "project/ProjectError.h"
#include "project/TextFile.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace ORVTListview {

QString keepVersionBefore(const QString &fileName)
{
    if (!QFileInfo(fileName).isFile())
        return {};
    const QString before = fileName + u'~';
    // What is there keeps its rights.
    const bool isNew =
        QFile(before).open(QIODevice::NewOnly | QIODevice::WriteOnly, QFile::permissions(fileName));
    try {
        writeFile(before, readFile(fileName));
        return {};
    } catch (const Error &error) {
        if (isNew)
            QFile::remove(before); // nobody is to take it for a version
        return error.Description();
    }
}

} // namespace ORVTListview
