#pragma once

#include <QtCore/QStringList>

#include <optional>

class QMimeData;

namespace ORVTListview {

// The names of the points that a drag carries beside its text, in a format of their own:
// what drops into a program. Several are separated by a blank, as words of a program are.
// Why it is so: docs/decisions/box.md.
namespace DraggedNames {

QString format();

// Blank names count as none; without any there is no such format.
void add(QMimeData &data, const QStringList &names);

// None when the drag has no names.
std::optional<QString> in(const QMimeData &data);

} // namespace DraggedNames
} // namespace ORVTListview
