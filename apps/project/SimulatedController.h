#pragma once

#include <QtCore/QRandomGenerator>
#include <QtCore/QVariant>

namespace ORVTListview {

// Stands for the controller that a programming tool reads its values from: each
// reading of a value is a little beside the last one.
class SimulatedController
{
public:
    // The same seed gives the same readings.
    explicit SimulatedController(quint32 seed = 1)
        : m_random(seed)
    {
    }

    // Numbers drift by up to 2 % of their size, by 0.1 at least, and keep one place
    // behind the point; "On" and "Off" change now and then; other texts stay.
    QVariant reading(const QVariant &last);

private:
    QRandomGenerator m_random;
};

} // namespace ORVTListview
