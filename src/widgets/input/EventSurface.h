#pragma once

#include "base/EventGuard.h"

#include <QtWidgets/QWidget>

#include <memory>
#include <utility>

namespace ORVTListview {

// The child of a widget that gets its events. A receiver may destroy the widget
// while one is delivered; the toolkit goes on with the child all the same (after a
// press of the right button it asks it for a context menu), so the child then
// stays until the event is over.
class EventSurface
{
public:
    explicit EventSurface(QWidget &surface)
        : m_surface(surface)
    {
    }
    Q_DISABLE_COPY_MOVE(EventSurface) // one for a surface

    // Runs what answers an event of the surface.
    template <typename Act>
    bool deliver(Act &&act)
    {
        const std::shared_ptr<int> depth = m_depth; // outlives this object
        ++*depth;
        const bool handled = EventGuard::run(std::forward<Act>(act));
        --*depth;
        return handled;
    }

    // For the widget's destructor.
    void letGo()
    {
        if (*m_depth == 0)
            return;
        m_surface.setParent(nullptr);
        m_surface.deleteLater();
    }

private:
    QWidget &m_surface;
    std::shared_ptr<int> m_depth = std::make_shared<int>(0);
};

} // namespace ORVTListview
