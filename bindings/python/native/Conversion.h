#pragma once

#include "native/Life.h"
#include "native/PythonObject.h"

#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QVariant>

// Between the variables of members and the objects of Python.
namespace Conversion {

// A new reference; null with an error of Python's. `life` is that of what is handed out.
PyObject *toPython(QMetaType type, const void *variable, const Life &life);
PyObject *text(const QString &text);

// A record as a dict; `names` is a tuple of what its fields are called in Python.
PyObject *fieldsOf(QMetaType type, const void *variable, PyObject *names, const Life &life);

// Puts the object into the variable, which is of exactly that type. False with an error
// of Python's, and the variable as it was, for what does not fit.
bool fromPython(PyObject *object, QMetaType type, void *variable);

// What an argument that takes anything gets.
bool variantFrom(PyObject *object, QVariant &value);

} // namespace Conversion
