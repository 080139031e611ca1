#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

class QPagedPaintDevice;
class QTextDocument;

namespace ORVTListview {

struct PrintedProgram
{
    QString title;
    const QTextDocument *text = nullptr;
};

// Prints programs in their colours, each from a page of its own on, with the numbers of its
// lines, the title above and the page's number among all pages below each page; only the
// device's ranges of pages, if it has any. False when nothing can be drawn on the device.
bool printPrograms(const QList<PrintedProgram> &programs, QPagedPaintDevice &device);

} // namespace ORVTListview
