// Another process for the tests of saving, which runs out of room or of rights.
// The second argument is a file in a folder of the test's own.
//
//   disk FILE        the file's folder has 0 to 16 free pages
//   limit FILE       no file may grow beyond 0 to 16 pages
//   powerless FILE   one saving without any rights
//   forever FILE     numberedProgram(1), (2), (3) ...; prints each number once it is saved
//
// Else prints a line for each saving: the outcome, what the file then holds and the
// names in the folder, or why the saving failed.

#include "apps/NumberedProgram.h"
#include "project/ProjectError.h"
#include "project/TextFile.h"
#include "support/DiskLimits.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTextStream>

#include <functional>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

constexpr qint64 page = 4096;
constexpr qint64 mostPages = 16;

const QByteArray oldProgram(3 * page, 'o');
const QByteArray newProgram(14859, 'n');

void print(const QString &line)
{
    QTextStream(stdout) << line << Qt::endl;
}

QString save(const QString &file)
{
    try {
        writeFile(file, newProgram);
        return u"saved"_s;
    } catch (const Error &error) {
        return error.Number() == FileNotWritable ? u"refused"_s : error.Description();
    }
}

QString found(const QString &file)
{
    const QByteArray content = readFile(file);
    if (content == oldProgram)
        return u"old"_s;
    return content == newProgram ? u"new"_s : u"torn"_s;
}

void saveInFolder(const QString &file, const std::function<void(qint64)> &leaveRoom)
{
    const QDir folder = QFileInfo(file).dir();
    for (qint64 free = 0; free <= mostPages; ++free) {
        DiskLimits::limitFiles(mostPages * 4 * page);
        QFile::remove(folder.filePath(u"filling"_s));
        writeFile(file, oldProgram);
        leaveRoom(free * page);
        const QString outcome = save(file);
        const QString names = folder.entryList(QDir::Files | QDir::Hidden).join(u' ');
        print(u"%1 %2 %3"_s.arg(outcome, found(file), names));
    }
}

void savePowerless(const QString &file)
{
    DiskLimits::dropRights();
    try {
        writeFile(file, newProgram);
        print(u"saved"_s);
    } catch (const Error &error) {
        print(error.Description());
    }
}

void saveForEver(const QString &file)
{
    for (int number = 1;; ++number) {
        writeFile(file, numberedProgram(number));
        print(QString::number(number));
    }
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3)
        return 2;
    const QByteArray way = argv[1];
    const QString file = QString::fromLocal8Bit(argv[2]);
    const QString folder = QFileInfo(file).path();
    if (way == "disk") {
        DiskLimits::mount(folder, (2 * mostPages) * page);
        saveInFolder(file, [&folder](qint64 room) { DiskLimits::fill(folder, room); });
    } else if (way == "limit") {
        saveInFolder(file, [](qint64 room) { DiskLimits::limitFiles(room); });
    } else if (way == "forever") {
        saveForEver(file);
    } else {
        savePowerless(file);
    }
    return 0;
}
