// From the start of the workbench's process, with the sample, to its first picture, beside
// a bare window of the toolkit with a text edit.

#include "peer_process.h"
#include "report.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTemporaryDir>

using namespace ORVTListview::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr int repetitions = 25;

const QStringList workbench{QStringLiteral(ORVT_WORKBENCH), QStringLiteral(ORVT_SAMPLE)};
const QStringList bareWindow{QStringLiteral(ORVT_BARE_WINDOW)};

void checkWork()
{
    checkEqual(u"the workbench was painted"_s, QString::fromLatin1(outputOf(workbench)).trimmed(),
               u"ORVTListview::MainWindow"_s);
    checkEqual(u"the bare window was painted"_s,
               QString::fromLatin1(outputOf(bareWindow)).trimmed(), u"QMainWindow"_s);
}

void measure()
{
    const Sides sides = sideBySide(
        repetitions, [] { return runTime(workbench); }, [] { return runTime(bareWindow); });
    printRow({.name = u"The workbench starts, to its first picture"_s,
              .ours = medianOf(u"workbench"_s, sides.ours),
              .peers = medianOf(u"bare window"_s, sides.peers),
              .bound = 2.5});
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
    qputenv("QT_QPA_GENERIC_PLUGINS", "firstpicture");
    return runBenchmark(argc, argv, checkWork, measure);
}
