#pragma once

#include "shared/settings/SettingsPlace.h"

#include <QtCore/qglobal.h>

namespace ORVTListview {

// One thread's access to the settings: the place in force and the transactions
// that are open on it.
class SettingsSession
{
public:
    SettingsSession();
    ~SettingsSession();
    Q_DISABLE_COPY_MOVE(SettingsSession) // owns the place

    void usePlace(std::unique_ptr<SettingsPlace> place);

    std::optional<QString> read(const SettingKey &key);
    void write(const SettingKey &key, const QString &value);

    // Strictly nested. From the first to the last of them all reading sees the
    // place as it was at the first reading, and the changes made meanwhile.
    void begin();
    void commit();
    void abandon();

private:
    void save(const SettingChanges &changes);
    SettingChanges end();

    std::unique_ptr<SettingsPlace> m_place;
    std::unique_ptr<const SettingsView> m_view; // while a transaction is open
    QList<SettingChanges> m_open;               // the changes of each, outermost first
};

} // namespace ORVTListview
