#include "workbench/export/ColouredCopy.h"

#include "workbench/export/PaperText.h"

#include <ORVTListview/DataObject.h>
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
    DataObject(data, DataObject::Side::Source).SetData(selected.rtf(), DataObject::RichText);
    data->setHtml(selected.html({}));
    QGuiApplication::clipboard()->setMimeData(data);
}

} // namespace ORVTListview
