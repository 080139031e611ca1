#include "base/SharedText.h"

#include "support/QtPrinters.h"
#include "support/RandomSeed.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QString readForwards(const SharedText &text, qsizetype longest)
{
    QString result;
    while (result.size() < text.size()) {
        const QStringView view = text.behind(result.size(), longest);
        EXPECT_TRUE(!view.isEmpty() && view.size() <= longest);
        if (view.isEmpty())
            break;
        result += view;
    }
    return result;
}

QString readBackwards(const SharedText &text, qsizetype longest)
{
    QString result;
    while (result.size() < text.size()) {
        const QStringView view = text.before(text.size() - result.size(), longest);
        EXPECT_TRUE(!view.isEmpty() && view.size() <= longest);
        if (view.isEmpty())
            break;
        result.prepend(view);
    }
    return result;
}

qsizetype bytesOf(const QList<SharedText> &texts)
{
    SharedText::CountedStrings counted;
    qsizetype bytes = 0;
    for (const SharedText &text : texts)
        bytes += text.bytes(counted);
    return bytes;
}

} // namespace

namespace {

// Puts in the places that differ what the other has there.
QString withDifferences(const SharedText &text, const SharedText &other)
{
    QString result = text.toString();
    const auto differences = text.differences(other);
    for (auto it = differences.rbegin(); it != differences.rend(); ++it)
        result.replace(it->start, it->length, other.mid(it->otherStart, it->otherLength));
    return result;
}

qsizetype lengthOfDifferences(const SharedText &text, const SharedText &other)
{
    qsizetype length = 0;
    for (const SharedText::Difference &found : text.differences(other))
        length += found.length + found.otherLength;
    return length;
}

} // namespace

TEST(SharedText, EmptyTextHasNoPieces)
{
    for (const SharedText &text : {SharedText(), SharedText(QString()), SharedText(u""_s)}) {
        EXPECT_EQ(text.size(), 0);
        EXPECT_EQ(text.pieceCount(), 0);
        EXPECT_EQ(text.toString(), QString());
        EXPECT_TRUE(text.behind(0, 10).isEmpty());
        EXPECT_TRUE(text.before(0, 10).isEmpty());
        EXPECT_EQ(text.sharedWith(text).size(), 0);
        EXPECT_TRUE(text.equals(SharedText()));
        EXPECT_FALSE(text.equals(SharedText(u"A"_s)));
    }
}

TEST(SharedText, SharesTheMemoryOfItsString)
{
    const QString string(1000, u'x');
    const SharedText text(string);
    EXPECT_EQ(text.toString().constData(), string.constData());
    EXPECT_EQ(text.behind(10, 5).data(), string.constData() + 10);
    EXPECT_EQ(text.before(10, 5).data(), string.constData() + 5);
    EXPECT_TRUE(text.behind(1000, 5).isEmpty());
    EXPECT_TRUE(text.before(0, 5).isEmpty());
}

TEST(SharedText, ChangeInTheMiddleCostsTheMiddle)
{
    const SharedText before(u"0123456789"_s.repeated(1000));
    QString changed = before.toString();
    changed.replace(5000, 2, u"abc"_s);
    const SharedText after = SharedText(changed).sharedWith(before);
    EXPECT_EQ(after.toString(), changed);
    EXPECT_EQ(after.pieceCount(), 3);
    EXPECT_EQ(bytesOf({before}), 20000);
    EXPECT_EQ(bytesOf({before, after}), 20000 + 6);
    EXPECT_EQ(bytesOf({after}), 20000 + 6);
}

TEST(SharedText, ChangeAtAnEndCostsTheEnd)
{
    const SharedText before(u"0123456789"_s.repeated(1000));
    const SharedText longer = SharedText(before.toString() + u"abc"_s).sharedWith(before);
    EXPECT_EQ(bytesOf({before, longer}), 20000 + 6);
    const SharedText front = SharedText(u"abc"_s + before.toString()).sharedWith(before);
    EXPECT_EQ(bytesOf({before, front}), 20000 + 6);
    const SharedText shorter = SharedText(before.toString().chopped(5)).sharedWith(before);
    EXPECT_EQ(bytesOf({before, shorter}), 20000);
    EXPECT_EQ(shorter.toString(), before.toString().chopped(5));
}

TEST(SharedText, EqualTextCostsNothing)
{
    const SharedText before(u"0123456789"_s.repeated(1000));
    const SharedText same = SharedText(u"0123456789"_s.repeated(1000)).sharedWith(before);
    EXPECT_EQ(same.pieceCount(), 1);
    EXPECT_EQ(bytesOf({before, same}), 20000);
}

TEST(SharedText, ChangeTakenBackIsOnePieceAgain)
{
    const SharedText before(u"0123456789"_s.repeated(1000));
    QString changed = before.toString();
    changed.insert(5000, u"abc"_s);
    const SharedText between = SharedText(changed).sharedWith(before);
    const SharedText after = SharedText(before.toString()).sharedWith(between);
    EXPECT_EQ(between.pieceCount(), 3);
    EXPECT_EQ(after.pieceCount(), 1);
    EXPECT_EQ(after.toString(), before.toString());
}

