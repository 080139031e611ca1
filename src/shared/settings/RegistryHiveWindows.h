#pragma once

#include "shared/settings/RegistrySettings.h"

namespace ORVTListview {

// A hive of the system's registry. Reading creates nothing; a value that is no text is
// none, and is replaced when it is written.
class RegistryHive final : public Registry
{
public:
    enum class Owner { Machine, User };

    explicit RegistryHive(Owner owner)
        : m_owner(owner)
    {
    }

    std::optional<QString> data(const QString &path, const QString &name) const override;
    bool setData(const QString &path, const QString &name, const QString &data) override;
    bool remove(const QString &path, const QString &name) override;

private:
    const Owner m_owner;
};

} // namespace ORVTListview
