#include "members/HandedClass.h"

#include <QtCore/QObject>

#include <algorithm>

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

} // namespace

HandedClass *HandedClass::s_first = nullptr;

HandedClass::HandedClass(QMetaType type, Members entries, Facts facts) noexcept
    : m_type(type)
    , m_members(entries)
    , m_facts(facts)
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

const MemberTable &HandedClass::table() const
{
    std::call_once(m_once, [this] {
        const QList<MemberFacts> facts = m_facts ? m_facts() : QList<MemberFacts>();
        m_table.emplace(className(m_type), m_members(), facts);
    });
    return *m_table;
}

const MemberTable *HandedClass::members(QMetaType type)
{
    for (const HandedClass *each = s_first; each; each = each->m_next) {
        if (each->m_type == type)
            return &each->table();
    }
    return nullptr;
}

const MemberTable *HandedClass::members(const QMetaObject &meta)
{
    for (const QMetaObject *base = &meta; base; base = base->superClass()) {
        for (const HandedClass *each = s_first; each; each = each->m_next) {
            if (each->m_type.metaObject() == base)
                return &each->table();
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
