#pragma once

namespace ORVTListview {

enum class Theme {
    System, // as the desktop is, now and when it changes
    Light,
    Dark,
};

// Shows the whole application so, from now on.
void useTheme(Theme theme);

// Whether the desktop wants Theme::System dark; at first what the toolkit knows of that counts.
void setDesktopDark(bool isDark);

} // namespace ORVTListview
