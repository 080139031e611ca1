#include "workbench/saving/RecoveryOffer.h"

#include "project/ProjectDocument.h"
#include "workbench/saving/RecoveryDialog.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ORVListView.h>

#include <QtCore/QPointer>
#include <QtCore/QScopeGuard>
#include <QtWidgets/QMessageBox>

namespace ORVTListview {

RecoveryOffer::RecoveryOffer(ProjectDocument &document, RecoveryKeeper &keeper, ORVListView &code,
                             QWidget &window)
    : QObject(&window)
    , m_document(document)
    , m_keeper(keeper)
    , m_code(code)
    , m_window(window)
{
}

void RecoveryOffer::makeAll()
{
    const QPointer<RecoveryOffer> self(this); // while a dialog is open
    while (self && !m_isAsking && m_document.project() && m_keeper.hasLeft()) {
        if (!make())
            return;
    }
}

// False when something was restored, or the window is gone: the next work that was left
// would take the place of what is in the editor now, so it waits for the next opening.
bool RecoveryOffer::make()
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
        new RecoveryDialog(*m_document.project(), *left->work, &m_window));
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

// Only what is whole, and safe in a file of our own, may lose the former one.
bool RecoveryOffer::restore(const RecoveryKeeper::Left &left)
{
    if (m_document.program() != left.work->program)
        m_code.codeView()->openProgram(left.work->program);
    const bool isWhole = m_document.restoreTables(left.work->json);
    const bool isKept = !m_document.isModified() || m_keeper.keepNow();
    if (!isWhole)
        tellUnreadable(left.fileName);
    return isWhole && isKept;
}

void RecoveryOffer::tellUnreadable(const QString &fileName)
{
    QMessageBox::warning(
        &m_window, RecoveryDialog::tr("Recover Unsaved Work"),
        RecoveryDialog::tr("%1 holds work that was not saved, but cannot be read as a whole. It "
                           "stays there; a text editor shows what it holds.")
            .arg(fileName));
}

} // namespace ORVTListview
