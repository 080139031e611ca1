#include "widgets/box/BoxLayout.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextLayout>

#include <algorithm>

namespace ORVTListview {

// A line's entry among the widths; it goes with the line.
class BoxLayout::LineWidth final : public QTextBlockUserData
{
public:
    LineWidth(std::shared_ptr<Widths> widths, qreal width)
        : m_widths(std::move(widths))
        , m_entry(m_widths->insert(width))
    {
    }
    ~LineWidth() override { m_widths->erase(m_entry); }
    LineWidth(const LineWidth &) = delete; // one entry each
    LineWidth &operator=(const LineWidth &) = delete;

private:
    std::shared_ptr<Widths> m_widths;
    Widths::iterator m_entry;
};

BoxLayout::BoxLayout(QTextDocument &document, const QWidget &viewport)
    : QPlainTextDocumentLayout(&document)
    , m_viewport(viewport)
    , m_widths(std::make_shared<Widths>())
{
}

QSizeF BoxLayout::documentSize() const
{
    const qreal widest = m_widths->empty() ? 0 : *m_widths->rbegin();
    return {std::max<qreal>(m_viewport.width(), widest),
            QPlainTextDocumentLayout::documentSize().height()};
}

// The lines that have a layout get a new one when they are looked at again.
void BoxLayout::fitWidth()
{
    if (m_width == m_viewport.width())
        return;
    m_width = m_viewport.width();
    for (QTextBlock block = document()->firstBlock(); block.isValid(); block = block.next())
        block.clearLayout();
    Q_EMIT update(QRectF()); // everything
}

void BoxLayout::showLines(const QTextBlock &first, const QTextBlock &last, bool on)
{
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        if (block.isVisible() != on) {
            block.setVisible(on);
            block.setLineCount(on ? std::max(1, block.layout()->lineCount()) : 0);
        }
        if (block == last)
            break;
    }
    announceSize();
    Q_EMIT update(QRectF()); // everything
}

// What a selection of several lines may cover.
QRectF BoxLayout::frameBoundingRect(QTextFrame *frame) const
{
    QRectF rect = QPlainTextDocumentLayout::frameBoundingRect(frame);
    rect.setWidth(std::max(rect.width(), documentSize().width()));
    return rect;
}

QRectF BoxLayout::blockBoundingRect(const QTextBlock &block) const
{
    if (block.isValid() && !block.isVisible())
        return {};
    if (block.isValid())
        ensureLines(block);
    return QPlainTextDocumentLayout::blockBoundingRect(block);
}

void BoxLayout::announceSize() const
{
    const QSizeF size = documentSize();
    if (size == m_announcedSize)
        return;
    m_announcedSize = size;
    Q_EMIT const_cast<BoxLayout *>(this)->documentSizeChanged(size);
}

// Lines are made when they are first looked at.
void BoxLayout::ensureLines(QTextBlock block) const
{
    if (block.layout()->lineCount() > 0)
        return;
    block.setUserData(new LineWidth(m_widths, makeLines(block)));
    announceSize();
}

// Returns the width. A line separator in the text starts another line.
qreal BoxLayout::makeLines(QTextBlock &block) const
{
    const qreal margin = document()->documentMargin();
    QTextLayout &layout = *block.layout();
    layout.setTextOption(document()->defaultTextOption());
    layout.beginLayout();
    qreal height = 0;
    qreal width = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(m_viewport.width() - 2 * margin);
        line.setPosition(QPointF(margin, height));
        height += line.height();
        width = std::max(width, line.naturalTextWidth() + 2 * margin);
    }
    layout.endLayout();
    block.setLineCount(block.isVisible() ? layout.lineCount() : 0);
    return width;
}

// Returns whether the line is known to have kept its height.
bool BoxLayout::changeLine(QTextBlock block) const
{
    const QTextLayout &layout = *block.layout();
    if (layout.lineCount() == 0) {
        block.setLineCount(block.isVisible() ? 1 : 0);
        return false;
    }
    const qreal height = layout.boundingRect().height();
    block.setUserData(new LineWidth(m_widths, makeLines(block)));
    return layout.boundingRect().height() == height;
}

bool BoxLayout::changeLines(const QTextBlock &first, const QTextBlock &last) const
{
    bool sameHeight = true;
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        sameHeight = changeLine(block) && sameHeight;
        if (block == last)
            break;
    }
    return sameHeight;
}

void BoxLayout::clearLines(const QTextBlock &first, const QTextBlock &last) const
{
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        block.clearLayout();
        block.setUserData(nullptr);
        if (block.lineCount() != (block.isVisible() ? 1 : 0))
            block.setLineCount(block.isVisible() ? 1 : 0);
        if (block == last)
            break;
    }
}

// Those without a width have no layout, and have not been painted.
void BoxLayout::colourLines(const QTextBlock &first, const QTextBlock &last)
{
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        if (block.userData()) {
            block.setUserData(new LineWidth(m_widths, makeLines(block)));
            Q_EMIT updateBlock(block);
        }
        if (block == last)
            break;
    }
    announceSize(); // bold that goes makes a line narrower
}

void BoxLayout::documentChanged(int from, int, int charsAdded)
{
    constexpr int few = 8;
    const QTextDocument &text = *document();
    const int lastPlace = text.characterCount() - 1;
    const QTextBlock first = text.findBlock(std::min(from, lastPlace));
    // The line behind a changed line end may be another one than before.
    const QTextBlock last = text.findBlock(std::min(from + charsAdded, lastPlace));
    if (m_onlyColours)
        return colourLines(first, last);
    const bool areFew = last.blockNumber() - first.blockNumber() < few;
    const bool sameLines = text.blockCount() == m_lineCount;
    m_lineCount = text.blockCount();

    if (!areFew)
        clearLines(first, last);
    const bool sameHeight = areFew && changeLines(first, last);
    announceSize();
    if (!sameHeight || !sameLines) {
        Q_EMIT update(QRectF()); // everything
        return;
    }
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        Q_EMIT updateBlock(block);
        if (block == last)
            break;
    }
}

} // namespace ORVTListview
