#pragma once

#include <Python.h>

#include <utility>

// A reference of ours to an object of Python; null for none.
class PythonObject
{
public:
    PythonObject() = default;
    explicit PythonObject(PyObject *owned)
        : m_object(owned)
    {
    }
    PythonObject(PythonObject &&other) noexcept
        : m_object(std::exchange(other.m_object, nullptr))
    {
    }
    PythonObject &operator=(PythonObject &&other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }
    ~PythonObject() { Py_XDECREF(m_object); }

    static PythonObject sharing(PyObject *borrowed)
    {
        Py_XINCREF(borrowed);
        return PythonObject(borrowed);
    }

    PyObject *get() const { return m_object; }
    PyObject *release() { return std::exchange(m_object, nullptr); }
    explicit operator bool() const { return m_object != nullptr; }

private:
    PyObject *m_object = nullptr;
};

// While it lives this thread holds Python's lock.
class HeldLock
{
public:
    HeldLock()
        : m_state(PyGILState_Ensure())
    {
    }
    HeldLock(const HeldLock &) = delete;
    HeldLock &operator=(const HeldLock &) = delete;
    ~HeldLock() { PyGILState_Release(m_state); }

private:
    PyGILState_STATE m_state;
};

// While it lives other threads may run Python.
class ReleasedLock
{
public:
    ReleasedLock()
        : m_thread(PyEval_SaveThread())
    {
    }
    ReleasedLock(const ReleasedLock &) = delete;
    ReleasedLock &operator=(const ReleasedLock &) = delete;
    ~ReleasedLock() { PyEval_RestoreThread(m_thread); }

private:
    PyThreadState *m_thread;
};
