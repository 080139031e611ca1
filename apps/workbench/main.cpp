#include "CommandLine.h"
#include "DarkColours.h"
#include "Languages.h"
#include "MainWindow.h"

#include "project/TextFile.h"

#include <ORVTListview/Error.h>

#include <QtCore/QBuffer>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTextStream>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

int writeScreenshot(QWidget &window, const QString &file)
{
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

void prepareLook(const Options &options)
{
    if (options.isDark)
        useDarkColours();
    if (!options.screenshot.isEmpty())
        QApplication::setCursorFlashTime(0); // one picture is like the other
}

// Nobody is there to answer while a picture is made.
bool open(MainWindow &window, const Options &options)
{
    if (options.screenshot.isEmpty()) {
        window.openForUser(options.project);
        window.showType(options.shown);
        return true;
    }
    try {
        window.openProject(options.project);
        window.showType(options.shown);
        return true;
    } catch (const Error &error) {
        QTextStream(stderr) << error.Description() << Qt::endl;
        return false;
    }
}

} // namespace

int main(int argc, char **argv)
{
    applyScale(argc, argv);
    const QApplication application(argc, argv);
    QApplication::setApplicationName(u"workbench"_s);
    Languages languages;
    const std::optional<Options> options = readOptions(application);
    if (!options)
        return 1;
    if (!options->language.isEmpty())
        languages.setLanguage(QLocale(options->language));
    QApplication::setApplicationDisplayName(QCoreApplication::translate("main", "Workbench"));
    prepareLook(*options);

    MainWindow window(languages);
    window.show();
    if (!open(window, *options))
        return 1;
    if (!options->screenshot.isEmpty()) {
        QTimer::singleShot(0, &window, [&] {
            QCoreApplication::exit(writeScreenshot(window, options->screenshot));
        });
    }
    return QApplication::exec();
}
