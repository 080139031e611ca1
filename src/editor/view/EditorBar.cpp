#include "editor/view/EditorBar.h"

#include "widgets/look/PlainToolTip.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPlainTextEdit>

namespace ORVTListview {

EditorBar::EditorBar(QPlainTextEdit &box, BoxLayers &layers)
    : QFrame(&box)
    , m_box(box)
    , m_layers(&layers)
{
    setFont(QApplication::font("QLabel")); // the box's is the program's
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setAttribute(Qt::WA_NoMousePropagation);
    setCursor(Qt::ArrowCursor);
    setFocusPolicy(Qt::ClickFocus); // else a click on it gives the focus to the box
    hide();
    box.installEventFilter(this);
    box.viewport()->installEventFilter(this);
    fitPalette();
}

void EditorBar::initStrings(const QWidget &box)
{
    for (EditorBar *bar : box.findChildren<EditorBar *>(QString(), Qt::FindDirectChildrenOnly))
        bar->showTexts();
}

bool EditorBar::isEnter(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

void EditorBar::watch(QWidget &control)
{
    control.installEventFilter(this);
}

void EditorBar::noteClosed() {}

void EditorBar::open()
{
    for (EditorBar *other :
         m_box.findChildren<EditorBar *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (other != this)
            other->hideNow();
    }
    show();
    fit();
    raise();
}

void EditorBar::close()
{
    const bool hadFocus = isAncestorOf(QApplication::focusWidget());
    hideNow();
    if (hadFocus)
        m_box.setFocus();
}

void EditorBar::hideNow()
{
    if (isHidden())
        return;
    if (m_layers)
        m_layers->setRoomBelow(0);
    hide();
    noteClosed();
}

void EditorBar::fit()
{
    if (isHidden() || !m_layers)
        return;
    m_layers->setRoomBelow(sizeHint().height());
    place();
}

// Below the text and what stands beside it.
void EditorBar::place()
{
    if (!m_layers)
        return;
    const QRect text = m_box.viewport()->geometry();
    const int margin = m_layers->margin();
    const int left = m_box.isRightToLeft() ? text.left() : text.left() - margin;
    setGeometry(left, text.bottom() + 1, text.width() + margin, sizeHint().height());
}

// The box may have colours of its own, for the program.
void EditorBar::fitPalette()
{
    const QWidget *around = m_box.parentWidget();
    const QPalette wanted = around ? around->palette() : QApplication::palette(this);
    QPalette own;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (const auto role : {QPalette::Base, QPalette::Text})
            own.setColor(group, role, wanted.color(group, role));
    }
    if (own != palette() || own.resolveMask() != palette().resolveMask())
        setPalette(own);
}

bool EditorBar::takesKey(const QEvent &event) const
{
    const auto &key = static_cast<const QKeyEvent &>(event);
    return key.key() == Qt::Key_Escape || isOwnKey(key);
}

// The host's shortcuts have other uses for these keys.
bool EditorBar::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && takesKey(*event)) {
        event->accept();
        return true;
    }
    return QFrame::event(event);
}

bool EditorBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &m_box || watched == m_box.viewport()) {
        noteBox(event->type());
        return QFrame::eventFilter(watched, event);
    }
    if (event->type() == QEvent::KeyPress && takesKey(*event)) {
        keyPressEvent(static_cast<QKeyEvent *>(event));
        return true;
    }
    if (event->type() == QEvent::ToolTip) {
        auto &control = *static_cast<QWidget *>(watched);
        showPlainToolTip(static_cast<QHelpEvent &>(*event), control.toolTip(), control);
        return true;
    }
    return QFrame::eventFilter(watched, event);
}

void EditorBar::noteBox(QEvent::Type type)
{
    switch (type) {
    case QEvent::Resize:
    case QEvent::Move:
    case QEvent::LayoutDirectionChange:
        place();
        break;
    case QEvent::HideToParent:
        hideNow();
        break;
    case QEvent::EnabledChange:
        if (!m_box.isEnabled())
            hideNow();
        break;
    case QEvent::PaletteChange:
        fitPalette();
        break;
    default:
        break;
    }
}

void EditorBar::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        showTexts();
    else if (event->type() == QEvent::StyleChange)
        fit();
}

// Nothing gets to the editor below.
void EditorBar::keyPressEvent(QKeyEvent *event)
{
    event->accept();
    if (event->key() == Qt::Key_Escape)
        close();
    else if (isOwnKey(*event))
        act(*event);
}

} // namespace ORVTListview
