#include "MainWindow.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QDir>
#include <QtCore/QTextStream>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

using namespace Qt::StringLiterals;

namespace {

struct Options
{
    QString project;
    QString screenshot;
};

Options parse(const QCoreApplication &application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QCoreApplication::translate("main", "Shows a controller project."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption screenshot(
        u"screenshot"_s,
        QCoreApplication::translate("main", "Write a picture of the window and quit."),
        u"file.png"_s);
    parser.addOption(screenshot);
    parser.addPositionalArgument(
        u"project"_s,
        QCoreApplication::translate("main", "The project file; the sample project without one."),
        u"[project]"_s);
    parser.process(application);
    const QStringList projects = parser.positionalArguments();
    return {projects.value(0, QStringLiteral(ORVT_SAMPLE_PROJECT)), parser.value(screenshot)};
}

int writeScreenshot(QWidget &window, const QString &file)
{
    if (!window.grab().save(file)) {
        QTextStream(stderr) << "Cannot write " << file << Qt::endl;
        return 1;
    }
    QTextStream(stdout) << "Picture written to " << QDir::current().absoluteFilePath(file)
                        << Qt::endl;
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QApplication::setApplicationName(u"workbench"_s);
    QApplication::setApplicationDisplayName(QCoreApplication::translate("main", "Workbench"));
    const Options options = parse(application);

    ORVTListview::MainWindow window;
    window.show();
    if (!window.openProject(options.project))
        return 1;
    if (!options.screenshot.isEmpty()) {
        QTimer::singleShot(0, &window, [&] {
            QCoreApplication::exit(writeScreenshot(window, options.screenshot));
        });
    }
    return QApplication::exec();
}
