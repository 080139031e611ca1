#include "grid/rules/CellRules.h"
#include "base/ThreadState.h"
#include "pointtable/rules/ColumnLayouts.h"
#include "pointtable/rules/ReadyCellRules.h"
#include "shared/texts/TextTable.h"
#include "support/QtPrinters.h"
#include <ORVTListview/TranslatedTexts.h>
#include <ORVTListview/Types.h>

#include <QtCore/QDir>

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const QLocale german(QLocale::German);
const QLocale plain = QLocale::c();

// The text that is taken, or the refusal in brackets.
QString entered(const CellRule &rule, const QString &typed, const QLocale &locale = plain)
{
    const CellAnswer answer = checkedCell(rule, typed, locale);
    return answer.isTaken() ? answer.text : u"["_s + answer.refusal + u"]"_s;
}

CellRule numbers()
{
    return {
        .kind = CellRule::Number, .minimum = -5, .maximum = 100, .decimals = 2, .unit = u"°C"_s};
}

} // namespace

TEST(CellRules, WhatIsNotEditedTakesNothing)
{
    EXPECT_EQ(entered({}, u"x"_s), u"[This cell cannot be edited.]"_s);
    EXPECT_EQ(entered({}, QString()), u"[This cell cannot be edited.]"_s);
    EXPECT_EQ(entered({.hint = u"Ask the host."_s}, u"x"_s), u"[Ask the host.]"_s);
}

TEST(CellRules, TextIsKeptAsItIs)
{
    const CellRule rule{.kind = CellRule::Text, .maxLength = 6};
    EXPECT_EQ(entered(rule, u" Pump "_s), u" Pump "_s);
    EXPECT_EQ(entered(rule, u"Pump 12"_s), u"[Characters at most: 6.]"_s);
    EXPECT_EQ(entered(rule, QString()), QString());
}

TEST(CellRules, TextFollowsItsPatternAsAWhole)
{
    CellRule rule{.kind = CellRule::Text, .pattern = u"[A-Z][0-9]+|x"_s};
    EXPECT_EQ(entered(rule, u"P12"_s), u"P12"_s);
    EXPECT_EQ(entered(rule, u"xP12"_s), u"[This text does not fit here.]"_s);
    EXPECT_EQ(entered(rule, u"P12\n"_s), u"[This text does not fit here.]"_s);
    rule.hint = u"A letter and a number."_s;
    EXPECT_EQ(entered(rule, u"P"_s), u"[A letter and a number.]"_s);
}

TEST(CellRules, EmptyCellsCanBeForbidden)
{
    for (const CellRule::Kind kind : {CellRule::Text, CellRule::Number, CellRule::Choice,
                                      CellRule::YesNo, CellRule::PointName}) {
        CellRule rule{.kind = kind};
        EXPECT_EQ(entered(rule, QString()), QString()) << kind;
        rule.canBeEmpty = false;
        EXPECT_EQ(entered(rule, QString()), u"[This cell must not be empty.]"_s) << kind;
        EXPECT_EQ(entered(rule, u"   "_s), u"[This cell must not be empty.]"_s) << kind;
    }
}

TEST(CellRules, NumbersAreKeptWithAPoint)
{
    const CellRule rule = numbers();
    EXPECT_EQ(entered(rule, u"21.5"_s), u"21.5"_s);
    EXPECT_EQ(entered(rule, u" +021,50 °c "_s, german), u"21.50"_s);
    EXPECT_EQ(entered(rule, u"21.5"_s, german), u"21.5"_s);
    EXPECT_EQ(entered(rule, u".5"_s), u"0.5"_s);
    EXPECT_EQ(entered(rule, u"5."_s), u"5"_s);
    EXPECT_EQ(entered(rule, u"-0.0"_s), u"0.0"_s);
    EXPECT_EQ(entered(rule, u"\u22123"_s), u"-3"_s);
}

TEST(CellRules, WhatIsNoNumberIsRefused)
{
    for (const QString &typed : {u"x"_s, u"."_s, u"-"_s, u"°C"_s, u"1,5"_s, u"1.5.2"_s, u"1e3"_s,
                                 u"0x10"_s, u"5 K"_s, u"nan"_s, u"inf"_s, u"--3"_s, u"\u0661"_s})
        EXPECT_EQ(entered(numbers(), typed), u"[This is not a number.]"_s) << typed.toStdString();
    EXPECT_EQ(entered(numbers(), u"1.234,5"_s, german), u"[This is not a number.]"_s);
}

