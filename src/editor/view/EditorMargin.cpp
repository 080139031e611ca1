#include "editor/view/EditorMargin.h"

#include "editor/view/MarginAccess.h"
#include "editor/view/ViewColours.h"
#include "widgets/look/PlainToolTip.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QGuiApplication>
#include <QtGui/QHelpEvent>
#include <QtGui/QInputMethod>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QTextCursor>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyle>

#include <algorithm>

namespace ORVTListview {

MarginColumn::~MarginColumn() = default;

int MarginColumn::look(const QTextBlock &) const
{
    return 0;
}

bool MarginColumn::press(const QTextBlock &)
{
    return false;
}

QString MarginColumn::toolTip(const QTextBlock &) const
{
    return {};
}

EditorMargin::EditorMargin(QPlainTextEdit &box, BoxLayers &layers)
    : QWidget(&box)
    , m_box(box)
    , m_layers(layers)
{
    MarginAccess::install();
    setObjectName(QStringLiteral("EditorMargin"));
    setFocusPolicy(Qt::NoFocus);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setCursor(Qt::ArrowCursor);
    hide();
    box.viewport()->installEventFilter(this);
    connect(&box, &QPlainTextEdit::updateRequest, this, [this](const QRect &rect, int dy) {
        if (dy != 0)
            scroll(0, dy);
        else
            followText(rect);
    });
    connect(&layers, &BoxLayers::shownFontChanged, this, &EditorMargin::fit);
    connect(&layers, &BoxLayers::marginChanged, this,
            [this](int top, int bottom) { update(0, top, width(), bottom - top + 1); });
}

void EditorMargin::addColumn(MarginColumn &column)
{
    m_columns.append(&column);
}

void EditorMargin::fit()
{
    int width = 0;
    for (const MarginColumn *column : std::as_const(m_columns))
        width += column->width();
    m_layers.setMargin(width);
    setVisible(width > 0);
    place();
    update();
}

// Beside the viewport, on the side where lines begin.
void EditorMargin::place()
{
    const QRect text = m_box.viewport()->geometry();
    const int width = m_layers.margin();
    const int left = m_box.isRightToLeft() ? text.right() + 1 : text.left() - width;
    setGeometry(left, text.top(), width, text.height());
}

bool EditorMargin::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        place();
    return QWidget::eventFilter(watched, event);
}

bool EditorMargin::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::LayoutDirectionChange:
        place();
        break;
    case QEvent::ToolTip:
        showToolTip(static_cast<QHelpEvent &>(*event));
        return true;
    default:
        break;
    }
    return QWidget::event(event);
}

EditorMargin::Painted EditorMargin::toPaint(const ShownLine &line) const
{
    Painted painted{
        QRect(0, line.place.toAlignedRect().top(), width(), line.place.toAlignedRect().height())};
    for (const MarginColumn *column : m_columns)
        painted.look = 16 * painted.look + column->look(line.block);
    return painted;
}

// The box repaints text at each key; beside it hardly anything changes by that. A line
// whose text changed is painted over the whole width, unlike a caret.
void EditorMargin::followText(const QRect &rect)
{
    if (!isVisible() || rect.width() < m_box.viewport()->width())
        return;
    if (rect.height() >= height()) {
        update();
        return;
    }
    int bottom = rect.top();
    for (const ShownLine &line : m_layers.shownLines(rect.top() - 1, rect.bottom() + 1)) {
        const Painted now = toPaint(line);
        if (m_painted.value(line.block.blockNumber()) != now)
            update(now.place);
        bottom = now.place.bottom() + 1;
    }
    if (bottom <= rect.bottom())
        update(0, bottom, width(), rect.bottom() + 1 - bottom);
}

void EditorMargin::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    const QColor ground = ViewColours::groundOf(m_box);
    painter.fillRect(event->rect(), ground);
    constexpr qsizetype most = 1000; // more than are shown
    if (m_painted.size() > most)
        m_painted.clear();
    for (const ShownLine &line :
         m_layers.shownLines(event->rect().top(), event->rect().bottom() + 1))
        paintLine(painter, line);
    const int edge = m_box.isRightToLeft() ? 0 : width() - 1;
    painter.fillRect(edge, 0, 1, height(),
                     ViewColours::mixed(ground, ViewColours::textOf(m_box), 0.2));
}

