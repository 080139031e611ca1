#include "native/Conversion.h"
#include "native/Failures.h"
#include "native/HandedObject.h"
#include "native/RecordConversion.h"
#include "native/SipBridge.h"
#include "native/TypeRegistry.h"
#include "native/Variable.h"

#include <cmath>
#include <limits>

namespace Conversion {

namespace {

bool refuse(PyObject *object, QMetaType type)
{
    PyErr_Format(PyExc_TypeError, "%s cannot be made a %s", Py_TYPE(object)->tp_name, type.name());
    return false;
}

template <typename Number>
bool wholeNumber(PyObject *object, QMetaType type, void *variable)
{
    if (!PyIndex_Check(object))
        return refuse(object, type);
    const PythonObject index(PyNumber_Index(object));
    int beyond = 0;
    const long long number = index ? PyLong_AsLongLongAndOverflow(index.get(), &beyond) : 0;
    if (PyErr_Occurred())
        return false;
    if (beyond || number < std::numeric_limits<Number>::min() ||
        number > std::numeric_limits<Number>::max()) {
        PyErr_Format(PyExc_OverflowError, "%S does not fit a %s", index.get(), type.name());
        return false;
    }
    *static_cast<Number *>(variable) = static_cast<Number>(number);
    return true;
}

template <typename Number>
bool realNumber(PyObject *object, QMetaType type, void *variable)
{
    if (PyUnicode_Check(object))
        return refuse(object, type);
    const double number = PyFloat_AsDouble(object);
    if (PyErr_Occurred())
        return false;
    const auto made = static_cast<Number>(number);
    if (std::isfinite(number) && !std::isfinite(made)) {
        PyErr_Format(PyExc_OverflowError, "%R does not fit a %s", object, type.name());
        return false;
    }
    *static_cast<Number *>(variable) = made;
    return true;
}

bool truth(PyObject *object, QMetaType type, void *variable)
{
    if (!PyLong_Check(object))
        return refuse(object, type);
    *static_cast<bool *>(variable) = PyObject_IsTrue(object) == 1;
    return true;
}

bool string(PyObject *object, QMetaType type, void *variable)
{
    if (!PyUnicode_Check(object))
        return refuse(object, type);
    auto &text = *static_cast<QString *>(variable);
    const qsizetype length = PyUnicode_GET_LENGTH(object);
    const void *data = PyUnicode_DATA(object);
    switch (PyUnicode_KIND(object)) {
    case PyUnicode_1BYTE_KIND:
        text = QString::fromLatin1(static_cast<const char *>(data), length);
        return true;
    case PyUnicode_2BYTE_KIND:
        text = QString(static_cast<const QChar *>(data), length);
        return true;
    default:
        text = QString::fromUcs4(static_cast<const char32_t *>(data), length);
        return true;
    }
}

bool put(const QVariant &value, QMetaType type, void *variable)
{
    type.destruct(variable);
    type.construct(variable, value.constData());
    return true;
}

// A QObject of the toolkit's or of ours; the address of each is that of its QObject.
bool object(PyObject *given, QMetaType type, void *variable)
{
    QObject *const found = SipBridge::toObject(given);
    if (PyErr_Occurred())
        return false;
    if (found && type.metaObject() && !type.metaObject()->cast(found))
        return refuse(given, type);
    *static_cast<QObject **>(variable) = found;
    return true;
}

bool handed(PyObject *given, QMetaType type, void *variable)
{
    if (HandedObject::life(given).isOver()) {
        Failures::setGone(QString::fromLatin1(Py_TYPE(given)->tp_name));
        return false;
    }
    QVariant value = HandedObject::held(given);
    if (value.metaType() != type && !value.convert(type))
        return refuse(given, type);
    return put(value, type, variable);
}

bool enumeration(PyObject *object, QMetaType type, void *variable)
{
    qint32 number = 0;
    if (!wholeNumber<qint32>(object, type, &number))
        return false;
    QVariant value(number);
    return value.convert(type) ? put(value, type, variable) : refuse(object, type);
}

bool toolkitValue(PyObject *object, QMetaType type, void *variable)
{
    if (type == QMetaType::fromType<Qt::Alignment>()) {
        const PythonObject flags(PyObject_GetAttrString(object, "value"));
        PyErr_Clear();
        return wholeNumber<qint32>(flags ? flags.get() : object, type, variable);
    }
    QVariant value;
    if (!SipBridge::toVariant(object, value))
        return false;
    if (value.metaType() != type && !value.convert(type))
        return refuse(object, type);
    return put(value, type, variable);
}

bool other(PyObject *given, QMetaType type, void *variable)
{
    const QMetaType::TypeFlags flags = type.flags();
    if (flags.testFlag(QMetaType::PointerToQObject))
        return object(given, type, variable);
    if (HandedObject::is(given))
        return handed(given, type, variable);
    if (flags.testFlag(QMetaType::IsPointer)) {
        if (given != Py_None)
            return refuse(given, type);
        *static_cast<void **>(variable) = nullptr;
        return true;
    }
    if (flags.testFlag(QMetaType::IsEnumeration))
        return enumeration(given, type, variable);
    QVariant made;
    switch (RecordConversion::made(given, type, made)) {
    case RecordConversion::Made:
        return put(made, type, variable);
    case RecordConversion::Failed:
        return false;
    case RecordConversion::NotForThis:
        break;
    }
    return toolkitValue(given, type, variable);
}

} // namespace

bool variantFrom(PyObject *object, QVariant &value)
{
    QMetaType type;
    if (object == Py_None) {
        value = QVariant();
        return true;
    }
    if (PyBool_Check(object))
        type = QMetaType::fromType<bool>();
    else if (PyLong_Check(object))
        type = QMetaType::fromType<qint32>();
    else if (PyFloat_Check(object))
        type = QMetaType::fromType<double>();
    else if (PyUnicode_Check(object))
        type = QMetaType::fromType<QString>();
    else if (HandedObject::is(object))
        type = HandedObject::held(object).metaType();
    else if (const QMetaType record = TypeRegistry::typeOf(Py_TYPE(object)); record.isValid())
        type = record;
    else
        return SipBridge::toVariant(object, value);
    Variable made(type);
    if (!fromPython(object, type, made.data()))
        return false;
    value = QVariant(type, made.data());
    return true;
}

bool fromPython(PyObject *object, QMetaType type, void *variable)
{
    switch (type.id()) {
    case QMetaType::Bool:
        return truth(object, type, variable);
    case QMetaType::Short:
        return wholeNumber<qint16>(object, type, variable);
    case QMetaType::Int:
        return wholeNumber<qint32>(object, type, variable);
    case QMetaType::LongLong:
        return wholeNumber<qint64>(object, type, variable);
    case QMetaType::Float:
        return realNumber<float>(object, type, variable);
    case QMetaType::Double:
        return realNumber<double>(object, type, variable);
    case QMetaType::QString:
        return string(object, type, variable);
    case QMetaType::QVariant:
        return variantFrom(object, *static_cast<QVariant *>(variable));
    default:
        return other(object, type, variable);
    }
}

} // namespace Conversion
