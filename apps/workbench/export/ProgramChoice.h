#pragma once

#include <QtCore/QList>

class QString;
class QWidget;

namespace ORVTListview {

class ProgramViews;

// The programs that are to be taken out of the window. Where there are several the user says
// which one, or all of them; none where the user gives up, or the window goes.
QList<qint32> askForPrograms(QWidget &window, const QString &title, const ProgramViews &programs);

} // namespace ORVTListview