TEST(SharedText, PiecesOfBothMayEndAnywhere)
{
    const SharedText whole(u"0123456789"_s.repeated(1000));
    QString changed = whole.toString();
    changed.insert(7001, u"abc"_s);
    const SharedText inPieces = SharedText(changed).sharedWith(whole);
    ASSERT_EQ(inPieces.pieceCount(), 3);

    QString other = changed;
    other[0] = u'x';
    const SharedText front = inPieces.sharedWith(SharedText(other));
    EXPECT_EQ(front.pieceCount(), 2);
    EXPECT_EQ(front.toString(), changed);

    other = changed;
    other.back() = u'x';
    const SharedText back = inPieces.sharedWith(SharedText(other));
    EXPECT_EQ(back.pieceCount(), 2);
    EXPECT_EQ(back.toString(), changed);
}

TEST(SharedText, EndsThatOverlapAreNotSharedTwice)
{
    const SharedText before(u"aaaa"_s.repeated(1000));
    for (const qsizetype length : {2001, 3999, 4001, 7999}) {
        const QString other(length, u'a');
        EXPECT_EQ(SharedText(other).sharedWith(before).toString(), other);
    }
}

TEST(SharedText, OtherTextStaysAsItIs)
{
    const SharedText before(u"0123456789"_s.repeated(10));
    const QString other(100, u'x');
    EXPECT_EQ(SharedText(other).sharedWith(before).toString().constData(), other.constData());
    const QString lessThanHalf = before.toString().first(49) + QString(51, u'x');
    EXPECT_EQ(SharedText(lessThanHalf).sharedWith(before).pieceCount(), 1);
    const QString half = before.toString().first(50) + QString(50, u'x');
    EXPECT_EQ(SharedText(half).sharedWith(before).pieceCount(), 2);
}

