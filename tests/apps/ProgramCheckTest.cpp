#include "project/ProgramCheck.h"

#include "editor/rules/language/CodeWordList.h"
#include "editor/rules/language/Vocabulary.h"
#include "project/Project.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QString faultName(Fault fault)
{
    switch (fault) {
    case Fault::UnknownName:
        return u"unknown"_s;
    case Fault::ElseWithoutIf:
        return u"no IF"_s;
    case Fault::SecondElse:
        return u"second"_s;
    case Fault::EndifWithoutIf:
        return u"no IF"_s;
    case Fault::IfWithoutEndif:
        return u"no ENDIF"_s;
    }
    return {};
}

class ProgramCheck : public testing::Test
{
protected:
    ProgramCheck()
    {
        variables.Add(u"Occupied"_s);
        constants.Add(u"Limit1"_s);
        inputs.Add(u"Temp1"_s);
        inputs.Add(u"AHU-1"_s);
        inputs.Add(u"Temp(a,b)"_s);
        outputs.Add(u"Fan1"_s);
        nvis.Add(u"NetTemp"_s);
        families.Add(u"Ctrl"_s, u"0"_s, 1, 3);
        vocabulary.setCollections({.variables = &variables,
                                   .constants = &constants,
                                   .inputs = &inputs,
                                   .outputs = &outputs,
                                   .nvis = &nvis});
        vocabulary.setIndexedNames(&families);
    }

    ProgramReport check(const QString &program)
    {
        CodeWordList words;
        words.FillCodeWordList(vocabulary);
        return checkProgram(program, vocabulary, words.index());
    }

    // "2 ENDIF no IF; ..."
    QString findings(const QString &program)
    {
        QStringList texts;
        for (const ProgramFinding &finding : check(program).findings)
            texts.append(
                u"%1 %2 %3"_s.arg(finding.line).arg(finding.word, faultName(finding.fault)));
        return texts.join(u"; "_s);
    }

    QString unknownNames(const QString &line)
    {
        QStringList names;
        for (const ProgramFinding &finding : check(line).findings) {
            EXPECT_EQ(finding.fault, Fault::UnknownName);
            names.append(finding.word);
        }
        return names.join(u'|');
    }

    QString words(const QString &program)
    {
        QStringList texts;
        for (const ProgramWord &word : check(program).words)
            texts.append(word.word);
        return texts.join(u' ');
    }

    WordClass classOfWord(const QString &word)
    {
        const QList<ProgramWord> found = check(word).words;
        return found.size() == 1 ? found[0].wordClass : WordClass::Comment;
    }

    PointList variables, constants, inputs, outputs, nvis;
    IndexedNameList families;
    Vocabulary vocabulary;
};

} // namespace

TEST_F(ProgramCheck, FindsNothingInAnEmptyProgram)
{
    EXPECT_EQ(findings(u""_s), QString());
    EXPECT_EQ(findings(u"\r\n \t \r\n"_s), QString());
    EXPECT_TRUE(check(u"\r\n\r\n"_s).words.isEmpty());
}

TEST_F(ProgramCheck, FindsNothingInABalancedProgram)
{
    EXPECT_EQ(findings(u"IF Temp1 > 20\r\n"
                       "  if NetTemp == 3\r\n"
                       "    Fan1 = ON\r\n"
                       "  Else\r\n"
                       "    Fan1 = OFF\r\n"
                       "  endif\r\n"
                       "ELSE\r\n"
                       "  Occupied = Limit1\r\n"
                       "ENDIF"_s),
              QString());
    EXPECT_EQ(findings(u"IF Temp1\r\nENDIF\r\nIF Temp1\r\nELSE\r\nENDIF"_s), QString());
}

TEST_F(ProgramCheck, FindsWhatHasNoIf)
{
    EXPECT_EQ(findings(u"ENDIF"_s), u"1 ENDIF no IF"_s);
    EXPECT_EQ(findings(u"\r\nelse\r\nendif"_s), u"2 else no IF; 3 endif no IF"_s);
    EXPECT_EQ(findings(u"IF Temp1\r\nENDIF\r\nENDIF"_s), u"3 ENDIF no IF"_s);
    EXPECT_EQ(findings(u"IF Temp1\r\nENDIF\r\nELSE"_s), u"3 ELSE no IF"_s);
}

TEST_F(ProgramCheck, FindsASecondElse)
{
    EXPECT_EQ(findings(u"IF Temp1\r\nELSE\r\nELSE\r\nELSE\r\nENDIF"_s),
              u"3 ELSE second; 4 ELSE second"_s);
    EXPECT_EQ(findings(u"IF Temp1\r\nELSE\r\nIF Temp1\r\nELSE\r\nENDIF\r\nENDIF"_s), QString());
}

TEST_F(ProgramCheck, FindsEveryIfThatStaysOpen)
{
    EXPECT_EQ(findings(u"if Temp1"_s), u"1 if no ENDIF"_s);
    EXPECT_EQ(findings(u"IF Temp1\r\nIF Temp1\r\nENDIF\r\nIF Temp1"_s),
              u"1 IF no ENDIF; 4 IF no ENDIF"_s);
}

TEST_F(ProgramCheck, BalancesWithinALine)
{
    EXPECT_EQ(findings(u"IF Temp1 Fan1 = ON ENDIF"_s), QString());
    EXPECT_EQ(findings(u"IF(Temp1)\r\nELSE IF(Temp1)\r\nENDIF"_s), u"1 IF no ENDIF"_s);
}

