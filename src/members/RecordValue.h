#pragma once

#include <QtCore/QVariant>

#include <optional>

// Records (gadgets) as hosts without types write them: maps by the names of the fields.
namespace ORVTListview::RecordValue {

// Makes a record convert to QVariantMap from now on, and those in a list of records.
void announce(QMetaType announced);

// How a single value is made one of another type.
using Convert = std::optional<QVariant> (*)(const QVariant &value, QMetaType type);

// A map as a record of that type; a list, or a map by name, as one of such records. None
// for other types, for a field that the record has not, and for a value that does not fit.
std::optional<QVariant> converted(const QVariant &value, QMetaType type, Convert convert);

} // namespace ORVTListview::RecordValue