void EditorMargin::paintLine(QPainter &painter, const ShownLine &line)
{
    const QRect place = line.place.toAlignedRect();
    const QRect strip(0, place.top(), width(), place.height());
    m_painted.insert(line.block.blockNumber(), toPaint(line));
    m_layers.paintMargin(painter, line, strip);
    int left = 0;
    for (MarginColumn *column : std::as_const(m_columns)) {
        const QRect cell(left, strip.top(), column->width(), strip.height());
        left += cell.width();
        if (!cell.isEmpty())
            column->paint(painter, line, QStyle::visualRect(layoutDirection(), strip, cell));
    }
}

QTextBlock EditorMargin::lineAt(int y) const
{
    QTextBlock found;
    for (const ShownLine &line : m_layers.shownLines()) {
        found = line.block;
        if (y < line.place.bottom())
            break;
    }
    return found;
}

EditorMargin::Hit EditorMargin::hit(const QPoint &place) const
{
    Hit hit{nullptr, lineAt(place.y())};
    const int x = m_box.isRightToLeft() ? width() - 1 - place.x() : place.x();
    int right = 0;
    for (MarginColumn *column : m_columns) {
        right += column->width();
        if (x < right) {
            hit.column = column;
            break;
        }
    }
    return hit;
}

void EditorMargin::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    if (event->button() != Qt::LeftButton)
        return;
    m_box.setFocus(Qt::MouseFocusReason);
    QGuiApplication::inputMethod()->commit();
    const Hit place = hit(event->position().toPoint());
    if (!place.line.isValid() || (place.column && place.column->press(place.line)))
        return;
    m_anchor = event->modifiers().testFlag(Qt::ShiftModifier) ? m_box.textCursor()
                                                              : QTextCursor(place.line);
    m_anchor.setPosition(m_anchor.anchor());
    selectTo(place.line);
}

void EditorMargin::mouseMoveEvent(QMouseEvent *event)
{
    event->accept();
    if (m_anchor.isNull())
        return;
    m_pointer = event->position().toPoint().y();
    if (rect().top() <= m_pointer && m_pointer <= rect().bottom())
        m_scrolling.stop();
    else if (!m_scrolling.isActive())
        m_scrolling.start(50, this);
    selectTo(lineAt(m_pointer));
}

void EditorMargin::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
    m_scrolling.stop();
    m_anchor = {};
}

void EditorMargin::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_scrolling.timerId())
        return;
    QScrollBar &bar = *m_box.verticalScrollBar();
    bar.setValue(bar.value() + (m_pointer < 0 ? -1 : 1));
    if (m_anchor.isNull())
        m_scrolling.stop();
    else
        selectTo(lineAt(m_pointer));
}

// From the line of the anchor to this one, both whole. The view stays: a caret behind
// the last line shown would bring another one.
void EditorMargin::selectTo(const QTextBlock &line)
{
    const auto behind = [](QTextBlock block) {
        while (block.next().isValid() && !block.next().isVisible())
            block = block.next();
        return block.next().isValid() ? block.next().position()
                                      : block.position() + block.length() - 1;
    };
    const QTextBlock first = m_anchor.block();
    const bool isUpwards = line.position() < first.position();
    QTextCursor cursor = m_box.textCursor();
    cursor.setPosition(isUpwards ? behind(first) : first.position());
    cursor.setPosition(isUpwards ? line.position() : behind(line), QTextCursor::KeepAnchor);
    if (cursor.anchor() == m_box.textCursor().anchor() &&
        cursor.position() == m_box.textCursor().position())
        return;
    const int top = m_box.verticalScrollBar()->value();
    const int left = m_box.horizontalScrollBar()->value();
    m_box.setTextCursor(cursor);
    m_box.verticalScrollBar()->setValue(top);
    m_box.horizontalScrollBar()->setValue(left);
}

// The text scrolls as if the pointer were on it.
void EditorMargin::wheelEvent(QWheelEvent *event)
{
    const QWidget &text = *m_box.viewport();
    QWheelEvent onText(text.mapFromGlobal(event->globalPosition()), event->globalPosition(),
                       event->pixelDelta(), event->angleDelta(), event->buttons(),
                       event->modifiers(), event->phase(), event->inverted(), event->source(),
                       event->pointingDevice());
    QCoreApplication::sendEvent(m_box.viewport(), &onText);
    event->setAccepted(onText.isAccepted());
}

void EditorMargin::showToolTip(const QHelpEvent &event)
{
    const Hit place = hit(event.pos());
    const QString text = place.column ? place.column->toolTip(place.line) : QString();
    showPlainToolTip(event, text, *this);
}

} // namespace ORVTListview