TEST_F(ProgramCheck, ListsFindingsInTheOrderOfTheLines)
{
    EXPECT_EQ(
        findings(u"IF x\r\nENDIF\r\nIF y\r\nz\r\nENDIF ENDIF\r\nIF Temp1\r\nw"_s),
        u"1 x unknown; 3 y unknown; 4 z unknown; 5 ENDIF no IF; 6 IF no ENDIF; 7 w unknown"_s);
}

TEST_F(ProgramCheck, KnowsEveryClass)
{
    EXPECT_EQ(classOfWord(u"occupied"_s), WordClass::Variable);
    EXPECT_EQ(classOfWord(u"LIMIT1"_s), WordClass::Constant);
    EXPECT_EQ(classOfWord(u"Temp1"_s), WordClass::Input);
    EXPECT_EQ(classOfWord(u"Fan1"_s), WordClass::Output);
    EXPECT_EQ(classOfWord(u"NetTemp"_s), WordClass::Nvi);
    EXPECT_EQ(classOfWord(u"and"_s), WordClass::Keyword);
    EXPECT_EQ(classOfWord(u">="_s), WordClass::Keyword);
    EXPECT_EQ(classOfWord(u"DayOfWeek"_s), WordClass::TimeWord);
    EXPECT_EQ(classOfWord(u"LowSel"_s), WordClass::Function);
    EXPECT_EQ(classOfWord(u"FAN_IN_AV"_s), WordClass::FanIn);
    EXPECT_EQ(classOfWord(u"ctrl2"_s), WordClass::FanIn);
    EXPECT_EQ(classOfWord(u"-3.5"_s), WordClass::Other);
}

TEST_F(ProgramCheck, FunctionsAreThoseOfTheVocabulary)
{
    EXPECT_EQ(unknownNames(u"SQRT ( 4 )"_s), u"SQRT"_s);
    vocabulary.setIsSqrtSupported(u"true"_s);
    EXPECT_EQ(unknownNames(u"SQRT ( 4 )"_s), QString());
    EXPECT_EQ(classOfWord(u"sqrt"_s), WordClass::Function);
}

TEST_F(ProgramCheck, NumbersOperatorsBracketsAndCommasAreNoNames)
{
    EXPECT_EQ(unknownNames(u"Fan1 = LIMIT ( ( Temp1 - 3 ) * 0.5 , -1 , 1E3 ) / +2 + .5"_s),
              QString());
    EXPECT_EQ(unknownNames(u"Fan1 = LIMIT((Temp1 - 3) * 0.5,-1,1E3)"_s), QString());
    EXPECT_EQ(unknownNames(u"Temp1 > < >= <= == != Temp1"_s), QString());
    EXPECT_EQ(unknownNames(u"( ) , ()(),,"_s), QString());
}

TEST_F(ProgramCheck, WhatIsNotQuiteANumberIsAName)
{
    EXPECT_EQ(unknownNames(u"1A 1.2.3 0x10 1E"_s), u"1A|1.2.3|0x10|1E"_s);
}

TEST_F(ProgramCheck, FindsNamesBetweenBlanksTabsBracketsAndCommas)
{
    EXPECT_EQ(unknownNames(u"\ta\tLIMIT(b,(c),d)e  f("_s), u"a|b|c|d|e|f"_s);
}

TEST_F(ProgramCheck, ANameMayHoldWhatElseDividesWords)
{
    EXPECT_EQ(unknownNames(u"AHU-1 + ahu-1 - Temp(a,b)"_s), QString());
    EXPECT_EQ(classOfWord(u"TEMP(A,B)"_s), WordClass::Input);
    EXPECT_EQ(unknownNames(u"AHU-2 Temp1=3 Temp(a,c)"_s), u"AHU-2|Temp1=3|Temp|a|c"_s);
}

TEST_F(ProgramCheck, FindsANameOnceALineAsItIsTyped)
{
    EXPECT_EQ(findings(u"Xy = xY + XY\r\nxy"_s), u"1 Xy unknown; 2 xy unknown"_s);
}

TEST_F(ProgramCheck, PassesOverComments)
{
    EXPECT_EQ(findings(u"REM ENDIF nobody knows\r\n\t rem\tIF\r\nREM"_s), QString());
    EXPECT_EQ(words(u"REM IF Temp1"_s), QString());
    EXPECT_EQ(findings(u"REMARK 1"_s), u"1 REMARK unknown"_s);
}

TEST_F(ProgramCheck, ListsWordsAsTheyAreTyped)
{
    const ProgramReport report = check(u"if (temp1 > 20)\r\nREM no\r\nendif"_s);
    const QList<ProgramWord> expected = {{1, u"if"_s, WordClass::Keyword},
                                         {1, u"temp1"_s, WordClass::Input},
                                         {1, u">"_s, WordClass::Keyword},
                                         {1, u"20"_s, WordClass::Other},
                                         {3, u"endif"_s, WordClass::Keyword}};
    EXPECT_EQ(report.words, expected);
}

// The sample holds one unknown name, to show how such a one looks.
TEST_F(ProgramCheck, FindsTheOnlyUnknownNameOfTheSample)
{
    Project project(QStringLiteral(ORVT_SAMPLES_DIR "/air-handling-unit/air-handling-unit.json"));
    vocabulary.setCollections({.variables = project.points(dsVariable),
                               .constants = project.points(dsConst),
                               .inputs = project.points(dsInput),
                               .outputs = project.points(dsOutput),
                               .nvis = project.points(dsNvi)});
    vocabulary.setIndexedNames(project.indexedNames());
    vocabulary.setIsSqrtSupported(project.controller().isSqrtSupported ? u"1"_s : u"0"_s);
    EXPECT_EQ(unknownNames(project.program()), u"DuctHumidity"_s);
    EXPECT_GT(check(project.program()).words.size(), 300);
}
