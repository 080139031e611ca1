#include "workbench/saving/RecoveryDialog.h"

#include "project/Project.h"
#include "project/RecoveryFile.h"
#include "workbench/saving/ComparisonView.h"

#include "base/TextRules.h"

#include <ORVTListview/Error.h>

#include <QtCore/QFileInfo>
#include <QtGui/QScreen>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// To the second, as the work's time is.
bool isOlderThanFiles(const RecoveredWork &work, const Project &project)
{
    QStringList files{project.fileName()};
    for (const ProjectProgram &program : project.programs())
        files.append(project.programFile(program.id));
    return std::ranges::any_of(files, [&work](const QString &file) {
        const QFileInfo info(file);
        return info.isFile() &&
               info.lastModified().toSecsSinceEpoch() > work.when.toSecsSinceEpoch();
    });
}

// A program that was added has nothing before.
void comparePrograms(ComparisonView &view, const Project &project, const RecoveredWork &work)
{
    QList<ProgramEntry> entries;
    try {
        entries = readContents(JsonPlace::parse(work.json, work.projectFile)).programs;
    } catch (const Error &) {
        entries = project.tableSaving().programs; // it is told later
    }
    for (qsizetype i = 0; i < std::min(entries.size(), work.programs.size()); ++i) {
        QString before;
        for (const ProjectProgram &program : project.programs()) {
            if (project.programFile(program.id) ==
                programPath(project.fileName(), entries.at(i).file))
                before = project.shownProgram(program.id);
        }
        view.append(entries.at(i).name, compared(before, work.programs.at(i)));
    }
}

} // namespace

RecoveryDialog::RecoveryDialog(const Project &project, const RecoveredWork &work,
                               const QLocale &locale, QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Recover Unsaved Work"));
    auto *layout = new QVBoxLayout(this);
    const QString when = locale.toString(work.when.toLocalTime(), QLocale::ShortFormat);
    auto *label = new QLabel(tr("The workbench ended without saving this work of %1. What differs "
                                "from the files is shown below.")
                                 .arg(when));
    const bool isOlder = isOlderThanFiles(work, project);
    if (isOlder)
        label->setText(label->text() + u' ' + tr("The files are newer than this work."));
    label->setWordWrap(true);
    layout->addWidget(label);
    auto *view = new ComparisonView(this);
    label->setBuddy(view);
    view->setAccessibleName(windowTitle());
    view->resize(760, 320);
    view->setTitles(tr("Before, in the files"), tr("After, not saved"));
    comparePrograms(*view, project, work);
    view->append(QFileInfo(project.fileName()).fileName(),
                 compared(withCrLf(QString::fromUtf8(project.json())),
                          withCrLf(QString::fromUtf8(work.json))));
    layout->addWidget(view);
    auto *buttons = new QDialogButtonBox(this);
    QPushButton *restore = buttons->addButton(tr("&Restore"), QDialogButtonBox::AcceptRole);
    QPushButton *discard = buttons->addButton(tr("&Discard"), QDialogButtonBox::DestructiveRole);
    QPushButton *later = buttons->addButton(tr("Decide &Later"), QDialogButtonBox::RejectRole);
    (isOlder ? later : restore)->setDefault(true);
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
