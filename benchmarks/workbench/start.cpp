// From the start of the workbench's process to its first picture, and to the one with the
// sample's program, beside a bare window of the toolkit with an empty text edit.

#include "support/peer_process.h"
#include "support/report.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>

using namespace ORVTListview::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr int repetitions = 25;

QStringList workbench{QStringLiteral(ORVT_WORKBENCH)};
const QStringList bareWindow{QStringLiteral(ORVT_BARE_WINDOW)};

// What is ended at its picture leaves the lock of its project.
QString copyOfSample(const QDir &folder)
{
    const QFileInfo sample(QStringLiteral(ORVT_SAMPLE));
    const QFileInfoList files =
        sample.dir().entryInfoList({sample.completeBaseName() + u".*"_s}, QDir::Files);
    for (const QFileInfo &file : files)
        check(u"the sample is copied"_s,
              QFile::copy(file.filePath(), folder.filePath(file.fileName())));
    return folder.filePath(sample.fileName());
}

// Which picture ends what is started.
void waitFor(const char *picture)
{
    qputenv("QT_QPA_GENERIC_PLUGINS", picture);
}

constexpr const char *first = "firstpicture";
constexpr const char *withText = "firstpicture:text";

void checkWork()
{
    for (const char *picture : {withText, first}) {
        waitFor(picture);
        checkEqual(u"the workbench was painted"_s,
                   QString::fromLatin1(outputOf(workbench)).trimmed(),
                   u"ORVTListview::MainWindow"_s);
    }
    checkEqual(u"the bare window was painted"_s,
               QString::fromLatin1(outputOf(bareWindow)).trimmed(), u"QMainWindow"_s);
}

void measureTo(const char *picture, const QString &name, double bound)
{
    const auto start = [picture] {
        waitFor(picture);
        return runTime(workbench);
    };
    const auto startPeer = [] {
        waitFor(first);
        return runTime(bareWindow);
    };
    const Sides sides = sideBySide(repetitions, start, startPeer);
    printRow({.name = name,
              .ours = medianOf(u"workbench"_s, sides.ours),
              .peers = medianOf(u"bare window"_s, sides.peers),
              .bound = bound});
}

void measure()
{
    measureTo(first, u"The workbench starts, to its first picture"_s, 2.5);
    measureTo(withText, u"The workbench starts, to the picture with the program"_s, 3.5);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir home; // nothing that was decided or left by anybody
    for (const char *place : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
        qputenv(place, home.path().toLocal8Bit());
    qputenv("QT_LOGGING_RULES", "default.warning=false"); // of what a platform cannot do
    qputenv("QT_PLUGIN_PATH", ORVT_PLUGINS);
    workbench.append(copyOfSample(QDir(home.path())));
    return runBenchmark(argc, argv, checkWork, measure);
}
