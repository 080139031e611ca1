#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

#include <memory>
#include <optional>

namespace ORVTListview {

struct SettingKey
{
    QString application;
    QString name;

    friend bool operator==(const SettingKey &, const SettingKey &) = default;
};

struct SettingChange
{
    SettingKey key;
    std::optional<QString> value; // none: the setting is removed
};

// In order: of two changes of one setting the later one counts.
using SettingChanges = QList<SettingChange>;

// A place's settings as they stood at one moment.
class SettingsView
{
public:
    SettingsView() = default;
    Q_DISABLE_COPY_MOVE(SettingsView) // one moment, one view
    virtual ~SettingsView() = default;

    virtual std::optional<QString> value(const SettingKey &key) const = 0;
};

// A place that keeps settings.
class SettingsPlace
{
public:
    SettingsPlace() = default;
    Q_DISABLE_COPY_MOVE(SettingsPlace) // two writers would not know of each other
    virtual ~SettingsPlace() = default;

    virtual std::unique_ptr<const SettingsView> view() const = 0;

    // All or none, if the place can. Changes that change nothing succeed anywhere.
    virtual bool write(const SettingChanges &changes) = 0;

    // Whether what is written here is written there. To be asked after writing: before
    // it there may be nothing to tell by.
    virtual bool isOneWith(const SettingsPlace &other) const { return this == &other; }
};

} // namespace ORVTListview
