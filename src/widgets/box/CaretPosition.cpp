#include "widgets/box/CaretPosition.h"

#include "shared/texts/TextTable.h"
#include <ORVTListview/RichTextBox.h>

namespace ORVTListview {

using namespace Qt::StringLiterals;

QString positionDisplay(const RichTextBox &box)
{
    const qint32 caret = box.SelStart();
    const qint32 line = box.GetLineFromChar(caret);
    const QString row = QString::number(line + 1);
    const QString column = QString::number(caret - box.lineStart(line) + 1);
    return Localise(u"Row:"_s) + u' ' + row + Localise(u", Col:"_s) + u' ' + column;
}

} // namespace ORVTListview
