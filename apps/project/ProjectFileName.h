#pragma once

#include <QtCore/QString>

namespace ORVTListview {

// What a file can be called for this name: without what file names cannot have.
QString fileNameFor(const QString &name);

// The name of the file of a project with this name: it ends with ".orvt.json".
QString projectFileName(const QString &name);

// Without folder and ending, which is that or any other one.
QString projectBaseName(const QString &fileName);

} // namespace ORVTListview