TEST(CellRules, NumbersStayInTheirRange)
{
    CellRule rule = numbers();
    EXPECT_EQ(entered(rule, u"-5"_s), u"-5"_s);
    EXPECT_EQ(entered(rule, u"100.00"_s), u"100.00"_s);
    EXPECT_EQ(entered(rule, u"-5.01"_s), u"[The number must not be below -5 °C.]"_s);
    EXPECT_EQ(entered(rule, u"100.01"_s), u"[The number must not be above 100 °C.]"_s);
    EXPECT_EQ(entered(rule, u"1"_s + QString(400, u'0')),
              u"[The number must not be above 100 °C.]"_s);
    rule.maximum = 2000.5;
    EXPECT_EQ(entered(rule, u"3000"_s, german), u"[The number must not be above 2000,5 °C.]"_s);
}

TEST(CellRules, NumbersHaveNoMoreDecimalsThanFit)
{
    CellRule rule = numbers();
    EXPECT_EQ(entered(rule, u"1.125"_s), u"[Decimals at most: 2.]"_s);
    EXPECT_EQ(entered(rule, u"1.1200"_s), u"1.1200"_s);
    rule.decimals = 0;
    EXPECT_EQ(entered(rule, u"1.5"_s), u"[Only a whole number fits here.]"_s);
    EXPECT_EQ(entered(rule, u"1.0"_s), u"1.0"_s);
}

TEST(CellRules, WordsCanStandForNumbers)
{
    CellRule rule = numbers();
    rule.choices = QStringList{u"Off"_s, u"On"_s};
    EXPECT_EQ(entered(rule, u"on "_s), u"On"_s);
    EXPECT_EQ(entered(rule, u"7"_s), u"7"_s);
    EXPECT_EQ(entered(rule, u"Hand"_s), u"[This is not a number.]"_s);
}

TEST(CellRules, ChoicesAreFoundInAnyLetterCase)
{
    const CellRule rule{.kind = CellRule::Choice, .choices = {u"Auto"_s, u"Manual"_s}};
    EXPECT_EQ(entered(rule, u" MANUAL"_s), u"Manual"_s);
    EXPECT_EQ(entered(rule, u"Man"_s), u"[This is not in the list.]"_s);
    EXPECT_EQ(cellChoices(rule), rule.choices);
}

// A cell keeps the word of the language that was spoken when it was entered.
TEST(CellRules, YesAndNoAreUnderstoodInAllLanguages)
{
    const ThreadState::Fresh fresh;
    const CellRule rule{.kind = CellRule::YesNo};
    QStringList languages{u"en"_s};
    for (const QString &file : QDir(TranslatedTexts::builtInFolder()).entryList({u"orvt*.qm"_s}))
        languages.append(file.section(u'_', 1).section(u'.', 0, 0));
    ASSERT_GE(languages.size(), 4);
    for (const QString &stored : std::as_const(languages)) {
        TranslatedTexts then{QLocale(stored)};
        setTextProvider(&then);
        const QString yes = Localise(u"Yes"_s);
        const QString no = Localise(u"No"_s);
        for (const QString &spoken : std::as_const(languages)) {
            TranslatedTexts now{QLocale(spoken)};
            setTextProvider(&now);
            EXPECT_TRUE(isYes(rule, yes)) << qPrintable(yes + spoken);
            EXPECT_FALSE(isYes(rule, no)) << qPrintable(no + spoken);
            EXPECT_EQ(entered(rule, yes.toUpper()), Localise(u"Yes"_s)) << qPrintable(spoken);
            EXPECT_EQ(entered(rule, no), Localise(u"No"_s)) << qPrintable(spoken);
            setTextProvider(nullptr);
        }
    }
}

