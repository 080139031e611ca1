#pragma once

#include "native/PythonObject.h"

#include <ORVTListview/MemberTable.h>

// Python's object for a method of a class, or for one of the two ways of a property: a
// function whose first argument is the object.
namespace MemberObject {

enum class Way { Call, Put };

// A new reference. The table of a class lasts as long as the library; `text` is what help()
// shows.
PyObject *make(QMetaType owner, const ORVTListview::MemberTable &table,
               const ORVTListview::Member &member, Way way, PyObject *text);

} // namespace MemberObject
