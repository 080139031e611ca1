#pragma once

#include <QtCore/qglobal.h>

#include <memory>

namespace ORVTListview {

template <typename T>
class HostReference;

// Base of the interfaces that hosts implement and the library keeps by
// reference. A host may destroy such an object at any time: the references held
// by the library then read as null.
class HostObject
{
public:
    HostObject() = default;
    Q_DISABLE_COPY_MOVE(HostObject) // references follow the object, not its value
    virtual ~HostObject() = default;

private:
    template <typename T>
    friend class HostReference;

    std::shared_ptr<char> m_life = std::make_shared<char>();
};

// A reference that never owns and reads as null once its object is gone.
template <typename T>
class HostReference
{
public:
    HostReference() = default;
    HostReference(T *object) // implicit: setters hand pointers straight on
        : m_object(object)
    {
        if (object)
            m_life = static_cast<HostObject *>(object)->m_life;
    }

    // Null once the object is gone.
    T *get() const { return m_life.expired() ? nullptr : m_object; }
    T *operator->() const { return get(); }
    explicit operator bool() const { return get() != nullptr; }

private:
    T *m_object = nullptr;
    std::weak_ptr<char> m_life;
};

} // namespace ORVTListview
