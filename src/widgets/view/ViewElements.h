#pragma once

#include "widgets/view/Lookup.h"
#include "widgets/view/ViewKind.h"
#include <ORVTListview/Error.h>
#include <ORVTListview/ViewElement.h>

// The members of ViewElement, for who makes one of a ViewKind.

namespace ORVTListview {

template <typename Handle, typename Parts, typename Held>
Held &ViewElement<Handle, Parts, Held>::held(const char *member) const
{
    constexpr const auto &kind = viewKind<Handle>;
    if (!m_held)
        throw Error(ObjectNotSet, CalledMember{kind.name, member}.name(),
                    QStringLiteral("The %1 has been removed").arg(kind.kind));
    return *m_held;
}

template <typename Handle, typename Parts, typename Held>
Parts &ViewElement<Handle, Parts, Held>::partsFor(const char *member) const
{
    held(member);
    return *m_parts;
}

template <typename Handle, typename Parts, typename Held>
Held *ViewElement<Handle, Parts, Held>::heldOf(const ViewElement *handle, const Parts &parts,
                                               const QString &source)
{
    constexpr const auto &kind = viewKind<Handle>;
    if (!handle)
        return nullptr;
    if (!handle->isAlive())
        throw Error(ObjectNotSet, source, QStringLiteral("The %1 has been removed").arg(kind.kind));
    if (handle->m_parts != &parts)
        throw Error(InvalidCall, source,
                    QStringLiteral("The %1 is another %2's").arg(kind.kind, kind.owner));
    return handle->m_held;
}

template <typename Handle, typename Parts, typename Held>
qint32 ViewElement<Handle, Parts, Held>::Index() const
{
    return partsFor("Index").model.positionOf(*m_held) + 1;
}

template <typename Handle, typename Parts, typename Held>
QString ViewElement<Handle, Parts, Held>::Key() const
{
    return partsFor("Key").model.keyOf(*m_held);
}

template <typename Handle, typename Parts, typename Held>
void ViewElement<Handle, Parts, Held>::setKey(const QString &Key)
{
    constexpr const auto &kind = viewKind<Handle>;
    Held &own = held("setKey");
    const Held *user = (m_parts->model.*kind.find)(Key);
    Lookup::checkKeyIsFree({kind.name, "setKey"}, Key, user && user != &own);
    m_parts->model.setKey(own, Key);
}

template <typename Handle, typename Parts, typename Held>
QString ViewElement<Handle, Parts, Held>::Text() const
{
    return partsFor("Text").model.textOf(*m_held);
}

template <typename Handle, typename Parts, typename Held>
void ViewElement<Handle, Parts, Held>::setText(const QString &Text)
{
    partsFor("setText").model.setText(*m_held, Text);
}

} // namespace ORVTListview
