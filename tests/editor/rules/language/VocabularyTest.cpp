#include "editor/rules/language/Vocabulary.h"
#include "base/TextRules.h"
#include "editor/rules/language/CodeWordList.h"
#include "support/QtPrinters.h"
#include "support/Raised.h"
#include <ORVTListview/Error.h>

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct Words
{
    Words()
    {
        constants.Add(u"Const1"_s);
        inputs.Add(u"Input1"_s);
        outputs.Add(u"Output1"_s);
        variables.Add(u"Var1"_s);
        nvis.Add(u"Nvi1"_s);
        vocabulary.setCollections({&variables, &constants, &inputs, &outputs, &nvis});
    }

    ClassifiedWord of(const QString &word) const { return vocabulary.classify(word); }

    PointList constants, inputs, outputs, variables, nvis;
    Vocabulary vocabulary;
};

} // namespace

TEST(WordLists, AreExact)
{
    EXPECT_EQ(Vocabulary::KeywordList().text(),
              u"|IF|>|<|>=|<=|==|!=|+|-|*|/|=|AND|OR|ELSE|END|ENDIF|"_s);
    EXPECT_EQ(Vocabulary::TimeWordList().text(),
              u"|DAY|DAYOFWEEK|HOUR|SECOND|MINUTE|MONTH|YEAR|ON|OFF|"_s);
    EXPECT_EQ(Vocabulary::FanInWordList().text(),
              u"|FAN_IN_AV|FAN_IN_HISEL|FAN_IN_LOWSEL|CLEAR|"_s);
    EXPECT_EQ(Vocabulary().FunctionWordList().text(), u"|AVERAGE|SWITCH|HISEL|LIMIT|LOWSEL|"_s);
    EXPECT_EQ(Vocabulary().IndexedNameList().text(), u"|"_s);
}

TEST(WordLists, MembershipIsByTheTextBetweenBars)
{
    const BarList list(u"|IF|ELSE|"_s);
    EXPECT_TRUE(list.contains(u"if"));
    EXPECT_TRUE(list.contains(u"If"));
    EXPECT_TRUE(list.contains(u"IF|else"));
    EXPECT_FALSE(list.contains(u"F"));
    EXPECT_FALSE(list.contains(u""));
    EXPECT_TRUE(BarList(u"|A||B|"_s).contains(u""));
    EXPECT_EQ(BarList(u"|A||B|"_s).words(), QStringList({u"A"_s, u"B"_s}));
}

TEST(SqrtSupport, FollowsTheTextGiven)
{
    Vocabulary vocabulary;
    const QString with = u"|AVERAGE|SWITCH|HISEL|LIMIT|LOWSEL|SQRT|"_s;
    const QString without = u"|AVERAGE|SWITCH|HISEL|LIMIT|LOWSEL|"_s;
    for (const QString &yes : {u"True"_s, u"TRUE"_s, u"1"_s, u"-1"_s, u"0.5"_s, u" true "_s}) {
        vocabulary.setIsSqrtSupported(yes);
        EXPECT_EQ(vocabulary.FunctionWordList().text(), with) << yes.toStdString();
        EXPECT_TRUE(vocabulary.SqrtSupported());
        vocabulary.setIsSqrtSupported(u"false"_s);
        EXPECT_EQ(vocabulary.FunctionWordList().text(), without);
        EXPECT_FALSE(vocabulary.SqrtSupported());
    }
    vocabulary.setIsSqrtSupported(u"1"_s);
    for (const QString &no : {u"0"_s, u"False"_s, u"0.0"_s, u"0E7"_s}) {
        vocabulary.setIsSqrtSupported(no);
        EXPECT_FALSE(vocabulary.SqrtSupported()) << no.toStdString();
    }
}

