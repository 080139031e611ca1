#include "find/FindDialog.h"

#include "base/ThreadState.h"
#include "find/fFind.h"
#include "find/rules/SearchHistory.h"
#include "shared/texts/ToldFailure.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QScopeGuard>
#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>

#include <memory>

namespace ORVTListview {
namespace {

struct SharedDialog
{
    // A widget cannot outlive the application object, nor be destroyed after it.
    ~SharedDialog()
    {
        if (!QCoreApplication::instance())
            static_cast<void>(dialog.release());
    }

    std::unique_ptr<fFind> dialog;
    bool isModal = false;
};

void destroyWithApplication()
{
    threadPart<SharedDialog>().dialog.reset();
}

void resetPointer()
{
    while (QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
}

// Window managers keep it above the window and on its desktop.
void putAbove(const QWidget &window, fFind &dialog)
{
    dialog.winId(); // makes its window
    dialog.windowHandle()->setTransientParent(window.windowHandle());
}

void openModally(RichTextBox &box, bool isReplace)
{
    fFind &dialog = FindDialog::shared();
    auto &state = threadPart<SharedDialog>();
    dialog.Open(box, isReplace);
    resetPointer();
    if (state.isModal) {
        dialog.activateWindow();
        return;
    }
    dialog.hide(); // if it was shown beside an editor
    putAbove(*box.window(), dialog);
    state.isModal = true;
    const auto closed = qScopeGuard([&state] { state.isModal = false; });
    dialog.exec();
}

} // namespace

fFind &FindDialog::shared()
{
    auto &state = threadPart<SharedDialog>();
    if (!state.dialog) {
        state.dialog = std::make_unique<fFind>(threadPart<SearchHistories>());
        qAddPostRoutine(destroyWithApplication);
    }
    return *state.dialog;
}

void FindDialog::showModally(RichTextBox &box, bool isReplace, QString &ErrMsg)
{
    tellingFailure(ErrMsg, [&] { openModally(box, isReplace); });
}

void FindDialog::showBeside(RichTextBox &box, bool isReplace)
{
    fFind &dialog = shared();
    dialog.Open(box, isReplace);
    if (threadPart<SharedDialog>().isModal)
        return;
    putAbove(*box.window(), dialog);
    dialog.show();
    dialog.raise();
    dialog.activateWindow();
}

void FindDialog::initStrings()
{
    if (const auto &dialog = threadPart<SharedDialog>().dialog)
        dialog->InitStrings();
}

} // namespace ORVTListview
