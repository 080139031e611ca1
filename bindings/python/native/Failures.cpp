#include "native/Failures.h"

#include "native/Conversion.h"

#include <stdexcept>

using namespace ORVTListview;

namespace Failures {

namespace {

PyObject *s_errorClass = nullptr;

QString textOf(PyObject *object)
{
    const PythonObject text(object ? PyObject_Str(object) : nullptr);
    QString result;
    if (!text || !Conversion::fromPython(text.get(), QMetaType::fromType<QString>(), &result))
        PyErr_Clear();
    return result;
}

Error errorOf(PyObject *exception)
{
    const PythonObject number(PyObject_GetAttrString(exception, "number"));
    const PythonObject source(PyObject_GetAttrString(exception, "source"));
    const PythonObject description(PyObject_GetAttrString(exception, "description"));
    const long plain = number ? PyLong_AsLong(number.get()) : 0;
    PyErr_Clear();
    return Error(static_cast<qint32>(plain), textOf(source.get()), textOf(description.get()));
}

} // namespace

void setErrorClass(PyObject *errorClass)
{
    Py_XINCREF(errorClass);
    Py_XSETREF(s_errorClass, errorClass);
}

void set(const Error &error)
{
    const PythonObject source(Conversion::text(error.Source()));
    const PythonObject description(Conversion::text(error.Description()));
    const PythonObject raised(PyObject_CallFunction(s_errorClass, "iOO", int(error.Number()),
                                                    source.get(), description.get()));
    if (raised)
        PyErr_SetObject(s_errorClass, raised.get());
}

void setGone(const QString &source)
{
    set(Error(ObjectNotSet, source, QStringLiteral("The object is gone")));
}

void raiseAgain()
{
    PyObject *type = nullptr;
    PyObject *value = nullptr;
    PyObject *trace = nullptr;
    PyErr_Fetch(&type, &value, &trace);
    PyErr_NormalizeException(&type, &value, &trace);
    const PythonObject heldType(type);
    const PythonObject held(value);
    const PythonObject heldTrace(trace);
    if (value && PyObject_IsInstance(value, s_errorClass) == 1)
        throw errorOf(value);
    throw std::runtime_error(textOf(value).toStdString());
}

} // namespace Failures
