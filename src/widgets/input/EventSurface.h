#pragma once

#include "base/EventGuard.h"

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

#include <memory>
#include <utility>

namespace ORVTListview {

// The child of a widget that gets its events. A receiver may destroy the widget
// while one is delivered; the toolkit goes on with the child all the same (after a
// press of the right button it asks it for a context menu), so the child then
// stays until the event is over, whatever loops are run meanwhile: a drag, a dialog.
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
        const std::shared_ptr<Events> events = m_events; // outlives this object
        ++events->atWork;
        const bool handled = EventGuard::run(std::forward<Act>(act));
        if (--events->atWork == 0 && events->left)
            events->left->deleteLater();
        return handled;
    }

    // For the widget's destructor.
    void letGo()
    {
        if (m_events->atWork == 0)
            return;
        m_surface.setParent(nullptr);
        m_events->left = &m_surface;
    }

private:
    struct Events
    {
        int atWork = 0;
        QPointer<QWidget> left; // without its widget
    };

    QWidget &m_surface;
    std::shared_ptr<Events> m_events = std::make_shared<Events>();
};

} // namespace ORVTListview
