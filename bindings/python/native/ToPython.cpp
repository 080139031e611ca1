#include "native/Conversion.h"
#include "native/HandedObject.h"
#include "native/SipBridge.h"
#include "native/TypeRegistry.h"

#include <QtCore/QAssociativeIterable>
#include <QtCore/QMetaProperty>
#include <QtCore/QSequentialIterable>
#include <QtCore/QtEndian>

namespace Conversion {

namespace {

template <typename Number>
Number at(const void *variable)
{
    return *static_cast<const Number *>(variable);
}

PyObject *fromVariant(const QVariant &value, const Life &life)
{
    if (!value.isValid())
        Py_RETURN_NONE;
    return toPython(value.metaType(), value.constData(), life);
}

PyObject *fromEnumeration(QMetaType type, const void *variable)
{
    const auto value = static_cast<long>(QVariant(type, variable).toInt());
    PyObject *known = TypeRegistry::classOf(type);
    PythonObject number(PyLong_FromLong(value));
    if (!known || !number)
        return number.release();
    if (PyObject *named = PyObject_CallOneArg(known, number.get()))
        return named;
    PyErr_Clear(); // a number that has no name is a number
    return number.release();
}

PyObject *fromRecord(QMetaType type, const void *variable, const Life &life)
{
    PyObject *known = TypeRegistry::classOf(type);
    const PythonObject names(PyObject_GetAttrString(known, "_fields"));
    const PythonObject fields(names ? fieldsOf(type, variable, names.get(), life) : nullptr);
    const PythonObject none(PyTuple_New(0));
    return fields ? PyObject_Call(known, none.get(), fields.get()) : nullptr;
}

PyObject *fromSequence(QMetaType type, const void *variable, const Life &life)
{
    QVariant copy(type, variable);
    const auto values = copy.view<QSequentialIterable>();
    PythonObject list(PyList_New(0));
    for (const QVariant &each : values) {
        const PythonObject value(fromVariant(each, life));
        if (!value || PyList_Append(list.get(), value.get()))
            return nullptr;
    }
    return list.release();
}

PyObject *fromAssociation(QMetaType type, const void *variable, const Life &life)
{
    QVariant copy(type, variable);
    const auto values = copy.view<QAssociativeIterable>();
    PythonObject map(PyDict_New());
    for (auto each = values.constBegin(); each != values.constEnd(); ++each) {
        const PythonObject key(text(each.key().toString()));
        const PythonObject value(fromVariant(each.value(), life));
        if (!key || !value || PyDict_SetItem(map.get(), key.get(), value.get()))
            return nullptr;
    }
    return map.release();
}

// By the toolkit's bindings, which know flags by another name.
PyObject *fromToolkit(QMetaType type, const void *variable)
{
    if (type == QMetaType::fromType<Qt::Alignment>()) {
        const PythonObject core(PyImport_ImportModule("PyQt6.QtCore"));
        const PythonObject qt(core ? PyObject_GetAttrString(core.get(), "Qt") : nullptr);
        return qt ? PyObject_CallMethod(qt.get(), "AlignmentFlag", "i", at<int>(variable))
                  : nullptr;
    }
    return SipBridge::fromVariant(QVariant(type, variable));
}

PyObject *fromOther(QMetaType type, const void *variable, const Life &life)
{
    if (type.flags().testFlag(QMetaType::PointerToQObject))
        return SipBridge::fromObject(at<QObject *>(variable));
    if (type.flags().testFlag(QMetaType::IsEnumeration))
        return fromEnumeration(type, variable);
    if (TypeRegistry::isHanded(type))
        return HandedObject::make(QVariant(type, variable), life);
    if (TypeRegistry::classOf(type))
        return fromRecord(type, variable, life);
    if (QMetaType::canView(type, QMetaType::fromType<QSequentialIterable>()))
        return fromSequence(type, variable, life);
    if (QMetaType::canView(type, QMetaType::fromType<QAssociativeIterable>()))
        return fromAssociation(type, variable, life);
    return fromToolkit(type, variable);
}

} // namespace

PyObject *text(const QString &text)
{
    int order = QSysInfo::ByteOrder == QSysInfo::LittleEndian ? -1 : 1;
    return PyUnicode_DecodeUTF16(reinterpret_cast<const char *>(text.utf16()), text.size() * 2,
                                 "surrogatepass", &order);
}

PyObject *fieldsOf(QMetaType type, const void *variable, PyObject *names, const Life &life)
{
    const QMetaObject &meta = *type.metaObject();
    PythonObject fields(PyDict_New());
    for (int i = 0; fields && i < meta.propertyCount(); ++i) {
        const PythonObject value(fromVariant(meta.property(i).readOnGadget(variable), life));
        const auto name = PythonObject::sharing(PyTuple_GetItem(names, i));
        if (!value || !name || PyDict_SetItem(fields.get(), name.get(), value.get()))
            return nullptr;
    }
    return fields.release();
}

PyObject *toPython(QMetaType type, const void *variable, const Life &life)
{
    switch (type.id()) {
    case QMetaType::Bool:
        return PyBool_FromLong(at<bool>(variable));
    case QMetaType::Short:
        return PyLong_FromLong(at<short>(variable));
    case QMetaType::Int:
        return PyLong_FromLong(at<int>(variable));
    case QMetaType::LongLong:
        return PyLong_FromLongLong(at<qint64>(variable));
    case QMetaType::Float:
        return PyFloat_FromDouble(static_cast<double>(at<float>(variable)));
    case QMetaType::Double:
        return PyFloat_FromDouble(at<double>(variable));
    case QMetaType::QString:
        return text(*static_cast<const QString *>(variable));
    case QMetaType::QVariant:
        return fromVariant(*static_cast<const QVariant *>(variable), life);
    default:
        return fromOther(type, variable, life);
    }
}

} // namespace Conversion
