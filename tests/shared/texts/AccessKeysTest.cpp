#include "shared/texts/AccessKeys.h"

#include "support/QtPrinters.h"
#include "support/RandomSeed.h"

#include <QtCore/QSet>

#include <gtest/gtest.h>

#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QString keysOf(const QString &captions)
{
    return withAccessKeys(captions.split(u'|')).join(u'|');
}

QChar keyOf(const QString &caption)
{
    const qsizetype mark = caption.indexOf(u'&');
    return mark < 0 ? QChar() : caption[mark + 1].toUpper();
}

qsizetype keyed(const QStringList &captions)
{
    return std::count_if(captions.begin(), captions.end(),
                         [](const QString &caption) { return caption.contains(u'&'); });
}

// The most captions that can have a key at once, by trying everything.
qsizetype mostKeyed(const QStringList &captions, QSet<QChar> taken = {})
{
    if (captions.isEmpty())
        return 0;
    const QStringList rest = captions.sliced(1);
    qsizetype most = mostKeyed(rest, taken);
    for (const QChar c : captions.first()) {
        if (!taken.contains(c))
            most = std::max(most, 1 + mostKeyed(rest, QSet<QChar>(taken) << c));
    }
    return most;
}

} // namespace

TEST(AccessKeys, TheFirstLetterIsPreferred)
{
    EXPECT_EQ(keysOf(u"Find|Close"_s), u"&Find|&Close"_s);
}

TEST(AccessKeys, ATakenLetterGoesToTheNextWordThenIntoTheWord)
{
    EXPECT_EQ(keysOf(u"Find What|Find Next|Find|Next"_s), u"&Find What|Find &Next|F&ind|N&ext"_s);
}

TEST(AccessKeys, LetterCaseMakesNoDifference)
{
    EXPECT_EQ(keysOf(u"Ab|aC"_s), u"&Ab|a&C"_s);
}

TEST(AccessKeys, AsciiComesBeforeOtherLetters)
{
    EXPECT_EQ(keysOf(u"Überall"_s), u"Ü&berall"_s);
    EXPECT_EQ(keysOf(u"(ü)"_s), u"(&ü)"_s);
    EXPECT_EQ(keysOf(u"7-bit"_s), u"&7-bit"_s);
}

TEST(AccessKeys, OnlyLettersAndDigitsAreKeys)
{
    EXPECT_EQ(keysOf(u"..."_s), u"..."_s);
    EXPECT_EQ(keysOf(u"&...|&?|-"_s), u"...|?|-"_s);
    EXPECT_EQ(keysOf(u"...a"_s), u"...&a"_s);
    EXPECT_EQ(keysOf(u" | \u00a0|\U0001F600|"_s), u" | \u00a0|\U0001F600|"_s);
}

TEST(AccessKeys, ACaptionWithoutAFreeLetterMakesOthersMoveOn)
{
    EXPECT_EQ(keysOf(u"ab|a"_s), u"a&b|&a"_s);
    EXPECT_EQ(keysOf(u"abc|ab|a"_s), u"ab&c|a&b|&a"_s);
    EXPECT_EQ(keysOf(u"ab|bc|a"_s), u"a&b|b&c|&a"_s);
}

TEST(AccessKeys, TooManyCaptionsLeaveSomeWithout)
{
    EXPECT_EQ(keysOf(u"a|a|A"_s), u"&a|a|A"_s);
}

TEST(AccessKeys, AWishIsGrantedBeforeAnyOther)
{
    EXPECT_EQ(keysOf(u"Find|Re&fine"_s), u"F&ind|Re&fine"_s);
    EXPECT_EQ(keysOf(u"Find|f&"_s), u"F&ind|&f"_s);
    EXPECT_EQ(keysOf(u"&ab|a"_s), u"&ab|a"_s);
}

TEST(AccessKeys, OfTwoEqualWishesTheFirstIsGranted)
{
    EXPECT_EQ(keysOf(u"C&lose|Rep&lace"_s), u"C&lose|&Replace"_s);
}

TEST(AccessKeys, ALiteralMarkStaysOne)
{
    EXPECT_EQ(keysOf(u"&&Find|Cut && &Paste"_s), u"&&&Find|Cut && &Paste"_s);
}

TEST(AccessKeys, OfNothingIsNothing)
{
    EXPECT_EQ(withAccessKeys({}), QStringList());
    EXPECT_EQ(withAccessKeys({QString()}), QStringList{QString()});
}

TEST(AccessKeys, OnRandomCaptionsAsManyAsPossibleGetOneAndNoneClashes)
{
    const unsigned seed = randomSeed();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto upTo = [&](int most) { return std::uniform_int_distribution(1, most)(random); };
    for (int round = 0; round < 500; ++round) {
        QStringList captions;
        for (int i = upTo(5); i > 0; --i) {
            QString caption;
            for (int j = upTo(3); j > 0; --j)
                caption += QChar(u'a' + upTo(4));
            captions << caption;
        }
        const QStringList given = withAccessKeys(captions);
        EXPECT_EQ(keyed(given), mostKeyed(captions)) << captions.join(u' ').toStdString();
        QSet<QChar> keys;
        for (qsizetype i = 0; i < given.size(); ++i) {
            EXPECT_EQ(QString(given[i]).remove(u'&'), captions[i]);
            if (!given[i].contains(u'&'))
                continue;
            EXPECT_FALSE(keys.contains(keyOf(given[i]))) << given.join(u' ').toStdString();
            keys << keyOf(given[i]);
        }
        EXPECT_EQ(withAccessKeys(captions), given);
    }
}
