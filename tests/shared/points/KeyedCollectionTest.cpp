#include "support/EveryFieldCounts.h"
#include "support/QtPrinters.h"
#include "support/RandomSeed.h"
#include <ORVTListview/KeyedCollection.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

KeyedCollection<qint32> numbers()
{
    KeyedCollection<qint32> collection;
    collection.Add(1, u"Variables"_s);
    collection.Add(2, u"Constants"_s);
    collection.Add(0, u"Code"_s);
    return collection;
}

template <typename Call>
qint32 errorOf(Call call)
{
    try {
        call();
    } catch (const Error &error) {
        EXPECT_TRUE(error.Source().startsWith(u"KeyedCollection."_s)) << error.what();
        EXPECT_FALSE(error.Description().isEmpty());
        return error.Number();
    }
    return 0;
}

} // namespace

TEST(KeyedCollection, ANewOneIsEmpty)
{
    const KeyedCollection<QString> empty;
    EXPECT_EQ(empty.Count(), 0);
    EXPECT_EQ(empty.Keys(), QStringList());
    EXPECT_FALSE(empty.Contains(QString()));
    EXPECT_EQ(errorOf([&] { empty.Item(1); }), SubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { empty.Item(u"Code"_s); }), InvalidCall);
}

TEST(KeyedCollection, KeepsTheOrderOfAddingAndCountsFromOne)
{
    const KeyedCollection<qint32> collection = numbers();
    ASSERT_EQ(collection.Count(), 3);
    EXPECT_EQ(collection.Item(1), 1);
    EXPECT_EQ(collection.Item(2), 2);
    EXPECT_EQ(collection.Item(3), 0);
    EXPECT_EQ(collection.Key(1), u"Variables"_s);
    EXPECT_EQ(collection.Keys(), QStringList({u"Variables"_s, u"Constants"_s, u"Code"_s}));
}

TEST(KeyedCollection, FindsKeysInAnyLetterCase)
{
    const KeyedCollection<qint32> collection = numbers();
    for (const QString &key : {u"Constants"_s, u"CONSTANTS"_s, u"constants"_s, u"cOnStAnTs"_s}) {
        EXPECT_TRUE(collection.Contains(key));
        EXPECT_EQ(collection.Item(key), 2);
    }
    EXPECT_FALSE(collection.Contains(u" Constants"_s));
    EXPECT_FALSE(collection.Contains(u"Constant"_s));
}

TEST(KeyedCollection, UnknownPositionsAndKeysRaise)
{
    KeyedCollection<qint32> collection = numbers();
    for (const qint32 index : {-1, 0, 4}) {
        EXPECT_EQ(errorOf([&] { collection.Item(index); }), SubscriptOutOfRange);
        EXPECT_EQ(errorOf([&] { collection.Key(index); }), SubscriptOutOfRange);
        EXPECT_EQ(errorOf([&] { collection.Remove(index); }), SubscriptOutOfRange);
    }
    EXPECT_EQ(errorOf([&] { collection.Item(u"Logs"_s); }), InvalidCall);
    EXPECT_EQ(errorOf([&] { collection.Remove(u"Logs"_s); }), InvalidCall);
    EXPECT_EQ(collection, numbers());
}

TEST(KeyedCollection, AKeyInUseRaisesAndChangesNothing)
{
    KeyedCollection<qint32> collection = numbers();
    EXPECT_EQ(errorOf([&] { collection.Add(9, u"Code"_s); }), InvalidCall);
    EXPECT_EQ(errorOf([&] { collection.Add(9, u"cODE"_s); }), InvalidCall);
    EXPECT_EQ(collection, numbers());
}

TEST(KeyedCollection, TheEmptyTextIsAKey)
{
    KeyedCollection<qint32> collection;
    collection.Add(5, QString());
    EXPECT_EQ(collection.Item(u""_s), 5);
    EXPECT_EQ(errorOf([&] { collection.Add(6, u""_s); }), InvalidCall);
}

TEST(KeyedCollection, RemovalMovesTheRestUp)
{
    KeyedCollection<qint32> collection = numbers();
    collection.Remove(u"VARIABLES"_s);
    EXPECT_EQ(collection.Keys(), QStringList({u"Constants"_s, u"Code"_s}));
    EXPECT_EQ(collection.Item(u"Code"_s), 0);
    EXPECT_EQ(collection.Item(2), 0);
    collection.Remove(2);
    EXPECT_EQ(collection.Keys(), QStringList({u"Constants"_s}));
    EXPECT_FALSE(collection.Contains(u"Code"_s));
    collection.Add(7, u"Code"_s);
    EXPECT_EQ(collection.Item(2), 7);
    collection.Clear();
    EXPECT_EQ(collection, KeyedCollection<qint32>());
    EXPECT_FALSE(collection.Contains(u"Code"_s));
}

TEST(KeyedCollection, CopiesAreIndependent)
{
    const KeyedCollection<qint32> collection = numbers();
    KeyedCollection<qint32> copy = collection;
    EXPECT_EQ(copy, collection);
    copy.Remove(1);
    EXPECT_EQ(collection, numbers());
    EXPECT_NE(copy, collection);
}

// Against a plain vector of pairs.
TEST(KeyedCollection, AgreesWithASimpleModel)
{
    const unsigned seed = randomSeed();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    KeyedCollection<int> collection;
    std::vector<std::pair<QString, int>> model;
    for (int step = 0; step < 3000; ++step) {
        const QString key = u"k%1"_s.arg(random() % 20);
        const auto same = [&](const auto &entry) { return entry.first == key; };
        const auto found = std::ranges::find_if(model, same);
        ASSERT_EQ(collection.Contains(key.toUpper()), found != model.end());
        if (found == model.end()) {
            collection.Add(step, key);
            model.emplace_back(key, step);
        } else if (random() % 2 == 0) {
            ASSERT_EQ(collection.Item(key), found->second);
            collection.Remove(key.toUpper());
            model.erase(found);
        } else {
            collection.Remove(static_cast<qint32>(found - model.begin()) + 1);
            model.erase(found);
        }
        ASSERT_EQ(collection.Count(), static_cast<qint32>(model.size()));
        for (qint32 i = 1; i <= collection.Count(); ++i)
            ASSERT_EQ(collection.Item(i), model[static_cast<std::size_t>(i) - 1].second);
    }
}

TEST(KeyedCollection, IsEqualInItemsKeysAndOrder)
{
    using Numbers = KeyedCollection<qint32>;
    expectEveryFieldCounts(
        numbers(), [](Numbers &other) { other.Remove(3); },
        [](Numbers &other) { other.Add(3, u"Logs"_s); },
        [](Numbers &other) {
            other.Remove(3);
            other.Add(7, u"Code"_s);
        },
        [](Numbers &other) {
            other.Remove(3);
            other.Add(0, u"CODE"_s);
        });
}
