#include "members/HandedClass.h"

#include <QtCore/QMutex>
#include <QtCore/QObject>

#include <algorithm>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// As it is written in C++, without the namespace.
QString className(QMetaType type)
{
    QString name = QString::fromLatin1(type.name());
    name.remove(u"ORVTListview::"_s).remove(u'*');
    return name.replace(u"<int>"_s, u"<qint32>"_s);
}

// A library may be loaded while other threads make calls. Ready before any of the list.
constinit QBasicMutex mutex;

} // namespace

HandedClass *HandedClass::s_first = nullptr;

HandedClass::HandedClass(QMetaType type, Members entries, Facts facts) noexcept
    : m_type(type)
    , m_members(entries)
    , m_facts(facts)
{
    const std::lock_guard lock(mutex);
    m_next = std::exchange(s_first, this);
}

HandedClass::~HandedClass()
{
    const std::lock_guard lock(mutex);
    HandedClass **place = &s_first;
    while (*place != this)
        place = &(*place)->m_next;
    *place = m_next;
}

const MemberTable &HandedClass::table() const
{
    std::call_once(m_once, [this] {
        const QList<MemberFacts> facts = m_facts ? m_facts() : QList<MemberFacts>();
        m_table.emplace(className(m_type), m_members(), facts);
    });
    return *m_table;
}

// The table is made without the lock, since what it takes is not ours alone.
template <typename Wanted>
const HandedClass *HandedClass::find(const Wanted &wanted)
{
    const std::lock_guard lock(mutex);
    const HandedClass *each = s_first;
    while (each && !wanted(*each))
        each = each->m_next;
    return each;
}

const MemberTable *HandedClass::members(QMetaType type)
{
    const auto *found = find([type](const HandedClass &each) { return each.m_type == type; });
    return found ? &found->table() : nullptr;
}

const MemberTable *HandedClass::members(const QMetaObject &meta)
{
    for (const QMetaObject *base = &meta; base; base = base->superClass()) {
        const auto *found =
            find([base](const HandedClass &each) { return each.m_type.metaObject() == base; });
        if (found)
            return &found->table();
    }
    return nullptr;
}

QList<QMetaType> HandedClass::types()
{
    const std::lock_guard lock(mutex);
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
