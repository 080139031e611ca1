// The sample shows everything that a program and its tables can hold.

#include "editor/rules/language/CodeText.h"
#include "editor/rules/language/CodeWordList.h"
#include "editor/rules/language/Vocabulary.h"
#include "project/Project.h"
#include "project/ProjectColumns.h"
#include "support/QtPrinters.h"

#include <QtCore/QSet>

#include <gtest/gtest.h>

#include <map>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

class SampleProject : public testing::Test
{
protected:
    SampleProject()
    {
        vocabulary.setCollections({.variables = project.points(dsVariable),
                                   .constants = project.points(dsConst),
                                   .inputs = project.points(dsInput),
                                   .outputs = project.points(dsOutput),
                                   .nvis = project.points(dsNvi)});
        vocabulary.setIndexedNames(project.indexedNames());
        vocabulary.setIsSqrtSupported(project.controller().isSqrtSupported ? u"1"_s : u"0"_s);
        for (const QString &line : project.program().split(u"\r\n"_s)) {
            if (!IsCommentLine(line))
                codeLines.append(line);
        }
    }

    // The words of the program, comments left out.
    QStringList words() const
    {
        return codeLines.join(u' ').replace(u'\t', u' ').split(u' ', Qt::SkipEmptyParts);
    }

    Project project{QStringLiteral(ORVT_SAMPLES_DIR "/air-handling-unit/air-handling-unit.json")};
    Vocabulary vocabulary;
    QStringList codeLines;
};

} // namespace

TEST_F(SampleProject, IsOfARealSize)
{
    qsizetype points = 0;
    for (const LwType type : {dsVariable, dsConst, dsInput, dsOutput, dsNvi})
        points += project.rows(type).size();
    EXPECT_GE(points, 55);
    EXPECT_LE(points, 70);
    EXPECT_GE(project.program().count(u"\r\n"_s), 150);
}

TEST_F(SampleProject, FillsEveryTable)
{
    for (const LwType type : projectTypes())
        EXPECT_GE(project.rows(type).size(), 2) << type;
    EXPECT_EQ(project.rows(dsInputParam).size(), project.rows(dsInput).size());
    EXPECT_EQ(project.rows(dsOutputParam).size(), project.rows(dsOutput).size());
}

TEST_F(SampleProject, HasNamesThatCanBeWords)
{
    for (const LwType type : projectTypes()) {
        for (const ProjectRow &row : project.rows(type))
            EXPECT_FALSE(row.name.contains(u' ')) << row.name.toStdString();
    }
}

TEST_F(SampleProject, UsesEveryWordOfTheLanguage)
{
    const QStringList used = words();
    const QSet<QString> present(used.cbegin(), used.cend());
    for (const BarList &list : {Vocabulary::KeywordList(), Vocabulary::TimeWordList(),
                                vocabulary.FunctionWordList(), Vocabulary::FanInWordList()}) {
        for (const QString &word : list.words())
            EXPECT_TRUE(present.contains(word)) << word.toStdString();
    }
    EXPECT_TRUE(vocabulary.FunctionWordList().contains(u"SQRT"_s));
}

TEST_F(SampleProject, UsesEveryClassOfName)
{
    CodeWordList list;
    list.FillCodeWordList(vocabulary);
    std::map<qint32, int> uses;
    for (const QString &word : words())
        ++uses[list.FindInWordList(word, true) ? list.current()->data : qint32(AutomaticColour)];
    for (const ColourIndex colour : {AutomaticColour, ConstantColour, InputColour, OutputColour,
                                     ReservedWordColour, VariableColour, NviColour})
        EXPECT_GE(uses[colour], 5) << colour;
    EXPECT_TRUE(words().contains(u"DuctHumidity"_s)); // known to nobody
    EXPECT_FALSE(list.FindInWordList(u"DuctHumidity", true));
    EXPECT_TRUE(words().contains(u"Tmr01"_s));
    EXPECT_TRUE(vocabulary.IndexedNameList().contains(u"Tmr01"_s));
    EXPECT_LT(codeLines.size(), project.program().count(u"\r\n"_s) - 20); // the rest is comment
}

TEST_F(SampleProject, HasTabsRunsOfBlanksAndParentheses)
{
    const QString code = codeLines.join(u'\n');
    EXPECT_TRUE(code.contains(u"\n\t\t\tFanAlarm"_s));
    EXPECT_TRUE(code.contains(u"MixedDamper    ="_s));
    EXPECT_TRUE(code.contains(u"( ( "_s));
    EXPECT_EQ(code.count(u'('), code.count(u')'));
}

TEST_F(SampleProject, NestsItsConditionsSoundly)
{
    int depth = 0;
    int deepest = 0;
    for (const QString &line : codeLines) {
        const QString first = line.trimmed().section(u' ', 0, 0);
        depth += first == "IF"_L1 ? 1 : 0;
        deepest = std::max(deepest, depth);
        EXPECT_FALSE(first == "ELSE"_L1 && depth == 0);
        depth -= first == "ENDIF"_L1 ? 1 : 0;
        ASSERT_GE(depth, 0);
    }
    EXPECT_EQ(depth, 0);
    EXPECT_GE(deepest, 3);
}

TEST_F(SampleProject, SurvivesItsOwnColouring)
{
    // What colouring moves: a bracket not set off by a blank, a tab behind a
    // word, and what RTF takes for its own.
    for (const QString &line : codeLines) {
        EXPECT_FALSE(line.contains(u'\\') || line.contains(u'{') || line.contains(u'}'));
        EXPECT_FALSE(line.trimmed().contains(u'\t')) << line.toStdString();
        EXPECT_FALSE(line.contains(u"  )"_s)) << line.toStdString();
    }
    for (const QString &word : words())
        EXPECT_TRUE(word.size() == 1 || !(word.startsWith(u'(') || word.endsWith(u')')))
            << word.toStdString();
}

TEST_F(SampleProject, RefersOnlyToPointsItHas)
{
    const QStringList columns = {
        u"Data Source"_s,        u"Input"_s,           u"Setpoint"_s,           u"Data"_s,
        u"Target Temperature"_s, u"Target Setpoint"_s, u"Outdoor Temperature"_s};
    for (const LwType type : {dsNvo, dsController, dsLog, dsTimer, dsOs}) {
        for (const ProjectRow &row : project.rows(type)) {
            for (qsizetype i = 0; i < row.cells.size(); ++i) {
                if (!columns.contains(projectColumns(type).at(i).key))
                    continue;
                const WordClass found = vocabulary.classify(row.cells.at(i).toString()).wordClass;
                const bool isNvi =
                    project.points(dsNvi)->Find(row.cells.at(i).toString().toUpper()).has_value();
                EXPECT_TRUE(isNvi || (found >= WordClass::Variable && found <= WordClass::Output))
                    << row.cells.at(i).toString().toStdString();
            }
        }
    }
}
