#include "native/SipBridge.h"

#include "sipAPI_native.h"

#include <QtCore/QSet>

namespace SipBridge {

namespace {

QSet<const QObject *> &watched()
{
    static QSet<const QObject *> objects;
    return objects;
}

// The bindings offer this to programs in Python only.
void setDeleted(PyObject *wrapper)
{
    const PythonObject module(PyImport_ImportModule("PyQt6.sip"));
    const PythonObject done(module ? PyObject_CallMethod(module.get(), "setdeleted", "O", wrapper)
                                   : nullptr);
    if (!done)
        PyErr_WriteUnraisable(wrapper);
}

void forget(QObject *object)
{
    if (!Py_IsInitialized())
        return;
    const HeldLock lock;
    watched().remove(object);
    const auto wrapper = PythonObject::sharing(sipGetPyObject(object, sipType_QObject));
    if (wrapper)
        setDeleted(wrapper.get());
}

} // namespace

PyObject *fromObject(QObject *object)
{
    if (!object)
        Py_RETURN_NONE;
    watch(object);
    return sipConvertFromType(object, sipType_QObject, nullptr);
}

QObject *toObject(PyObject *object)
{
    if (object == Py_None)
        return nullptr;
    if (!sipCanConvertToType(object, sipType_QObject, SIP_NO_CONVERTORS)) {
        PyErr_Format(PyExc_TypeError, "an object of the toolkit is needed, not %s",
                     Py_TYPE(object)->tp_name);
        return nullptr;
    }
    int failed = 0;
    void *address =
        sipConvertToType(object, sipType_QObject, nullptr, SIP_NO_CONVERTORS, nullptr, &failed);
    return failed ? nullptr : static_cast<QObject *>(address);
}

PyObject *fromVariant(const QVariant &value)
{
    return sipConvertFromNewType(new QVariant(value), sipType_QVariant, nullptr);
}

bool toVariant(PyObject *object, QVariant &value)
{
    const sipTypeDef *type = sipType_QVariant;
    int state = 0;
    int failed = 0;
    void *made = sipForceConvertToType(object, type, nullptr, SIP_NOT_NONE, &state, &failed);
    if (failed)
        return false;
    value = *static_cast<QVariant *>(made);
    sipReleaseType(made, type, state);
    return true;
}

void watch(QObject *object)
{
    if (watched().contains(object))
        return;
    watched().insert(object);
    QObject::connect(object, &QObject::destroyed, &forget);
}

} // namespace SipBridge
