#pragma once

namespace ORVTListview {

enum class Theme {
    System, // as the desktop is, now and when it changes
    Light,
    Dark,
};

// Shows the whole application so, from now on.
void useTheme(Theme theme);

} // namespace ORVTListview
