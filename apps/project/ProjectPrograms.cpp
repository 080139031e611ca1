#include "project/ProjectPrograms.h"

#include <algorithm>

namespace ORVTListview {

ProjectPrograms::ProjectPrograms(const QList<ProgramEntry> &programs,
                                 const QList<ProgramFile> &texts)
{
    m_list = listOf(programs);
    for (qsizetype i = 0; i < m_list.size(); ++i) {
        Part &made = part(m_list.at(i).id);
        made.text = texts.value(i);
        made.shown = made.text.text();
    }
}

QList<ProgramEntry> ProjectPrograms::entries() const
{
    QList<ProgramEntry> entries;
    for (const ProjectProgram &program : m_list)
        entries.append({program.name, part(program.id).file});
    return entries;
}

QList<qint32> ProjectPrograms::removed() const
{
    QList<qint32> removed;
    for (const auto &[id, part] : m_parts) {
        if (std::ranges::find(m_list, id, &ProjectProgram::id) == m_list.cend())
            removed.append(id);
    }
    return removed;
}

ProgramList ProjectPrograms::listOf(const QList<ProgramEntry> &entries)
{
    ProgramList list;
    for (const ProgramEntry &entry : entries) {
        const auto known = std::ranges::find_if(
            m_parts, [&](const auto &each) { return each.second.file == entry.file; });
        list.append({known != m_parts.end() ? known->first : make(entry.file), entry.name});
    }
    return list;
}

qint32 ProjectPrograms::make(const QString &file)
{
    const qint32 id = m_parts.empty() ? 1 : m_parts.rbegin()->first + 1;
    m_parts[id].file = file;
    return id;
}

bool ProjectPrograms::hasFile(const QString &file) const
{
    return std::ranges::any_of(m_parts, [&](const auto &each) { return each.second.file == file; });
}

} // namespace ORVTListview
