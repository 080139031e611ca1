#include "ProgramMenu.h"

#include "CheckResults.h"
#include "ProgramChecking.h"
#include "ProgramNavigation.h"
#include "workbench/renaming/ProgramNaming.h"

#include <QtGui/QAction>
#include <QtGui/QKeySequence>

namespace ORVTListview {

ProgramMenu::ProgramMenu(const Acts &acts, const CheckResults &results, QWidget *parent)
    : QMenu(tr("&Program"), parent)
{
    addAction(tr("&Analyse"), QKeySequence(Qt::Key_F6), &acts.checking, &ProgramChecking::analyse);
    addAction(tr("&Compile"), QKeySequence(Qt::CTRL | Qt::Key_F6), &acts.checking,
              &ProgramChecking::compile);
    addAction(tr("&Export Statements…"), &acts.checking, &ProgramChecking::exportListing);
    addSeparator();
    acts.navigation.fillMenu(*this);
    addSeparator();
    addNaming(acts.naming);
    addSeparator();
    QAction *list = results.toggleViewAction();
    list->setText(tr("&Results"));
    addAction(list);
}

void ProgramMenu::addNaming(ProgramNaming &naming)
{
    addAction(tr("A&dd Program…"), &naming, &ProgramNaming::add);
    addAction(tr("Re&name Program…"), &naming, [&naming] { naming.rename(naming.current()); });
    QAction *remove =
        addAction(tr("Re&move Program…"), &naming, [&naming] { naming.remove(naming.current()); });
    connect(this, &QMenu::aboutToShow, remove,
            [remove, &naming] { remove->setEnabled(naming.canRemove()); });
}

} // namespace ORVTListview
