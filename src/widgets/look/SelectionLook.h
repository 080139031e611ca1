#pragma once

#include <QtGui/QPalette>

class QWidget;

namespace ORVTListview {

// Whether the widget's style shows what is selected on a light ground of its own, in the
// colour of text that is not. The widget is a view of items, or what one paints on.
bool isSelectionLight(const QWidget *widget);

// The role of the colour in which the widget's style shows the text of a selected item.
QPalette::ColorRole selectedTextRole(const QWidget *widget);

} // namespace ORVTListview
