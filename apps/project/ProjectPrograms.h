#pragma once

#include "project/ProgramEntries.h"
#include "project/ProgramFile.h"
#include "project/ProjectProgram.h"

#include <map>

namespace ORVTListview {

// The programs of a project with their files' texts. One that has left the list is kept, so
// that it can come back with the number and the file that it had.
class ProjectPrograms
{
public:
    struct Part
    {
        QString file; // seen from the project file's folder
        ProgramFile text;
        QString shown; // what an editor made of the text
    };

    // The texts are those of the programs, in their order.
    ProjectPrograms(const QList<ProgramEntry> &programs, const QList<ProgramFile> &texts);

    const ProgramList &list() const { return m_list; }
    void setList(const ProgramList &list) { m_list = list; }
    qint32 first() const { return m_list.constFirst().id; }

    // Those that have left the list, and may come back.
    QList<qint32> removed() const;

    // As the project's file tells the list.
    QList<ProgramEntry> entries() const;

    // The list that a project's file tells; programs are known by their files, others are new.
    ProgramList listOf(const QList<ProgramEntry> &entries);

    // Without a text, and not in the list yet.
    qint32 make(const QString &file);

    // Raises std::out_of_range for a number that no program has or had.
    Part &part(qint32 id) { return m_parts.at(id); }
    const Part &part(qint32 id) const { return m_parts.at(id); }

    bool hasFile(const QString &file) const;

private:
    ProgramList m_list;
    std::map<qint32, Part> m_parts;
};

} // namespace ORVTListview
