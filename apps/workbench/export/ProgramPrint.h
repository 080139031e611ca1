#pragma once

class QPagedPaintDevice;
class QString;
class QTextDocument;

namespace ORVTListview {

// Prints a program in its colours, with the numbers of its lines, the title above and the
// page's number below each page; only the device's ranges of pages, if it has any. False when
// nothing can be drawn on the device.
bool printProgram(const QTextDocument &program, const QString &title, QPagedPaintDevice &device);

} // namespace ORVTListview
