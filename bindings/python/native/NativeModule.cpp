#include "native/NativeModule.h"

#include "ClassDescription.h"
#include "native/Conversion.h"
#include "native/EventHub.h"
#include "native/Failures.h"
#include "native/HandedObject.h"
#include "native/MemberObject.h"
#include "native/RaisedEvent.h"
#include "native/ReferenceObject.h"
#include "native/SipBridge.h"
#include "native/TypeRegistry.h"

#include <ORVTListview/LateCall.h>
#include <ORVTListview/Types.h>

#include <QtCore/QJsonDocument>
#include <QtCore/QMetaEnum>
#include <QtCore/QPointer>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace NativeModule {

namespace {

QJsonArray namespaceEnumerations()
{
    QJsonArray all;
    for (int i = 0; i < staticMetaObject.enumeratorCount(); ++i) {
        const QMetaEnum each = staticMetaObject.enumerator(i);
        QJsonArray values;
        for (int k = 0; k < each.keyCount(); ++k)
            values.append(QJsonObject{{u"name"_s, QString::fromLatin1(each.key(k))},
                                      {u"value"_s, each.value(k)}});
        all.append(
            QJsonObject{{u"name"_s, QString::fromLatin1(each.name())}, {u"values"_s, values}});
    }
    return all;
}

// All classes, records and enumerations as members.json tells of them.
PyObject *describe(PyObject *, PyObject *)
{
    TypeDescription types;
    types.name(QMetaType::fromType<Point>());
    QJsonArray classes;
    for (const QMetaType type : typesWithMembers())
        classes.append(ClassDescription(type, nullptr, types).json());
    const QJsonObject all{{u"classes"_s, classes},
                          {u"records"_s, types.records()},
                          {u"enumerations"_s, types.enumerations()},
                          {u"shared"_s, namespaceEnumerations()}};
    const QByteArray text = QJsonDocument(all).toJson(QJsonDocument::Compact);
    return PyBytes_FromStringAndSize(text.constData(), text.size());
}

QMetaType typeOfClass(int index)
{
    return typesWithMembers().value(index);
}

// register(name, class): a record or an enumeration; register(index, class): of the list
// of classes.
PyObject *registerClass(PyObject *, PyObject *arguments)
{
    PyObject *name = nullptr;
    PyObject *known = nullptr;
    if (!PyArg_ParseTuple(arguments, "OO", &name, &known))
        return nullptr;
    const QMetaType type = PyLong_Check(name) ? typeOfClass(static_cast<int>(PyLong_AsLong(name)))
                                              : QMetaType::fromName(PyUnicode_AsUTF8(name));
    if (!type.isValid())
        return PyErr_Format(PyExc_LookupError, "No type %R", name);
    TypeRegistry::add(type, known);
    Py_RETURN_NONE;
}

// fresh(type, names): a record as it is at first, its fields by the names given.
PyObject *fresh(PyObject *, PyObject *arguments)
{
    const char *name = nullptr;
    PyObject *names = nullptr;
    if (!PyArg_ParseTuple(arguments, "sO!", &name, &PyTuple_Type, &names))
        return nullptr;
    const QMetaType type = QMetaType::fromName(name);
    if (!type.isValid())
        return PyErr_Format(PyExc_LookupError, "No type %s", name);
    return Conversion::fieldsOf(type, QVariant(type).constData(), names, Life());
}

PyObject *setErrorClass(PyObject *, PyObject *errorClass)
{
    Failures::setErrorClass(errorClass);
    Py_RETURN_NONE;
}

// member(index of the class, place of the member, whether it sets, text)
PyObject *member(PyObject *, PyObject *arguments)
{
    int index = 0;
    int place = 0;
    int isPut = 0;
    PyObject *text = nullptr;
    if (!PyArg_ParseTuple(arguments, "iipU", &index, &place, &isPut, &text))
        return nullptr;
    const QMetaType owner = typeOfClass(index);
    const MemberTable *table = membersOf(owner);
    if (!table || place < 0 || place >= table->members().size())
        return PyErr_Format(PyExc_LookupError, "No member %d of class %d", place, index);
    return MemberObject::make(owner, *table, table->members().at(place),
                              isPut ? MemberObject::Way::Put : MemberObject::Way::Call, text);
}

EventHub *hubOf(QObject *object)
{
    for (QObject *child : object->children()) {
        auto *const hub = dynamic_cast<EventHub *>(child);
        if (hub && !hub->hearsAll())
            return hub;
    }
    return nullptr;
}

// events(object): what has been given to hear(object, receiver), or None.
PyObject *events(PyObject *, PyObject *object)
{
    QObject *const source = SipBridge::toObject(object);
    if (!source)
        return nullptr;
    EventHub *const hub = hubOf(source);
    PyObject *receiver = hub ? hub->receiver() : Py_None;
    Py_INCREF(receiver);
    return receiver;
}

PyObject *hear(PyObject *, PyObject *arguments)
{
    PyObject *object = nullptr;
    PyObject *receiver = nullptr;
    int all = 0;
    if (!PyArg_ParseTuple(arguments, "OOp", &object, &receiver, &all))
        return nullptr;
    QObject *const source = SipBridge::toObject(object);
    if (!source)
        return nullptr;
    auto *const hub = new EventHub(*source, receiver);
    if (all)
        hub->wantAll();
    Py_RETURN_NONE;
}

// Comparing receivers runs Python, which may destroy any of them.
QList<QPointer<EventHub>> hubsOfAll(const QObject &object)
{
    QList<QPointer<EventHub>> hubs;
    for (QObject *child : object.children()) {
        auto *const hub = dynamic_cast<EventHub *>(child);
        if (hub && hub->hearsAll())
            hubs.append(hub);
    }
    return hubs;
}

// No longer tells the receiver, which was given for all events.
PyObject *unhear(PyObject *, PyObject *arguments)
{
    PyObject *object = nullptr;
    PyObject *receiver = nullptr;
    if (!PyArg_ParseTuple(arguments, "OO", &object, &receiver))
        return nullptr;
    QObject *const source = SipBridge::toObject(object);
    if (!source)
        return nullptr;
    for (const QPointer<EventHub> &hub : hubsOfAll(*source)) {
        const auto heard = PythonObject::sharing(hub ? hub->receiver() : nullptr);
        const int isSame = heard ? PyObject_RichCompareBool(heard.get(), receiver, Py_EQ) : 0;
        if (isSame < 0)
            return nullptr;
        if (isSame && hub)
            hub->deleteLater(), unadvise(QVariant::fromValue(source), hub);
    }
    Py_RETURN_NONE;
}

PyObject *want(PyObject *, PyObject *arguments)
{
    PyObject *object = nullptr;
    int number = 0;
    if (!PyArg_ParseTuple(arguments, "Oi", &object, &number))
        return nullptr;
    QObject *const source = SipBridge::toObject(object);
    EventHub *const hub = source ? hubOf(source) : nullptr;
    if (hub)
        hub->want(number);
    return PyErr_Occurred() ? nullptr : PyBool_FromLong(hub != nullptr);
}

// raiseEvent(object, number, arguments): what the event takes back is put into the list.
PyObject *raiseEvent(PyObject *, PyObject *arguments)
{
    PyObject *object = nullptr;
    int number = 0;
    PyObject *given = nullptr;
    if (!PyArg_ParseTuple(arguments, "OiO!", &object, &number, &PyList_Type, &given))
        return nullptr;
    QObject *const source = SipBridge::toObject(object);
    if (!source || !RaisedEvent::raise(*source, number, given))
        return nullptr;
    Py_RETURN_NONE;
}

// Has the companion's signal follow the object's, which are of the same name.
PyObject *follow(PyObject *, PyObject *arguments)
{
    PyObject *object = nullptr;
    PyObject *companion = nullptr;
    const char *name = nullptr;
    if (!PyArg_ParseTuple(arguments, "OOs", &object, &companion, &name))
        return nullptr;
    QObject *const source = SipBridge::toObject(object);
    QObject *const target = source ? SipBridge::toObject(companion) : nullptr;
    if (!target)
        return nullptr;
    const QByteArray raised = QByteArray("2") + name + "()"; // as SIGNAL() has it
    QObject::connect(source, raised.constData(), target, raised.constData(), Qt::UniqueConnection);
    Py_RETURN_NONE;
}

PyMethodDef functions[] = {
    {"describe", &describe, METH_NOARGS, nullptr},
    {"register", &registerClass, METH_VARARGS, nullptr},
    {"fresh", &fresh, METH_VARARGS, nullptr},
    {"setErrorClass", &setErrorClass, METH_O, nullptr},
    {"member", &member, METH_VARARGS, nullptr},
    {"events", &events, METH_O, nullptr},
    {"hear", &hear, METH_VARARGS, nullptr},
    {"unhear", &unhear, METH_VARARGS, nullptr},
    {"want", &want, METH_VARARGS, nullptr},
    {"raiseEvent", &raiseEvent, METH_VARARGS, nullptr},
    {"follow", &follow, METH_VARARGS, nullptr},
    {nullptr, nullptr, 0, nullptr},
};

} // namespace

void fill(PyObject *names)
{
    PyDict_SetItemString(names, "Handed", HandedObject::type());
    PyDict_SetItemString(names, "Reference", ReferenceObject::type());
    for (PyMethodDef *each = functions; each->ml_name; ++each) {
        const PythonObject function(PyCFunction_New(each, nullptr));
        if (!function || PyDict_SetItemString(names, each->ml_name, function.get()))
            return;
    }
}

} // namespace NativeModule
