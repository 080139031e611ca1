// The word index follows the ready collections.

#include "editor/rules/language/CodeWordList.h"
#include "editor/rules/language/Vocabulary.h"
#include "support/MisbehavingHost.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;
using Misbehaving::In;
using Misbehaving::Throws;

namespace {

struct Project
{
    Project()
    {
        inputs.Add(u"Temp1"_s);
        outputs.Add(u"Fan1"_s);
        vocabulary.setCollections({&own, nullptr, &inputs, &outputs, &nvis});
        words.FillCodeWordList(vocabulary);
    }

    // The colour of a word, asked as colouring asks.
    qint32 colourOf(const QString &word)
    {
        words.follow(vocabulary);
        return words.FindInWordList(word, true) ? words.current()->data : 0;
    }

    PointList inputs, outputs, nvis;
    Misbehaving::Points own;
    Vocabulary vocabulary;
    CodeWordList words;
};

} // namespace

TEST(FollowingWords, ReadyCollectionsAreFollowed)
{
    Project project;
    project.inputs.Add(u"Temp2"_s);
    EXPECT_EQ(project.colourOf(u"temp2"_s), InputColour);
    project.inputs.Remove(u"Temp1"_s);
    EXPECT_EQ(project.colourOf(u"temp1"_s), 0);
    project.nvis.Add(u"Net1"_s);
    EXPECT_EQ(project.colourOf(u"net1"_s), NviColour);
    project.outputs.Clear();
    EXPECT_EQ(project.colourOf(u"fan1"_s), 0);
    EXPECT_EQ(project.colourOf(u"temp2"_s), InputColour);
    EXPECT_EQ(project.colourOf(u"if"_s), ReservedWordColour);
}

TEST(FollowingWords, OneRefillTakesAllChangesAndNoneWhenNothingChanged)
{
    Project project;
    const quint64 before = project.words.changes();
    for (int i = 0; i < 1000; ++i)
        project.inputs.Add(u"New%1"_s.arg(i));
    for (int i = 0; i < 1000; ++i)
        EXPECT_EQ(project.colourOf(u"new%1"_s.arg(i)), InputColour);
    EXPECT_EQ(project.words.changes(), before + 1);
}

TEST(FollowingWords, OtherCollectionsAreFollowedAndGoneOnesForgotten)
{
    Project project;
    {
        PointList others;
        others.Add(u"Other1"_s);
        project.vocabulary.setCollections({&project.own, nullptr, &others, nullptr, nullptr});
        EXPECT_EQ(project.colourOf(u"other1"_s), InputColour);
        EXPECT_EQ(project.colourOf(u"temp1"_s), 0);
        EXPECT_EQ(project.colourOf(u"fan1"_s), 0);
    }
    EXPECT_EQ(project.colourOf(u"other1"_s), 0);
}

TEST(FollowingWords, AHostsOwnCollectionWaitsForARefill)
{
    Project project;
    project.own.count = 2;
    project.inputs.Add(u"Temp2"_s);
    EXPECT_EQ(project.colourOf(u"temp2"_s), InputColour);
    EXPECT_EQ(project.colourOf(u"p3"_s), VariableColour);
    project.vocabulary.setIsSqrtSupported(u"true"_s);
    EXPECT_EQ(project.colourOf(u"sqrt"_s), 0);
    project.words.UpdateWordListItem(u"P1"_s, u"Renamed"_s, dsVariable);
    project.inputs.Add(u"Temp3"_s);
    EXPECT_EQ(project.colourOf(u"temp3"_s), InputColour);
    EXPECT_EQ(project.colourOf(u"renamed"_s), VariableColour);
    EXPECT_EQ(project.colourOf(u"p1"_s), 0);

    project.words.FillCodeWordList(project.vocabulary);
    EXPECT_EQ(project.colourOf(u"p3"_s), 0);
    EXPECT_EQ(project.colourOf(u"p1"_s), VariableColour);
    EXPECT_EQ(project.colourOf(u"sqrt"_s), ReservedWordColour);
}

TEST(FollowingWords, ARenamedPointIsListedOnce)
{
    Project project;
    const qsizetype count = project.words.index().count();
    project.inputs.Remove(u"Temp1"_s);
    project.inputs.Add(u"Room1"_s);
    project.words.follow(project.vocabulary);
    project.words.UpdateWordListItem(u"Temp1"_s, u"Room1"_s, dsInput);
    EXPECT_EQ(project.words.index().count(), count);
    EXPECT_EQ(project.colourOf(u"room1"_s), InputColour);
    EXPECT_EQ(project.colourOf(u"temp1"_s), 0);
}

TEST(FollowingWords, AnIndexThatWasNeverFilledStaysEmpty)
{
    PointList inputs;
    inputs.Add(u"Temp1"_s);
    Vocabulary vocabulary;
    vocabulary.setCollections({nullptr, nullptr, &inputs, nullptr, nullptr});
    CodeWordList words;
    words.follow(vocabulary);
    EXPECT_TRUE(words.index().isEmpty());
}

TEST(FollowingWords, AFailedRefillRaisesAndChangesNothing)
{
    Project project;
    const qsizetype count = project.words.index().count();
    for (const In where : {In::Count, In::Item}) {
        for (const Throws what : Misbehaving::all) {
            project.own.fault = {what, where};
            EXPECT_TRUE(raisedBy([&] { project.words.FillCodeWordList(project.vocabulary); }));
            EXPECT_EQ(project.words.index().count(), count);
            EXPECT_EQ(project.colourOf(u"p1"_s), VariableColour);
        }
    }
}

TEST(FollowingWords, AnHeirOfAReadyCollectionThatFailsKeepsItsNames)
{
    struct Heir final : PointList
    {
        std::optional<Point> Item(qint32 index) const override
        {
            if (fails)
                throw 42;
            return PointList::Item(index);
        }
        bool fails = false;
    };
    Heir heir;
    heir.Add(u"A1"_s);
    Project project;
    project.vocabulary.setCollections({&heir, nullptr, nullptr, nullptr, nullptr});
    EXPECT_EQ(project.colourOf(u"a1"_s), VariableColour);
    heir.fails = true;
    heir.Add(u"A2"_s);
    EXPECT_EQ(project.colourOf(u"a1"_s), VariableColour);
    EXPECT_EQ(project.colourOf(u"a2"_s), 0);
    heir.fails = false;
    heir.Add(u"A3"_s);
    EXPECT_EQ(project.colourOf(u"a2"_s), VariableColour);
}
