#pragma once

#include <QtCore/QList>

class QMainWindow;

namespace ORVTListview {

class ViewDock;

// The toolkit may leave the neighbours of a dock that is dropped next to nothing, or the dock.
// Where one of those that stand in its row or in its column has less than half of an equal part
// of the place, all of them get equal parts; else they stay as they are.
void shareRoom(const ViewDock &dropped, const QList<ViewDock *> &shown, QMainWindow &place);

} // namespace ORVTListview
