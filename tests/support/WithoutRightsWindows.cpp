#include "support/WithoutRights.h"

// What may only be read nobody writes there.
WithoutRights::WithoutRights(const QString &)
    : m_isRoot(false)
{
}

WithoutRights::~WithoutRights() = default;
