#include "InstalledFiles.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>

namespace ORVTListview {

using namespace Qt::StringLiterals;

QString sampleProject()
{
    const QString sample = u"/samples/air-handling-unit/air-handling-unit.json"_s;
    const QString data =
        QCoreApplication::applicationDirPath() + u'/' + QStringLiteral(ORVT_DATA_FROM_PROGRAM);
    const QString installed = QDir::cleanPath(data) + sample;
    return QFile::exists(installed) ? installed : QStringLiteral(ORVT_BUILT_FROM) + sample;
}

} // namespace ORVTListview
