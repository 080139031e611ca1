#include "native/RecordConversion.h"

#include "native/Conversion.h"
#include "native/TypeRegistry.h"
#include "native/Variable.h"

#include <QtCore/QAssociativeIterable>
#include <QtCore/QMetaProperty>
#include <QtCore/QSequentialIterable>

namespace RecordConversion {

namespace {

bool isRecord(QMetaType type)
{
    return TypeRegistry::classOf(type) && type.flags().testFlag(QMetaType::IsGadget) &&
           !type.flags().testFlag(QMetaType::IsEnumeration);
}

bool variantOf(PyObject *object, QMetaType type, QVariant &value)
{
    Variable variable(type);
    if (!Conversion::fromPython(object, type, variable.data()))
        return false;
    value = QVariant(type, variable.data());
    return true;
}

bool fill(PyObject *object, const QMetaProperty &field, void *record)
{
    QVariant value;
    return variantOf(object, field.metaType(), value) && field.writeOnGadget(record, value);
}

// What the fields are called in Python, in their order.
PythonObject namesOf(QMetaType type)
{
    return PythonObject(PyObject_GetAttrString(TypeRegistry::classOf(type), "_fields"));
}

Result fromFields(PyObject *fields, QMetaType type, QVariant &value)
{
    const PythonObject names = namesOf(type);
    PyObject *key = nullptr;
    PyObject *content = nullptr;
    Py_ssize_t place = 0;
    while (names && PyDict_Next(fields, &place, &key, &content)) {
        const Py_ssize_t index = PySequence_Index(names.get(), key);
        if (index < 0) {
            PyErr_Format(PyExc_TypeError, "%s has no field %R", type.name(), key);
            return Failed;
        }
        if (!fill(content, type.metaObject()->property(static_cast<int>(index)), value.data()))
            return Failed;
    }
    return names ? Made : Failed;
}

Result fromAttributes(PyObject *object, QMetaType type, QVariant &value)
{
    const QMetaObject &meta = *type.metaObject();
    const PythonObject names = namesOf(type);
    for (int i = 0; i < meta.propertyCount(); ++i) {
        const auto name = PythonObject::sharing(names ? PyTuple_GetItem(names.get(), i) : nullptr);
        const PythonObject content(name ? PyObject_GetAttr(object, name.get()) : nullptr);
        if (!content || !fill(content.get(), meta.property(i), value.data()))
            return Failed;
    }
    return Made;
}

Result record(PyObject *object, QMetaType type, QVariant &value)
{
    if (PyDict_Check(object))
        return fromFields(object, type, value);
    if (PyObject_IsInstance(object, TypeRegistry::classOf(type)) == 1)
        return fromAttributes(object, type, value);
    PyErr_Format(PyExc_TypeError, "%s cannot be made a %s", Py_TYPE(object)->tp_name, type.name());
    return Failed;
}

Result sequence(PyObject *object, QVariant &value)
{
    auto view = value.view<QSequentialIterable>();
    const PythonObject values(PySequence_Fast(object, "a sequence is needed"));
    const Py_ssize_t count = values ? PySequence_Fast_GET_SIZE(values.get()) : 0;
    for (Py_ssize_t i = 0; i < count; ++i) {
        QVariant each;
        if (!variantOf(PySequence_Fast_GET_ITEM(values.get(), i), view.valueMetaType(), each))
            return Failed;
        view.addValue(each);
    }
    return values ? Made : Failed;
}

Result association(PyObject *object, QVariant &value)
{
    auto view = value.view<QAssociativeIterable>();
    const QMetaType mapped = view.metaContainer().mappedMetaType();
    PyObject *key = nullptr;
    PyObject *content = nullptr;
    Py_ssize_t place = 0;
    while (PyDict_Next(object, &place, &key, &content)) {
        QVariant name;
        QVariant each;
        if (!variantOf(key, QMetaType::fromType<QString>(), name) ||
            !variantOf(content, mapped, each))
            return Failed;
        view.setValue(name, each);
    }
    return Made;
}

// Of the toolkit's own types even a text can be gone through.
template <typename Iterable>
bool isSeenAs(QMetaType type)
{
    const bool isList = type.id() == QMetaType::QStringList || type.id() == QMetaType::QVariantList;
    return (isList || type.id() >= QMetaType::User) &&
           QMetaType::canView(type, QMetaType::fromType<Iterable>());
}

} // namespace

Result made(PyObject *object, QMetaType type, QVariant &value)
{
    value = QVariant(type);
    if (isRecord(type))
        return record(object, type, value);
    const bool isText = PyUnicode_Check(object);
    if (!isText && PySequence_Check(object) && isSeenAs<QSequentialIterable>(type))
        return sequence(object, value);
    if (PyDict_Check(object) && isSeenAs<QAssociativeIterable>(type))
        return association(object, value);
    return NotForThis;
}

} // namespace RecordConversion
