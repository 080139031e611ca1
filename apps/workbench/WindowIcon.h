#pragma once

#include <QtGui/QIcon>

namespace ORVTListview {

// The picture of the desktop's menu entry, for the frames of the windows.
QIcon windowIcon();

} // namespace ORVTListview
