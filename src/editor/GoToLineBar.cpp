#include "editor/GoToLineBar.h"

#include "editor/CaretCommands.h"
#include "shared/texts/TextTable.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QPointer>
#include <QtGui/QFocusEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QSpinBox>

namespace ORVTListview {

using namespace Qt::StringLiterals;

GoToLineBar::GoToLineBar(RichTextBox &box, const CaretCommands &commands)
    : EditorBar(box, BoxLayers::of(box))
    , m_box(box)
    , m_commands(commands)
    , m_label(new QLabel(this))
    , m_line(new QSpinBox(this))
{
    setObjectName(u"GoToLineBar"_s);
    m_label->setBuddy(m_line);
    m_line->setMinimum(1);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(inside);
    row->addWidget(m_label);
    row->addWidget(m_line);
    row->addStretch();
    watch(*m_line);
    setFocusProxy(m_line);
    showTexts();
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
    open();
    m_line->setFocus(Qt::ShortcutFocusReason);
}

bool GoToLineBar::isOwnKey(const QKeyEvent &key) const
{
    return isEnter(key);
}

void GoToLineBar::act(const QKeyEvent &)
{
    m_line->interpretText();
    const int line = m_line->value();
    const QPointer<GoToLineBar> self(this);
    close();
    if (self)
        m_commands.goToLine(line); // the last, the host hears of it
}

bool GoToLineBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_line && event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            close();
    }
    return EditorBar::eventFilter(watched, event);
}

} // namespace ORVTListview
