#include <ORVTListview/MemberTable.h>

#include "members/RecordValue.h"

#include <QtCore/QHash>

#include <algorithm>

namespace ORVTListview {

struct MemberTable::Private
{
    QString component;
    QList<Member> members;
    QList<MemberFacts> facts;
    QHash<QString, qsizetype> callable; // by name in lower case
};

namespace {

QHash<QString, qsizetype> callableOf(const QList<Member> &members)
{
    QHash<QString, qsizetype> callable;
    for (qsizetype i = 0; i < members.size(); ++i) {
        if (members.at(i).kind != MemberKind::Event)
            callable.insert(members.at(i).name.toLower(), i);
    }
    return callable;
}

// Hosts that know no types get and give records as maps.
void announceRecords(const QList<Member> &members)
{
    for (const Member &member : members) {
        RecordValue::announce(member.type);
        for (const MemberArgument &argument : member.arguments)
            RecordValue::announce(argument.type);
    }
}

} // namespace

MemberTable::MemberTable(const QString &component, const QList<Member> &members)
    : MemberTable(component, members, {})
{
}

MemberTable::MemberTable(const QString &component, const QList<Member> &members,
                         const QList<MemberFacts> &facts)
    : d(std::make_shared<const Private>(Private{component, members, facts, callableOf(members)}))
{
    announceRecords(members);
}

QString MemberTable::component() const
{
    return d->component;
}

const QList<Member> &MemberTable::members() const
{
    return d->members;
}

MemberFacts MemberTable::facts(const QString &name) const
{
    const auto isOf = [&name](const MemberFacts &facts) { return facts.name == name; };
    const auto found = std::find_if(d->facts.cbegin(), d->facts.cend(), isOf);
    return found == d->facts.cend() ? MemberFacts{name} : *found;
}

const QList<MemberFacts> &MemberTable::allFacts() const
{
    return d->facts;
}

const Member *MemberTable::find(const QString &name) const
{
    const auto found = d->callable.constFind(name.toLower());
    return found == d->callable.cend() ? nullptr : &d->members.at(*found);
}

} // namespace ORVTListview
