#include "native/RaisedEvent.h"

#include "native/Conversion.h"
#include "native/Variable.h"

#include <ORVTListview/LateCall.h>

#include <algorithm>
#include <deque>
#include <vector>

using namespace ORVTListview;

namespace RaisedEvent {

namespace {

const Member *eventOf(QObject &source, qint32 number)
{
    const MemberTable *table = membersOf(QVariant::fromValue(&source));
    if (!table)
        return nullptr;
    const auto found = std::ranges::find_if(table->members(), [number](const Member &each) {
        return each.kind == MemberKind::Event && each.number == number;
    });
    return found == table->members().cend() ? nullptr : &*found;
}

bool taken(const Member &event, PyObject *arguments, std::deque<Variable> &variables)
{
    if (PyList_GET_SIZE(arguments) != event.arguments.size()) {
        PyErr_SetString(PyExc_TypeError, "The event has another number of arguments");
        return false;
    }
    for (qsizetype i = 0; i < event.arguments.size(); ++i) {
        Variable &variable = variables.emplace_back(event.arguments.at(i).type);
        if (!Conversion::fromPython(PyList_GET_ITEM(arguments, i), variable.type(),
                                    variable.data()))
            return false;
    }
    return true;
}

bool putBack(std::deque<Variable> &variables, const Life &life, PyObject *arguments)
{
    Py_ssize_t place = 0;
    for (Variable &variable : variables) {
        PyObject *value = Conversion::toPython(variable.type(), variable.data(), life);
        if (!value || PyList_SetItem(arguments, place++, value))
            return false;
    }
    return true;
}

} // namespace

bool raise(QObject &source, qint32 number, PyObject *arguments)
{
    const Member *event = eventOf(source, number);
    if (!event) {
        PyErr_Format(PyExc_LookupError, "There is no event %d", int(number));
        return false;
    }
    const Life life = Life::asLongAs(&source);
    std::deque<Variable> variables;
    if (!taken(*event, arguments, variables))
        return false;
    std::vector<void *> values{nullptr};
    for (Variable &variable : variables)
        values.push_back(variable.data());
    {
        const ReleasedLock lock;
        QMetaObject::metacall(&source, QMetaObject::InvokeMetaMethod, event->signalIndex,
                              values.data());
    }
    return putBack(variables, life, arguments);
}

} // namespace RaisedEvent
