#include <ORVTListview/LibraryTexts.h>

#include "shared/points/DisplayNames.h"
#include "support/QtPrinters.h"
#include <ORVTListview/TextProvider.h>

#include <QtCore/QSet>

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const LibraryText *find(const QString &english)
{
    for (const LibraryText &text : libraryTexts()) {
        if (QString::fromLatin1(text.english) == english)
            return &text;
    }
    return nullptr;
}

// The columns of every point table but the first, "#".
const QStringList columnHeaders{
    u"Label|Mode|Value|Units|Description"_s,
    u"Label|Value|Units|Description"_s,
    u"Label|Mode|Value|Units|Description|Commissioned"_s,
    u"Label|Mode|Value|Units|Description|Commissioned|Hw Override Mode|Hw Override Value"_s,
    u"Mode|Value|Input|Setpoint|Proportional Band|Integral Gain|Integral Time|Derivative Gain"
    "|Derivative Time|Dead Band|Bias|Action|Divider"_s,
    u"Data|Differential|Time|Mode|Format|Unit|Description"_s,
    u"Data|Type|Value"_s,
    u"Mode|Value|Target Temperature|Target Setpoint|Outdoor Temperature|Schedule"
    "|Max Starting Time|Description"_s,
    u"Label|Value|Format Name|Persistent|Description"_s,
    u"Name|Data Source|Value|Format Name|Description"_s,
    u"Type|Scale Min/Rising Edge|Scale Max/Falling Edge|Input Min|Input Max|Correction|Filter"
    "|Override|Units"_s,
    u"Type|PWM Period"_s};

void expectPlace(const QStringList &texts, TextPlace place)
{
    for (const QString &text : texts) {
        const LibraryText *known = find(text);
        ASSERT_NE(known, nullptr) << text.toStdString();
        EXPECT_EQ(known->place, place) << text.toStdString();
    }
}

} // namespace

TEST(LibraryTexts, EachIsKnownOnceWhateverItsLetterCase)
{
    QSet<QString> keys;
    for (const LibraryText &text : libraryTexts()) {
        const QString key = textKey(QString::fromLatin1(text.english));
        EXPECT_FALSE(keys.contains(key)) << text.english;
        keys << key;
    }
    EXPECT_FALSE(keys.contains(u"#"_s));
    EXPECT_FALSE(keys.contains(QString()));
}

TEST(LibraryTexts, AreAsciiWithoutOuterBlanks)
{
    for (const LibraryText &text : libraryTexts()) {
        const QString english = QString::fromUtf8(text.english);
        EXPECT_EQ(english, english.trimmed());
        for (const QChar c : english)
            EXPECT_TRUE(c >= u' ' && c <= u'~') << text.english;
    }
}

TEST(LibraryTexts, EnglishFitsWhereItIsShown)
{
    for (const LibraryText &text : libraryTexts())
        EXPECT_LE(qstrlen(text.english), longestText(text.place)) << text.english;
}

TEST(LibraryTexts, TheDisplayNamesOfAllTypesAreCaptions)
{
    for (qint32 type = lowestType; type <= highestType; ++type)
        expectPlace({displayName(type)}, TextPlace::Caption);
}

TEST(LibraryTexts, TheTreesNodesAreCaptions)
{
    expectPlace({u"Device"_s, u"Basic Programming"_s, u"Internal Points"_s, u"Built-In Functions"_s,
                 u"Network Variables"_s, u"Hardware Configuration"_s},
                TextPlace::Caption);
}

TEST(LibraryTexts, TheColumnsOfAllTablesAreColumnHeaders)
{
    EXPECT_EQ(columnHeaders.size(), 12);
    for (const QString &columns : columnHeaders)
        expectPlace(columns.split(u'|'), TextPlace::ColumnHeader);
}

TEST(LibraryTexts, TheFindDialogsTextsAreKnown)
{
    expectPlace({u"Find What"_s, u"Replace With"_s}, TextPlace::Label);
    expectPlace({u"Find Next"_s, u"Close"_s, u"Replace"_s, u"..."_s, u"Replace All"_s},
                TextPlace::Button);
    expectPlace({u"Find Whole Word Only"_s, u"Match Case"_s}, TextPlace::CheckBox);
    expectPlace({u"Find"_s, u"Find - Replace"_s}, TextPlace::Title);
    expectPlace({u"Found in"_s, u"Not found!"_s, u"replace(s)!"_s}, TextPlace::Status);
    expectPlace(
        {u"Searches for the full word by itself and not as part of a larger word."_s,
         u"Finds all occurrences with the exact combination of uppercase and lowercase letters "
         "specified in the Find What box."_s},
        TextPlace::ToolTip);
}

TEST(LibraryTexts, TheEditorsAndTheTablesOtherTextsAreKnown)
{
    expectPlace({u"Row:"_s, u", Col:"_s}, TextPlace::Status);
    expectPlace({u"Click here to read data values"_s}, TextPlace::ToolTip);
    expectPlace({u"List not found!"_s, u"Invalid letter: '\\' that is reserved to RTF!"_s,
                 u"Bad %1 for Editer of Code!"_s},
                TextPlace::Message);
    expectPlace({u"Code Text Setting"_s}, TextPlace::Title);
    expectPlace({u"Paste"_s}, TextPlace::Menu);
}

TEST(LibraryTexts, NoTextHoldsWhatSeparatesColumns)
{
    for (const LibraryText &text : libraryTexts())
        EXPECT_FALSE(QString::fromLatin1(text.english).contains(u'|')) << text.english;
}
