#pragma once

#include "colour/CommandLine.h"
#include "editor/rules/language/Vocabulary.h"
#include "project/Project.h"

#include <map>

namespace ORVTListview {

// The words that the command line and a project name, and the colouring by them.
class ProgramColouring
{
public:
    // Without a project null. Raises UsageError for a name that one kind of
    // point would have twice.
    ProgramColouring(const CommandLine &commandLine, const Project *project);

    // The document with the default colours. Lines are separated by CR LF.
    QString rtf(const QString &program) const;

private:
    void addProject(const Project &project);
    void addNames(LwType type, const QStringList &names);

    std::map<LwType, PointList> m_points;
    IndexedNameList m_indexedNames;
    Vocabulary m_vocabulary;
};

} // namespace ORVTListview
