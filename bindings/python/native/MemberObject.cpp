#include "native/MemberObject.h"

#include "native/MemberCall.h"

#include <structmember.h>

#include <cstddef>
#include <memory>

using namespace ORVTListview;

namespace MemberObject {

namespace {

struct Layout
{
    PyObject object;
    vectorcallfunc called;
    MemberPlan *plan;
    PyObject *text;
};

Layout &layout(PyObject *object)
{
    return *reinterpret_cast<Layout *>(object);
}

PyObject *called(PyObject *object, PyObject *const *arguments, size_t count, PyObject *names)
{
    MemberCall call(*layout(object).plan);
    return call.run(arguments, PyVectorcall_NARGS(count), names);
}

// As functions are bound to the object that they are asked of.
PyObject *bound(PyObject *object, PyObject *instance, PyObject *)
{
    if (instance && instance != Py_None)
        return PyMethod_New(object, instance);
    Py_INCREF(object);
    return object;
}

void destroyed(PyObject *object)
{
    PyTypeObject *type = Py_TYPE(object);
    delete layout(object).plan;
    Py_XDECREF(layout(object).text);
    type->tp_free(object);
    Py_DECREF(type);
}

PyObject *wholeName(PyObject *object, void *)
{
    return PyUnicode_FromString(layout(object).plan->name.constData());
}

PyObject *name(PyObject *object, void *)
{
    const QByteArray &whole = layout(object).plan->name;
    return PyUnicode_FromString(whole.constData() + whole.lastIndexOf('.') + 1);
}

PyObject *text(PyObject *object, void *)
{
    Py_INCREF(layout(object).text);
    return layout(object).text;
}

PyTypeObject *makeType()
{
    static PyMemberDef places[] = {
        {"__vectorcalloffset__", T_PYSSIZET, offsetof(Layout, called), READONLY, nullptr},
        {nullptr, 0, 0, 0, nullptr},
    };
    static PyGetSetDef attributes[] = {
        {"__name__", &name, nullptr, nullptr, nullptr},
        {"__qualname__", &wholeName, nullptr, nullptr, nullptr},
        {"__doc__", &text, nullptr, nullptr, nullptr},
        {nullptr, nullptr, nullptr, nullptr, nullptr},
    };
    static PyType_Slot parts[] = {
        {Py_tp_dealloc, reinterpret_cast<void *>(&destroyed)},
        {Py_tp_call, reinterpret_cast<void *>(&PyVectorcall_Call)},
        {Py_tp_descr_get, reinterpret_cast<void *>(&bound)},
        {Py_tp_members, places},
        {Py_tp_getset, attributes},
        {0, nullptr},
    };
    constexpr unsigned flags =
        Py_TPFLAGS_DEFAULT | Py_TPFLAGS_HAVE_VECTORCALL | Py_TPFLAGS_METHOD_DESCRIPTOR;
    static PyType_Spec spec = {"orvtlistview.Member", sizeof(Layout), 0, flags, parts};
    return reinterpret_cast<PyTypeObject *>(PyType_FromSpec(&spec));
}

} // namespace

PyObject *make(QMetaType owner, const MemberTable &table, const Member &member, Way way,
               PyObject *text)
{
    static PyTypeObject *const type = makeType();
    PyObject *object = type->tp_alloc(type, 0);
    if (!object)
        return nullptr;
    layout(object).called = &called;
    layout(object).plan = new MemberPlan(owner, table, member, way == Way::Put);
    Py_INCREF(text);
    layout(object).text = text;
    return object;
}

} // namespace MemberObject
