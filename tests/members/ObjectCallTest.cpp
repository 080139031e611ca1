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

TEST_F(ObjectCall, ReachesEveryMemberOfACollectionByValue)
{
    QVariant object = QVariant::fromValue(KeyedCollection<qint32>());
    EXPECT_EQ(call(object, u"Add"_s, {10, u"Low"_s}), CallSucceeded);
    EXPECT_EQ(call(object, u"Add"_s, {20, u"High"_s}), CallSucceeded);
    EXPECT_EQ(call(object, u"Add"_s, {30, u"LOW"_s}), InvalidCall);
    EXPECT_EQ(call(object, u"Contains"_s, {u"low"_s}), CallSucceeded);
    EXPECT_EQ(result, QVariant(true));
    EXPECT_EQ(call(object, u"Key"_s, {2}), CallSucceeded);
    EXPECT_EQ(result, QVariant(u"High"_s));
    EXPECT_EQ(call(object, u"Key"_s, {3}), SubscriptOutOfRange);
    EXPECT_EQ(call(object, u"Item"_s, {u"high"_s}), CallSucceeded);
    EXPECT_EQ(result, QVariant(20));
    EXPECT_EQ(call(object, u"Remove"_s, {u"low"_s}), CallSucceeded);
    EXPECT_EQ(call(object, u"Remove"_s, {u"low"_s}), InvalidCall);
    EXPECT_EQ(call(object, u"Remove"_s, {2}), SubscriptOutOfRange);
    EXPECT_EQ(call(object, u"Remove"_s, {QVariant()}), TypeMismatch);
    EXPECT_EQ(call(object, u"Remove"_s, {1}), CallSucceeded);
    EXPECT_EQ(call(object, u"Contains"_s, {u"high"_s}), CallSucceeded);
    EXPECT_EQ(result, QVariant(false));
    EXPECT_EQ(call(object, u"Add"_s, {1, u"Any"_s}), CallSucceeded);
    EXPECT_EQ(call(object, u"Clear"_s), CallSucceeded);
    EXPECT_EQ(call(object, u"Count"_s), CallSucceeded);
    EXPECT_EQ(result, QVariant(0));
}

TEST_F(ObjectCall, ReachesEveryMemberOfAFamilyOfNames)
{
    IndexedNameList names;
    names.Add(u"Tmp"_s, u"00"_s, 1, 16);
    QVariant list = QVariant::fromValue(static_cast<IndexedNameCollection *>(&names));
    EXPECT_EQ(call(list, u"Count"_s), CallSucceeded);
    EXPECT_EQ(result, QVariant(1));
    EXPECT_EQ(call(list, u"Add"_s, {u"Fan"_s, u"0"_s, 1, 2}), UnknownMember);
    EXPECT_EQ(call(list, u"Item"_s, {1}), CallSucceeded);
    QVariant family = result;
    const QList<std::pair<QString, QVariant>> expected{{u"Name"_s, u"Tmp"_s},
                                                       {u"NumberFormat"_s, u"00"_s},
                                                       {u"LowerBound"_s, 1},
                                                       {u"UpperBound"_s, 16}};
    for (const auto &[member, value] : expected) {
        EXPECT_EQ(call(family, member), CallSucceeded) << member.toStdString();
        EXPECT_EQ(result, value) << member.toStdString();
        EXPECT_EQ(call(family, member, {value}), WrongArgumentCount) << member.toStdString();
    }
}

TEST_F(ObjectCall, ReadsAHostsCollectionOfPointsAndChangesNoneOfIt)
{
    PointList points;
    points.Add(u"Fan"_s, 7);
    QVariant collection = QVariant::fromValue(static_cast<PointCollection *>(&points));
    EXPECT_EQ(call(collection, u"Find"_s, {u"fan"_s}), CallSucceeded);
    EXPECT_EQ(result.value<Point>(), (Point{u"Fan"_s, 7}));
    EXPECT_EQ(call(collection, u"Find"_s, {u"Pump"_s}), CallSucceeded);
    EXPECT_FALSE(result.isValid());
    EXPECT_EQ(call(collection, u"Clear"_s), UnknownMember);
    QVariant list = QVariant::fromValue(&points);
    EXPECT_EQ(call(list, u"Clear"_s), CallSucceeded);
    EXPECT_EQ(call(collection, u"Count"_s), CallSucceeded);
    EXPECT_EQ(result, QVariant(0));
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

TEST_F(ObjectCall, TakesNoListOrTableOfWhichOnePartDoesNotFit)
{
    const QMetaType pages = QMetaType::fromType<QList<Pages>>();
    const QVariantMap page{{u"Name"_s, u"Code"_s}};
    EXPECT_TRUE(ArgumentValue::converted(QVariantList{page, page}, pages));
    EXPECT_FALSE(ArgumentValue::converted(QVariantList{page, 5}, pages));
    const QMetaType rules = QMetaType::fromType<QHash<QString, CellRule>>();
    const QVariantMap rule{{u"decimals"_s, 2}};
    EXPECT_TRUE(ArgumentValue::converted(QVariantMap{{u"Value"_s, rule}}, rules));
    EXPECT_FALSE(ArgumentValue::converted(QVariantMap{{u"Value"_s, rule}, {u"Mode"_s, 5}}, rules));
    EXPECT_FALSE(ArgumentValue::converted(
        QVariantMap{{u"Value"_s, QVariantMap{{u"decimals"_s, u"few"_s}}}}, rules));
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
