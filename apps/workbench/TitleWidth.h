#pragma once

class QWidget;

namespace ORVTListview {

// Pixels that the title of a window takes with what stands beside it in the frame. A dialog that
// is narrower has its title cut.
int titleWidth(const QWidget &window);

} // namespace ORVTListview
