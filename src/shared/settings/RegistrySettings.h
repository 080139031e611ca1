#pragma once

#include "shared/settings/SettingsPlace.h"

namespace ORVTListview {

// The three operations needed of a registry hive. Each opens the key of that
// path, which is parted by backslashes, and closes it again. Data is what the
// registry holds of a string value: the text and, as a rule, a NUL at its end.
class Registry
{
public:
    Registry() = default;
    Q_DISABLE_COPY_MOVE(Registry) // stands for the system's
    virtual ~Registry();

    virtual std::optional<QString> data(const QString &path, const QString &name) const = 0;
    virtual bool setData(const QString &path, const QString &name, const QString &data) = 0;
    virtual bool remove(const QString &path, const QString &name) = 0;
};

// Settings as string values of a registry key per application.
class RegistrySettings final : public SettingsPlace
{
public:
    explicit RegistrySettings(std::shared_ptr<Registry> registry);

    // A registry shows what it holds at each question.
    std::unique_ptr<const SettingsView> view() const override;

    // A registry has no transactions: the values are set one by one, and whoever reads
    // meanwhile sees some of them. If one is refused, those before it are put back.
    bool write(const SettingChanges &changes) override;

private:
    struct Former
    {
        SettingKey key;
        std::optional<QString> data;
    };
    void putBack(const QList<Former> &formers);
    bool write(const SettingChange &change);

    std::shared_ptr<Registry> m_registry;
};

} // namespace ORVTListview
