#include "editor/view/Folds.h"

#include "editor/rules/structure/Folding.h"
#include "editor/view/LayerOrder.h"
#include "editor/view/LineEnds.h"
#include "editor/view/LineMoves.h"
#include "editor/view/ViewColours.h"
#include "widgets/box/BoxLayout.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QStringList>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>

#include <algorithm>
#include <utility>

namespace ORVTListview {
namespace {

constexpr int roomOfPairs = 6; // of a cell, at the text: what belongs together is marked there

// Both ends are lines that are hidden, with none between them that is not.
QTextBlock firstHidden(QTextBlock line)
{
    while (line.previous().isValid() && !line.previous().isVisible())
        line = line.previous();
    return line;
}

QTextBlock lastHidden(QTextBlock line)
{
    while (line.next().isValid() && !line.next().isVisible())
        line = line.next();
    return line;
}

} // namespace

Folds::Folds(RichTextBox &box, EditorMargin &margin, BoxLayers &layers)
    : BoxLayer(layers, LayerOrder::folds)
    , m_box(box)
    , m_margin(margin)
    , m_openBlocks(*box.document())
{
    connect(&m_openBlocks, &OpenBlocks::changed, &m_margin, qOverload<>(&QWidget::update));
    connect(&layers, &BoxLayers::hiddenLineWanted, this, &Folds::unfold);
}

void Folds::setOn(bool on)
{
    if (on == isOn())
        return;
    if (on) {
        m_lineCount = m_box.document()->blockCount();
        m_caret = m_box.textCursor().position();
        m_openBlocks.start();
        m_box.installEventFilter(this);
        connect(&m_box, &QPlainTextEdit::cursorPositionChanged, this, &Folds::followCaret);
        connect(m_box.document(), &QTextDocument::contentsChange, this, &Folds::noteChange);
        connect(m_box.document(), &QTextDocument::contentsChanged, this, &Folds::followChange);
    } else {
        m_openBlocks.stop();
        m_box.removeEventFilter(this);
        m_box.disconnect(this);
        m_box.document()->disconnect(this);
        unfoldAll();
    }
    setShown(on);
    m_margin.fit();
}

// The end of a long block is looked for when it is wanted, not for its sign.
bool Folds::hasFold(const QTextBlock &line) const
{
    const QString text = line.text();
    if (!line.next().isValid() || !BlockFold::begins(text) || m_openBlocks.contains(line))
        return false;
    BlockFold fold;
    fold.read(text);
    return !fold.read(line.next().text());
}

void Folds::fold(const QTextBlock &head)
{
    BlockFold fold;
    QTextBlock end = head;
    while (end.isValid() && !fold.read(end.text()))
        end = end.next();
    if (!end.isValid() || end.previous() == head)
        return;
    const Lines lines{head.next(), end.previous()};
    stepOutOf(lines);
    show(lines, false);
}

void Folds::unfold(const QTextBlock &hidden)
{
    show({firstHidden(hidden), lastHidden(hidden)}, true);
}

// What is selected or has the caret stays to be seen.
void Folds::stepOutOf(const Lines &lines)
{
    const QTextCursor caret = m_box.textCursor();
    const int from = lines.first.position();
    const int to = lines.last.position() + lines.last.length();
    const auto isInside = [=](int position) { return position >= from && position < to; };
    if (!isInside(caret.position()) && !isInside(caret.anchor()))
        return;
    QTextCursor outside = caret;
    outside.setPosition(from - 1);
    m_box.setTextCursor(outside);
}

void Folds::show(const Lines &lines, bool on)
{
    m_hasHidden = m_hasHidden || !on;
    if (auto *layout = qobject_cast<BoxLayout *>(m_box.document()->documentLayout()))
        layout->showLines(lines.first, lines.last, on);
    m_margin.update();
    Q_EMIT changed();
}

// Hidden lines count as none for the document, so they are stepped over at once.
int Folds::hiddenBehind(const QTextBlock &line) const
{
    if (!hidesLines(line))
        return 0;
    const QTextDocument &text = *m_box.document();
    const QTextBlock shown = text.findBlockByLineNumber(line.next().firstLineNumber());
    const int end = shown.isVisible() ? shown.blockNumber() : text.blockCount();
    return end - line.blockNumber() - 1;
}

void Folds::foldAll()
{
    if (!isOn())
        return;
    const QTextDocument &text = *m_box.document();
    ProgramBlocks blocks;
    for (QTextBlock line = text.firstBlock(); line.isValid(); line = line.next())
        blocks.read(line.text());
    for (const ProgramBlocks::Lines &block : blocks.outermost()) {
        if (block.last - block.first < 2)
            continue;
        const Lines hidden{text.findBlockByNumber(block.first + 1),
                           text.findBlockByNumber(block.last - 1)};
        stepOutOf(hidden);
        show(hidden, false);
    }
}

void Folds::unfoldAll()
{
    if (!std::exchange(m_hasHidden, false))
        return;
    const QTextDocument &text = *m_box.document();
    show({text.firstBlock(), text.lastBlock()}, true);
}

bool Folds::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        m_isStepping = key == Qt::Key_Left || key == Qt::Key_Right;
    } else if (event->type() == QEvent::KeyRelease) {
        m_isStepping = false; // it may have moved nothing
    }
    return QObject::eventFilter(watched, event);
}

