#pragma once

#include "ResultPlace.h"

#include <QtCore/QList>

class QWidget;

namespace ORVTListview {

class ProgramViews;

// The places of a text in all programs, in any letter case, with their lines.
QList<ShownUse> findInPrograms(const ProgramViews &programs, const QString &text);

// Asks for the text, and begins with what is selected. Empty when the user gives up, or the
// window goes.
QString askTextToFind(QWidget &window, const ProgramViews &programs);

} // namespace ORVTListview
