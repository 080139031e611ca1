#include "editor/rules/language/WordIndex.h"
#include "editor/rules/language/CodeWordList.h"
#include "editor/rules/language/Vocabulary.h"
#include "support/QtPrinters.h"
#include "support/RandomSeed.h"

#include <gtest/gtest.h>

#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

WordIndex indexOf(std::initializer_list<std::pair<QString, qint32>> entries)
{
    WordIndex index;
    for (const auto &[text, data] : entries)
        index.add(text, data);
    return index;
}

// A hidden sorted list, searched entry by entry.
struct PlainList
{
    std::vector<WordIndex::Entry> entries;

    void add(const QString &text, qint32 data)
    {
        auto place = entries.begin();
        while (place != entries.end() && place->text.toLower() <= text.toLower())
            ++place;
        entries.insert(place, {text, data});
    }

    template <typename Matches>
    qsizetype find(Matches matches) const
    {
        for (std::size_t i = 1; i <= entries.size(); ++i) {
            const std::size_t at = i % entries.size();
            if (matches(entries[at].text))
                return static_cast<qsizetype>(at);
        }
        return -1;
    }
};

} // namespace

TEST(WordIndex, OrdersWithoutRegardToCase)
{
    const WordIndex index = indexOf({{u"beta"_s, 1}, {u"Alpha"_s, 2}, {u"GAMMA"_s, 3}});
    EXPECT_EQ(index.at(0).text, u"Alpha"_s);
    EXPECT_EQ(index.at(1).text, u"beta"_s);
    EXPECT_EQ(index.at(2).text, u"GAMMA"_s);
}

TEST(WordIndex, FindsAWholeTextInAnyLetterCase)
{
    const WordIndex index = indexOf({{u"Temp1"_s, 4}, {u"Temp10"_s, 5}});
    EXPECT_EQ(index.at(index.findExact(u"TEMP1")).data, 4);
    EXPECT_EQ(index.at(index.findExact(u"temp10")).data, 5);
    EXPECT_EQ(index.findExact(u"Temp"), -1);
    EXPECT_EQ(index.findExact(u""), -1);
    EXPECT_EQ(index.findExact(u"a word that is longer than any entry"), -1);
}

TEST(WordIndex, EqualEntriesStayInTheOrderOfAdding)
{
    const WordIndex index = indexOf({{u"First"_s, 0}, {u"Word"_s, 3}, {u"WORD"_s, 7}});
    EXPECT_EQ(index.at(index.findExact(u"word")).data, 3);
}

TEST(WordIndex, TheFirstEntryIsComparedLast)
{
    const WordIndex index = indexOf({{u"AA"_s, 3}, {u"aa"_s, 7}, {u"Z"_s, 1}});
    EXPECT_EQ(index.at(index.findExact(u"AA")).data, 7);
    const WordIndex alone = indexOf({{u"AA"_s, 3}, {u"Z"_s, 1}});
    EXPECT_EQ(alone.at(alone.findExact(u"aa")).data, 3);
}

TEST(WordIndex, FindsTheFirstEntryWithABeginning)
{
    const WordIndex index = indexOf({{u"Alpha"_s, 0}, {u"Alpine"_s, 1}, {u"Beta"_s, 2}});
    EXPECT_EQ(index.findPrefix(u"be"), 2);
    EXPECT_EQ(index.findPrefix(u"ALP"), 1); // the first entry is compared last
    EXPECT_EQ(index.findPrefix(u"Alpha"), 0);
    EXPECT_EQ(index.findPrefix(u"x"), -1);
    EXPECT_EQ(WordIndex().findPrefix(u"x"), -1);
    EXPECT_EQ(WordIndex().findExact(u"x"), -1);
}

