#include "shared/settings/SettingsLine.h"
#include "support/EveryFieldCounts.h"
#include "support/QtPrinters.h"
#include "support/RandomText.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

using Kind = SettingsLine::Kind;

SettingsLine setting(const QString &name, const QString &value)
{
    return {Kind::Setting, name, value};
}

} // namespace

TEST(SettingsLine, PlainTextsStandAsTheyAre)
{
    EXPECT_EQ(settingText(u"Code"_s, u"3"_s), u"Code=3"_s);
    EXPECT_EQ(settingText(u"Optimum Starts"_s, u""_s), u"Optimum Starts="_s);
    EXPECT_EQ(settingText(u"Path"_s, u"C:\\new;x#y=[z]"_s), u"Path=C:\\new;x#y=[z]"_s);
    EXPECT_EQ(settingText(u"größe"_s, u"5 €"_s), u"größe=5 €"_s);
    EXPECT_EQ(sectionText(u"Software/Morvane Systems Inc/Quillbox"_s),
              u"[Software/Morvane Systems Inc/Quillbox]"_s);
}

TEST(SettingsLine, OthersStandInQuotes)
{
    EXPECT_EQ(settingText(u"a"_s, u" b"_s), u"a=\" b\""_s);
    EXPECT_EQ(settingText(u"a"_s, u" "_s), u"a=\" \""_s);
    EXPECT_EQ(settingText(u"a"_s, u"\"b\\\""_s), u"a=\"\\\"b\\\\\\\"\""_s);
    EXPECT_EQ(settingText(u"a"_s, u"1\r\n\t2"_s), u"a=\"1\\r\\n\\t2\""_s);
    EXPECT_EQ(settingText(u"a"_s, QString(QChar(u'\0'))), u"a=\"\\u0000\""_s);
    EXPECT_EQ(settingText(u"a"_s, QString(QChar(0xd800))), u"a=\"\\ud800\""_s);
    EXPECT_EQ(settingText(u""_s, u"1"_s), u"\"\"=1"_s);
    EXPECT_EQ(settingText(u"a=b"_s, u"1"_s), u"\"a=b\"=1"_s);
    EXPECT_EQ(settingText(u";a"_s, u"1"_s), u"\";a\"=1"_s);
    EXPECT_EQ(settingText(u"#a"_s, u"1"_s), u"\"#a\"=1"_s);
    EXPECT_EQ(settingText(u"[a]"_s, u"1"_s), u"\"[a]\"=1"_s);
    EXPECT_EQ(sectionText(u"a\nb"_s), u"[\"a\\nb\"]"_s);
}

TEST(SettingsLine, ReadsWhatAPersonMayType)
{
    EXPECT_EQ(readSettingsLine(u"  Code =  3  "), setting(u"Code"_s, u"3"_s));
    EXPECT_EQ(readSettingsLine(u"Code="), setting(u"Code"_s, u""_s));
    EXPECT_EQ(readSettingsLine(u"Code = \" 3 \""), setting(u"Code"_s, u" 3 "_s));
    EXPECT_EQ(readSettingsLine(u"\"a=b\" = c"), setting(u"a=b"_s, u"c"_s));
    EXPECT_EQ(readSettingsLine(u"a=b=c"), setting(u"a"_s, u"b=c"_s));
    EXPECT_EQ(readSettingsLine(u"a=\"\\u20AC\""), setting(u"a"_s, u"€"_s));
    EXPECT_EQ(readSettingsLine(u" [ x ] "), (SettingsLine{Kind::Section, u"x"_s, u""_s}));
    EXPECT_EQ(readSettingsLine(u"[]"), (SettingsLine{Kind::Section, u""_s, u""_s}));
}

TEST(SettingsLine, BrokenQuotesAreOrdinaryText)
{
    for (const QString &value : {u"\"open"_s, u"\"a\"b"_s, u"\"\\x\""_s, u"\"\\u12\""_s, u"\"\\"_s,
                                 u"\"\\u12g4\""_s, u"\""_s})
        EXPECT_EQ(readSettingsLine(QString(u"a="_s + value)), setting(u"a"_s, value));
    EXPECT_EQ(readSettingsLine(u"\"a=1"), setting(u"\"a"_s, u"1"_s));
    EXPECT_EQ(readSettingsLine(u"\"a\"b=1"), setting(u"\"a\"b"_s, u"1"_s));
}

TEST(SettingsLine, TheRestIsNoSetting)
{
    for (const QString &text :
         {u""_s, u"  "_s, u"; a=1"_s, u" # a=1"_s, u"words"_s, u"["_s, u"[x"_s})
        EXPECT_EQ(readSettingsLine(text), SettingsLine()) << testing::PrintToString(text);
}

TEST(SettingsLine, AnyTextComesBack)
{
    RandomText random;
    SCOPED_TRACE(random.seed());
    for (int i = 0; i < 20000; ++i) {
        const QString name = random.text(6);
        const QString value = random.text(12);
        const QString line = settingText(name, value);
        ASSERT_FALSE(line.contains(u'\n') || line.contains(u'\r'));
        ASSERT_EQ(readSettingsLine(line), setting(name, value)) << testing::PrintToString(line);
        ASSERT_EQ(readSettingsLine(sectionText(name)), (SettingsLine{Kind::Section, name, {}}));
    }
}

TEST(SettingsLine, IsEqualInKindNameAndValue)
{
    expectEveryFieldCounts(
        setting(u"Code"_s, u"3"_s), [](SettingsLine &other) { other.kind = Kind::Section; },
        [](SettingsLine &other) { other.name = u"Logs"_s; },
        [](SettingsLine &other) { other.value = u"4"_s; });
}
