#include "editor/view/Bookmarks.h"

#include "editor/view/ScrollMarks.h"
#include "editor/view/ViewColours.h"
#include "widgets/box/KeptView.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QSet>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

namespace ORVTListview {

Bookmarks::Bookmarks(RichTextBox &box)
    : KeptLines(box)
{
}

void Bookmarks::toggle()
{
    const QTextBlock line = box().textCursor().block();
    QList<Numbered> marked = lines();
    if (marked.removeIf([&](const Numbered &each) { return each.line == line; }) == 0)
        marked.append({line});
    setLines(marked);
    Q_EMIT changed();
}

QList<qint32> Bookmarks::list() const
{
    QList<qint32> list;
    for (const Numbered &each : lines())
        list.append(each.line.blockNumber() + 1);
    return list;
}

void Bookmarks::set(const QList<qint32> &lines)
{
    QSet<qint32> known;
    QList<Numbered> marked;
    for (const qint32 line : lines) {
        const QTextBlock block = box().document()->findBlockByNumber(line - 1);
        if (block.isValid() && !known.contains(line))
            marked.append({block});
        known.insert(line);
    }
    setLines(marked);
    Q_EMIT changed();
}

bool Bookmarks::goToNext()
{
    if (isEmpty())
        return false;
    QTextCursor caret = box().textCursor();
    const qsizetype next = endOn(caret.block());
    caret.setPosition(places().lineAt(next % places().size()).position());
    const KeptView view(box());
    box().setTextCursor(caret);
    return true;
}

QList<LineMark> Bookmarks::marks() const
{
    const QColor colour = colourOn(ViewColours::groundOf(box()));
    QList<LineMark> marks;
    for (qsizetype i = 0; i < places().size(); ++i)
        marks.append({places().at(i).from, colour});
    return marks;
}

QColor Bookmarks::colourOn(const QColor &ground)
{
    return ViewColours::onGround(QColor(0x5c, 0x6b, 0xc0), ground, ViewColours::visible);
}

} // namespace ORVTListview
