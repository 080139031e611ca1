#pragma once

class QLineEdit;

namespace ORVTListview {

// Gives a field the toolkit's button that empties it, with a name for screen readers, which it
// lacks there.
void addClearButton(QLineEdit &field);

} // namespace ORVTListview
