#include "workbench/settings/DesktopScheme.h"

#include <QtCore/QFileInfo>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusPendingReply>

#include <utility>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

const QString service = u"org.freedesktop.portal.Desktop"_s;
const QString path = u"/org/freedesktop/portal/desktop"_s;
const QString interface = u"org.freedesktop.portal.Settings"_s;
const QString appearance = u"org.freedesktop.appearance"_s;
const QString colourScheme = u"color-scheme"_s;

} // namespace

DesktopScheme::DesktopScheme(const QDBusConnection &bus, QObject *parent)
    : QObject(parent)
    , m_bus(bus)
{
    if (!m_bus.isConnected())
        return;
    ask();
}

bool DesktopScheme::hasBus()
{
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + u"/bus"_s);
}

void DesktopScheme::ask()
{
    QDBusMessage question = QDBusMessage::createMethodCall(service, path, interface, u"Read"_s);
    question << appearance << colourScheme;
    auto *answer = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (!reply.isError())
            take(reply.value().variant());
        listen();
        answer->deleteLater();
    });
}

// Not before the bus has answered, when the toolkit takes no connections yet; and from
// anybody: to know who has the name, it would wait.
void DesktopScheme::listen()
{
    m_bus.connect(QString(), path, interface, u"SettingChanged"_s, this,
                  SLOT(hear(QString, QString, QDBusVariant)));
}

void DesktopScheme::hear(const QString &group, const QString &key, const QDBusVariant &value)
{
    if (group == appearance && key == colourScheme)
        take(value.variant());
}

// The answer to a question has one variant more around it.
void DesktopScheme::take(const QVariant &value)
{
    const bool isWrapped = value.metaType() == QMetaType::fromType<QDBusVariant>();
    const uint number = (isWrapped ? value.value<QDBusVariant>().variant() : value).toUInt();
    const bool isDark = number == 1; // 2 is light, 0 neither
    if (std::exchange(m_isDark, isDark) != isDark)
        Q_EMIT changed();
}

} // namespace ORVTListview
