#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

class QAbstractButton;
class QMenu;

namespace ORVTListview {

// The caption for a menu that others have filled: its access key is the first letter that no
// command there has for its own. Without one where all are taken.
QString withFreeKey(QString caption, const QMenu &menu);

// The same for the buttons of a dialog that have none, as the toolkit makes some of them.
void giveFreeKeys(const QList<QAbstractButton *> &buttons);

} // namespace ORVTListview
