#include "workbench/saving/RecoveryOffer.h"

#include "project/ProjectDocument.h"
#include "workbench/PlainTexts.h"
#include "workbench/saving/RecoveryDialog.h"
#include "workbench/views/ProgramViews.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ORVListView.h>

#include <QtCore/QPointer>
#include <QtCore/QScopeGuard>

#include <algorithm>

namespace ORVTListview {

RecoveryOffer::RecoveryOffer(ProjectDocument &document, RecoveryKeeper &keeper,
                             const ProgramViews &programs, QWidget &window)
    : QObject(&window)
    , m_document(document)
    , m_keeper(keeper)
    , m_programs(programs)
    , m_window(window)
{
}

void RecoveryOffer::makeAll(const QLocale &locale)
{
    const QPointer<RecoveryOffer> self(this); // while a dialog is open
    while (self && !m_isAsking && m_document.project() && m_keeper.hasLeft()) {
        if (!make(locale))
            return;
    }
}

// False when something was restored, or the window is gone: the next work that was left
// would take the place of what is in the editor now, so it waits for the next opening.
bool RecoveryOffer::make(const QLocale &locale)
{
    m_isAsking = true;
    const QPointer<RecoveryOffer> self(this);
    const auto done = qScopeGuard([&self] {
        if (self)
            self->m_isAsking = false;
    });
    const std::optional<RecoveryKeeper::Left> left = m_keeper.left();
    if (!left->work) {
        tellUnreadable(left->fileName);
        if (self)
            m_keeper.leaveLeft();
        return true;
    }
    const QPointer<RecoveryDialog> dialog(
        new RecoveryDialog(*m_document.project(), *left->work, locale, &m_window));
    dialog->exec();
    if (!self || !dialog)
        return false;
    const RecoveryDialog::Answer answer = dialog->answer();
    delete dialog;
    const bool restores = answer == RecoveryDialog::Answer::Restore;
    const bool isDone = answer == RecoveryDialog::Answer::Discard || (restores && restore(*left));
    if (!self)
        return false;
    if (isDone)
        m_keeper.removeLeft();
    else
        m_keeper.leaveLeft();
    return !restores;
}

// In the order of the project, whose list has been restored.
void RecoveryOffer::restorePrograms(const QStringList &texts)
{
    const ProgramList &list = m_document.project()->programs();
    for (qsizetype i = 0; i < std::min(list.size(), texts.size()); ++i) {
        if (m_document.program(list.at(i).id) != texts.at(i))
            m_programs.view(list.at(i).id).codeView()->openProgram(texts.at(i));
    }
}

// Only what is whole, and safe in a file of our own, may lose the former one.
bool RecoveryOffer::restore(const RecoveryKeeper::Left &left)
{
    const bool isWhole = m_document.restoreTables(left.work->json);
    restorePrograms(left.work->programs);
    const bool isKept = !m_document.isModified() || m_keeper.keepNow();
    if (!isWhole)
        tellUnreadable(left.fileName);
    return isWhole && isKept;
}

void RecoveryOffer::tellUnreadable(const QString &fileName)
{
    PlainTexts::warn(
        m_window, RecoveryDialog::tr("Recover Unsaved Work"),
        RecoveryDialog::tr("%1 holds work that was not saved, but cannot be read as a whole. It "
                           "stays there; a text editor shows what it holds.")
            .arg(fileName));
}

} // namespace ORVTListview
