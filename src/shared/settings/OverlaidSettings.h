#pragma once

#include "shared/settings/SettingsPlace.h"

namespace ORVTListview {

// The machine's settings under those of one user. Everything is written to the
// machine's place; what it does not take goes to the user's, which is read first.
// A setting that the machine's place has taken leaves the user's, so that what is
// read is always what was written last.
class OverlaidSettings final : public SettingsPlace
{
public:
    OverlaidSettings(std::unique_ptr<SettingsPlace> machine, std::unique_ptr<SettingsPlace> user);

    std::unique_ptr<const SettingsView> view() const override;
    bool write(const SettingChanges &changes) override;

private:
    std::unique_ptr<SettingsPlace> m_machine;
    std::unique_ptr<SettingsPlace> m_user;
};

} // namespace ORVTListview
