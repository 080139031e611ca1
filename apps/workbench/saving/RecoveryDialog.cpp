#include "saving/RecoveryDialog.h"

#include "project/Project.h"
#include "project/RecoveryFile.h"
#include "saving/ComparisonView.h"

#include "base/TextRules.h"

#include <QtCore/QFileInfo>
#include <QtGui/QScreen>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace ORVTListview {

using namespace Qt::StringLiterals;

RecoveryDialog::RecoveryDialog(const Project &project, const RecoveredWork &work, QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Recover Unsaved Work"));
    auto *layout = new QVBoxLayout(this);
    const QString when = work.when.toLocalTime().toString(u"yyyy-MM-dd HH:mm"_s);
    auto *label = new QLabel(tr("The workbench ended without saving this work of %1. What differs "
                                "from the files is shown below.")
                                 .arg(when));
    label->setWordWrap(true);
    layout->addWidget(label);
    auto *view = new ComparisonView(this);
    label->setBuddy(view);
    view->setAccessibleName(windowTitle());
    view->resize(760, 320);
    view->setTitles(tr("Before, in the files"), tr("After, not saved"));
    view->append(QFileInfo(project.programFile()).fileName(),
                 compared(project.shownProgram(), work.program));
    view->append(QFileInfo(project.fileName()).fileName(),
                 compared(withCrLf(QString::fromUtf8(project.json())),
                          withCrLf(QString::fromUtf8(work.json))));
    layout->addWidget(view);
    auto *buttons = new QDialogButtonBox(this);
    QPushButton *restore = buttons->addButton(tr("&Restore"), QDialogButtonBox::AcceptRole);
    QPushButton *discard = buttons->addButton(tr("&Discard"), QDialogButtonBox::DestructiveRole);
    buttons->addButton(tr("Decide &Later"), QDialogButtonBox::RejectRole);
    restore->setDefault(true);
    connect(restore, &QPushButton::clicked, this, [this] { answerWith(Answer::Restore); });
    connect(discard, &QPushButton::clicked, this, [this] { answerWith(Answer::Discard); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    resize(QSize(820, 480).boundedTo(screen()->availableSize() * 9 / 10));
}

void RecoveryDialog::answerWith(Answer answer)
{
    m_answer = answer;
    accept();
}

} // namespace ORVTListview
