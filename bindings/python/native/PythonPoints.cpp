#include "native/PythonPoints.h"

#include "native/Conversion.h"
#include "native/Failures.h"
#include "native/TypeRegistry.h"

using namespace ORVTListview;

PythonPoints::PythonPoints(PyObject *object)
    : m_object(object)
{
}

qint32 PythonPoints::Count() const
{
    const HeldLock lock;
    const PythonObject counting = own("Count");
    const PythonObject result(counting ? PyObject_CallNoArgs(counting.get()) : nullptr);
    qint32 count = 0;
    if (!result || !Conversion::fromPython(result.get(), QMetaType::fromType<qint32>(), &count))
        Failures::raiseAgain();
    return count;
}

std::optional<Point> PythonPoints::Item(qint32 Index) const
{
    const HeldLock lock;
    return asked("Item", PyLong_FromLong(Index));
}

std::optional<Point> PythonPoints::Find(const QString &Key) const
{
    const HeldLock lock;
    return asked("Find", Conversion::text(Key));
}

// Null with an error of Python's where its class has none: that of the base would ask here
// again, without end.
PythonObject PythonPoints::own(const char *member) const
{
    PyObject *const known = TypeRegistry::classOf(QMetaType::fromType<PointCollection *>());
    const PythonObject ofBase(PyObject_GetAttrString(known, member));
    const PythonObject ofClass(
        PyObject_GetAttrString(reinterpret_cast<PyObject *>(Py_TYPE(m_object)), member));
    if (ofBase.get() != ofClass.get())
        return PythonObject(PyObject_GetAttrString(m_object, member));
    PyErr_Format(PyExc_NotImplementedError, "%s has no %s of its own", Py_TYPE(m_object)->tp_name,
                 member);
    return {};
}

std::optional<Point> PythonPoints::asked(const char *member, PyObject *argument) const
{
    const PythonObject given(argument);
    const PythonObject asking = given ? own(member) : PythonObject();
    const PythonObject result(asking ? PyObject_CallOneArg(asking.get(), given.get()) : nullptr);
    if (result.get() == Py_None)
        return std::nullopt;
    Point point;
    if (!result || !Conversion::fromPython(result.get(), QMetaType::fromType<Point>(), &point))
        Failures::raiseAgain();
    return point;
}
