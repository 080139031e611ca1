#pragma once

#include <QtCore/QString>

class QMenu;

namespace ORVTListview {

// The caption for a menu that others have filled: its access key is the first letter that no
// command there has for its own. Without one where all are taken.
QString withFreeKey(QString caption, const QMenu &menu);

} // namespace ORVTListview
