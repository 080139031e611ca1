#pragma once

#include <QtCore/QString>

namespace ORVTListview {

// Undo colours what it restores, which drops a tab that stands between two words, and
// a program would be another one after it was saved: such a tab becomes a blank.
// Comments stay as they are.
QString withWordsApart(const QString &program);

} // namespace ORVTListview