TEST(CellRules, YesAndNoHaveTheirWords)
{
    CellRule rule{.kind = CellRule::YesNo};
    EXPECT_EQ(entered(rule, u"yes"_s), u"Yes"_s);
    EXPECT_EQ(entered(rule, u"perhaps"_s), u"[This is neither Yes nor No.]"_s);
    EXPECT_TRUE(isYes(rule, u"YES"_s));
    EXPECT_FALSE(isYes(rule, u"No"_s));
    EXPECT_FALSE(isYes(rule, QString()));
    rule.choices = QStringList{u"Open"_s, u"Shut"_s};
    EXPECT_EQ(entered(rule, u"shut"_s), u"Shut"_s);
    EXPECT_EQ(entered(rule, u"yes"_s), u"[This is neither Open nor Shut.]"_s);
    EXPECT_TRUE(isYes(rule, u"Open"_s));
    EXPECT_FALSE(isYes(rule, u"Yes"_s));
}

TEST(CellRules, NamesOfPointsAreThoseThatAreKnown)
{
    CellRule rule{.kind = CellRule::PointName};
    EXPECT_EQ(entered(rule, u"Anything"_s), u"Anything"_s);
    rule.choices = QStringList{u"SupplyTemp"_s, u"Fan1"_s};
    EXPECT_EQ(entered(rule, u"supplytemp"_s), u"SupplyTemp"_s);
    EXPECT_EQ(entered(rule, u"Fan2"_s), u"[There is no point of this name.]"_s);
}

TEST(CellRules, OnlyCellsWithAListOfWordsOfferIt)
{
    CellRule rule{.kind = CellRule::Text, .choices = {u"Auto"_s}};
    EXPECT_EQ(cellChoices(rule), QStringList());
    rule.kind = CellRule::PointName;
    EXPECT_EQ(cellChoices(rule), QStringList{u"Auto"_s});
    rule.kind = CellRule::YesNo; // one word is not enough for two answers
    EXPECT_EQ(cellChoices(rule), QStringList({u"Yes"_s, u"No"_s}));
    EXPECT_EQ(entered(rule, u"auto"_s), u"[This is neither Yes nor No.]"_s);
}

TEST(CellRules, ANegativeNumberOfDecimalsIsNone)
{
    CellRule rule = numbers();
    rule.decimals = -1;
    EXPECT_EQ(entered(rule, u"1.5"_s), u"[Only a whole number fits here.]"_s);
}

TEST(CellRules, NumbersAreStepped)
{
    const CellRule rule = numbers();
    EXPECT_EQ(steppedNumber(rule, u"21.5"_s, 1, plain), u"22.5"_s);
    EXPECT_EQ(steppedNumber(rule, u"21,50 °C"_s, -10, german), u"11.50"_s);
    EXPECT_EQ(steppedNumber(rule, u"99.5"_s, 1, plain), u"100"_s);
    EXPECT_EQ(steppedNumber(rule, u"-4.5"_s, -1, plain), u"-5"_s);
    EXPECT_EQ(steppedNumber(rule, u"On"_s, 1, plain), u"1"_s);
}

TEST(ReadyCellRules, AllColumnsButTheNumberAreEdited)
{
    for (qint32 type = dsVariable; type <= dsOutputParam; ++type) {
        QStringList columns = columnKeys(type, true);
        EXPECT_EQ(columns.takeFirst(), u"#"_s);
        const QHash<QString, CellRule> rules = readyCellRules(type);
        QStringList edited = rules.keys();
        edited.sort();
        columns.sort();
        EXPECT_EQ(edited, columns) << type;
        for (const CellRule &rule : rules)
            EXPECT_NE(rule.kind, CellRule::NotEdited) << type;
    }
    EXPECT_TRUE(readyCellRules(dsCode).isEmpty());
    EXPECT_TRUE(readyCellRules(dsOutputParam + 1).isEmpty());
}

TEST(ReadyCellRules, ColumnsOfOneNameDifferByType)
{
    EXPECT_EQ(readyCellRules(dsInput).value(u"Value"_s).kind, CellRule::Number);
    EXPECT_EQ(readyCellRules(dsTimer).value(u"Value"_s).kind, CellRule::Text);
    EXPECT_EQ(readyCellRules(dsVariable).value(u"Mode"_s).kind, CellRule::Choice);
    EXPECT_EQ(readyCellRules(dsLog).value(u"Mode"_s).kind, CellRule::Text);
    EXPECT_EQ(readyCellRules(dsController).value(u"Input"_s).kind, CellRule::PointName);
}
