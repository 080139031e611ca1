#include "editor/view/PairMarks.h"

#include "editor/rules/structure/Brackets.h"
#include "editor/view/LayerOrder.h"
#include "editor/view/LinePlaces.h"
#include "editor/view/ViewColours.h"

#include <QtGui/QPainter>
#include <QtGui/QTextDocument>
#include <QtWidgets/QPlainTextEdit>

#include <algorithm>
#include <utility>

namespace ORVTListview {

PairMarks::PairMarks(QPlainTextEdit &box, BoxLayers &layers)
    : CaretLayer(box, layers, LayerOrder::pairs)
{
    connect(&m_block, &BlockSearch::changed, this, &PairMarks::show);
}

void PairMarks::forget()
{
    m_block.clear();
    m_marks.clear();
}

void PairMarks::follow()
{
    const QTextCursor caret = m_box.textCursor();
    if (caret.hasSelection())
        m_block.clear();
    else
        m_block.start(caret.block(), caret.positionInBlock());
    show();
}

void PairMarks::findBrackets(const QTextCursor &caret, QList<Mark> &marks) const
{
    const auto pair = bracketAt(caret.block().text(), caret.positionInBlock());
    if (!pair)
        return;
    const int line = caret.blockNumber();
    marks.append({{line, {static_cast<qint32>(pair->bracket), 1}}, !pair->partner});
    if (pair->partner)
        marks.append({{line, {static_cast<qint32>(*pair->partner), 1}}, false});
}

void PairMarks::show()
{
    const QTextCursor caret = m_box.textCursor();
    QList<Mark> marks;
    if (!caret.hasSelection())
        findBrackets(caret, marks);
    for (const BlockSearch::Place &place : m_block.places())
        marks.append({place, m_block.isBroken() && place == m_block.places().first()});
    const Span span =
        m_block.places().isEmpty() ? Span{} : Span{m_block.firstLine(), m_block.lastLine()};
    if (marks == m_marks && span == m_span)
        return;
    const QList<Mark> former = std::exchange(m_marks, marks);
    const Span formerSpan = std::exchange(m_span, span);
    if (!layers())
        return;
    layers()->updateLines([&](const QTextBlock &block) {
        const int line = block.blockNumber();
        const auto isOn = [line](const Mark &mark) { return mark.place.line == line; };
        const auto isIn = [line](const Span &lines) {
            return line >= lines.first && line <= lines.last;
        };
        return isIn(span) || isIn(formerSpan) || std::any_of(marks.begin(), marks.end(), isOn) ||
               std::any_of(former.begin(), former.end(), isOn);
    });
}

void PairMarks::paintBelow(QPainter &painter, const ShownLines &lines)
{
    if (m_marks.isEmpty())
        return;
    const QColor ground = ViewColours::groundOf(m_box);
    const QColor right = m_box.palette().color(QPalette::Highlight);
    const QColor wrong = ViewColours::errorOn(ground);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const ShownLine &line : lines) {
        const int number = line.block.blockNumber();
        for (const Mark &mark : std::as_const(m_marks)) {
            if (mark.place.line != number)
                continue;
            const QColor colour = mark.isWrong ? wrong : right;
            painter.setPen(ViewColours::onGround(colour, ground, ViewColours::visible));
            painter.setBrush(ViewColours::tinted(ground, colour));
            for (const QRectF &place : placesOf(line, mark.place.piece))
                painter.drawRoundedRect(place.adjusted(-0.5, 0.5, 0.5, -0.5), 2, 2);
        }
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

// A line down the margin, with a foot at each word.
void PairMarks::paintMargin(QPainter &painter, const ShownLine &line, const QRect &strip)
{
    const int number = line.block.blockNumber();
    if (number < m_span.first || number > m_span.last)
        return;
    constexpr int thick = 2;
    constexpr int foot = 5;
    const QColor ground = ViewColours::groundOf(m_box);
    const QColor colour = m_block.isBroken()
                              ? ViewColours::errorOn(ground)
                              : ViewColours::onGround(m_box.palette().color(QPalette::Highlight),
                                                      ground, ViewColours::visible);
    const bool isMirrored = m_box.isRightToLeft();
    const auto fill = [&](int fromEdge, int top, int width, int height) {
        const int left =
            isMirrored ? strip.left() + fromEdge : strip.right() + 1 - fromEdge - width;
        painter.fillRect(left, top, width, height, colour);
    };
    const int middle = strip.center().y();
    const int top = number == m_span.first ? middle : strip.top();
    const int bottom = number == m_span.last ? middle + thick : strip.bottom() + 1;
    fill(0, top, thick, bottom - top);
    if (std::any_of(m_marks.cbegin(), m_marks.cend(),
                    [number](const Mark &mark) { return mark.place.line == number; }))
        fill(0, middle, foot, thick);
}

} // namespace ORVTListview
