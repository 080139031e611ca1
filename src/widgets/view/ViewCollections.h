#pragma once

#include "widgets/view/Lookup.h"
#include "widgets/view/ViewKind.h"
#include <ORVTListview/ViewCollection.h>

// The members of ViewCollection, for who makes one of a ViewKind.

namespace ORVTListview {

template <typename Handle, typename Parts>
qint32 ViewCollection<Handle, Parts>::Count() const
{
    return (m_parts.model.*viewKind<Handle>.count)();
}

template <typename Handle, typename Parts>
int ViewCollection<Handle, Parts>::positionAt(qint32 index, const char *member) const
{
    constexpr const auto &kind = viewKind<Handle>;
    Lookup::checkIndex({kind.collection, member}, kind.kind, index, Count());
    return index - 1;
}

template <typename Handle, typename Parts>
auto &ViewCollection<Handle, Parts>::heldWith(const QString &key, const char *member) const
{
    constexpr const auto &kind = viewKind<Handle>;
    return Lookup::required((m_parts.model.*kind.find)(key), {kind.collection, member}, kind.kind,
                            key);
}

template <typename Handle, typename Parts>
Handle *ViewCollection<Handle, Parts>::Item(qint32 Index) const
{
    constexpr const auto &kind = viewKind<Handle>;
    return (m_parts.*kind.store).of((m_parts.model.*kind.at)(positionAt(Index, "Item")), m_parts);
}

template <typename Handle, typename Parts>
Handle *ViewCollection<Handle, Parts>::Item(const QString &Key) const
{
    return (m_parts.*viewKind<Handle>.store).of(heldWith(Key, "Item"), m_parts);
}

template <typename Handle, typename Parts>
void ViewCollection<Handle, Parts>::Remove(qint32 Index)
{
    (m_parts.*viewKind<Handle>.removeAt)(positionAt(Index, "Remove"));
}

template <typename Handle, typename Parts>
void ViewCollection<Handle, Parts>::Remove(const QString &Key)
{
    const int position = m_parts.model.positionOf(heldWith(Key, "Remove"));
    (m_parts.*viewKind<Handle>.removeAt)(position);
}

template <typename Handle, typename Parts>
void ViewCollection<Handle, Parts>::Clear()
{
    (m_parts.*viewKind<Handle>.clear)();
}

} // namespace ORVTListview
