#pragma once

#include "native/Life.h"
#include "native/PythonObject.h"

#include <QtCore/QVariant>

// Python's object for what a member or an event hands out that is no QObject, and for what
// Python makes to hand in: a row, a node, a collection, a list of points, ...
namespace HandedObject {

// The base of all their classes, which are made where the tables are read; borrowed.
PyObject *type();

// A new reference; None for a null pointer. `held` has a type with a registered class.
PyObject *make(const QVariant &held, const Life &life);

bool is(PyObject *object);
QVariant &held(PyObject *object);
const Life &life(PyObject *object);

// Where its members find it.
void *address(PyObject *object);

} // namespace HandedObject
