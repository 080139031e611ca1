#include "FrontWindow.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QDockWidget>

namespace ORVTListview {

QWidget &frontWindow(QWidget &main)
{
    auto *dock = qobject_cast<QDockWidget *>(QApplication::activeWindow());
    const bool isOurs = dock && dock->parentWidget() && dock->parentWidget()->window() == &main;
    return isOurs ? *dock : main;
}

} // namespace ORVTListview
