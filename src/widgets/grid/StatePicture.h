#pragma once

#include <ORVTListview/CellState.h>

#include <QtGui/QColor>
#include <QtGui/QIcon>
#include <QtGui/QPalette>

namespace ORVTListview {

// Each state has a shape of its own, in a colour that is seen on light and on dark grounds,
// and on a selected cell in the one given. A null icon for a plain cell.
QIcon statePicture(CellState state, const QColor &selected);

// Both, the first where one begins to read; square, with a gap between them.
QIcon besideOneAnother(const QIcon &first, const QIcon &second, Qt::LayoutDirection direction);

// That of the text beside it; invalid where it is the palette's.
QColor stateInk(CellState state, const QPalette &palette);

} // namespace ORVTListview
