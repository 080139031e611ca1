#include "workbench/help/FirstSteps.h"

#include <QtCore/QEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

FirstSteps::FirstSteps(QWidget *parent)
    : QScrollArea(parent)
    , m_title(new QLabel)
    , m_about(new QLabel)
{
    setObjectName(u"FirstSteps"_s);
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    auto *page = new QWidget;
    page->setMaximumWidth(fontMetrics().averageCharWidth() * 90);
    auto *layout = new QVBoxLayout(page);
    const int room = fontMetrics().height();
    layout->setContentsMargins(2 * room, 2 * room, 2 * room, room);
    layout->setSpacing(room / 2);
    m_about->setWordWrap(true);
    layout->addWidget(m_title);
    layout->addWidget(m_about);
    m_sample = addStep(*layout, &FirstSteps::sampleWanted);
    m_project = addStep(*layout, &FirstSteps::projectWanted);
    m_keys = addStep(*layout, &FirstSteps::keysWanted);
    m_close = addStep(*layout, &FirstSteps::closed);
    layout->addStretch();
    setWidget(page);
    enlargeTitle();
    retranslate();
}

FirstSteps::Step FirstSteps::addStep(QBoxLayout &layout, void (FirstSteps::*wanted)())
{
    const Step step{new QPushButton, new QLabel};
    step.text->setWordWrap(true);
    layout.addSpacing(fontMetrics().height() / 2);
    layout.addWidget(step.button, 0, Qt::AlignLeft);
    layout.addWidget(step.text);
    connect(step.button, &QPushButton::clicked, this, wanted);
    return step;
}

void FirstSteps::enlargeTitle()
{
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    m_title->setFont(large);
}

void FirstSteps::retranslate()
{
    setAccessibleName(tr("First steps"));
    m_title->setText(tr("First steps"));
    m_about->setText(
        tr("The workbench writes, checks and shows the program of a controller, and the tables "
           "of its points. At the left is the tree of the project: it leads to the program and "
           "to each table. The controller behind it is a simulated one, so nothing can break."));
    m_sample.button->setText(tr("Look at the Sample"));
    m_sample.text->setText(tr("An air handling unit with its program and all twelve tables. "
                              "Change what you like: nothing is saved unless you say so."));
    m_project.button->setText(tr("Open a Project…"));
    m_project.text->setText(tr("A project is a file in JSON with its program beside it. File, New "
                               "Project begins one of your own."));
    m_keys.button->setText(tr("Keys"));
    m_keys.text->setText(tr("Everything can be done by keyboard. F1 lists all keys, F6 checks "
                            "the program, F5 reads the values, Ctrl+Space lists known words."));
    m_close.button->setText(tr("Begin"));
    m_close.text->setText(tr("This page comes back by Help, First Steps."));
    for (const Step &step : {m_sample, m_project, m_keys, m_close})
        step.button->setAccessibleDescription(step.text->text());
    alignButtons();
}

// All as wide as the widest.
void FirstSteps::alignButtons()
{
    int widest = 0;
    for (const Step &step : {m_sample, m_project, m_keys, m_close})
        widest = std::max(widest, step.button->sizeHint().width() + fontMetrics().height());
    for (const Step &step : {m_sample, m_project, m_keys, m_close})
        step.button->setMinimumWidth(widest);
}

void FirstSteps::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange && widget())
        enlargeTitle();
    QScrollArea::changeEvent(event);
}

void FirstSteps::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closed();
    else
        QScrollArea::keyPressEvent(event);
}

void FirstSteps::showEvent(QShowEvent *event)
{
    m_sample.button->setFocus();
    QScrollArea::showEvent(event);
}

} // namespace ORVTListview
