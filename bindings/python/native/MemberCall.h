#pragma once

#include "native/Life.h"
#include "native/PythonObject.h"
#include "native/Variable.h"

#include <ORVTListview/MemberTable.h>

#include <deque>

// What a call of a member needs to know of it: made once.
struct MemberPlan
{
    MemberPlan(QMetaType ownerType, const ORVTListview::MemberTable &table,
               const ORVTListview::Member &member, bool isPut);

    QMetaType owner;
    QByteArray name; // "ListItem.SubItem"
    QList<ORVTListview::MemberArgument> arguments;
    QMetaType result;
    ORVTListview::Member::Call call;
    qsizetype fewest = 0; // arguments that cannot be left out
    bool tellsLife = false;
};

// One call. What goes both ways, or out, comes back behind the result.
class MemberCall
{
public:
    explicit MemberCall(const MemberPlan &plan)
        : m_plan(plan)
    {
    }

    // The object and its arguments, those with names at the end. A new reference; null
    // with an error of Python's.
    PyObject *run(PyObject *const *given, Py_ssize_t count, PyObject *names);

private:
    bool findObject(PyObject *object);
    bool findHanded(PyObject *object);
    bool findQObject(PyObject *object);
    bool sort(PyObject *const *given, Py_ssize_t count, PyObject *names);
    bool sortNamed(PyObject *name, PyObject *value);
    bool convert();
    bool convertOne(qsizetype index);
    bool carryOut();
    void keepHanded(PyObject *object);
    PyObject *outcome();

    const MemberPlan &m_plan;
    void *m_object = nullptr;
    Life m_life;
    std::array<PyObject *, 16> m_given = {}; // borrowed; null for those left out
    std::deque<Variable> m_variables;        // the result first, if there is one
};
