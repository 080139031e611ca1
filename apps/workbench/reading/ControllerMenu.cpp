#include "workbench/reading/ControllerMenu.h"

#include "project/controller/PointReading.h"
#include "workbench/trend/TrendDock.h"

#include <QtGui/QKeySequence>

namespace ORVTListview {

ControllerMenu::ControllerMenu(PointReading &reading, TrendDock &trend, QWidget *parent)
    : QMenu(tr("&Controller"), parent)
{
    addAction(tr("Read &All"), QKeySequence(Qt::CTRL | Qt::Key_F5), &reading,
              &PointReading::readAll);
    QAction *stop = addAction(tr("&Stop Reading"), QKeySequence(Qt::SHIFT | Qt::Key_F5), &reading,
                              &PointReading::stop);
    const auto follow = [stop, &reading] { stop->setEnabled(reading.isReading()); };
    for (const auto signal : {&PointReading::begun, &PointReading::dropped})
        connect(&reading, signal, stop, follow);
    connect(&reading, &PointReading::ended, stop, follow);
    follow();
    addSeparator();
    addAction(&trend.cyclicAction());
    addAction(tr("&Reading…"), this, &ControllerMenu::settingsWanted);
    addSeparator();
    addAction(tr("A&dd To Trend"), QKeySequence(Qt::CTRL | Qt::Key_R), this,
              &ControllerMenu::trendWanted);
    QAction *shown = trend.toggleViewAction();
    shown->setText(tr("&Trend"));
    addAction(shown);
}

} // namespace ORVTListview
