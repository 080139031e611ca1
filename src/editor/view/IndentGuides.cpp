#include "editor/view/IndentGuides.h"

#include "base/TextRules.h"
#include "editor/view/LayerOrder.h"
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

qsizetype firstLetter(const QString &text)
{
    return std::find_if(text.cbegin(), text.cend(), [](QChar c) { return !isBlank(c); }) -
           text.cbegin();
}

bool isBlankLine(const QTextBlock &line)
{
    const QString text = line.text();
    return line.isValid() && firstLetter(text) == text.size();
}

// Where the first letter stands, from the line's beginning; none on a blank line.
std::optional<qreal> indentOf(const QTextBlock &line)
{
    const QString text = line.text();
    const qsizetype letter = firstLetter(text);
    if (letter == text.size())
        return {};
    line.document()->documentLayout()->blockBoundingRect(line); // which lays it out
    const QTextLayout &layout = *line.layout();
    if (layout.lineCount() == 0)
        return 0;
    const QTextLine row = layout.lineAt(0);
    return std::abs(row.cursorToX(static_cast<int>(letter)) - row.cursorToX(0));
}

qreal indentBeside(QTextBlock line, QTextBlock (QTextBlock::*next)() const)
{
    for (int i = 0; i < farthest && line.isValid(); ++i, line = (line.*next)()) {
        if (const auto indent = indentOf(line))
            return *indent;
    }
    return 0;
}

// The last of the blank lines beside a line, or that line.
QTextBlock lastBlankBeside(QTextBlock line, QTextBlock (QTextBlock::*next)() const)
{
    for (int i = 0; i < farthest && isBlankLine((line.*next)()); ++i)
        line = (line.*next)();
    return line;
}

} // namespace

IndentGuides::IndentGuides(QPlainTextEdit &box, BoxLayers &layers)
    : BoxLayer(layers, LayerOrder::indentGuides)
    , m_box(box)
{
}

void IndentGuides::setOn(bool on)
{
    if (on == isShown())
        return;
    const QTextDocument &text = *m_box.document();
    if (on) {
        connect(&text, &QTextDocument::contentsChange, this,
                [this](int from, int, int added) { m_changed.note(from, added); });
        connect(&text, &QTextDocument::contentsChanged, this, &IndentGuides::followChange);
    } else {
        text.disconnect(this);
    }
    setShown(on);
}

// What changes is painted anew, but not the blank lines beside it.
void IndentGuides::followChange()
{
    const ChangedPart::Span changed = m_changed.take();
    if (changed.isEmpty() || !layers())
        return;
    const QTextDocument &text = *m_box.document();
    const QTextBlock first = text.findBlock(changed.from);
    const QTextBlock last = text.findBlock(std::min(changed.to, text.characterCount() - 1));
    const int top = lastBlankBeside(first, &QTextBlock::previous).blockNumber();
    const int bottom = lastBlankBeside(last, &QTextBlock::next).blockNumber();
    if (top == first.blockNumber() && bottom == last.blockNumber())
        return;
    layers()->updateLines([&](const QTextBlock &line) {
        return line.blockNumber() >= top && line.blockNumber() <= bottom;
    });
}

void IndentGuides::paintBelow(QPainter &painter, const ShownLines &lines)
{
    const QPlainTextEdit &box = m_box;
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

} // namespace ORVTListview
