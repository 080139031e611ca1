#pragma once

#include <QtCore/QString>

namespace ORVTListview {

// Colouring drops a tab that stands between two words, and a program would be
// another one after it was opened and saved: such a tab becomes a blank. Comments
// stay as they are.
QString withWordsApart(const QString &program);

// Whether the program comes out of coloured RTF, which is not escaped, as it went
// in.
bool survivesRtf(const QString &program);

} // namespace ORVTListview
