#include "native/HandedObject.h"

#include "native/MadeObjects.h"
#include "native/TypeRegistry.h"

namespace HandedObject {

namespace {

struct Layout
{
    PyObject object;
    QVariant *held;
    Life *life;
};

Layout &layout(PyObject *object)
{
    return *reinterpret_cast<Layout *>(object);
}

PyObject *allocated(PyTypeObject *type)
{
    PyObject *object = type->tp_alloc(type, 0);
    if (object) {
        layout(object).held = new QVariant;
        layout(object).life = new Life;
    }
    return object;
}

PyObject *made(PyTypeObject *type, PyObject *, PyObject *)
{
    PythonObject object(allocated(type));
    if (!object)
        return nullptr;
    const QMetaType wanted = TypeRegistry::typeOf(type);
    if (!MadeObjects::make(wanted, object.get(), *layout(object.get()).held,
                           *layout(object.get()).life)) {
        PyErr_Format(PyExc_TypeError, "%s is handed out, not made", type->tp_name);
        return nullptr;
    }
    return object.release();
}

int initialised(PyObject *, PyObject *, PyObject *)
{
    return 0; // a class derived from it has arguments of its own
}

void destroyed(PyObject *object)
{
    PyTypeObject *type = Py_TYPE(object);
    delete layout(object).held;
    delete layout(object).life;
    type->tp_free(object);
    Py_DECREF(type);
}

bool isPointer(const QVariant &held)
{
    return held.metaType().flags().testFlag(QMetaType::IsPointer);
}

// The same row is the same, however often it is handed out; values are only themselves.
const void *identity(PyObject *object)
{
    return isPointer(held(object)) ? address(object) : object;
}

PyObject *compared(PyObject *one, PyObject *other, int operation)
{
    if ((operation != Py_EQ && operation != Py_NE) || !is(other))
        Py_RETURN_NOTIMPLEMENTED;
    const bool same = identity(one) == identity(other);
    return PyBool_FromLong(same == (operation == Py_EQ));
}

Py_hash_t hashed(PyObject *object)
{
    return _Py_HashPointer(identity(object));
}

PyTypeObject *makeType()
{
    static PyType_Slot parts[] = {
        {Py_tp_new, reinterpret_cast<void *>(&made)},
        {Py_tp_init, reinterpret_cast<void *>(&initialised)},
        {Py_tp_dealloc, reinterpret_cast<void *>(&destroyed)},
        {Py_tp_richcompare, reinterpret_cast<void *>(&compared)},
        {Py_tp_hash, reinterpret_cast<void *>(&hashed)},
        {0, nullptr},
    };
    static PyType_Spec spec = {"orvtlistview.Handed", sizeof(Layout), 0,
                               Py_TPFLAGS_DEFAULT | Py_TPFLAGS_BASETYPE, parts};
    return reinterpret_cast<PyTypeObject *>(PyType_FromSpec(&spec));
}

} // namespace

PyObject *type()
{
    static PyTypeObject *const handed = makeType();
    return reinterpret_cast<PyObject *>(handed);
}

PyObject *make(const QVariant &held, const Life &life)
{
    if (isPointer(held) && !*static_cast<void *const *>(held.constData()))
        Py_RETURN_NONE;
    PyObject *known = TypeRegistry::classOf(held.metaType());
    if (!known)
        return PyErr_Format(PyExc_TypeError, "No class for %s", held.metaType().name());
    PyObject *object = allocated(reinterpret_cast<PyTypeObject *>(known));
    if (!object)
        return nullptr;
    *layout(object).held = held;
    const bool isValue = !isPointer(held);
    *layout(object).life = isValue ? Life::owning(std::make_shared<char>()) : life;
    return object;
}

bool is(PyObject *object)
{
    return PyObject_TypeCheck(object, reinterpret_cast<PyTypeObject *>(type()));
}

QVariant &held(PyObject *object)
{
    return *layout(object).held;
}

const Life &life(PyObject *object)
{
    return *layout(object).life;
}

void *address(PyObject *object)
{
    QVariant &variable = held(object);
    return isPointer(variable) ? *static_cast<void *const *>(variable.constData())
                               : variable.data();
}

} // namespace HandedObject
