#pragma once

#include <QtCore/QString>

namespace ORVTListview {

// One line of a settings file. Names and values that would not come back as they
// are stand in quotes; docs/guide/settings-file.md has the rules.
struct SettingsLine
{
    enum class Kind { Other, Section, Setting };

    Kind kind = Kind::Other;
    QString name; // of the section or the setting
    QString value;

    friend bool operator==(const SettingsLine &, const SettingsLine &) = default;
};

// Any text is a line; one that is neither section nor setting, such as a
// comment, is Other.
SettingsLine readSettingsLine(QStringView text);

// Any name and value, of any UTF-16 units, is read back as it was.
QString sectionText(const QString &name);
QString settingText(const QString &name, const QString &value);

} // namespace ORVTListview
