#include "editor/BoxSelection.h"

#include "widgets/box/BoxText.h"
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

namespace ORVTListview {

BoxSelection selectionOf(const RichTextBox &box)
{
    const qint32 start = box.SelStart();
    const qint32 end = start + box.SelLength();
    const QTextCursor cursor = box.textCursor();
    return cursor.position() < cursor.anchor() ? BoxSelection{end, start}
                                               : BoxSelection{start, end};
}

void select(RichTextBox &box, const BoxSelection &selection)
{
    const BoxText &text = BoxText::of(*box.document());
    QTextCursor cursor = box.textCursor();
    cursor.setPosition(text.toDocument(selection.anchor));
    cursor.setPosition(text.toDocument(selection.caret), QTextCursor::KeepAnchor);
    box.setTextCursor(cursor);
}

LineSpan selectedLines(const RichTextBox &box)
{
    const qint32 start = box.SelStart();
    const qint32 end = start + box.SelLength();
    LineSpan lines{box.GetLineFromChar(start), box.GetLineFromChar(end)};
    if (lines.last > lines.first && box.lineStart(lines.last) == end)
        --lines.last;
    return lines;
}

QStringList textsOf(const RichTextBox &box, const LineSpan &lines)
{
    QStringList texts;
    texts.reserve(lines.count());
    for (qint32 line = lines.first; line <= lines.last; ++line)
        texts << box.lineText(line);
    return texts;
}

qint32 lineEnd(const RichTextBox &box, qint32 line)
{
    return box.lineStart(line) + static_cast<qint32>(box.lineText(line).size());
}

} // namespace ORVTListview
