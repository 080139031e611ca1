#include "editor/view/Bookmarks.h"

#include "editor/view/ScrollMarks.h"
#include "editor/view/ViewColours.h"
#include "widgets/box/KeptView.h"
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>

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
