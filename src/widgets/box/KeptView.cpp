#include "widgets/box/KeptView.h"

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QScrollBar>

#include <algorithm>

namespace ORVTListview {
namespace {

// From right to left the bar counts from the other side.
int mirrored(const QPlainTextEdit &box, int left)
{
    return box.isRightToLeft() ? box.horizontalScrollBar()->maximum() - left : left;
}

int leftOf(const QPlainTextEdit &box)
{
    return mirrored(box, box.horizontalScrollBar()->value());
}

void setLeft(QPlainTextEdit &box, int left)
{
    box.horizontalScrollBar()->setValue(mirrored(box, left));
}

qreal heightOf(const QPlainTextEdit &box, const QTextBlock &block)
{
    return box.document()->documentLayout()->blockBoundingRect(block).height();
}

// A box knows the widths of the lines that it has laid out, and scrolls no further.
void layOutAround(const QPlainTextEdit &box, int line, int left)
{
    constexpr int mostLines = 1000;
    const QTextDocument &text = *box.document();
    const QScrollBar &bar = *box.horizontalScrollBar();
    QTextBlock block = text.findBlockByLineNumber(line);
    qreal rest = box.viewport()->height();
    for (; block.isValid() && rest > 0; block = block.next())
        rest -= heightOf(box, block);
    block = text.findBlockByLineNumber(std::max(0, line - mostLines / 2));
    for (int i = 0; i < mostLines && block.isValid() && bar.maximum() < left; ++i) {
        heightOf(box, block);
        block = block.next();
    }
}

struct Ends
{
    QRect first; // where the caret would stand, in the viewport
    QRect last;
};

Ends endsOfSelection(const QPlainTextEdit &box)
{
    QTextCursor first = box.textCursor();
    QTextCursor last = first;
    first.setPosition(first.selectionStart());
    last.setPosition(last.selectionEnd());
    return {box.cursorRect(first), box.cursorRect(last)};
}

// Whether a line of the selection is shown as a whole.
bool isShown(const QPlainTextEdit &box, const Ends &ends)
{
    const int height = box.viewport()->height();
    const int shown = std::min(ends.last.bottom() + 1, height) - std::max(ends.first.top(), 0);
    return shown >= std::min({ends.first.height(), ends.last.height(), height});
}

void bringToMiddle(QPlainTextEdit &box, const Ends &ends)
{
    const QTextCursor cursor = box.textCursor();
    QTextBlock top = box.document()->findBlock(cursor.selectionStart());
    qreal above = (box.viewport()->height() - ends.first.height()) / 2.0;
    while (top.previous().isValid() && above >= heightOf(box, top.previous())) {
        top = top.previous();
        above -= heightOf(box, top);
    }
    box.verticalScrollBar()->setValue(top.firstLineNumber());
}

// Of a selection within a line both ends, or as much as there is room for.
void scrollSideways(QPlainTextEdit &box, const Ends &ends)
{
    const int width = box.viewport()->width();
    const bool isOneLine = ends.first.top() == ends.last.top();
    const QRect wanted = isOneLine ? ends.first.united(ends.last) : ends.first;
    if (wanted.left() >= 0 && wanted.right() < width)
        return;
    const int left = wanted.left() + leftOf(box);
    if (wanted.width() >= width)
        setLeft(box, left);
    else if (left + wanted.width() < width)
        setLeft(box, 0);
    else
        setLeft(box, left - (width - wanted.width()) / 2);
}

} // namespace

KeptView::KeptView(QPlainTextEdit &box)
    : m_box(&box)
    , m_top(box.verticalScrollBar()->value())
    , m_left(leftOf(box))
{
}

KeptView::~KeptView()
{
    if (!m_box)
        return;
    m_box->verticalScrollBar()->setValue(m_top);
    layOutAround(*m_box, m_top, m_left);
    setLeft(*m_box, m_left);
    Ends ends = endsOfSelection(*m_box);
    const bool wasShown = isShown(*m_box, ends);
    if (!wasShown) {
        bringToMiddle(*m_box, ends);
        ends = endsOfSelection(*m_box);
    }
    if (!wasShown || ends.first.top() == ends.last.top())
        scrollSideways(*m_box, ends);
}

} // namespace ORVTListview
