#include "native/TypeRegistry.h"

#include <ORVTListview/LateCall.h>

#include <QtCore/QHash>

namespace TypeRegistry {

namespace {

QHash<int, PyObject *> &classes()
{
    static QHash<int, PyObject *> byType;
    return byType;
}

} // namespace

void add(QMetaType type, PyObject *pythonClass)
{
    Py_INCREF(pythonClass);
    Py_XDECREF(classes().value(type.id()));
    classes().insert(type.id(), pythonClass);
}

PyObject *classOf(QMetaType type)
{
    return classes().value(type.id());
}

QMetaType typeOf(PyTypeObject *pythonClass)
{
    for (PyTypeObject *each = pythonClass; each; each = each->tp_base) {
        const int type = classes().key(reinterpret_cast<PyObject *>(each));
        if (type != QMetaType::UnknownType)
            return QMetaType(type);
    }
    return {};
}

bool isHanded(QMetaType type)
{
    const bool isObject = type.flags().testFlag(QMetaType::PointerToQObject);
    return !isObject && ORVTListview::membersOf(type);
}

} // namespace TypeRegistry
