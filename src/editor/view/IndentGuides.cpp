#include "base/TextRules.h"
#include "editor/view/LayerOrder.h"
#include "editor/view/LineLayer.h"
#include "editor/view/ViewColours.h"

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QPainter>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>
#include <QtWidgets/QPlainTextEdit>

#include <algorithm>
#include <optional>

namespace ORVTListview {
namespace {

constexpr int farthest = 50; // lines that a blank one looks for another

// Where the first letter stands, from the line's beginning; none on a blank line.
std::optional<qreal> indentOf(const QTextBlock &line)
{
    const QString text = line.text();
    const auto *const letter =
        std::find_if(text.cbegin(), text.cend(), [](QChar c) { return !isBlank(c); });
    if (letter == text.cend())
        return {};
    line.document()->documentLayout()->blockBoundingRect(line); // which lays it out
    const QTextLayout &layout = *line.layout();
    if (layout.lineCount() == 0)
        return 0;
    const QTextLine row = layout.lineAt(0);
    return std::abs(row.cursorToX(static_cast<int>(letter - text.cbegin())) - row.cursorToX(0));
}

qreal indentBeside(QTextBlock line, QTextBlock (QTextBlock::*next)() const)
{
    for (int i = 0; i < farthest && line.isValid(); ++i, line = (line.*next)()) {
        if (const auto indent = indentOf(line))
            return *indent;
    }
    return 0;
}

void paint(QPainter &painter, const ShownLines &lines, const QPlainTextEdit &box)
{
    const qreal step = box.tabStopDistance();
    if (step < 2)
        return;
    const QColor ground = ViewColours::groundOf(box);
    const QColor colour = ViewColours::mixed(ground, ViewColours::textOf(box), 0.22);
    for (const ShownLine &line : lines) {
        const auto own = indentOf(line.block);
        const qreal indent = own ? *own
                                 : std::min(indentBeside(line.block, &QTextBlock::previous),
                                            indentBeside(line.block, &QTextBlock::next));
        const QTextLayout &layout = *line.block.layout();
        if (layout.lineCount() == 0)
            continue;
        const qreal start = line.place.left() + layout.lineAt(0).cursorToX(0);
        const qreal towards = box.isRightToLeft() ? -1 : 1;
        for (qreal at = step; at < indent - 0.5; at += step)
            painter.fillRect(
                QRectF(qRound(start + towards * at), line.place.top(), 1, line.place.height()),
                colour);
    }
}

} // namespace

LineLayer::Look LineLayer::indentGuides()
{
    return {.order = LayerOrder::indentGuides, .below = paint};
}

} // namespace ORVTListview
