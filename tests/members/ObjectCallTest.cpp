// Calls on what calls hand out, in the core: collections, records, conversions.

#include "support/QtPrinters.h"
#include <ORVTListview/CellRule.h>
#include <ORVTListview/IndexedName.h>
#include <ORVTListview/KeyedCollection.h>
#include <ORVTListview/LateCall.h>
#include <ORVTListview/PointCollection.h>
#include <ORVTListview/Types.h>

#include "members/ArgumentValue.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

class ObjectCall : public ::testing::Test
{
protected:
    qint32 call(QVariant &object, const QString &name, const QVariantList &given = {})
    {
        QVariantList arguments = given;
        const auto error = callLate(object, name, arguments, result);
        return error ? error->Number() : CallSucceeded;
    }

    QVariant result;
};

TEST_F(ObjectCall, FillsAndReadsAListOfPoints)
{
    PointList points;
    QVariant object = QVariant::fromValue(&points);
    EXPECT_EQ(call(object, u"Add"_s, {u"SupplyTemp"_s, 101}), CallSucceeded);
    EXPECT_EQ(call(object, u"add"_s, {u"Fan"_s}), CallSucceeded);
    EXPECT_EQ(call(object, u"Add"_s, {u"FAN"_s}), InvalidCall);
    EXPECT_EQ(call(object, u"Count"_s), CallSucceeded);
    EXPECT_EQ(result.toInt(), 2);
    EXPECT_EQ(call(object, u"Item"_s, {1}), CallSucceeded);
    EXPECT_EQ(result.toMap(), QVariantMap({{u"Name"_s, u"SupplyTemp"_s}, {u"Data"_s, 101}}));
    EXPECT_EQ(call(object, u"Find"_s, {u"fan"_s}), CallSucceeded);
    EXPECT_EQ(result.value<Point>().Name, u"Fan"_s);
    EXPECT_EQ(call(object, u"Item"_s, {3}), CallSucceeded);
    EXPECT_FALSE(result.isValid());
    EXPECT_EQ(call(object, u"Remove"_s, {u"fan"_s}), CallSucceeded);
    EXPECT_EQ(points.Count(), 1);
}

TEST_F(ObjectCall, TakesTheLibrarysListsWhereCollectionsAreTaken)
{
    PointList points;
    IndexedNameList names;
    const auto asPoints = ArgumentValue::converted(QVariant::fromValue(&points),
                                                   QMetaType::fromType<PointCollection *>());
    ASSERT_TRUE(asPoints);
    EXPECT_EQ(asPoints->value<PointCollection *>(), &points);
    const auto asNames = ArgumentValue::converted(QVariant::fromValue(&names),
                                                  QMetaType::fromType<IndexedNameCollection *>());
    ASSERT_TRUE(asNames);
    EXPECT_EQ(asNames->value<IndexedNameCollection *>(), &names);
    EXPECT_FALSE(ArgumentValue::converted(QVariant::fromValue(&points),
                                          QMetaType::fromType<IndexedNameCollection *>()));
}

TEST_F(ObjectCall, ReadsFamiliesOfNames)
{
    IndexedNameList names;
    QVariant object = QVariant::fromValue(&names);
    EXPECT_EQ(call(object, u"Add"_s, {u"Tmp"_s, u"00"_s, 1, 16}), CallSucceeded);
    EXPECT_EQ(call(object, u"Item"_s, {1}), CallSucceeded);
    QVariant family = result;
    EXPECT_EQ(call(family, u"UpperBound"_s), CallSucceeded);
    EXPECT_EQ(result.toInt(), 16);
    EXPECT_EQ(call(object, u"Item"_s, {2}), CallSucceeded);
    QVariant none = result;
    EXPECT_EQ(call(none, u"Name"_s), ObjectNotSet);
}

