#pragma once

#include "shared/settings/SettingsPlace.h"

#include <chrono>

namespace ORVTListview {

// Settings in a text file that any number of processes may read and write. A
// reader needs no lock: the file is always whole. A file that is damaged or
// cannot be read holds no settings, and is kept as NAME.damaged-1, -2 and so on
// when a new one is written. What is no file at all, such as a folder of that
// name, is left alone, and so is a file that may be read but not written.
// Why it is so: docs/decisions/settings.md.
class SettingsFile final : public SettingsPlace
{
public:
    // A writer waits for others at most as long as patience.
    explicit SettingsFile(const QString &fileName,
                          std::chrono::milliseconds patience = std::chrono::seconds(5));

    std::unique_ptr<const SettingsView> view() const override;
    bool write(const SettingChanges &changes) override;
    bool isOneWith(const SettingsPlace &other) const override;

private:
    QString m_fileName;
    std::chrono::milliseconds m_patience;
};

} // namespace ORVTListview
