#include "support/Gauge.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const Member &member(QStringView name)
{
    for (const Member &candidate : Gauge::members().members()) {
        if (candidate.name == name)
            return candidate;
    }
    throw std::out_of_range(qPrintable(name.toString()));
}

// "name:type:direction", with "?" for an optional argument.
QString described(const MemberArgument &argument)
{
    static const QStringList directions{u"in"_s, u"out"_s, u"in/out"_s};
    return argument.name + (argument.isOptional ? u"?:"_s : u":"_s) +
           QString::fromLatin1(argument.type.name()) + u':' +
           directions.at(static_cast<int>(argument.direction));
}

QStringList describedArguments(QStringView name)
{
    QStringList texts;
    for (const MemberArgument &argument : member(name).arguments)
        texts.append(described(argument));
    return texts;
}

TEST(MemberTable, TakesTypesAndDirectionsFromTheFunctions)
{
    EXPECT_EQ(describedArguments(u"Joined"),
              QStringList({u"A:QString:in"_s, u"Count?:int:in"_s, u"B?:QString:in"_s}));
    EXPECT_EQ(describedArguments(u"Doubled"),
              QStringList({u"Value:short:in/out"_s, u"Log?:QString:in/out"_s, u"Half?:int:out"_s}));
    EXPECT_EQ(describedArguments(u"BeforeEdit"),
              QStringList({u"Cancel:short:in/out"_s, u"Text:QString:in/out"_s}));
    EXPECT_EQ(
        describedArguments(u"Moved"),
        QStringList({u"X:float:in"_s, u"Type:ORVTListview::LwType:in"_s, u"Where:Gauge*:in"_s}));
}

TEST(MemberTable, TellsPropertiesMethodsAndEventsApart)
{
    EXPECT_EQ(member(u"Caption").kind, MemberKind::Property);
    EXPECT_TRUE(member(u"Caption").call && member(u"Caption").put);
    EXPECT_TRUE(member(u"Count").call && !member(u"Count").put);
    EXPECT_TRUE(!member(u"IsWait").call && member(u"IsWait").put);
    EXPECT_EQ(member(u"IsWait").type, QMetaType::fromType<bool>());
    EXPECT_EQ(member(u"Clear").kind, MemberKind::Method);
    EXPECT_FALSE(member(u"Clear").type.isValid());
    EXPECT_EQ(member(u"Joined").type, QMetaType::fromType<QString>());
    EXPECT_EQ(member(u"KeyDown").kind, MemberKind::Event);
    EXPECT_EQ(member(u"KeyDown").number, 4);
}

TEST(MemberTable, FindsMembersInAnyLetterCaseAndNoEvents)
{
    EXPECT_EQ(Gauge::members().find(u"cAPTION"_s)->name, u"Caption"_s);
    EXPECT_EQ(Gauge::members().find(u"Click"_s), nullptr);
    EXPECT_EQ(Gauge::members().find(u"Captions"_s), nullptr);
    EXPECT_EQ(Gauge::members().find(QString()), nullptr);
    EXPECT_EQ(Gauge::members().component(), u"Gauge"_s);
}

TEST(MemberTable, KeepsWhatTheTypesOfAMemberDoNotTell)
{
    const MemberTable table(u"Gauge"_s, Gauge::members().members(),
                            {{.name = u"Count"_s, .unit = u"point"_s, .range = u"0 to 7"_s},
                             {.name = u"Fail"_s, .failures = {Overflow}}});
    EXPECT_EQ(table.facts(u"Count"_s).unit, u"point"_s);
    EXPECT_EQ(table.facts(u"Count"_s).range, u"0 to 7"_s);
    EXPECT_EQ(table.facts(u"Fail"_s).failures, QList<qint32>{Overflow});
    const MemberFacts none = table.facts(u"Caption"_s);
    EXPECT_EQ(none.name, u"Caption"_s);
    EXPECT_EQ(none.unit + none.range, QString());
    EXPECT_TRUE(none.failures.isEmpty());
    EXPECT_TRUE(table.facts(u"count"_s).unit.isEmpty()); // as it is written
    EXPECT_EQ(table.allFacts().size(), 2);
}

} // namespace
