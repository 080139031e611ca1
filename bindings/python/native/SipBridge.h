#pragma once

#include "native/PythonObject.h"

#include <QtCore/QObject>
#include <QtCore/QVariant>

// What only the toolkit's own bindings know how to convert.
namespace SipBridge {

// A new reference; None for null.
PyObject *fromObject(QObject *object);

// Null for None, and with an error of Python's for what is no such object or is gone.
QObject *toObject(PyObject *object);

// Any value, as the toolkit's bindings convert a variant: a new reference, null with an
// error of Python's for what they do not know.
PyObject *fromVariant(const QVariant &value);

// Any value that the toolkit's bindings take for a variant. False with an error of
// Python's for others.
bool toVariant(PyObject *object, QVariant &value);

// Has Python's object for this one know when it is gone. To be called for what C++ makes;
// what Python makes knows by itself.
void watch(QObject *object);

} // namespace SipBridge