// The toolkit's step to the right ends behind all that is hidden, one to the left in
// front of it.
void Folds::followCaret()
{
    QTextCursor caret = m_box.textCursor();
    const int former = std::exchange(m_caret, caret.position());
    const bool isStep = std::exchange(m_isStepping, false);
    if (caret.block().isVisible())
        return;
    const QTextBlock last = lastHidden(caret.block());
    const int front = firstHidden(caret.block()).position();
    const int end = last.position() + last.length() - 1;
    unfold(caret.block());
    if (!isStep)
        return;
    if (former == front - 1 && caret.position() == end)
        caret.setPosition(front);
    else if (former == end + 1 && caret.position() == front)
        caret.setPosition(end);
    else
        return;
    m_box.setTextCursor(caret);
}

void Folds::noteChange(int from, int, int added)
{
    if (m_box.keepsText())
        return;
    m_changed.note(from, added);
}

void Folds::followChange()
{
    const ChangedPart::Span changed = m_changed.take();
    const QTextDocument &text = *m_box.document();
    const bool sameLines = std::exchange(m_lineCount, text.blockCount()) == text.blockCount();
    if (changed.isEmpty() || !m_hasHidden)
        return;
    for (QTextBlock line = text.findBlock(changed.from);
         line.isValid() && line.position() <= changed.to; line = line.next()) {
        if (!line.isVisible())
            unfold(line);
        else if (hidesLines(line) && (!sameLines || !BlockFold::begins(line.text())))
            unfold(line.next());
    }
    followCaret();
}

void Folds::holdLines(const MovedLines &lines)
{
    m_held.clear();
    if (!m_hasHidden || lines.from.isEmpty())
        return;
    const int end = lines.first + static_cast<int>(lines.from.size());
    QTextBlock line = m_box.document()->findBlockByNumber(lines.first);
    for (; line.isValid() && line.blockNumber() < end; line = line.next()) {
        const QTextBlock last = hidesLines(line) ? lastHidden(line) : line;
        if (last != line && last.blockNumber() < end)
            m_held.append({line.blockNumber(), last.blockNumber()});
    }
}

// As far as what was folded together still is.
void Folds::putBack(const MovedLines &lines)
{
    const QTextDocument &text = *m_box.document();
    const QList<int> places = m_held.isEmpty() ? QList<int>() : lines.places();
    const auto placeOf = [&](int line) { return places[line - lines.first]; };
    for (const auto &[head, last] : std::exchange(m_held, {})) {
        const int place = placeOf(head);
        bool isWhole = true;
        for (int line = head; line <= last && isWhole; ++line)
            isWhole = placeOf(line) - place == line - head;
        if (isWhole)
            show({text.findBlockByNumber(place + 1), text.findBlockByNumber(place + last - head)},
                 false);
    }
    followCaret();
}

int Folds::width() const
{
    return isShown() ? std::max(10, QFontMetrics(layers()->shownFont(), &m_box).height() * 3 / 4)
                     : 0;
}

// An arrow down, or towards the text while the block is folded.
void Folds::paint(QPainter &painter, const ShownLine &line, const QRect &cell)
{
    const bool folded = hidesLines(line.block);
    if (!folded && !hasFold(line.block))
        return;
    const QColor ground = ViewColours::groundOf(m_box);
    const QColor quiet = ViewColours::quietText(ViewColours::textOf(m_box), ground);
    const qreal half = std::min(cell.width(), cell.height()) / 4.0;
    const qreal towards = m_box.isRightToLeft() ? -1 : 1;
    const qreal beside = std::min(cell.width() / 2.0, cell.width() - roomOfPairs - half);
    const QPointF middle(m_box.isRightToLeft() ? cell.right() + 1 - beside : cell.left() + beside,
                         QRectF(cell).center().y());
    const QPointF arrow[] = {
        middle + (folded ? QPointF(-half / 2 * towards, -half) : QPointF(-half, -half / 2)),
        middle + (folded ? QPointF(half / 2 * towards, 0) : QPointF(0, half / 2)),
        middle + (folded ? QPointF(-half / 2 * towards, half) : QPointF(half, -half / 2))};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(quiet, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(arrow, 3);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

int Folds::look(const QTextBlock &line) const
{
    return !isShown() ? 0 : hidesLines(line) ? 2 : hasFold(line) ? 1 : 0;
}

bool Folds::press(const QTextBlock &line)
{
    if (hidesLines(line))
        unfold(line.next());
    else if (hasFold(line))
        fold(line);
    else
        return false;
    return true;
}

QString Folds::toolTip(const QTextBlock &line) const
{
    constexpr int most = 12;
    if (!hidesLines(line))
        return {};
    QStringList texts;
    for (QTextBlock hidden = line.next(); hidden.isValid() && !hidden.isVisible();
         hidden = hidden.next()) {
        if (texts.size() == most) {
            texts.append(QStringLiteral("…"));
            break;
        }
        texts.append(hidden.text());
    }
    return texts.join(u'\n');
}

void Folds::paintAbove(QPainter &painter, const ShownLines &lines)
{
    const QColor ground = ViewColours::groundOf(m_box);
    const QColor quiet = ViewColours::quietText(ViewColours::textOf(m_box), ground);
    const QFontMetricsF metrics(layers()->shownFont(), &m_box);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const ShownLine &line : lines) {
        if (!hidesLines(line.block))
            continue;
        const QRectF box =
            foldSignOf(textEndOf(line), metrics.averageCharWidth()).adjusted(0, 2, 0, -2);
        painter.setPen(quiet);
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
        painter.setBrush(quiet);
        for (const qreal place : {-1, 0, 1})
            painter.drawEllipse(box.center() + QPointF(place * box.width() / 4, 0), 0.7, 0.7);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace ORVTListview
