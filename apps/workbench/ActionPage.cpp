#include "ActionPage.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QShowEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace ORVTListview {

ActionPage::ActionPage(QWidget *parent)
    : QScrollArea(parent)
    , m_body(new QVBoxLayout)
    , m_title(new QLabel)
    , m_text(new QLabel)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setAlignment(Qt::AlignHCenter); // lines are no longer than they are read well
    auto *page = new QWidget;
    page->setMaximumWidth(fontMetrics().averageCharWidth() * 100);
    auto *layout = new QVBoxLayout(page);
    const int room = fontMetrics().height();
    layout->setContentsMargins(2 * room, 2 * room, 2 * room, 2 * room);
    m_body->setSpacing(room / 2);
    layout->addStretch(1);
    layout->addLayout(m_body);
    layout->addStretch(2);
    setWidget(page);
    add(*m_title);
    add(*m_text);
    m_text->hide();
    enlargeTitle();
}

// Letter for letter; the Tab key goes from button to button.
void ActionPage::add(QLabel &label)
{
    label.setTextFormat(Qt::PlainText);
    label.setWordWrap(true);
    label.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label.setFocusPolicy(Qt::ClickFocus);
    m_body->addWidget(&label);
}

void ActionPage::enlargeTitle()
{
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    m_title->setFont(large);
}

void ActionPage::setTitle(const QString &title)
{
    m_title->setText(title);
    setAccessibleName(title);
}

void ActionPage::setText(const QString &text)
{
    m_text->setText(text);
    m_text->setVisible(!text.isEmpty());
}

QPushButton *ActionPage::addButton()
{
    if (!m_row) {
        m_row = new QHBoxLayout;
        m_row->addStretch();
        m_body->addLayout(m_row);
    }
    auto *button = new QPushButton(widget());
    m_row->insertWidget(m_row->count() - 1, button);
    m_preferred = m_preferred ? m_preferred : button;
    return button;
}

ActionPage::Step ActionPage::addStep()
{
    m_body->addSpacing(fontMetrics().height() / 2);
    const Step step{new QPushButton(widget()), new QLabel(widget())};
    m_body->addWidget(step.button, 0, Qt::AlignLeft);
    add(*step.text);
    m_steps.append(step);
    m_preferred = m_preferred ? m_preferred : step.button;
    return step;
}

void ActionPage::setStep(const Step &step, const QString &caption, const QString &text)
{
    step.button->setText(caption);
    step.button->setAccessibleDescription(text);
    step.text->setText(text);
    alignSteps();
}

void ActionPage::alignSteps()
{
    int widest = 0;
    for (const Step &step : m_steps)
        widest = std::max(widest, step.button->sizeHint().width() + fontMetrics().height());
    for (const Step &step : m_steps)
        step.button->setMinimumWidth(widest);
}

void ActionPage::addBelow(QWidget &widget)
{
    m_body->addWidget(&widget);
}

void ActionPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange && widget()) {
        enlargeTitle();
        alignSteps();
    }
    QScrollArea::changeEvent(event);
}

// A button takes the Return key in dialogs only.
void ActionPage::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto *button = qobject_cast<QPushButton *>(window()->focusWidget());
    if (isReturn && !event->isAutoRepeat() && button && isAncestorOf(button))
        button->click();
    else
        QScrollArea::keyPressEvent(event);
}

// Not when the window comes back, and the user has been on it already.
void ActionPage::showEvent(QShowEvent *event)
{
    const QWidget *focus = window()->focusWidget();
    if (m_preferred && !event->spontaneous() && !(focus && isAncestorOf(focus)))
        m_preferred->setFocus();
    QScrollArea::showEvent(event);
}

} // namespace ORVTListview
