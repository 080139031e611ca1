#pragma once

#include "native/PythonObject.h"

#include <ORVTListview/Error.h>

// Failures of members as exceptions of Python, and back.
namespace Failures {

// The class of Python that stands for Error; made from number, source and description.
void setErrorClass(PyObject *errorClass);

void set(const ORVTListview::Error &error);

// The object that a member was asked of, or was given, is gone.
void setGone(const QString &source);

// Takes Python's exception and throws it: an Error as it was, others as a text.
[[noreturn]] void raiseAgain();

} // namespace Failures
