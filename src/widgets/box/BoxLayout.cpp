#include "widgets/box/BoxLayout.h"

#include <QtCore/QtMath>
#include <QtGui/QTextBlock>
#include <QtGui/QTextLayout>

#include <algorithm>
#include <cmath>

namespace ORVTListview {

// A line's entry among the widths; it goes with the line.
class BoxLayout::LineWidth final : public QTextBlockUserData
{
public:
    LineWidth(std::shared_ptr<Widths> widths, qreal width, int reach)
        : m_widths(std::move(widths))
        , m_entry(m_widths->insert(width))
        , m_reach(reach)
    {
    }
    ~LineWidth() override { m_widths->erase(m_entry); }
    LineWidth(const LineWidth &) = delete; // one entry each
    LineWidth &operator=(const LineWidth &) = delete;

    int reachBeyond() const { return m_reach; }

private:
    std::shared_ptr<Widths> m_widths;
    Widths::iterator m_entry;
    int m_reach;
};

namespace {

// By more than colours, or by an input method that composes.
bool isStyled(const QTextBlock &line)
{
    if (!line.layout()->preeditAreaText().isEmpty())
        return true;
    for (auto it = line.begin(); !it.atEnd(); ++it) {
        const QTextCharFormat format = it.fragment().charFormat();
        if (format.propertyCount() > (format.hasProperty(QTextFormat::ForegroundBrush) ? 1 : 0))
            return true;
    }
    return false;
}

} // namespace

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
    layOut(block);
    announceSize();
}

void BoxLayout::layOut(QTextBlock &block) const
{
    const qreal width = makeLines(block);
    block.setUserData(new LineWidth(m_widths, width, textReach(block)));
}

const FontLetters &BoxLayout::letters() const
{
    if (const QFont font = document()->defaultFont(); !m_letters.areOf(font))
        m_letters.setFont(font, m_viewport);
    return m_letters;
}

// It is known of letters without a style of their own.
int BoxLayout::textReach(const QTextBlock &block) const
{
    return isStyled(block) ? qCeil(block.layout()->boundingRect().height())
                           : letters().reachBeyond(block.text());
}

bool BoxLayout::mayReachBeyond(const QTextBlock &line) const
{
    const auto *width = dynamic_cast<const LineWidth *>(line.userData());
    return width ? width->reachBeyond() > 0
                 : isStyled(line) || letters().reachBeyond(line.text()) > 0;
}

// A line that is no whole number of the screen's pixels high shares one with the next.
int BoxLayout::reachBeyond(const QTextBlock &line) const
{
    const qreal ratio = m_viewport.devicePixelRatioF();
    const auto *width = dynamic_cast<const LineWidth *>(line.userData());
    return std::max(width ? width->reachBeyond() : 0, ratio == std::floor(ratio) ? 0 : 1);
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

BoxLayout::Kept BoxLayout::changeLine(QTextBlock block) const
{
    const QTextLayout &layout = *block.layout();
    if (layout.lineCount() == 0) {
        block.setLineCount(block.isVisible() ? 1 : 0);
        return {false, 0};
    }
    const qreal height = layout.boundingRect().height();
    const int beyond = reachBeyond(block);
    layOut(block);
    return {layout.boundingRect().height() == height, std::max(beyond, reachBeyond(block))};
}

BoxLayout::Kept BoxLayout::changeLines(const QTextBlock &first, const QTextBlock &last) const
{
    Kept all;
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        const Kept kept = changeLine(block);
        all = {all.height && kept.height, std::max(all.beyond, kept.beyond)};
        if (block == last)
            break;
    }
    return all;
}

// Over the whole width; the box paints one pixel more on each side of what it is told.
void BoxLayout::updateLine(const QTextBlock &block, int beyond)
{
    constexpr qreal far = 1e7;
    const QRectF place = m_placeOf ? m_placeOf(block) : QRectF();
    if (place.height() < 3)
        Q_EMIT updateBlock(block);
    else
        Q_EMIT update(QRectF(-far, place.top(), 2 * far, place.height())
                          .adjusted(0, 1 - beyond, 0, beyond - 1));
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
            const int beyond = reachBeyond(block);
            layOut(block);
            updateLine(block, std::max(beyond, reachBeyond(block)));
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
    const Kept kept = areFew ? changeLines(first, last) : Kept{false, 0};
    announceSize();
    if (!kept.height || !sameLines) {
        Q_EMIT update(QRectF()); // everything
        return;
    }
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        updateLine(block, kept.beyond);
        if (block == last)
            break;
    }
}

} // namespace ORVTListview
