#include "workbench/export/ProgramChoice.h"

#include "workbench/TitleWidth.h"
#include "workbench/views/ProgramViews.h"

#include <ORVTListview/ORVListView.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QInputDialog>

#include <algorithm>

namespace ORVTListview {
namespace {

struct ProgramChoice
{
    Q_DECLARE_TR_FUNCTIONS(ProgramChoice)
};

// The place among them; behind the last one for all, -1 for none.
int askForPlace(QWidget &window, const QString &title, const QStringList &names, int usual)
{
    const QPointer<QInputDialog> dialog(new QInputDialog(&window));
    dialog->setWindowTitle(title);
    dialog->setLabelText(ProgramChoice::tr("&Program:"));
    dialog->setComboBoxItems(names + QStringList{ProgramChoice::tr("All programs")});
    auto *box = dialog->findChild<QComboBox *>();
    box->setCurrentIndex(usual);
    box->setMinimumWidth(titleWidth(*dialog));
    const bool isWanted = dialog->exec() == QDialog::Accepted;
    const int place = dialog && isWanted ? box->currentIndex() : -1;
    delete dialog;
    return place;
}

} // namespace

QList<qint32> askForPrograms(QWidget &window, const QString &title, const ProgramViews &programs)
{
    QList<qint32> all;
    QStringList names; // what users know them by
    for (const ProjectProgram &program : programs.list()) {
        all.append(program.id);
        names.append(programs.view(program.id).accessibleName());
    }
    if (all.size() < 2)
        return all;
    const int usual = std::max(0, static_cast<int>(all.indexOf(programs.current())));
    const int place = askForPlace(window, title, names, usual);
    if (place < 0)
        return {};
    return place < all.size() ? QList<qint32>{all.at(place)} : all;
}

} // namespace ORVTListview
