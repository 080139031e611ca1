#include "workbench/settings/DesktopScheme.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "workbench/settings/Theme.h"

#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVariant>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QApplication>

using namespace Qt::StringLiterals;
using namespace ORVTListview;

// A settings portal, on a bus of the test's own.
class Portal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    uint scheme = 0;

    Q_SCRIPTABLE QDBusVariant Read(const QString &, const QString &)
    {
        return QDBusVariant(QVariant::fromValue(QDBusVariant(scheme)));
    }
};

class DesktopSchemeTest : public WidgetTest
{
    Q_OBJECT

private:
    static void tell(QDBusConnection &desktop, const QString &key, uint value)
    {
        QDBusMessage signal =
            QDBusMessage::createSignal(u"/org/freedesktop/portal/desktop"_s,
                                       u"org.freedesktop.portal.Settings"_s, u"SettingChanged"_s);
        signal << u"org.freedesktop.appearance"_s << key
               << QVariant::fromValue(QDBusVariant(value));
        QVERIFY(desktop.send(signal));
    }

    static int baseLightness() { return QApplication::palette().color(QPalette::Base).lightness(); }

private Q_SLOTS:
    void cleanup() { useTheme(Theme::System); }

    void thePortalIsAsked()
    {
        const QString program = QStandardPaths::findExecutable(u"dbus-daemon"_s);
        if (program.isEmpty())
            QSKIP("there is no dbus-daemon");
        QProcess daemon;
        daemon.start(program, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        QVERIFY(daemon.waitForReadyRead());
        const QString address = QString::fromUtf8(daemon.readLine()).trimmed();
        {
            QDBusConnection desktop = QDBusConnection::connectToBus(address, u"desktop"_s);
            QVERIFY(desktop.isConnected());
            Portal portal;
            portal.scheme = 1;
            QVERIFY(desktop.registerObject(u"/org/freedesktop/portal/desktop"_s, &portal,
                                           QDBusConnection::ExportScriptableInvokables));
            QVERIFY(desktop.registerService(u"org.freedesktop.portal.Desktop"_s));
            const DesktopScheme scheme(QDBusConnection::connectToBus(address, u"user"_s));
            QVERIFY(!scheme.isDark()); // nobody waits for the answer
            QSignalSpy changed(&scheme, &DesktopScheme::changed);
            QTRY_VERIFY(scheme.isDark());
            QCOMPARE(changed.size(), 1);
            tell(desktop, u"contrast"_s, 0);
            tell(desktop, u"color-scheme"_s, 2);
            QTRY_VERIFY(!scheme.isDark());
            QCOMPARE(changed.size(), 2);
        }
        QDBusConnection::disconnectFromBus(u"user"_s);
        QDBusConnection::disconnectFromBus(u"desktop"_s);
        daemon.terminate();
        daemon.waitForFinished();
    }

    void withoutABusNothingIsWanted()
    {
        const DesktopScheme scheme(QDBusConnection(u"none"_s));
        QVERIFY(!scheme.isDark());
    }

    void theWishCountsForTheThemeOfTheSystem()
    {
        const int former = baseLightness();
        QVERIFY(former > 128);
        setDesktopDark(true);
        QVERIFY(baseLightness() < 60);
        useTheme(Theme::Light);
        QVERIFY(baseLightness() > 200);
        useTheme(Theme::System);
        QVERIFY(baseLightness() < 60);
        setDesktopDark(false);
        QCOMPARE(baseLightness(), former);
    }
};

ORVT_TEST(DesktopSchemeTest)
#include "DesktopSchemeTest.moc"
