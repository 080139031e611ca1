#pragma once

class QMainWindow;
class QSettings;

namespace ORVTListview {

class CodeView;

// Where the window stands, how its parts are arranged, and what the editor shows, as the
// user left them.
void readWindow(const QSettings &store, QMainWindow &window, CodeView &view);
void writeWindow(QSettings &store, const QMainWindow &window, const CodeView &view);

} // namespace ORVTListview
