#include "native/MemberCall.h"

#include "native/Conversion.h"
#include "native/Failures.h"
#include "native/HandedObject.h"
#include "native/SipBridge.h"

#include <QtCore/QVarLengthArray>

using namespace ORVTListview;

namespace {

QByteArray wholeName(const MemberTable &table, const Member &member)
{
    return table.component().toUtf8() + '.' + member.name.toUtf8();
}

bool canBeLeftOut(const MemberArgument &argument)
{
    return argument.isOptional || argument.direction != ArgumentDirection::In;
}

QList<MemberArgument> argumentsOf(const Member &member, bool isPut)
{
    if (isPut)
        return {MemberArgument{QStringLiteral("value"), member.type, {}, false, {}}};
    return member.arguments;
}

} // namespace

MemberPlan::MemberPlan(QMetaType ownerType, const MemberTable &table, const Member &member,
                       bool isPut)
    : owner(ownerType)
    , name(wholeName(table, member))
    , arguments(argumentsOf(member, isPut))
    , result(isPut ? QMetaType() : member.type)
    , call(isPut ? member.put : member.call)
    , fewest(arguments.size())
    , tellsLife(member.name == QLatin1StringView("isAlive"))
{
    while (fewest > 0 && canBeLeftOut(arguments.at(fewest - 1)))
        --fewest;
}

PyObject *MemberCall::run(PyObject *const *given, Py_ssize_t count, PyObject *names)
{
    if (count < 1)
        return PyErr_Format(PyExc_TypeError, "%s needs an object", m_plan.name.constData());
    if (!findObject(given[0])) {
        if (!PyErr_Occurred())
            Py_RETURN_FALSE; // of one that is gone with its list
        return nullptr;
    }
    if (!sort(given, count, names) || !convert() || !carryOut())
        return nullptr;
    keepHanded(given[0]);
    return outcome();
}

bool MemberCall::findObject(PyObject *object)
{
    return HandedObject::is(object) ? findHanded(object) : findQObject(object);
}

bool MemberCall::findHanded(PyObject *object)
{
    if (HandedObject::held(object).metaType() != m_plan.owner) {
        PyErr_Format(PyExc_TypeError, "%s is no member of %s", m_plan.name.constData(),
                     Py_TYPE(object)->tp_name);
        return false;
    }
    m_life = HandedObject::life(object);
    m_object = HandedObject::address(object);
    if (!m_life.isOver())
        return true;
    if (!m_plan.tellsLife)
        Failures::setGone(QString::fromUtf8(m_plan.name));
    return false;
}

bool MemberCall::findQObject(PyObject *object)
{
    QObject *const found = SipBridge::toObject(object);
    if (PyErr_Occurred())
        return false;
    if (!found || !m_plan.owner.metaObject() || !m_plan.owner.metaObject()->cast(found)) {
        PyErr_Format(PyExc_TypeError, "%s is no member of %s", m_plan.name.constData(),
                     Py_TYPE(object)->tp_name);
        return false;
    }
    m_life = Life::asLongAs(found);
    m_object = found;
    return true;
}

bool MemberCall::sort(PyObject *const *given, Py_ssize_t count, PyObject *names)
{
    const qsizetype most = m_plan.arguments.size();
    const qsizetype plain = count - 1;
    if (plain > most) {
        PyErr_Format(PyExc_TypeError, "%s takes %zd arguments at most, %zd are given",
                     m_plan.name.constData(), Py_ssize_t(most), Py_ssize_t(plain));
        return false;
    }
    std::copy_n(given + 1, plain, m_given.begin());
    const Py_ssize_t named = names ? PyTuple_GET_SIZE(names) : 0;
    for (Py_ssize_t i = 0; i < named; ++i) {
        if (!sortNamed(PyTuple_GET_ITEM(names, i), given[count + i]))
            return false;
    }
    for (qsizetype i = 0; i < m_plan.fewest; ++i) {
        if (m_given.at(i))
            continue;
        PyErr_Format(PyExc_TypeError, "%s needs the argument \"%s\"", m_plan.name.constData(),
                     m_plan.arguments.at(i).name.toUtf8().constData());
        return false;
    }
    return true;
}

