#include "widgets/box/CharacterPlaces.h"

#include "widgets/box/BoxLayers.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QPointer>
#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <cmath>

namespace ORVTListview {
namespace {

// What an input method composes is in the layout, but not in the text.
int toLayout(int place, const QTextLayout &layout)
{
    const auto composed = static_cast<int>(layout.preeditAreaText().size());
    return place < layout.preeditAreaPosition() ? place : place + composed;
}

int fromLayout(int place, const QTextLayout &layout)
{
    const auto composed = static_cast<int>(layout.preeditAreaText().size());
    const int before = std::min(place, std::max(0, layout.preeditAreaPosition()));
    return std::max(before, place - composed);
}

// The number of the row that has a place, or -1.
int rowAt(const QTextLayout &layout, const QPointF &place)
{
    for (int row = 0; row < layout.lineCount(); ++row) {
        const QTextLine line = layout.lineAt(row);
        const QRectF text = line.naturalTextRect();
        const bool isBeside = place.x() >= text.left() && place.x() < text.right();
        if (isBeside && place.y() >= line.y() && place.y() < line.y() + line.height())
            return row;
    }
    return -1;
}

// By how much a bar is to go on so that a part of the view, which begins at 0, is in it.
double way(double from, double to, double room)
{
    if (from < 0 || to - from > room)
        return from;
    return std::max(0.0, to - room);
}

} // namespace

CharacterPlaces::CharacterPlaces(const RichTextBox &box)
    : m_box(box)
    , m_layers(BoxLayers::of(box))
{
}

// In the viewport. A line out of view has rows between it and the first one shown.
QRectF CharacterPlaces::lineOf(const QTextBlock &block) const
{
    const QSizeF size = m_box.document()->documentLayout()->blockBoundingRect(block).size();
    const ShownLines lines = m_layers.shownLines();
    for (const ShownLine &line : lines) {
        if (line.block == block)
            return line.place;
    }
    if (lines.isEmpty() || !block.isVisible())
        return {};
    const ShownLine &first = lines.constFirst();
    const int rows = block.firstLineNumber() - first.block.firstLineNumber();
    const double height = first.place.height() / std::max(1, first.block.lineCount());
    return {first.place.topLeft() + QPointF(0, rows * height), size};
}

QRectF CharacterPlaces::shownPlace(int position) const
{
    const QTextBlock block = m_box.document()->findBlock(position);
    const QRectF place = lineOf(block);
    if (place.isEmpty())
        return {};
    const QTextLayout &layout = *block.layout();
    const int from = toLayout(position - block.position(), layout);
    const QTextLine row = layout.lineForTextPosition(from);
    if (!row.isValid())
        return {};
    const double left = row.cursorToX(from);
    const double right = row.cursorToX(layout.nextCursorPosition(from));
    const double width = std::abs(right - left);
    return {place.left() + std::min(left, right), place.top() + row.y(),
            width > 0 ? width : m_box.cursorWidth(), row.height()};
}

QRect CharacterPlaces::placeOf(int position) const
{
    const QRectF place = shownPlace(position);
    if (place.isEmpty())
        return {};
    const QRect rect(place.topLeft().toPoint(), place.size().toSize().expandedTo(QSize(1, 1)));
    return rect.translated(m_box.viewport()->mapToGlobal(QPoint()));
}

int CharacterPlaces::characterAt(const QPoint &place) const
{
    const QPoint inView = m_box.viewport()->mapFromGlobal(place);
    if (!m_box.viewport()->rect().contains(inView))
        return -1;
    for (const ShownLine &line : m_layers.shownLines(inView.y(), inView.y() + 1)) {
        const QTextLayout &layout = *line.block.layout();
        const QPointF inLine = QPointF(inView) - line.place.topLeft();
        const int row = rowAt(layout, inLine);
        if (row < 0)
            continue;
        const int letter = layout.lineAt(row).xToCursor(inLine.x(), QTextLine::CursorOnCharacter);
        return line.block.position() + fromLayout(letter, layout);
    }
    return -1;
}

// False if the box is gone.
bool CharacterPlaces::unfold(int position) const
{
    const QPointer<const RichTextBox> box(&m_box);
    m_layers.wantLine(m_box.document()->findBlock(position));
    return !box.isNull();
}

// The bar at the side counts rows.
void CharacterPlaces::show(int from, int to) const
{
    if (!unfold(from) || !unfold(std::max(from, to - 1)))
        return;
    const QRectF first = shownPlace(from);
    const QRectF last = shownPlace(std::max(from, to - 1));
    if (first.isEmpty() || last.isEmpty())
        return;
    const QRectF all = first.united(last);
    const QSize room = m_box.viewport()->size();
    const double down = way(all.top(), all.bottom(), room.height()) / first.height();
    const double aside = all.width() > room.width() ? way(first.left(), first.right(), room.width())
                                                    : way(all.left(), all.right(), room.width());
    const QPointer<const RichTextBox> box(&m_box);
    QScrollBar &rows = *m_box.verticalScrollBar();
    rows.setValue(rows.value() + qRound(down < 0 ? std::floor(down) : std::ceil(down)));
    if (!box) // gone in an event of the bar
        return;
    QScrollBar &columns = *m_box.horizontalScrollBar();
    const int mirrored = m_box.isRightToLeft() ? -1 : 1;
    columns.setValue(columns.value() + mirrored * qRound(aside));
}

} // namespace ORVTListview
