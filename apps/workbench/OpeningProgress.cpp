#include "OpeningProgress.h"

#include <ORVTListview/CodeView.h>

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QToolButton>

namespace ORVTListview {

OpeningProgress::OpeningProgress(CodeView &view, QWidget *parent)
    : QWidget(parent)
    , m_bar(new QProgressBar(this))
    , m_cancel(new QToolButton(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_bar);
    layout->addWidget(m_cancel);
    m_bar->setMinimumWidth(fontMetrics().averageCharWidth() * 30);
    m_cancel->setAutoRaise(true);
    m_cancel->setFocusPolicy(Qt::TabFocus); // a click leaves the focus in the program
    retranslate();
    hide();
    connect(&view, &CodeView::openingProgress, this, &OpeningProgress::follow);
    connect(m_cancel, &QToolButton::clicked, &view, &CodeView::cancelOpening);
}

void OpeningProgress::retranslate()
{
    m_bar->setFormat(tr("Colouring: %p %"));
    m_bar->setAccessibleName(tr("Colouring the program"));
    m_cancel->setText(tr("Cancel"));
    m_cancel->setToolTip(tr("The program stays, the rest of it without colours"));
}

void OpeningProgress::follow(int percent)
{
    m_bar->setValue(percent);
    setVisible(percent < 100);
}

} // namespace ORVTListview