TEST(SqrtSupport, ATextThatIsNoBooleanChangesNothing)
{
    Vocabulary vocabulary;
    vocabulary.setIsSqrtSupported(u"true"_s);
    for (const QString &bad : {u"yes"_s, u""_s, u"1x"_s, u"tru"_s, u"-"_s}) {
        try {
            vocabulary.setIsSqrtSupported(bad);
            FAIL() << bad.toStdString();
        } catch (const Error &error) {
            EXPECT_EQ(error.Number(), TypeMismatch);
            EXPECT_EQ(error.Description(), u"Type mismatch"_s);
        }
        EXPECT_TRUE(vocabulary.FunctionWordList().contains(u"SQRT"));
    }
}

TEST(SqrtSupport, AResetTakesTheWordOutAndKeepsTheFlag)
{
    Vocabulary vocabulary;
    vocabulary.setIsSqrtSupported(u"true"_s);
    vocabulary.resetFunctionWords();
    EXPECT_TRUE(vocabulary.SqrtSupported());
    EXPECT_FALSE(vocabulary.FunctionWordList().contains(u"SQRT"));
    vocabulary.setIsSqrtSupported(u"true"_s);
    EXPECT_TRUE(vocabulary.FunctionWordList().contains(u"SQRT"));
}

TEST(IndexedNames, AreWrittenOut)
{
    IndexedNameList names;
    names.Add(u"Tmp"_s, u"0"_s, 1, 3);
    names.Add(u"Zone"_s, u"000"_s, 9, 10);
    names.Add(u"None"_s, u"0"_s, 5, 4);
    Vocabulary vocabulary;
    vocabulary.setIndexedNames(&names);
    EXPECT_EQ(vocabulary.IndexedNameList().text(), u"|Tmp1|Tmp2|Tmp3|Zone009|Zone010|"_s);
    IndexedNameList empty;
    vocabulary.setIndexedNames(&empty);
    EXPECT_EQ(vocabulary.IndexedNameList().text(), u"|"_s);
    vocabulary.setIndexedNames(nullptr);
    EXPECT_EQ(vocabulary.IndexedNameList().text(), u"|"_s);
}

