#pragma once

#include "base/HouseExport.h"
#include <ORVTListview/MemberTable.h>

#include <QtCore/QVariant>

#include <mutex>
#include <optional>

namespace ORVTListview {

// A class whose objects late-bound calls hand out or take. A variable of each stands
// beside its members and makes it known as long as its library is there:
//
//     const HandedClass handed(QMetaType::fromType<Node *>(), &members, &facts);
//
// Why it is so: docs/decisions/members.md.
class ORVT_HOUSE_EXPORT HandedClass
{
public:
    using Members = QList<Member> (*)();
    using Facts = QList<MemberFacts> (*)();

    // The type is that of the pointer, or of the value itself for what is copied.
    HandedClass(QMetaType type, Members entries, Facts facts = nullptr) noexcept;
    ~HandedClass();
    Q_DISABLE_COPY_MOVE(HandedClass) // others are found by its address

    // Made when it is first asked for, as classes are made known before the toolkit is
    // ready for more.
    const MemberTable &table() const;

    // Null for a type that nobody has made known.
    static const MemberTable *members(QMetaType type);

    // Of the class or its nearest base.
    static const MemberTable *members(const QMetaObject &meta);

    static QList<QMetaType> types();

    // The address that a table's calls take.
    static void *addressIn(QVariant &object);

private:
    template <typename Wanted>
    static const HandedClass *find(const Wanted &wanted);

    static HandedClass *s_first;

    const QMetaType m_type;
    const Members m_members;
    const Facts m_facts;
    HandedClass *m_next = nullptr;
    mutable std::once_flag m_once;
    mutable std::optional<MemberTable> m_table;
};

} // namespace ORVTListview
