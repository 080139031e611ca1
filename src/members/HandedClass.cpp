#include "members/HandedClass.h"

#include <QtCore/QObject>

#include <algorithm>

namespace ORVTListview {

HandedClass *HandedClass::s_first = nullptr;

HandedClass::HandedClass(QMetaType type, Table table) noexcept
    : m_type(type)
    , m_table(table)
    , m_next(s_first)
{
    s_first = this;
}

HandedClass::~HandedClass()
{
    HandedClass **place = &s_first;
    while (*place != this)
        place = &(*place)->m_next;
    *place = m_next;
}

const MemberTable *HandedClass::members(QMetaType type)
{
    for (const HandedClass *each = s_first; each; each = each->m_next) {
        if (each->m_type == type)
            return &each->m_table();
    }
    return nullptr;
}

const MemberTable *HandedClass::members(const QMetaObject &meta)
{
    for (const QMetaObject *base = &meta; base; base = base->superClass()) {
        for (const HandedClass *each = s_first; each; each = each->m_next) {
            if (each->m_type.metaObject() == base)
                return &each->m_table();
        }
    }
    return nullptr;
}

QList<QMetaType> HandedClass::types()
{
    QList<QMetaType> types;
    for (const HandedClass *each = s_first; each; each = each->m_next)
        types.append(each->m_type);
    std::ranges::sort(types, {}, [](QMetaType type) { return QByteArray(type.name()); });
    return types;
}

void *HandedClass::addressIn(QVariant &object)
{
    const QMetaType::TypeFlags flags = object.metaType().flags();
    if (flags.testFlag(QMetaType::PointerToQObject))
        return object.value<QObject *>();
    if (flags.testFlag(QMetaType::IsPointer))
        return *static_cast<void *const *>(object.constData());
    return object.data();
}

} // namespace ORVTListview
