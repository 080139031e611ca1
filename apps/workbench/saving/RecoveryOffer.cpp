#include "saving/RecoveryOffer.h"

#include "project/ProjectDocument.h"
#include "saving/RecoveryDialog.h"
#include "saving/RecoveryKeeper.h"

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
    while (self && !m_isAsking && m_document.project() && m_keeper.left())
        make();
}

void RecoveryOffer::make()
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
        return;
    }
    RecoveryDialog dialog(*m_document.project(), *left->work, &m_window);
    dialog.exec();
    if (!self)
        return;
    const bool isDone =
        dialog.answer() == RecoveryDialog::Answer::Discard ||
        (dialog.answer() == RecoveryDialog::Answer::Restore && restore(*left->work));
    if (isDone)
        m_keeper.removeLeft();
    else
        m_keeper.leaveLeft();
}

// Only what is safe in a file of our own may lose the former one.
bool RecoveryOffer::restore(const RecoveredWork &work)
{
    if (m_document.program() != work.program)
        m_code.codeView()->openProgram(work.program);
    m_document.restoreTables(work.json);
    return !m_document.isModified() || m_keeper.keepNow();
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
