#include <ORVTListview/MemberTable.h>

#include <QtCore/QHash>

namespace ORVTListview {

struct MemberTable::Private
{
    QString component;
    QList<Member> members;
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

} // namespace

MemberTable::MemberTable(const QString &component, const QList<Member> &members)
    : d(std::make_shared<const Private>(Private{component, members, callableOf(members)}))
{
}

QString MemberTable::component() const
{
    return d->component;
}

const QList<Member> &MemberTable::members() const
{
    return d->members;
}

const Member *MemberTable::find(const QString &name) const
{
    const auto found = d->callable.constFind(name.toLower());
    return found == d->callable.cend() ? nullptr : &d->members.at(*found);
}

} // namespace ORVTListview
