// orvt-widget-pictures FOLDER: shows the library's widgets in every language, light
// and dark, at 100 % and 200 %, one sheet for each, to be looked at.
// orvt-widget-pictures compare KEPT FOLDER: draws one sheet of each scene and compares it
// with the one that is kept.

#include "base/ThreadState.h"
#include "pictures/Comparison.h"
#include "pictures/Scenes.h"
#include "workbench/settings/Theme.h"
#include <ORVTListview/TranslatedTexts.h>

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTextStream>
#include <QtWidgets/QApplication>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const QStringList themes{u"light"_s, u"dark"_s};

int drawSheets(const QDir &folder, const QString &theme, const QString &scale)
{
    if (theme == u"dark")
        useTheme(Theme::Dark);
    else
        QApplication::setStyle(u"Fusion"_s);
    for (const QLocale &language : TranslatedTexts::availableLanguages()) {
        TranslatedTexts texts(language);
        for (const Scene &scene : scenes()) {
            const ThreadState::Fresh state;
            setTextProvider(&texts);
            Sheet sheet;
            scene.show(sheet);
            const QString file =
                QStringList{QString::fromLatin1(scene.name),
                            QLocale::languageToCode(language.language()), theme, scale}
                    .join(u'-') +
                u".png"_s;
            if (!sheet.image().save(folder.filePath(file)))
                return 1;
        }
    }
    return 0;
}

// The scale is the toolkit's own, which is chosen at its start.
int drawInProcess(const QString &folder, const QString &theme, const QString &scale)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    environment.insert(u"QT_SCALE_FACTOR"_s, scale);
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QCoreApplication::applicationFilePath(), {folder, theme, scale});
    const bool isFinished = process.waitForFinished(120'000);
    return isFinished && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : 1;
}

int drawAll(const QString &folder)
{
    if (!QDir().mkpath(folder))
        return 1;
    for (const QString &theme : themes) {
        for (const QString &scale : {u"1"_s, u"2"_s}) {
            if (const int failed = drawInProcess(folder, theme, scale))
                return failed;
        }
    }
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 4) {
        const QApplication application(argc, argv);
        const QStringList arguments = QApplication::arguments();
        if (arguments[1] == u"compare")
            return compareSheets(QDir(arguments[2]), QDir(arguments[3]));
        return drawSheets(QDir(arguments[1]), arguments[2], arguments[3]);
    }
    const QCoreApplication application(argc, argv);
    if (argc != 2) {
        QTextStream(stderr) << "usage: orvt-widget-pictures FOLDER | compare KEPT FOLDER\n";
        return 2;
    }
    return drawAll(QCoreApplication::arguments().at(1));
}
