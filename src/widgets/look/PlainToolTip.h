#pragma once

#include <QtGui/QHelpEvent>
#include <QtWidgets/QWidget>

namespace ORVTListview {

// How wide a tip's lines are at most.
int widestTip(const QWidget &widget, const QFont &font);

// A text as a tip shows it: in lines as wide as is good to read, and cut where it is too
// long for that.
QString readableTip(const QString &text, const QFont &font, const QWidget &widget);

// Shows a text as it stands, wrapped where it is wide; an empty one hides the tip.
// What is too long to be read is cut. The tip goes when the mouse leaves the area of the
// widget, where one is given.
void showPlainToolTip(const QHelpEvent &event, const QString &text, QWidget &widget,
                      const QRect &area = {});

} // namespace ORVTListview
