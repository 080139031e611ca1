#pragma once

#include <ORVTListview/Export.h>

#include <QtCore/QPointer>

class QPlainTextEdit;

namespace ORVTListview {

// What moves the caret or sets the text while it lives does not decide what a box shows.
// At its end the box shows the lines that it showed before; when none of the selection
// is among them, the line where that begins comes to the middle.
// Why it is so: docs/decisions/box.md.
class ORVT_EXPORT KeptView
{
public:
    explicit KeptView(QPlainTextEdit &box);
    ~KeptView();
    Q_DISABLE_COPY_MOVE(KeptView) // one end

private:
    QPointer<QPlainTextEdit> m_box;
    int m_top;  // the first line
    int m_left; // pixels
};

} // namespace ORVTListview
