#pragma once

#include <QtCore/QObject>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusVariant>

namespace ORVTListview {

// Whether the desktop wants dark windows, as its settings portal tells. It is asked without
// waiting for the answer.
class DesktopScheme : public QObject
{
    Q_OBJECT

public:
    explicit DesktopScheme(const QDBusConnection &bus, QObject *parent = nullptr);

    bool isDark() const { return m_isDark; }

    // Whether there is a bus to ask; without one the toolkit would start its own.
    static bool hasBus();

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void hear(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void ask();
    void listen();
    void take(const QVariant &value);

    QDBusConnection m_bus;
    bool m_isDark = false;
};

} // namespace ORVTListview
