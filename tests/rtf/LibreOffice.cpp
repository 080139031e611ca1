#include "rtf/LibreOffice.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QUrl>

using namespace Qt::StringLiterals;

namespace ORVTListview::Testing {
namespace {

QString program()
{
    return QStandardPaths::findExecutable(u"soffice"_s);
}

void keep(const QString &path, const QString &text)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(text.toLatin1());
}

QString contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

bool LibreOffice::isInstalled()
{
    return !program().isEmpty();
}

QStringList LibreOffice::convert(const QStringList &rtf, const QString &format)
{
    const QDir folder(m_folder.path());
    QStringList arguments = {u"-env:UserInstallation="_s +
                                 QUrl::fromLocalFile(folder.filePath(u"profile"_s)).toString(),
                             u"--headless"_s,
                             u"--convert-to"_s,
                             format,
                             u"--outdir"_s,
                             folder.path()};
    for (qsizetype i = 0; i < rtf.size(); ++i) {
        arguments += folder.filePath(u"%1.rtf"_s.arg(i));
        keep(arguments.last(), rtf[i]);
    }
    QProcess process;
    process.start(program(), arguments);
    process.waitForFinished(200'000);

    QStringList converted;
    for (qsizetype i = 0; i < rtf.size(); ++i)
        converted += contents(folder.filePath(u"%1.%2"_s.arg(i).arg(format.section(u':', 0, 0))));
    return converted;
}

} // namespace ORVTListview::Testing
