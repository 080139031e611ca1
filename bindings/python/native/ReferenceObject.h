#pragma once

#include "native/PythonObject.h"

#include <QtCore/QMetaType>

// Python's object for an argument that an event takes back: its `value` can be read and set,
// and takes nothing that the argument cannot hold.
namespace ReferenceObject {

PyObject *type(); // borrowed

// A new reference.
PyObject *make(QMetaType type, PyObject *value);

PyObject *value(PyObject *reference); // borrowed

} // namespace ReferenceObject
