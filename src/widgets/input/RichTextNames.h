#pragma once

#include <QtCore/QStringList>

namespace ORVTListview {

// The MIME types under which programs of this system hand RTF to one another, the usual
// one first.
const QStringList &richTextNames();

} // namespace ORVTListview
