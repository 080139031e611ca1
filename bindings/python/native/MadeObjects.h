#pragma once

#include "native/Life.h"
#include "native/PythonObject.h"

#include <QtCore/QVariant>

// What programs in Python make to hand in.
namespace MadeObjects {

// Makes an object of the type for `object`, which owns it. False for a type of which
// there is none to be made.
bool make(QMetaType type, PyObject *object, QVariant &held, Life &life);

} // namespace MadeObjects
