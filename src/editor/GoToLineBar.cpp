#include "editor/GoToLineBar.h"

#include "editor/CaretCommands.h"
#include "shared/texts/TextTable.h"
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QSpinBox>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

bool isOwnKey(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape;
}

} // namespace

GoToLineBar::GoToLineBar(RichTextBox &box, const CaretCommands &commands)
    : QFrame(&box)
    , m_box(box)
    , m_commands(commands)
    , m_label(new QLabel(this))
    , m_line(new QSpinBox(this))
{
    setObjectName(u"GoToLineBar"_s);
    setFont(QApplication::font("QLabel")); // the box's is the program's
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setAttribute(Qt::WA_NoMousePropagation);
    setCursor(Qt::ArrowCursor);
    setFocusPolicy(Qt::ClickFocus); // a click beside the field would go to the box
    setFocusProxy(m_line);
    m_label->setBuddy(m_line);
    m_line->setMinimum(1);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 3, 6, 3);
    layout->addWidget(m_label);
    layout->addWidget(m_line);
    layout->addStretch();
    box.installEventFilter(this);
    box.viewport()->installEventFilter(this);
    m_line->installEventFilter(this);
    showTexts();
    hide();
}

void GoToLineBar::showTexts()
{
    m_label->setText(Localise(u"Go to line:"_s));
    setAccessibleName(m_label->text());
    m_line->setAccessibleName(m_label->text());
}

void GoToLineBar::ask()
{
    if (!mayGoIn(m_box) || !m_box.isVisible())
        return;
    showTexts();
    m_line->setMaximum(m_box.lineCount());
    m_line->setValue(m_box.textCursor().blockNumber() + 1);
    m_line->selectAll();
    place();
    show();
    raise();
    m_line->setFocus(Qt::ShortcutFocusReason);
}

void GoToLineBar::place()
{
    const QRect text = m_box.viewport()->geometry();
    const int height = sizeHint().height();
    setGeometry(text.left(), text.bottom() + 1 - height, text.width(), height);
}

void GoToLineBar::close(bool goes)
{
    if (isHidden())
        return;
    m_line->interpretText();
    const int line = m_line->value();
    const bool hadFocus = isAncestorOf(QApplication::focusWidget());
    hide();
    if (hadFocus)
        m_box.setFocus();
    if (goes)
        m_commands.goToLine(line); // the last, the host hears of it
}

// The host's shortcuts have other uses for these keys.
bool GoToLineBar::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride &&
        isOwnKey(static_cast<QKeyEvent *>(event)->key())) {
        event->accept();
        return true;
    }
    return QFrame::event(event);
}

void GoToLineBar::watchBox(const QObject &watched, const QEvent &event)
{
    const QEvent::Type type = event.type();
    const bool isText = &watched == m_box.viewport(); // which scroll bars and margins move
    if (isText && (type == QEvent::Move || type == QEvent::Resize))
        place();
    else if (!isText && (type == QEvent::HideToParent || type == QEvent::EnabledChange))
        hide();
}

bool GoToLineBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_line) {
        watchBox(*watched, *event);
        return QFrame::eventFilter(watched, event);
    }
    switch (event->type()) {
    case QEvent::FocusOut: {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            hide();
        break;
    }
    case QEvent::KeyPress:
        if (isOwnKey(static_cast<QKeyEvent *>(event)->key())) {
            keyPressEvent(static_cast<QKeyEvent *>(event));
            return true;
        }
        break;
    default:
        break;
    }
    return QFrame::eventFilter(watched, event);
}

void GoToLineBar::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        showTexts();
}

// Nothing gets to the editor below.
void GoToLineBar::keyPressEvent(QKeyEvent *event)
{
    event->accept();
    if (isOwnKey(event->key()))
        close(event->key() != Qt::Key_Escape);
}

} // namespace ORVTListview