bool MemberCall::sortNamed(PyObject *name, PyObject *value)
{
    for (qsizetype i = 0; i < m_plan.arguments.size(); ++i) {
        const QByteArray known = m_plan.arguments.at(i).name.toUtf8();
        if (PyUnicode_CompareWithASCIIString(name, known.constData()) != 0)
            continue;
        if (!m_given.at(i)) {
            m_given.at(i) = value;
            return true;
        }
        break;
    }
    PyErr_Format(PyExc_TypeError, "%s has no place for the argument \"%U\"",
                 m_plan.name.constData(), name);
    return false;
}

bool MemberCall::convert()
{
    if (m_plan.result.isValid())
        m_variables.emplace_back(m_plan.result);
    for (qsizetype i = 0; i < m_plan.arguments.size(); ++i) {
        if (!convertOne(i))
            return false;
    }
    return true;
}

bool MemberCall::convertOne(qsizetype index)
{
    const MemberArgument &argument = m_plan.arguments.at(index);
    PyObject *given = m_given.at(index);
    const bool isLeftOut = !given || (given == Py_None && argument.isOptional);
    if (isLeftOut && argument.defaultValue.metaType() == argument.type) {
        m_variables.emplace_back(argument.type, argument.defaultValue.constData());
        return true;
    }
    Variable &variable = m_variables.emplace_back(argument.type);
    if (isLeftOut && argument.defaultValue.isValid())
        return QMetaType::convert(argument.defaultValue.metaType(),
                                  argument.defaultValue.constData(), argument.type,
                                  variable.data());
    return isLeftOut || Conversion::fromPython(given, argument.type, variable.data());
}

bool MemberCall::carryOut()
{
    QVarLengthArray<void *, 16> values;
    if (!m_plan.result.isValid())
        values.append(nullptr);
    for (Variable &variable : m_variables)
        values.append(variable.data());
    try {
        const ReleasedLock lock; // a member may wait for the user
        m_plan.call(m_object, values.data());
        return true;
    } catch (const Error &error) {
        Failures::set(error);
    } catch (const std::exception &error) {
        PyErr_Format(PyExc_RuntimeError, "%s: %s", m_plan.name.constData(), error.what());
    }
    return false;
}

// The library refers to a host's collections and never owns them: the component that was
// given them keeps their objects of Python.
void MemberCall::keepHanded(PyObject *object)
{
    for (qsizetype i = 0; i < m_plan.arguments.size(); ++i) {
        PyObject *given = m_given.at(i);
        if (!given || !HandedObject::is(given) || !HandedObject::life(given).isOwning())
            continue;
        const QByteArray place = "_kept_" + m_plan.name + QByteArray::number(i);
        if (PyObject_SetAttrString(object, place.constData(), given))
            PyErr_Clear();
    }
}

PyObject *MemberCall::outcome()
{
    QVarLengthArray<Variable *, 16> back;
    qsizetype place = 0;
    if (m_plan.result.isValid())
        back.append(&m_variables.at(place++));
    for (const MemberArgument &argument : m_plan.arguments) {
        Variable &variable = m_variables.at(place++);
        if (argument.direction != ArgumentDirection::In)
            back.append(&variable);
    }
    if (back.isEmpty())
        Py_RETURN_NONE;
    if (back.size() == 1)
        return Conversion::toPython(back.first()->type(), back.first()->data(), m_life);
    PythonObject all(PyTuple_New(back.size()));
    for (qsizetype i = 0; all && i < back.size(); ++i) {
        PyObject *each = Conversion::toPython(back.at(i)->type(), back.at(i)->data(), m_life);
        if (!each)
            return nullptr;
        PyTuple_SET_ITEM(all.get(), i, each);
    }
    return all.release();
}
