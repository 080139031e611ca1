#include "editor/view/NumberColumn.h"

#include "editor/view/ViewColours.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QPainter>
#include <QtGui/QTextLayout>
#include <QtWidgets/QPlainTextEdit>

#include <algorithm>
#include <utility>

namespace ORVTListview {
namespace {

constexpr int fewestDigits = 2; // so that the text does not jump at the tenth line

QFont bold(QFont font)
{
    font.setBold(true);
    return font;
}

int digitsOf(int number)
{
    return std::max(fewestDigits, static_cast<int>(QString::number(number).size()));
}

int widestDigit(const QFontMetrics &metrics)
{
    int widest = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit)
        widest = std::max(widest, metrics.horizontalAdvance(QChar(digit)));
    return widest;
}

// Between the numbers and the edge, where blocks are drawn.
int gapBehind(const QFontMetrics &metrics)
{
    return metrics.horizontalAdvance(u'0') / 2 + 5;
}

// Of the line's text, from the top of its place.
qreal baselineOf(const ShownLine &line, const QFontMetrics &metrics)
{
    const QTextLayout &layout = *line.block.layout();
    return layout.lineCount() > 0 ? layout.lineAt(0).y() + layout.lineAt(0).ascent()
                                  : metrics.ascent();
}

} // namespace

NumberColumn::NumberColumn(QPlainTextEdit &box, EditorMargin &margin, BoxLayers &layers)
    : m_box(box)
    , m_margin(margin)
    , m_layers(layers)
{
}

void NumberColumn::setShown(bool on)
{
    if (on == m_isShown)
        return;
    m_isShown = on;
    if (on) {
        m_caretLine = m_box.textCursor().blockNumber();
        m_digits = digitsOf(m_box.blockCount());
        connect(&m_box, &QPlainTextEdit::cursorPositionChanged, this, &NumberColumn::followCaret);
        connect(&m_box, &QPlainTextEdit::blockCountChanged, this, &NumberColumn::noteLineCount);
    } else {
        m_box.disconnect(this);
    }
    m_margin.fit();
}

void NumberColumn::noteLineCount()
{
    if (const int digits = digitsOf(m_box.blockCount()); std::exchange(m_digits, digits) != digits)
        m_margin.fit();
}

void NumberColumn::followCaret()
{
    const int line = m_box.textCursor().blockNumber();
    const int former = std::exchange(m_caretLine, line);
    if (line == former)
        return;
    for (const ShownLine &shown : m_layers.shownLines()) {
        const int number = shown.block.blockNumber();
        const QRect place = shown.place.toAlignedRect();
        if (number == line || number == former)
            m_margin.update(0, place.top(), m_margin.width(), place.height());
    }
}

int NumberColumn::width() const
{
    if (!m_isShown)
        return 0;
    const QFontMetrics metrics(bold(m_layers.shownFont()), &m_box);
    const int digit = widestDigit(metrics);
    return m_digits * digit + digit / 2 + gapBehind(metrics);
}

void NumberColumn::paint(QPainter &painter, const ShownLine &line, const QRect &cell)
{
    const bool isCaretLine = line.block.blockNumber() == m_caretLine;
    const QColor ground = ViewColours::groundOf(m_box);
    const QColor text = ViewColours::textOf(m_box);
    painter.setFont(isCaretLine ? bold(m_layers.shownFont()) : m_layers.shownFont());
    painter.setPen(isCaretLine ? ViewColours::onGround(text, ground, ViewColours::readable)
                               : ViewColours::quietText(text, ground));
    const QFontMetrics metrics(painter.font(), &m_box);
    const QString number = QString::number(line.block.blockNumber() + 1);
    const int gap = gapBehind(metrics);
    const qreal x = m_box.isRightToLeft()
                        ? cell.left() + gap
                        : cell.right() + 1 - gap - metrics.horizontalAdvance(number);
    painter.drawText(QPointF(x, line.place.top() + baselineOf(line, metrics)), number);
}

} // namespace ORVTListview
