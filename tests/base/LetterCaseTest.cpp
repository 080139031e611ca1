// One rule of letter case for all that looks names up.

#include "base/TextRules.h"
#include "editor/rules/language/BarList.h"
#include "editor/rules/language/WordIndex.h"
#include "support/QtPrinters.h"

#include <ORVTListview/PointCollection.h>

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QString textOf(char32_t c)
{
    return u"x"_s + QString::fromUcs4(&c, 1);
}

bool areEqualInCollections(const QString &a, const QString &b)
{
    PointList points;
    points.Add(a);
    return points.Find(b).has_value();
}

bool areEqualInTheIndex(const QString &a, const QString &b)
{
    WordIndex index;
    index.add(a, 1);
    return index.findExact(b) == 0;
}

bool areEqualInBarLists(const QString &a, const QString &b)
{
    return BarList(u'|' + a + u"|y|"_s).contains(b) &&
           BarList(u'|' + a + u"|y|"_s).contains(b + u"|y"_s);
}

} // namespace

TEST(LetterCase, IsThatOfTheUpperCaseForEveryCharacter)
{
    for (char32_t c = 1; c <= 0x1FFFF; ++c) {
        if (QChar::isSurrogate(c) || c == u'|')
            continue;
        const QString text = textOf(c);
        for (const QString &other : {text.toUpper(), text.toLower(), text.toCaseFolded()}) {
            const bool areEqual = text.toUpper() == other.toUpper();
            ASSERT_EQ(isSameWord(text, other), areEqual) << quint32{c};
            if (text == other)
                continue;
            ASSERT_EQ(areEqualInCollections(text, other), areEqual) << quint32{c};
            ASSERT_EQ(areEqualInTheIndex(text, other), areEqual) << quint32{c};
            ASSERT_EQ(areEqualInBarLists(text, other), areEqual) << quint32{c};
        }
        ASSERT_GE(foldedCase(text).size(), text.size()) << quint32{c};
    }
}

TEST(LetterCase, OneCharacterMayEqualTwo)
{
    for (const auto &[a, b] : {std::pair(u"Maß"_s, u"MASS"_s), {u"MASS"_s, u"Maß"_s}}) {
        EXPECT_TRUE(isSameWord(a, b));
        EXPECT_TRUE(areEqualInCollections(a, b));
        EXPECT_TRUE(areEqualInTheIndex(a, b));
        EXPECT_TRUE(areEqualInBarLists(a, b));
    }
    WordIndex index;
    index.add(u"Straße1"_s, 1);
    EXPECT_EQ(index.findPrefix(u"strass"), 0);
}

TEST(LetterCase, AnUnderscoreSortsBeforeLetters)
{
    EXPECT_LT(foldedCase(u"FAN_IN"), foldedCase(u"fanA"));
    EXPECT_LT(foldedCase(u"fan_in"), foldedCase(u"FANa"));
    EXPECT_LT(foldedCase(u"größe_1"), foldedCase(u"GRÖSSEA"));
}
