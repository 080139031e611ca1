#include "CommandLine.h"
#include "ContextMenuKey.h"
#include "InstalledFiles.h"
#include "Languages.h"
#include "MainWindow.h"
#include "ProjectView.h"
#include "WindowIcon.h"

#include "project/TextFile.h"
#include "workbench/life/FirstPicture.h"
#include "workbench/life/RecentProjects.h"
#include "workbench/settings/DesktopFollowing.h"
#include "workbench/settings/KeptProjects.h"
#include "workbench/settings/KeptWindow.h"
#include "workbench/views/Workplace.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/Error.h>

#include <QtCore/QBuffer>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>
#include <QtCore/QTextStream>
#include <QtCore/QTimer>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>

#include <utility>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

int writeScreenshot(MainWindow &window, const QString &file)
{
    window.findChild<Workplace *>()->dress();
    QByteArray picture;
    QBuffer buffer(&picture);
    if (!window.grab().save(&buffer, QFileInfo(file).suffix().toLatin1().constData())) {
        QTextStream(stderr) << "Cannot write " << file << Qt::endl;
        return 1;
    }
    try {
        writeFile(file, picture);
    } catch (const Error &error) {
        QTextStream(stderr) << "Cannot write " << error.Description() << Qt::endl;
        return 1;
    }
    QTextStream(stdout) << "Picture written to " << QDir::current().absoluteFilePath(file)
                        << Qt::endl;
    return 0;
}

QString storeFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           u"/orvtlistview/workbench.ini"_s;
}

// What the options say goes before what the user has decided once.
Settings settingsFor(const Options &options, Settings settings)
{
    if (options.isDark)
        settings.theme = Theme::Dark;
    if (!options.language.isEmpty())
        settings.language = QLocale(options.language);
    return settings;
}

// What the user leaves is there again the next time; what the options say, for this time,
// is not.
void keep(MainWindow &window, QSettings &store, const Settings &stored)
{
    window.recentProjects().keepIn(store);
    CodeView &view = *window.findChild<ProjectView *>()->program().codeView();
    readWindow(store, window, view);
    QObject::connect(&window, &MainWindow::settingsChosen,
                     [&, kept = stored, shown = window.settings()]() mutable {
                         kept.takeChanges(std::exchange(shown, window.settings()),
                                          window.settings());
                         kept.write(store);
                     });
    auto *projects = new KeptProjects(store, window);
    QObject::connect(&window, &MainWindow::leaving, &window, [&, projects] {
        projects->write();
        writeWindow(store, window, view);
    });
}

// Whoever names a project knows what to begin with.
bool isFirstStart(const Options &options, QSettings &store)
{
    constexpr auto key = "firstSteps"_L1;
    const bool isFirst = store.value(key).toString() != "seen"_L1;
    store.setValue(key, u"seen"_s);
    return isFirst && options.project.isEmpty();
}

void open(MainWindow &window, const Options &options)
{
    if (options.project.isEmpty())
        window.openAtStart(sampleProject());
    else
        window.openForUser(options.project);
    window.showType(options.shown);
}

// Nobody is there to answer while a picture is made.
bool openForPicture(MainWindow &window, const Options &options)
{
    try {
        window.openProject(options.project.isEmpty() ? sampleProject() : options.project);
        window.showType(options.shown);
        return true;
    } catch (const Error &error) {
        QTextStream(stderr) << error.Description() << Qt::endl;
        return false;
    }
}

int runForPicture(MainWindow &window, const Options &options)
{
    QApplication::setCursorFlashTime(0);
    window.keepNothing();
    window.show();
    if (!openForPicture(window, options))
        return 1;
    QTimer::singleShot(
        0, &window, [&] { QCoreApplication::exit(writeScreenshot(window, options.screenshot)); });
    return QApplication::exec();
}

// The window is there before the project is.
int runForUser(MainWindow &window, const Options &options, QSettings &store, const Settings &stored)
{
    constexpr double roomInFrame = 0.97;
    window.resize(window.size().boundedTo(window.screen()->availableSize() * roomInFrame));
    keep(window, store, stored);
    const auto *picture = new FirstPicture(window);
    QObject::connect(picture, &FirstPicture::seen, &window, [&] {
        open(window, options);
        if (isFirstStart(options, store))
            window.showFirstSteps();
    });
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    applyScale(argc, argv);
    const QApplication application(argc, argv);
    QApplication::setApplicationName(u"workbench"_s);
    QApplication::setDesktopFileName(u"orvtlistview-workbench"_s);
    QApplication::setWindowIcon(windowIcon());
    Languages languages;
    const std::optional<Options> options = readOptions(application);
    if (!options)
        return 1;
    // One picture is like the other, whatever the user has decided.
    const bool isPicture = !options->screenshot.isEmpty();
    QSettings store(isPicture ? QString() : storeFile(), QSettings::IniFormat);
    Settings stored;
    stored.read(store);
    const Settings settings = settingsFor(*options, stored);
    useTheme(settings.theme);
    if (settings.language)
        languages.setLanguage(*settings.language);
    QApplication::setApplicationDisplayName(QCoreApplication::translate("main", "Workbench"));

    if (!isPicture) // one is like the other
        followDesktop(*qApp);

#ifndef Q_OS_WIN // where the system has it
    const ContextMenuKey menuKey;
#endif
    MainWindow window(languages);
    window.setSettings(settings);
    window.setSample(sampleProject());
    return isPicture ? runForPicture(window, *options)
                     : runForUser(window, *options, store, stored);
}