TEST(WordIndex, AgreesWithAPlainSortedList)
{
    const unsigned seed = randomSeed(20261);
    std::mt19937 random(seed);
    const QString letters = u"aAbBcC"_s;
    const auto word = [&] {
        QString text;
        for (unsigned i = 0; i <= random() % 3; ++i)
            text += letters.at(random() % 6);
        return text;
    };
    for (int round = 0; round < 300; ++round) {
        WordIndex index;
        PlainList plain;
        for (unsigned i = 0; i < random() % 20; ++i) {
            const QString text = word();
            index.add(text, static_cast<qint32>(i));
            plain.add(text, static_cast<qint32>(i));
        }
        for (int i = 0; i < 20; ++i) {
            const QString sought = word();
            EXPECT_EQ(index.findExact(sought), plain.find([&](const QString &text) {
                return text.compare(sought, Qt::CaseInsensitive) == 0;
            })) << "seed "
                << seed << " round " << round;
            EXPECT_EQ(index.findPrefix(sought), plain.find([&](const QString &text) {
                return text.startsWith(sought, Qt::CaseInsensitive);
            })) << "seed "
                << seed << " round " << round;
        }
    }
}

TEST(CodeWordList, TakesTheWordsOfEveryClassInOrder)
{
    PointList variables, constants, inputs, outputs, nvis;
    // The same name in all collections: the order of filling decides. "!" sorts
    // before them, so that the name is not the first entry.
    constants.Add(u"!"_s);
    for (PointList *points : {&variables, &constants, &inputs, &outputs, &nvis})
        points->Add(u"Same"_s);
    nvis.Add(u"OnlyNvi"_s);
    outputs.Add(u"OnlyOutput"_s);
    inputs.Add(u"OnlyInput"_s);
    variables.Add(u"OnlyVariable"_s);
    IndexedNameList indexed;
    indexed.Add(u"Tmp"_s, u"00"_s, 1, 2);

    Vocabulary vocabulary;
    vocabulary.setCollections({&variables, &constants, &inputs, &outputs, &nvis});
    vocabulary.setIndexedNames(&indexed);
    CodeWordList words;
    words.FillCodeWordList(vocabulary);

    const auto colourOf = [&](const QString &word) {
        return words.FindInWordList(word, true) ? words.current()->data : -1;
    };
    EXPECT_EQ(colourOf(u"same"_s), ConstantColour);
    EXPECT_EQ(colourOf(u"onlyvariable"_s), VariableColour);
    EXPECT_EQ(colourOf(u"onlyinput"_s), InputColour);
    EXPECT_EQ(colourOf(u"onlyoutput"_s), OutputColour);
    EXPECT_EQ(colourOf(u"onlynvi"_s), NviColour);
    for (const QString &word : {u"if"_s, u">="_s, u"endif"_s, u"day"_s, u"off"_s, u"average"_s,
                                u"lowsel"_s, u"fan_in_av"_s, u"clear"_s, u"tmp01"_s, u"TMP02"_s})
        EXPECT_EQ(colourOf(word), ReservedWordColour) << word.toStdString();
    EXPECT_EQ(colourOf(u"sqrt"_s), -1);
    EXPECT_EQ(words.index().count(), 1 + 5 + 4 + 17 + 9 + 5 + 4 + 2);

    vocabulary.setIsSqrtSupported(u"true"_s);
    words.FillCodeWordList(vocabulary);
    EXPECT_EQ(colourOf(u"sqrt"_s), ReservedWordColour);
}

TEST(CodeWordList, EveryEntryBecomesTheCurrentOne)
{
    CodeWordList words;
    words.FillCodeWordList(Vocabulary());
    for (qsizetype i = words.index().count() - 1; i >= 0; --i) { // the first one last
        const QString word = words.index().at(i).text;
        EXPECT_TRUE(words.FindInWordList(word, true)) << word.toStdString();
        EXPECT_EQ(words.current()->text, word);
    }
}

TEST(CodeWordList, AHitBecomesTheCurrentEntryAndAMissLeavesIt)
{
    CodeWordList words;
    EXPECT_EQ(words.current(), nullptr);
    EXPECT_FALSE(words.FindInWordList(u"IF", true));
    words.FillCodeWordList(Vocabulary());
    EXPECT_TRUE(words.FindInWordList(u"endi", false));
    EXPECT_EQ(words.current()->text, u"ENDIF"_s);
    EXPECT_FALSE(words.FindInWordList(u"endi", true));
    EXPECT_EQ(words.current()->text, u"ENDIF"_s);
}
