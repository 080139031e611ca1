#pragma once

#include "project/JsonPlace.h"
#include "project/ProjectRow.h"

#include <QtCore/QByteArray>

namespace ORVTListview {

// The text of a project file with other rows in one of its tables. `before` are the rows
// that it has. Rows and cells that stay, and everything beside the table, keep the layout
// that their author gave them.
QByteArray withRows(const QByteArray &json, const QString &fileName, LwType type,
                    const QList<ProjectRow> &before, const QList<ProjectRow> &now);

} // namespace ORVTListview
