#include "workbench/export/ColouredCopy.h"

#include "workbench/export/PaperText.h"

#include <ORVTListview/RichTextBox.h>

#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

namespace ORVTListview {

using namespace Qt::StringLiterals;

void copyWithColours(const RichTextBox &box, const PaperColours &colours)
{
    if (box.SelLength() == 0)
        return;
    const PaperText selected(box, colours, PaperText::Selected);
    auto *data = new QMimeData;
    // The toolkit makes of LF what the platform has.
    data->setText(box.SelText().replace(u"\r\n"_s, u"\n"_s));
    const QByteArray rtf = selected.rtf().toLatin1(); // what it writes is 7-bit
    data->setData(u"text/rtf"_s, rtf);
    data->setData(u"application/rtf"_s, rtf);
    data->setHtml(selected.html({}));
    QGuiApplication::clipboard()->setMimeData(data);
}

} // namespace ORVTListview
