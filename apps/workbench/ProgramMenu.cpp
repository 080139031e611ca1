#include "ProgramMenu.h"

#include "CheckResults.h"
#include "ProgramChecking.h"
#include "ProgramNavigation.h"

#include <QtGui/QAction>
#include <QtGui/QKeySequence>

namespace ORVTListview {

ProgramMenu::ProgramMenu(ProgramChecking &checking, ProgramNavigation &navigation,
                         const CheckResults &results, QWidget *parent)
    : QMenu(tr("&Program"), parent)
{
    addAction(tr("&Analyse"), QKeySequence(Qt::Key_F6), &checking, &ProgramChecking::analyse);
    addAction(tr("&Compile"), QKeySequence(Qt::CTRL | Qt::Key_F6), &checking,
              &ProgramChecking::compile);
    addAction(tr("&Export Statements…"), &checking, &ProgramChecking::exportListing);
    addSeparator();
    navigation.fillMenu(*this);
    addSeparator();
    QAction *list = results.toggleViewAction();
    list->setText(tr("&Results"));
    addAction(list);
}

} // namespace ORVTListview
