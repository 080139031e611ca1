#pragma once

#include <QtGui/QAccessible>

namespace ORVTListview {

// Has the toolkit ask a function for what assistive programs are told of an object, as long
// as this lives: made as a static object of a function, until the library is unloaded.
class AccessFactory
{
public:
    explicit AccessFactory(QAccessible::InterfaceFactory factory)
        : m_factory(factory)
    {
        install(); // so that the toolkit's list is made first, and goes last
    }
    ~AccessFactory() { QAccessible::removeFactory(m_factory); }
    Q_DISABLE_COPY_MOVE(AccessFactory) // known to the toolkit

    // The toolkit forgets all when its application goes. Each is taken but once.
    void install() { QAccessible::installFactory(m_factory); }

private:
    QAccessible::InterfaceFactory m_factory;
};

} // namespace ORVTListview
