#include "workbench/help/FirstSteps.h"

#include "workbench/KeyText.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QPushButton>

namespace ORVTListview {

using namespace Qt::StringLiterals;

FirstSteps::FirstSteps(QWidget *parent)
    : ActionPage(parent)
    , m_sample(addStep())
    , m_new(addStep())
    , m_project(addStep())
    , m_keys(addStep())
    , m_close(addStep())
{
    setObjectName(u"FirstSteps"_s);
    connect(m_sample.button, &QPushButton::clicked, this, &FirstSteps::sampleWanted);
    connect(m_new.button, &QPushButton::clicked, this, &FirstSteps::newWanted);
    connect(m_project.button, &QPushButton::clicked, this, &FirstSteps::projectWanted);
    connect(m_keys.button, &QPushButton::clicked, this, &FirstSteps::keysWanted);
    connect(m_close.button, &QPushButton::clicked, this, &FirstSteps::closed);
    retranslate();
}

void FirstSteps::retranslate()
{
    setTitle(tr("First steps"));
    setText(
        tr("The workbench writes, checks and shows the program of a controller, and the tables "
           "of its points. At the left is the tree of the project: it leads to the program and "
           "to each table. The controller behind it is a simulated one, so nothing can break."));
    setStep(m_sample, tr("Look at the Sample"),
            tr("An air handling unit with its program and all twelve tables. "
               "Change what you like: nothing is saved unless you say so."));
    setStep(m_new, tr("New Project…"),
            tr("One of your own: a name and a folder are all that it takes."));
    setStep(m_project, tr("Open a Project…"),
            tr("A project is a file in JSON with its program beside it."));
    setStep(m_keys, tr("Keys"),
            tr("Everything can be done by keyboard. F1 lists all keys, F6 checks "
               "the program, F5 reads the values, %1 lists known words.")
                .arg(keyText(Qt::CTRL | Qt::Key_Space)));
    setStep(m_close, tr("Begin"), tr("This page comes back by Help, First Steps."));
}

void FirstSteps::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closed();
    else
        ActionPage::keyPressEvent(event);
}

} // namespace ORVTListview
