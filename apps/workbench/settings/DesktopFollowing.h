#pragma once

#include <QtCore/QObject>

namespace ORVTListview {

// From now on, and while the owner lives, the look of the system is dark when the desktop
// wants that. Nothing happens where there is nobody to ask.
void followDesktop(QObject &owner);

} // namespace ORVTListview
