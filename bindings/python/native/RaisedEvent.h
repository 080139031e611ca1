#pragma once

#include "native/PythonObject.h"

#include <QtCore/QObject>

namespace RaisedEvent {

// Raises the event of that number with the list's values, and puts what receivers made of
// them back. False with an error of Python's for an unknown number and for what does not
// fit.
bool raise(QObject &source, qint32 number, PyObject *arguments);

} // namespace RaisedEvent
