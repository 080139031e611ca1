#pragma once

#include "native/PythonObject.h"

#include <QtCore/QMetaType>
#include <QtCore/QVariant>

// Records, lists and maps of them from the objects of Python: a record is an object of its
// class or a dict of some of its fields.
namespace RecordConversion {

enum Result {
    Made,
    Failed, // with an error of Python's
    NotForThis,
};

Result made(PyObject *object, QMetaType type, QVariant &value);

} // namespace RecordConversion