TEST(IndexedNames, ATooLargeFamilyRaisesAndChangesNothing)
{
    IndexedNameList small;
    small.Add(u"Tmp"_s, u"0"_s, 1, 1);
    Vocabulary vocabulary;
    vocabulary.setIndexedNames(&small);
    IndexedNameList large;
    large.Add(u"Tmp"_s, u"0"_s, 1, 100'001);
    EXPECT_THROW(vocabulary.setIndexedNames(&large), Error);
    IndexedNameList widest;
    widest.Add(u"Tmp"_s, u"0"_s, std::numeric_limits<qint32>::min(),
               std::numeric_limits<qint32>::max());
    EXPECT_THROW(vocabulary.setIndexedNames(&widest), Error);
    EXPECT_EQ(vocabulary.IndexedNameList().text(), u"|Tmp1|"_s);
    EXPECT_EQ(vocabulary.indexedNames(), &small);
    IndexedNameList largestAllowed;
    largestAllowed.Add(u"T"_s, u"0"_s, 2'147'383'648, 2'147'483'647);
    vocabulary.setIndexedNames(&largestAllowed);
    EXPECT_EQ(vocabulary.IndexedNameList().words().size(), 100'000);
}

TEST(IndexedNames, TheFamilyThatIsTooLargeIsNamed)
{
    IndexedNameList large;
    large.Add(u"T%2%1"_s, u"0"_s, 1, 100'001);
    Vocabulary vocabulary;
    const auto error = raisedBy([&] { vocabulary.setIndexedNames(&large); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Description(), u"\"T%2%1\" has more than 100000 names"_s);
}

TEST(Classify, EveryClassInItsOrder)
{
    Words words;
    EXPECT_EQ(words.of(u"if"_s), (ClassifiedWord{WordClass::Keyword, u"IF"_s}));
    EXPECT_EQ(words.of(u"const1"_s), (ClassifiedWord{WordClass::Constant, u"Const1"_s}));
    EXPECT_EQ(words.of(u"INPUT1"_s), (ClassifiedWord{WordClass::Input, u"Input1"_s}));
    EXPECT_EQ(words.of(u"output1"_s), (ClassifiedWord{WordClass::Output, u"Output1"_s}));
    EXPECT_EQ(words.of(u"vaR1"_s), (ClassifiedWord{WordClass::Variable, u"Var1"_s}));
    EXPECT_EQ(words.of(u"fan_in_av"_s), (ClassifiedWord{WordClass::FanIn, u"FAN_IN_AV"_s}));
    EXPECT_EQ(words.of(u"day"_s), (ClassifiedWord{WordClass::TimeWord, u"day"_s}));
    EXPECT_EQ(words.of(u"nvi1"_s), (ClassifiedWord{WordClass::Other, u"nvi1"_s}));
    EXPECT_EQ(words.of(u"average"_s), (ClassifiedWord{WordClass::Other, u"average"_s}));
    EXPECT_EQ(words.of(u"nobody"_s), (ClassifiedWord{WordClass::Other, u"nobody"_s}));
    EXPECT_EQ(words.of(u"  if  "_s), (ClassifiedWord{WordClass::Keyword, u"IF"_s}));
    EXPECT_EQ(words.of(u"   "_s), (ClassifiedWord{WordClass::Other, u""_s}));
}

TEST(Classify, TheFirstCollectionWithTheNameWins)
{
    Words words;
    for (PointList *points : {&words.constants, &words.inputs, &words.outputs, &words.variables})
        points->Add(u"Same"_s);
    EXPECT_EQ(words.of(u"same"_s).wordClass, WordClass::Constant);
    words.constants.Remove(u"Same"_s);
    EXPECT_EQ(words.of(u"same"_s).wordClass, WordClass::Input);
    words.inputs.Remove(u"Same"_s);
    EXPECT_EQ(words.of(u"same"_s).wordClass, WordClass::Output);
    words.outputs.Remove(u"Same"_s);
    EXPECT_EQ(words.of(u"same"_s).wordClass, WordClass::Variable);
}

TEST(Classify, AKeywordWinsOverAPointAndAPointOverTheOtherLists)
{
    Words words;
    words.constants.Add(u"If"_s);
    words.variables.Add(u"Clear"_s);
    words.variables.Add(u"Day"_s);
    EXPECT_EQ(words.of(u"if"_s).wordClass, WordClass::Keyword);
    EXPECT_EQ(words.of(u"clear"_s), (ClassifiedWord{WordClass::Variable, u"Clear"_s}));
    EXPECT_EQ(words.of(u"day"_s), (ClassifiedWord{WordClass::Variable, u"Day"_s}));
}

TEST(Classify, IndexedNamesAreUpperCased)
{
    Words words;
    IndexedNameList names;
    names.Add(u"Tmp"_s, u"0"_s, 1, 2);
    words.vocabulary.setIndexedNames(&names);
    EXPECT_EQ(words.of(u"tmp2"_s), (ClassifiedWord{WordClass::FanIn, u"TMP2"_s}));
    EXPECT_EQ(words.of(u"tmp3"_s).wordClass, WordClass::Other);
}

TEST(Classify, NumbersAreNoWords)
{
    Words words;
    words.constants.Add(u"12"_s);
    for (const QString &number :
         {u"12"_s, u"-3.5"_s, u"1E3"_s, u"+1"_s, u".5"_s, u"5."_s, u"1e-7"_s, u"1.5E+10"_s})
        EXPECT_EQ(words.of(number).wordClass, WordClass::Other) << number.toStdString();
    words.constants.Add(u"1A"_s);
    EXPECT_EQ(words.of(u"1a"_s), (ClassifiedWord{WordClass::Constant, u"1A"_s}));
}

TEST(Classify, AMissingCollectionHoldsNothing)
{
    Vocabulary vocabulary;
    EXPECT_EQ(vocabulary.classify(u"Temp1").wordClass, WordClass::Other);
    {
        PointList constants;
        constants.Add(u"Temp1"_s);
        vocabulary.setCollections({nullptr, &constants, nullptr, nullptr, nullptr});
        EXPECT_EQ(vocabulary.classify(u"Temp1").wordClass, WordClass::Constant);
    }
    EXPECT_EQ(vocabulary.classify(u"Temp1").wordClass, WordClass::Other);
}

TEST(Classify, AHostsOwnCollectionIsAskedForTheUpperCase)
{
    class Keyed final : public PointCollection
    {
    public:
        qint32 Count() const override { return 1; }
        std::optional<Point> Item(qint32) const override { return Point{u"Maß"_s, 0}; }
        std::optional<Point> Find(const QString &key) const override
        {
            return key == u"MASS"_s ? Item(1) : std::nullopt;
        }
    };
    Keyed points;
    Vocabulary vocabulary;
    vocabulary.setCollections({&points, nullptr, nullptr, nullptr, nullptr});
    CodeWordList words;
    words.FillCodeWordList(vocabulary);
    for (const QString &word : {u"Maß"_s, u"maß"_s, u"MASS"_s, u"mass"_s, u"MAß"_s}) {
        EXPECT_EQ(vocabulary.classify(word).shown, u"Maß"_s) << word.toStdString();
        EXPECT_TRUE(words.FindInWordList(word, true)) << word.toStdString();
    }
}

TEST(Classify, GivesTheColourOfTheClass)
{
    Words words;
    RichTextSettings settings;
    settings.ReservedWordColor = 1;
    settings.ConstantColor = 2;
    settings.InputColor = 3;
    settings.OutputColor = 4;
    settings.VariableColor = 5;
    QString shown;
    EXPECT_EQ(words.vocabulary.ClassifyWord(u" if "_s, shown, settings), 1);
    EXPECT_EQ(shown, u"IF"_s);
    EXPECT_EQ(words.vocabulary.ClassifyWord(u"const1"_s, shown, settings), 2);
    EXPECT_EQ(words.vocabulary.ClassifyWord(u"input1"_s, shown, settings), 3);
    EXPECT_EQ(words.vocabulary.ClassifyWord(u"output1"_s, shown, settings), 4);
    EXPECT_EQ(words.vocabulary.ClassifyWord(u"var1"_s, shown, settings), 5);
    EXPECT_EQ(words.vocabulary.ClassifyWord(u"hour"_s, shown, settings), 1);
    EXPECT_EQ(shown, u"hour"_s);
    EXPECT_EQ(words.vocabulary.ClassifyWord(u"7"_s, shown, settings), 0);
    EXPECT_EQ(shown, u"7"_s);
}

TEST(ClassStyle, HasARowForEveryClass)
{
    RichTextSettings s;
    s.VariableColor = 17;
    s.ConstantColor = 13;
    s.InputColor = 14;
    s.OutputColor = 15;
    s.ReservedWordColor = 16;
    s.CommentColor = 12;
    s.nviFPAColor = 18;
    s.nvoFPAColor = 99;
    EXPECT_EQ(styleOf(WordClass::Variable, s), (ClassStyle{7, 17, 67}));
    EXPECT_EQ(styleOf(WordClass::Constant, s), (ClassStyle{3, 13, 66}));
    EXPECT_EQ(styleOf(WordClass::Input, s), (ClassStyle{4, 14, 68}));
    EXPECT_EQ(styleOf(WordClass::Output, s), (ClassStyle{5, 15, 69}));
    EXPECT_EQ(styleOf(WordClass::Nvi, s), (ClassStyle{8, 18, 71}));
    EXPECT_EQ(styleOf(WordClass::Keyword, s), (ClassStyle{6, 16, 64}));
    EXPECT_EQ(styleOf(WordClass::TimeWord, s), (ClassStyle{6, 16, 62}));
    EXPECT_EQ(styleOf(WordClass::Function, s), (ClassStyle{6, 16, 63}));
    EXPECT_EQ(styleOf(WordClass::FanIn, s), (ClassStyle{6, 16, 61}));
    EXPECT_EQ(styleOf(WordClass::Comment, s), (ClassStyle{2, 12, 0}));
    EXPECT_EQ(styleOf(WordClass::Other, s), (ClassStyle{0, 0, 0}));
}

TEST(ClassStyle, OfATypeLeavesOthersUnchanged)
{
    RichTextSettings s;
    s.VariableColor = 17;
    s.nviFPAColor = 18;
    const ClassStyle before{1, 2, 3};
    for (qint32 type = -1; type <= 13; ++type) {
        ClassStyle style = before;
        ClassStyleForType(type, s, style);
        const bool isNamed = type == dsVariable || type == dsConst || type == dsInput ||
                             type == dsOutput || type == dsNvi;
        EXPECT_EQ(style == before, !isNamed) << type;
    }
    ClassStyle style;
    ClassStyleForType(dsVariable, s, style);
    EXPECT_EQ(style, (ClassStyle{7, 17, 67}));
    ClassStyleForType(dsNvi, s, style);
    EXPECT_EQ(style, (ClassStyle{8, 18, 71}));
}

TEST(FunctionCall, IsTheLastWordBeforeTheFirstBracket)
{
    Vocabulary vocabulary;
    EXPECT_TRUE(vocabulary.IsFunctionCall(u"average("_s));
    EXPECT_TRUE(vocabulary.IsFunctionCall(u"X = AVERAGE (A, B)"_s));
    EXPECT_TRUE(vocabulary.IsFunctionCall(u"switch(average("_s));
    EXPECT_FALSE(vocabulary.IsFunctionCall(u"IF (average("_s));
    EXPECT_FALSE(vocabulary.IsFunctionCall(u"average"_s));
    EXPECT_FALSE(vocabulary.IsFunctionCall(u""_s));
    EXPECT_FALSE(vocabulary.IsFunctionCall(u"("_s));
    EXPECT_FALSE(vocabulary.IsFunctionCall(u"SQRT("_s));
    vocabulary.setIsSqrtSupported(u"1"_s);
    EXPECT_TRUE(vocabulary.IsFunctionCall(u"SQRT("_s));
}

TEST(TextRules, Numeric)
{
    for (const QString &yes : {u"0"_s, u" 12 "_s, u"\t12"_s, u"-3.5"_s, u"+3."_s, u".5"_s, u"1E3"_s,
                               u"1e+3"_s, u"1.E-3"_s})
        EXPECT_TRUE(isNumeric(yes)) << yes.toStdString();
    for (const QString &no : {u""_s, u" "_s, u"."_s, u"-"_s, u"1A"_s, u"1E"_s, u"E3"_s, u"1E+"_s,
                              u"1 2"_s, u"--1"_s, u"1,5"_s, u"0x10"_s, u"1.2.3"_s, u"\u0661"_s})
        EXPECT_FALSE(isNumeric(no)) << no.toStdString();
}

TEST(TextRules, EveryLineEndBecomesCrLf)
{
    EXPECT_EQ(withCrLf(u"a\r\nb\nc\rd\n\ne\r\r\n"_s), u"a\r\nb\r\nc\r\nd\r\n\r\ne\r\n\r\n"_s);
    EXPECT_EQ(withCrLf(u"plain"_s), u"plain"_s);
    EXPECT_EQ(withCrLf(u""_s), u""_s);
    EXPECT_EQ(withCrLf(u"\n"_s), u"\r\n"_s);
    EXPECT_EQ(withCrLf(u"\r"_s), u"\r\n"_s);
    EXPECT_EQ(withCrLf(u"\r\n"_s), u"\r\n"_s);
}
