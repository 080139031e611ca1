#pragma once

#include <QtCore/QList>

class QMainWindow;

namespace ORVTListview {

class ViewDock;

// The toolkit leaves the neighbours of a dock that is dropped next to nothing, or the dock: it
// and those that stand in its row or in its column get equal parts of the place.
void shareRoom(const ViewDock &dropped, const QList<ViewDock *> &shown, QMainWindow &place);

} // namespace ORVTListview
