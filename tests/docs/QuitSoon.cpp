// Linked to a document's example: ends it once it has shown its windows, and makes
// a warning a failure.

#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>

#include <cstdio>
#include <cstdlib>

namespace {

void failOnWarning(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    std::fprintf(stderr, "%s\n", qPrintable(message));
    // The off-screen platform has nobody to tell size hints to, and says so.
    if (message.startsWith(QLatin1String("This plugin does not support")))
        return;
    if (type != QtDebugMsg && type != QtInfoMsg)
        std::exit(1);
}

void quitSoon()
{
    qInstallMessageHandler(failOnWarning);
    QTimer::singleShot(200, QCoreApplication::instance(), &QCoreApplication::quit);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(quitSoon)
