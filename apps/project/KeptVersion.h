#pragma once

#include <QtCore/QString>

namespace ORVTListview {

// Puts a copy of the file beside it, with a "~" behind its name and the file's rights. A file
// that is gone has none. Returns why that is impossible, empty when it is done; then what
// stood there before still does.
QString keepVersionBefore(const QString &fileName);

} // namespace ORVTListview
