#pragma once

#include "editor/rules/language/CodeWordList.h"
#include "editor/rules/language/Vocabulary.h"
#include "project/analysis/ProgramAnalysis.h"

// The words that tests of the analysis read programs with.
struct AnalysisWords
{
    AnalysisWords()
    {
        for (const QString &name : {QStringLiteral("Occupied"), QStringLiteral("Count")})
            variables.Add(name);
        constants.Add(QStringLiteral("Limit1"));
        for (const QString &name :
             {QStringLiteral("Temp1"), QStringLiteral("AHU-1"), QStringLiteral("Temp(a,b)")})
            inputs.Add(name);
        for (const QString &name : {QStringLiteral("Fan1"), QStringLiteral("Fan2")})
            outputs.Add(name);
        nvis.Add(QStringLiteral("NetTemp"));
        families.Add(QStringLiteral("Ctrl"), QStringLiteral("0"), 1, 3);
        vocabulary.setCollections({.variables = &variables,
                                   .constants = &constants,
                                   .inputs = &inputs,
                                   .outputs = &outputs,
                                   .nvis = &nvis});
        vocabulary.setIndexedNames(&families);
        vocabulary.setIsSqrtSupported(QStringLiteral("true"));
    }

    ORVTListview::ProgramWords words() const
    {
        ORVTListview::CodeWordList list;
        list.FillCodeWordList(vocabulary);
        return {vocabulary, list.index()};
    }

    ORVTListview::PointList variables, constants, inputs, outputs, nvis;
    ORVTListview::IndexedNameList families;
    ORVTListview::Vocabulary vocabulary;
};

// A program that is analysed as a whole.
inline ORVTListview::ProgramAnalysis analysed(const QStringList &lines,
                                              const ORVTListview::ProgramWords &words)
{
    ORVTListview::ProgramAnalysis analysis([lines](qint32 line) { return lines[line]; });
    analysis.setWords(words);
    analysis.reset(static_cast<qint32>(lines.size()));
    analysis.finish();
    return analysis;
}

inline QString faultName(ORVTListview::Fault fault)
{
    static constexpr const char *names[] = {
        "UnknownName",     "MissingBlanks", "NoStatement",     "Unexpected",     "MissingValue",
        "MissingOperator", "OpenBracket",   "CloseBracket",    "MissingBracket", "ValueCount",
        "TooDeep",         "NoComparison",  "NotNetworkInput", "WriteToInput",   "WriteToConstant",
        "NotWritable",     "ElseWithoutIf", "SecondElse",      "EndifWithoutIf", "IfWithoutEndif",
        "NeverWritten",    "NeverRead"};
    static_assert(std::size(names) == std::size_t(ORVTListview::Fault::NeverRead) + 1);
    return QString::fromLatin1(names[std::size_t(fault)]);
}

// "2:4+5 UnknownName Tmep"
inline QString told(const ORVTListview::ProgramProblem &problem)
{
    const ORVTListview::LineProblem &found = problem.found;
    QString text = QStringLiteral("%1:%2+%3 %4 %5")
                       .arg(problem.line)
                       .arg(found.place.start)
                       .arg(found.place.length)
                       .arg(faultName(found.fault), found.word);
    if (found.count > 0)
        text += QStringLiteral(" (%1)").arg(found.count);
    return text;
}

inline QString told(const ORVTListview::ProgramAnalysis &analysis)
{
    QStringList lines;
    for (const ORVTListview::ProgramProblem &problem : analysis.problems())
        lines.append(told(problem));
    return lines.join(u'\n');
}
