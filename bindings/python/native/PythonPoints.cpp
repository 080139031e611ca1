#include "native/PythonPoints.h"

#include "native/Conversion.h"
#include "native/Failures.h"

using namespace ORVTListview;

PythonPoints::PythonPoints(PyObject *object)
    : m_object(object)
{
}

qint32 PythonPoints::Count() const
{
    const HeldLock lock;
    const PythonObject result(PyObject_CallMethod(m_object, "Count", nullptr));
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

std::optional<Point> PythonPoints::asked(const char *member, PyObject *argument) const
{
    const PythonObject given(argument);
    const PythonObject result(given ? PyObject_CallMethod(m_object, member, "O", given.get())
                                    : nullptr);
    if (result.get() == Py_None)
        return std::nullopt;
    Point point;
    if (!result || !Conversion::fromPython(result.get(), QMetaType::fromType<Point>(), &point))
        Failures::raiseAgain();
    return point;
}
