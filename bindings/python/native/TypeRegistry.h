#pragma once

#include "native/PythonObject.h"

#include <QtCore/QMetaType>

// The classes of Python that stand for types of the library: those of handed objects,
// records and enumerations. They live as long as the program.
namespace TypeRegistry {

void add(QMetaType type, PyObject *pythonClass);

// Borrowed; null for a type without one.
PyObject *classOf(QMetaType type);

// The type that the class, or the nearest base that has one, stands for.
QMetaType typeOf(PyTypeObject *pythonClass);

// Whether the class stands for objects that are reached by their address or in their
// variable, rather than converted.
bool isHanded(QMetaType type);

} // namespace TypeRegistry
