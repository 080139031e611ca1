#include "native/ReferenceObject.h"

#include "native/Conversion.h"
#include "native/Variable.h"

namespace ReferenceObject {

namespace {

struct Layout
{
    PyObject object;
    int type;
    PyObject *value;
};

Layout &layout(PyObject *object)
{
    return *reinterpret_cast<Layout *>(object);
}

void destroyed(PyObject *object)
{
    PyTypeObject *type = Py_TYPE(object);
    Py_XDECREF(layout(object).value);
    type->tp_free(object);
    Py_DECREF(type);
}

PyObject *read(PyObject *object, void *)
{
    Py_INCREF(layout(object).value);
    return layout(object).value;
}

// Kept as the argument will hold it, so that it reads as the next receiver sees it.
int set(PyObject *object, PyObject *value, void *)
{
    if (!value) {
        PyErr_SetString(PyExc_AttributeError, "value cannot be deleted");
        return -1;
    }
    const QMetaType type(layout(object).type);
    Variable variable(type);
    if (!Conversion::fromPython(value, type, variable.data()))
        return -1;
    PyObject *kept = Conversion::toPython(type, variable.data(), Life());
    if (!kept)
        return -1;
    Py_XSETREF(layout(object).value, kept);
    return 0;
}

PyObject *shown(PyObject *object)
{
    return PyUnicode_FromFormat("Reference(%R)", layout(object).value);
}

PyTypeObject *makeType()
{
    static PyGetSetDef attributes[] = {
        {"value", &read, &set, "What the argument is; what is put in here goes back.", nullptr},
        {nullptr, nullptr, nullptr, nullptr, nullptr},
    };
    static PyType_Slot parts[] = {
        {Py_tp_dealloc, reinterpret_cast<void *>(&destroyed)},
        {Py_tp_repr, reinterpret_cast<void *>(&shown)},
        {Py_tp_getset, attributes},
        {0, nullptr},
    };
    static PyType_Spec spec = {"orvtlistview.Reference", sizeof(Layout), 0,
                               Py_TPFLAGS_DEFAULT | Py_TPFLAGS_DISALLOW_INSTANTIATION, parts};
    return reinterpret_cast<PyTypeObject *>(PyType_FromSpec(&spec));
}

} // namespace

PyObject *type()
{
    static PyTypeObject *const made = makeType();
    return reinterpret_cast<PyObject *>(made);
}

PyObject *make(QMetaType argument, PyObject *value)
{
    auto *const ownType = reinterpret_cast<PyTypeObject *>(type());
    PyObject *object = ownType->tp_alloc(ownType, 0);
    if (!object)
        return nullptr;
    layout(object).type = argument.id();
    Py_INCREF(value);
    layout(object).value = value;
    return object;
}

PyObject *value(PyObject *reference)
{
    return layout(reference).value;
}

} // namespace ReferenceObject
