#include "colour/ProgramColouring.h"

#include "base/ThreadState.h"
#include "editor/rules/colouring/ColourTable.h"
#include "editor/rules/colouring/ColourText.h"
#include "editor/rules/colouring/RtfHead.h"
#include "project/ProjectColumns.h"

namespace ORVTListview {

using namespace Qt::StringLiterals;

ProgramColouring::ProgramColouring(const CommandLine &commandLine, const Project *project)
{
    if (project)
        addProject(*project);
    addNames(dsConst, commandLine.constants);
    addNames(dsVariable, commandLine.variables);
    addNames(dsInput, commandLine.inputs);
    addNames(dsOutput, commandLine.outputs);
    addNames(dsNvi, commandLine.nvis);
    for (const QString &name : commandLine.indexed)
        m_indexedNames.Add(name, u"#"_s, 0, 0); // a zero that is left out: the name itself

    m_vocabulary.setCollections({.variables = &m_points[dsVariable],
                                 .constants = &m_points[dsConst],
                                 .inputs = &m_points[dsInput],
                                 .outputs = &m_points[dsOutput],
                                 .nvis = &m_points[dsNvi]});
    m_vocabulary.setIndexedNames(&m_indexedNames);
    if (commandLine.sqrt || (project && project->controller().isSqrtSupported))
        m_vocabulary.setIsSqrtSupported(u"true"_s);
}

void ProgramColouring::addProject(const Project &project)
{
    for (const LwType type : projectTypes()) {
        if (!isVocabularyType(type))
            continue;
        for (const ProjectRow &row : project.rows(type))
            m_points[type].Add(row.name, row.data);
    }
    for (const ProjectFamily &family : project.families())
        m_indexedNames.Add(family.name, family.numberFormat, family.lowerBound, family.upperBound);
}

void ProgramColouring::addNames(LwType type, const QStringList &names)
{
    PointList &list = m_points[type];
    for (const QString &name : names) {
        if (list.Find(name))
            throw UsageError(u"\"%1\" is twice among the %2"_s.arg(name, projectMember(type)));
        list.Add(name);
    }
}

QString ProgramColouring::rtf(const QString &program) const
{
    MessageService &messages = threadPart<Messages>().service();
    CodeWordList words;
    words.FillCodeWordList(m_vocabulary);
    const RtfHead head = BuildRtfHeader({}, defaultColours(), messages);
    return ColourText(ColourEngine(words, messages), program, head.Header, false);
}

} // namespace ORVTListview
