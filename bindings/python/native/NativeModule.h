#pragma once

#include <Python.h>

// What the package is made of beside the classes of the toolkit's kind.
namespace NativeModule {

// Adds types and functions. An error of Python's is left to the caller.
void fill(PyObject *names);

} // namespace NativeModule
