// Classes that come and go, as with libraries that are loaded, while other threads ask.

#include "members/HandedClass.h"
#include <ORVTListview/EventSink.h>
#include <ORVTListview/LateCall.h>
#include <ORVTListview/PointCollection.h>

#include <QtCore/QStringListModel>

#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <thread>
#include <vector>

using namespace ORVTListview;

namespace {

QList<Member> noMembers()
{
    return {};
}

TEST(HandedClass, ComesAndGoesWhileOthersAsk)
{
    constexpr int rounds = 2'000'000;
    std::latch begin(4);
    const QList<QMetaType> before = HandedClass::types();
    ASSERT_FALSE(before.isEmpty());
    std::atomic<int> missed = 0;
    const auto comeAndGo = [&] {
        begin.arrive_and_wait();
        for (int i = 0; i < rounds; ++i) {
            const HandedClass first(QMetaType::fromType<char *>(), &noMembers);
            const HandedClass second(QMetaType::fromType<short *>(), &noMembers);
        }
    };
    const auto ask = [&] {
        begin.arrive_and_wait();
        for (int i = 0; i < rounds; ++i) {
            if (!HandedClass::members(before.constFirst()))
                ++missed;
        }
    };
    {
        std::vector<std::jthread> threads;
        for (int i = 0; i < 2; ++i) {
            threads.emplace_back(comeAndGo);
            threads.emplace_back(ask);
        }
    }
    EXPECT_EQ(missed, 0);
    EXPECT_EQ(HandedClass::types(), before);
}

TEST(HandedClass, IsThatOfTheNearestBase)
{
    EXPECT_EQ(HandedClass::members(QStringListModel::staticMetaObject), nullptr);
    const HandedClass model(QMetaType::fromType<QAbstractItemModel *>(), &noMembers);
    EXPECT_EQ(HandedClass::members(QStringListModel::staticMetaObject), &model.table());
    const HandedClass list(QMetaType::fromType<QAbstractListModel *>(), &noMembers);
    EXPECT_EQ(HandedClass::members(QStringListModel::staticMetaObject), &list.table());
    EXPECT_EQ(HandedClass::members(QAbstractItemModel::staticMetaObject), &model.table());
    EXPECT_EQ(HandedClass::members(QObject::staticMetaObject), nullptr);
    EXPECT_EQ(HandedClass::members(QMetaType::fromType<QStringListModel *>()), nullptr);
}

TEST(HandedClass, OfWhichNothingIsRaisedTakesNoSink)
{
    class Sink final : public EventSink
    {
        void Invoke(qint32, QVariantList &) override {}
    };
    PointList list;
    QObject object;
    Sink sink;
    EXPECT_FALSE(advise(QVariant::fromValue(&list), &sink)); // has no events
    EXPECT_FALSE(advise(QVariant::fromValue(&object), &sink));
    EXPECT_FALSE(advise(QVariant(7), &sink));
    EXPECT_TRUE(object.children().isEmpty());
    unadvise(QVariant::fromValue(&list), &sink);
    unadvise(QVariant(7), &sink);
}

} // namespace
