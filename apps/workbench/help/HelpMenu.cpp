#include "workbench/help/HelpMenu.h"

#include "workbench/help/KeyList.h"

#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>

namespace ORVTListview {

HelpMenu::HelpMenu(QMenuBar &menus)
    : QMenu(tr("&Help"), &menus)
    , m_menus(menus)
{
    addAction(tr("&Keys"), QKeySequence::HelpContents, this, &HelpMenu::showKeys);
    addAction(tr("&First Steps"), this, &HelpMenu::firstStepsWanted);
    addAction(tr("&About"), this, &HelpMenu::showAbout);
}

void HelpMenu::showKeys()
{
    KeyList(m_menus, m_menus.window()).exec();
}

void HelpMenu::showAbout()
{
    QMessageBox box(QMessageBox::NoIcon, tr("About"),
                    tr("Workbench of ORVTListview %1").arg(QStringLiteral(ORVT_VERSION)),
                    QMessageBox::Close, m_menus.window());
    box.setInformativeText(
        tr("It writes, checks and shows the programs of controllers and their points.\n\n"
           "Free software under the MIT licence. It stands on Qt %1.")
            .arg(QString::fromLatin1(qVersion())));
    box.exec();
}

} // namespace ORVTListview
