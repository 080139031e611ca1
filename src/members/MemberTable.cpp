#include <ORVTListview/MemberTable.h>

#include <utility>

namespace ORVTListview {

MemberTable::MemberTable(const QString &component, QList<Member> members)
    : m_component(component)
    , m_members(std::move(members))
{
    for (qsizetype i = 0; i < m_members.size(); ++i) {
        if (m_members.at(i).kind != MemberKind::Event)
            m_callable.insert(m_members.at(i).name.toLower(), i);
    }
}

const Member *MemberTable::find(const QString &name) const
{
    const auto found = m_callable.constFind(name.toLower());
    return found == m_callable.cend() ? nullptr : &m_members.at(*found);
}

} // namespace ORVTListview
