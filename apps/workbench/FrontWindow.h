#pragma once

class QWidget;

namespace ORVTListview {

// Where a dialog belongs: to the view's own window that the user works in, so that this has the
// focus again when the dialog is closed, else to the main window.
QWidget &frontWindow(QWidget &main);

} // namespace ORVTListview
