#include "ColouredCopy.h"

#include <ORVTListview/RichTextBox.h>

#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QTextDocumentFragment>

namespace ORVTListview {

using namespace Qt::StringLiterals;

void copyWithColours(RichTextBox &box)
{
    if (box.SelLength() == 0)
        return;
    auto *data = new QMimeData;
    // The toolkit makes of LF what the platform has.
    data->setText(box.SelText().replace(u"\r\n"_s, u"\n"_s));
    const QByteArray rtf = box.SelRTF().toLatin1(); // what it writes is 7-bit
    data->setData(u"text/rtf"_s, rtf);
    data->setData(u"application/rtf"_s, rtf);
    data->setHtml(box.textCursor().selection().toHtml());
    QGuiApplication::clipboard()->setMimeData(data);
}

} // namespace ORVTListview
