#pragma once

#include <QtCore/QRandomGenerator>
#include <QtCore/QVariant>

namespace ORVTListview {

// Values that change by themselves, as those of a plant do.
class DriftingValue
{
public:
    // The same seed gives the same values.
    explicit DriftingValue(quint32 seed = 1)
        : m_random(seed)
    {
    }

    // Numbers drift by up to 2 % of their size, by 0.1 at least, and keep one place
    // behind the point; "On" and "Off" change now and then; other texts stay.
    QVariant next(const QVariant &last);

private:
    QRandomGenerator m_random;
};

} // namespace ORVTListview
