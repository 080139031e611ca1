#include "native/EventHub.h"

#include "native/Conversion.h"
#include "native/ReferenceObject.h"
#include "native/TypeRegistry.h"
#include "native/Variable.h"

#include <ORVTListview/LateCall.h>

#include <algorithm>

using namespace ORVTListview;

namespace {

bool isLent(QMetaType type)
{
    return QByteArrayView(type.name()) == "ORVTListview::DataObject*";
}

} // namespace

EventHub::EventHub(QObject &source, PyObject *receiver)
    : QObject(&source)
    , m_source(source)
    , m_receiver(receiver)
{
    Py_INCREF(receiver);
    const QVariant object = QVariant::fromValue(&source);
    for (const Member &member : membersOf(object)->members()) {
        if (member.kind == MemberKind::Event)
            m_events.append(member);
    }
    advise(object, this);
}

EventHub::~EventHub()
{
    if (!Py_IsInitialized())
        return;
    const HeldLock lock;
    Py_DECREF(m_receiver);
}

void EventHub::Invoke(qint32 Number, QVariantList &Arguments)
{
    const Event *found = eventOf(Number);
    if (!found || !(m_wantsAll || m_wanted.contains(Number)) || !Py_IsInitialized())
        return;
    const HeldLock lock;
    const Event event = *found; // the receiver may destroy this
    const auto receiver = PythonObject::sharing(m_receiver);
    const auto lent = std::make_shared<char>();
    const PythonObject handed(handedOver(event, Arguments, Life::during(lent)));
    const PythonObject kept(handed ? PyList_AsTuple(handed.get()) : nullptr);
    const PythonObject number(PyLong_FromLong(Number));
    const PythonObject done(
        kept && number
            ? PyObject_CallFunctionObjArgs(receiver.get(), number.get(), handed.get(), nullptr)
            : nullptr);
    if (!done)
        PyErr_WriteUnraisable(receiver.get());
    if (kept) // the receiver does with its list what it likes
        bringBack(event, kept.get(), Arguments);
}

const Member *EventHub::eventOf(qint32 number) const
{
    const auto found = std::ranges::find(m_events, number, &Event::number);
    return found == m_events.cend() ? nullptr : &*found;
}

PyObject *EventHub::handedOver(const Event &event, const QVariantList &arguments, const Life &life)
{
    PythonObject list(PyList_New(event.arguments.size()));
    for (qsizetype i = 0; list && i < event.arguments.size(); ++i) {
        const MemberArgument &argument = event.arguments.at(i);
        const Life kept = isLent(argument.type) ? life : Life::asLongAs(&m_source);
        PythonObject value(Conversion::toPython(argument.type, arguments.at(i).constData(), kept));
        if (value && argument.direction != ArgumentDirection::In)
            value = PythonObject(ReferenceObject::make(argument.type, value.get()));
        if (!value)
            return nullptr;
        PyList_SET_ITEM(list.get(), i, value.release());
    }
    return list.release();
}

void EventHub::bringBack(const Event &event, PyObject *kept, QVariantList &arguments)
{
    for (qsizetype i = 0; i < event.arguments.size(); ++i) {
        const MemberArgument &argument = event.arguments.at(i);
        if (argument.direction == ArgumentDirection::In)
            continue;
        PyObject *value = ReferenceObject::value(PyTuple_GET_ITEM(kept, i));
        Variable variable(argument.type);
        if (Conversion::fromPython(value, argument.type, variable.data()))
            arguments[i] = QVariant(argument.type, variable.data());
        else
            PyErr_Clear();
    }
}
