#include "OpeningProgress.h"

#include <ORVTListview/CodeView.h>

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace ORVTListview {

OpeningProgress::OpeningProgress(QWidget *parent)
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
    connect(m_cancel, &QToolButton::clicked, this, &OpeningProgress::cancel);
}

void OpeningProgress::add(CodeView &view)
{
    connect(&view, &CodeView::openingProgress, this, [this, &view](int percent) {
        if (percent < 100)
            m_percents.insert(&view, percent);
        else
            m_percents.remove(&view);
        follow();
    });
}

void OpeningProgress::cancel()
{
    const QList<CodeView *> views = m_percents.keys();
    for (CodeView *view : views)
        view->cancelOpening();
}

void OpeningProgress::retranslate()
{
    m_bar->setFormat(tr("Colouring: %p %"));
    m_bar->setAccessibleName(tr("Colouring the program"));
    m_cancel->setText(tr("Cancel"));
    m_cancel->setToolTip(tr("The program stays, the rest of it without colours"));
}

// The one that has the longest way to go.
void OpeningProgress::follow()
{
    const auto least = std::ranges::min_element(m_percents);
    m_bar->setValue(least == m_percents.end() ? 100 : *least);
    setVisible(!m_percents.isEmpty());
}

} // namespace ORVTListview
