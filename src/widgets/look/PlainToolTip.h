#pragma once

#include <QtGui/QHelpEvent>
#include <QtWidgets/QWidget>

namespace ORVTListview {

// Shows a text as it stands, wrapped where it is wide; an empty one hides the tip.
// What is too long to be read is cut.
void showPlainToolTip(const QHelpEvent &event, const QString &text, QWidget &widget);

} // namespace ORVTListview
