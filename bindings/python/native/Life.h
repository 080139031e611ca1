#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <memory>

// How long what was handed out may be used: as long as the component or list that keeps
// it, during an event, or as long as Python holds it.
class Life
{
public:
    static Life asLongAs(QObject *keeper)
    {
        Life life;
        life.m_keeper = keeper;
        return life;
    }
    static Life during(const std::shared_ptr<void> &event)
    {
        Life life;
        life.m_event = event;
        return life;
    }
    static Life owning(std::shared_ptr<void> object)
    {
        Life life;
        life.m_owned = std::move(object);
        return life;
    }

    bool isOver() const { return !m_owned && !m_keeper && m_event.expired(); }
    bool isOwning() const { return m_owned != nullptr; }

private:
    QPointer<QObject> m_keeper;
    std::weak_ptr<void> m_event;
    std::shared_ptr<void> m_owned;
};
