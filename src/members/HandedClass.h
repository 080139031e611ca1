#pragma once

#include "base/HouseExport.h"
#include <ORVTListview/MemberTable.h>

#include <QtCore/QVariant>

namespace ORVTListview {

// A class whose objects late-bound calls hand out or take. A variable of each stands
// beside its table and makes it known as long as its library is there:
//
//     const HandedClass handed(QMetaType::fromType<Node *>(), &nodeMembers);
//
// Why it is so: docs/decisions/members.md.
class ORVT_HOUSE_EXPORT HandedClass
{
public:
    using Table = const MemberTable &(*)();

    // The type is that of the pointer, or of the value itself for what is copied.
    HandedClass(QMetaType type, Table table) noexcept;
    ~HandedClass();
    Q_DISABLE_COPY_MOVE(HandedClass) // others are found by its address

    // Null for a type that nobody has made known.
    static const MemberTable *members(QMetaType type);

    // Of the class or its nearest base.
    static const MemberTable *members(const QMetaObject &meta);

    static QList<QMetaType> types();

    // The address that a table's calls take.
    static void *addressIn(QVariant &object);

private:
    static HandedClass *s_first;

    const QMetaType m_type;
    const Table m_table;
    HandedClass *m_next;
};

} // namespace ORVTListview