TEST(SharedText, ReplacedPartCostsWhatStandsAroundIt)
{
    const SharedText before(u"0123456789"_s.repeated(10'000));
    const SharedText typed = before.replaced(50'000, 0, u"a"_s);
    const SharedText typedOn = typed.replaced(50'001, 0, u"b"_s);
    EXPECT_EQ(typedOn.toString().mid(49'998, 6), u"89ab01"_s);
    EXPECT_EQ(typedOn.pieceCount(), 3);
    EXPECT_EQ(bytesOf({before, typed, typedOn}), 200'000 + 2 + 4);
    const SharedText deleted = typedOn.replaced(50'000, 2, QString());
    EXPECT_TRUE(deleted.equals(before));
    EXPECT_EQ(bytesOf({before, deleted}), 200'000);
    EXPECT_TRUE(before.replaced(0, before.size(), QString()).equals(SharedText()));
}

TEST(SharedText, ReplacingAgainAndAgainLeavesFewPieces)
{
    const unsigned seed = randomSeed(496);
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto below = [&](qsizetype bound) { return qsizetype(random() % quint64(bound)); };
    QString string = u"0123456789"_s.repeated(20'000);
    SharedText text(string);
    for (int round = 0; round < 5000; ++round) {
        const qsizetype start = below(string.size() + 1);
        const qsizetype length = below(std::min<qsizetype>(50, string.size() - start) + 1);
        const QString part(below(60), QChar(u'a' + char16_t(below(20))));
        string.replace(start, length, part);
        text = text.replaced(start, length, part);
        ASSERT_EQ(text.size(), string.size());
        if (round % 50 == 0) {
            ASSERT_EQ(text.toString(), string);
        }
        ASSERT_LE(text.pieceCount(), 3 + 2 * string.size() / SharedText::joinedLength);
    }
    EXPECT_TRUE(text.equals(SharedText(string)));
    EXPECT_EQ(readForwards(text, 1000), string);
}

TEST(SharedText, BytesBesideAnotherStateAreThoseItDoesNotHold)
{
    const SharedText before(u"0123456789"_s.repeated(10'000));
    const SharedText middle = before.replaced(50'000, 0, u"abc"_s);
    const SharedText after = middle.replaced(80'000, 0, u"abcd"_s);
    SharedText::CountedStrings counted;
    EXPECT_EQ(before.bytes(counted, {}), 200'000);
    EXPECT_EQ(middle.bytes(counted, before), 6);
    EXPECT_EQ(after.bytes(counted, middle), 8);
    EXPECT_EQ(after.bytes(counted, {}), 0);
    EXPECT_EQ(SharedText(before.toString().chopped(1)).bytes(counted, after), 2 * 99'999);
}

TEST(SharedText, ManyPiecesBecomeOneAgain)
{
    QString string = u"0123456789"_s.repeated(1000);
    SharedText text(string);
    bool isWholeAgain = false;
    for (qsizetype change = 0; change < 200; ++change) {
        string[(change * 7919) % string.size()] = u'x';
        text = SharedText(string).sharedWith(text);
        ASSERT_EQ(text.toString(), string);
        ASSERT_LE(text.pieceCount(), SharedText::mostPieces);
        isWholeAgain = isWholeAgain || (change > 0 && text.pieceCount() == 1);
    }
    EXPECT_TRUE(isWholeAgain);
}

TEST(SharedText, IsTheSameTextWhateverItsPieces)
{
    const unsigned seed = randomSeed(8128);
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto below = [&](qsizetype bound) { return qsizetype(random() % quint64(bound)); };
    QString string = u"IF TEMP1 > 20 THEN FAN = ON\r\n"_s.repeated(500);
    SharedText text(string);
    for (int round = 0; round < 3000; ++round) {
        const SharedText former = text;
        const QString formerString = string;
        string.replace(below(string.size()), below(50),
                       QString(below(50), QChar(u'a' + char16_t(below(3)))));
        text = SharedText(string).sharedWith(former);
        ASSERT_EQ(text.size(), string.size());
        ASSERT_EQ(text.toString(), string);
        ASSERT_EQ(former.toString(), formerString);
        ASSERT_EQ(former.sharedWith(text).toString(), formerString);
        ASSERT_EQ(text.equals(former), string == formerString);
        ASSERT_TRUE(text.equals(SharedText(string)));
        if (round % 100 == 0) {
            ASSERT_EQ(readForwards(text, 1 + below(5000)), string);
            ASSERT_EQ(readBackwards(text, 1 + below(5000)), string);
        }
    }
}

TEST(SharedText, DifferencesAreFoundPlaceByPlace)
{
    const SharedText text(u"0123456789"_s.repeated(10'000));
    EXPECT_TRUE(text.differences(text).isEmpty());
    EXPECT_TRUE(text.differences(SharedText(text.toString() + QString())).isEmpty());
    const SharedText one = text.replaced(10'000, 2, u"ab"_s);
    const SharedText two = one.replaced(90'000, 0, u"c"_s);
    const auto differences = text.differences(two);
    ASSERT_EQ(differences.size(), 2);
    EXPECT_EQ(differences[0].start, 10'000);
    EXPECT_EQ(differences[0].end(), 10'002);
    EXPECT_EQ(differences[0].grown(), 0);
    EXPECT_EQ(differences[1].start, 90'000);
    EXPECT_EQ(differences[1].otherStart, 90'000);
    EXPECT_EQ(differences[1].grown(), 1);
    EXPECT_EQ(lengthOfDifferences(two, text), 5);
    EXPECT_EQ(text.differences(SharedText(two.toString())).size(), 1);
}

TEST(SharedText, DifferencesMakeOneTextOfTheOther)
{
    const unsigned seed = randomSeed(31);
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto below = [&](qsizetype bound) { return qsizetype(random() % quint64(bound)); };
    const SharedText start(u"IF TEMP1 > 20 THEN FAN = ON\r\n"_s.repeated(3000));
    QList<SharedText> states{start};
    for (int round = 0; round < 500; ++round) {
        SharedText next = states[below(states.size())];
        for (qsizetype change = below(6); change > 0; --change)
            next = next.replaced(below(next.size() - 100), below(100),
                                 QString(below(100), QChar(u'a' + char16_t(below(3)))));
        const SharedText &former = states[below(states.size())];
        ASSERT_EQ(withDifferences(former, next), next.toString());
        ASSERT_EQ(withDifferences(next, former), former.toString());
        ASSERT_EQ(former.differences(next).isEmpty(), former.equals(next));
        states.append(below(9) == 0 ? SharedText(next.toString()) : next);
    }
}

// The same string twice, and parts of it in another order than in itself.
TEST(SharedText, FindsDifferencesOfTextsThatHoldAStringTwice)
{
    const QString string = u"IF TEMP1 > 20 THEN FAN = ON\r\n"_s.repeated(300);
    const SharedText once(string);
    SharedText twice;
    twice = twice.replaced(0, 0, string);
    twice = twice.replaced(0, 0, string);
    const SharedText thrice = twice.replaced(5000, 100, string);
    const QList<SharedText> texts{once, twice, thrice, thrice.replaced(0, 7000, string)};
    for (const SharedText &text : texts) {
        for (const SharedText &other : texts)
            EXPECT_EQ(withDifferences(text, other), other.toString());
    }
}

TEST(SharedText, NothingLiesOutsideOfIt)
{
    const SharedText text = SharedText(u"abc"_s).replaced(1, 1, u"B"_s.repeated(9000));
    EXPECT_TRUE(text.behind(-1, 5).isEmpty());
    EXPECT_TRUE(text.behind(text.size() + 1, 5).isEmpty());
    EXPECT_TRUE(text.before(-1, 5).isEmpty());
    EXPECT_TRUE(text.before(text.size() + 1, 5).isEmpty());
}
