#include "widgets/box/CaretPosition.h"

#include "shared/texts/TextTable.h"
#include <ORVTListview/RichTextBox.h>

namespace ORVTListview {

using namespace Qt::StringLiterals;

CaretPosition caretPosition(const RichTextBox &box)
{
    const qint32 caret = box.SelStart();
    const qint32 line = box.GetLineFromChar(caret);
    return {line + 1, caret - box.lineStart(line) + 1};
}

QString positionDisplay(const CaretPosition &position)
{
    const QString row = QString::number(position.row);
    const QString column = QString::number(position.column);
    return Localise(u"Row:"_s) + u' ' + row + Localise(u", Col:"_s) + u' ' + column;
}

} // namespace ORVTListview