TEST_F(ObjectCall, ReadsAndChangesACollectionByValue)
{
    KeyedCollection<QString> texts;
    texts.Add(u"Variables"_s, u"Key1"_s);
    QVariant object = QVariant::fromValue(texts);
    EXPECT_EQ(call(object, u"Item"_s, {1}), CallSucceeded);
    EXPECT_EQ(result, QVariant(u"Variables"_s));
    EXPECT_EQ(call(object, u"Item"_s, {u"KEY1"_s}), CallSucceeded);
    EXPECT_EQ(result, QVariant(u"Variables"_s));
    EXPECT_EQ(call(object, u"Add"_s, {u"Logs"_s, u"Key6"_s}), CallSucceeded);
    EXPECT_EQ(call(object, u"Keys"_s), CallSucceeded);
    EXPECT_EQ(result.toStringList(), QStringList({u"Key1"_s, u"Key6"_s}));
    EXPECT_EQ(call(object, u"Item"_s, {3}), SubscriptOutOfRange);
    EXPECT_EQ(call(object, u"Item"_s, {QVariant(QVariantList{1})}), TypeMismatch);
    EXPECT_EQ(texts.Count(), 1);
}

TEST_F(ObjectCall, RefusesWhatHasNoMembersAndWhatIsNotThere)
{
    QVariant number = 5;
    EXPECT_EQ(call(number, u"Count"_s), UnknownMember);
    QVariant nothing;
    EXPECT_EQ(call(nothing, u"Count"_s), UnknownMember);
    QVariant null = QVariant::fromValue(static_cast<PointList *>(nullptr));
    EXPECT_EQ(call(null, u"Count"_s), ObjectNotSet);
    KeyedCollection<qint32> numbers;
    QVariant object = QVariant::fromValue(numbers);
    EXPECT_EQ(call(object, u"Length"_s), UnknownMember);
}

TEST_F(ObjectCall, TakesRecordsAsMaps)
{
    const QMetaType settings = QMetaType::fromType<RichTextSettings>();
    const QVariantMap map{{u"BackColor"_s, u"255"_s}, {u"fontname"_s, u"Mono"_s}};
    const auto record = ArgumentValue::converted(map, settings);
    ASSERT_TRUE(record);
    EXPECT_EQ(record->value<RichTextSettings>().BackColor, 255);
    EXPECT_EQ(record->value<RichTextSettings>().FontName, u"Mono"_s);
    EXPECT_EQ(record->value<RichTextSettings>().CommentColor, 0);
    EXPECT_FALSE(ArgumentValue::converted(QVariantMap{{u"BackColour"_s, 1}}, settings));
    EXPECT_FALSE(ArgumentValue::converted(QVariantMap{{u"FontSize"_s, 70000}}, settings));
    EXPECT_FALSE(ArgumentValue::converted(QVariantList{map}, settings));
}

TEST_F(ObjectCall, TakesListsAndTablesOfRecords)
{
    const QVariantMap page{{u"Key"_s, QStringList{u"Variables"_s, u"Inputs"_s}},
                           {u"Index"_s, QVariantList{1, u"dsInput"_s}}};
    const auto pages =
        ArgumentValue::converted(QVariantList{page}, QMetaType::fromType<QList<Pages>>());
    ASSERT_TRUE(pages);
    ASSERT_EQ(pages->value<QList<Pages>>().size(), 1);
    EXPECT_EQ(pages->value<QList<Pages>>().at(0).Index, QList<LwType>({dsVariable, dsInput}));
    const QVariantMap rules{{u"Value"_s, QVariantMap{{u"kind"_s, 2}, {u"maximum"_s, 40.5}}}};
    const auto table =
        ArgumentValue::converted(rules, QMetaType::fromType<QHash<QString, CellRule>>());
    ASSERT_TRUE(table);
    const CellRule rule = table->value<QHash<QString, CellRule>>().value(u"Value"_s);
    EXPECT_EQ(rule.kind, CellRule::Number);
    EXPECT_EQ(rule.maximum, 40.5);
    EXPECT_FALSE(ArgumentValue::converted(QVariantList{5}, QMetaType::fromType<QList<Pages>>()));
}

TEST_F(ObjectCall, KnowsEveryTypeOnce)
{
    QStringList names;
    for (const QMetaType type : typesWithMembers()) {
        const MemberTable *table = membersOf(type);
        ASSERT_TRUE(table) << type.name();
        EXPECT_FALSE(names.contains(table->component())) << type.name();
        names.append(table->component());
        for (const MemberFacts &facts : table->allFacts()) {
            const auto has = [&facts](const Member &member) { return member.name == facts.name; };
            const QList<Member> &members = table->members();
            EXPECT_TRUE(std::any_of(members.cbegin(), members.cend(), has))
                << type.name() << "::" << qPrintable(facts.name);
        }
    }
    EXPECT_TRUE(names.contains(u"PointList"_s));
}

} // namespace
