#pragma once

#include <QtCore/QVariant>

#include <optional>

// How the values of hosts that know no types become arguments.
namespace ORVTListview::ArgumentValue {

// The enumerations included.
bool isWholeNumber(QMetaType type);

// The value as exactly that type, converted as QVariant converts; none when it
// cannot be. A number that the type cannot hold is refused, not cut off; an empty
// value stands for a null pointer.
std::optional<QVariant> converted(const QVariant &value, QMetaType type);

// What a variable of that type holds, as a host gets it.
QVariant fromVariable(QMetaType type, const void *variable);

} // namespace ORVTListview::ArgumentValue
