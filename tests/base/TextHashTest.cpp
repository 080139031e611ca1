#include "base/TextHash.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

TEST(TextHashTest, findsEveryTextThatWasPutIn)
{
    TextHash<int> numbers;
    for (int number = 0; number < 5000; ++number)
        numbers.insert(QString(number % 70, u'a') + QString::number(number), number);
    EXPECT_EQ(numbers.size(), 5000);
    for (int number = 0; number < 5000; ++number)
        EXPECT_EQ(numbers.value(QString(number % 70, u'a') + QString::number(number), -1), number);
    EXPECT_FALSE(numbers.contains(u"a"_s));
}

TEST(TextHashTest, findsATextWhereverItsLettersStand)
{
    constexpr char16_t letters[] = u"xIF\0y\xd83d\xde00z";
    const QString part =
        QString::fromRawData(reinterpret_cast<const QChar *>(letters + 1), 7); // no zero behind it
    TextHash<int> numbers;
    numbers.insert(QString(part.constData(), part.size()), 1);
    EXPECT_EQ(numbers.value(part), 1);
    EXPECT_FALSE(numbers.contains(u"IF"_s));
}

TEST(TextHashTest, tellsLetterCaseAndTakesNoTextForAnEmptyOne)
{
    TextHash<int> numbers{{u"Fan"_s, 1}, {u"fan"_s, 2}, {QString(), 3}};
    EXPECT_EQ(numbers.value(u"Fan"_s), 1);
    EXPECT_EQ(numbers.value(u"fan"_s), 2);
    EXPECT_EQ(numbers.value(u""_s), 3);
}

TEST(TextHashTest, hashesWithTheSeed)
{
    EXPECT_NE(qHash(TextKey(u"Fan"_s), 1), qHash(TextKey(u"Fan"_s), 2));
}

} // namespace
