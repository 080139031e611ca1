#include "editor/rules/colouring/ColourTable.h"
#include "editor/rules/language/WordClass.h"
#include "support/EveryFieldCounts.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

TEST(SplitColour, GivesTheThreeBytes)
{
    EXPECT_EQ(SplitColour(0x00C0FFEE), (SplitColours{238, 255, 192}));
    EXPECT_EQ(SplitColour(0), (SplitColours{0, 0, 0}));
    EXPECT_EQ(SplitColour(0x00FFFFFF), (SplitColours{255, 255, 255}));
}

TEST(SplitColour, TruncatesTowardZeroForSystemColours)
{
    const auto systemColour = static_cast<qint32>(0x80000005);
    EXPECT_EQ(SplitColour(systemColour), (SplitColours{-251, -255, -32767}));
}

TEST(ColourTable, OfTheDefaultColours)
{
    QString errors;
    EXPECT_EQ(BuildColourTable(defaultColours(), errors),
              u"{\\colortbl ;\\red223\\green223\\blue223;\\red0\\green128\\blue0;"
              "\\red128\\green0\\blue0;\\red255\\green0\\blue0;\\red128\\green0\\blue255;"
              "\\red0\\green0\\blue0;\\red0\\green0\\blue255;\\red128\\green128\\blue0;}"_s);
    EXPECT_EQ(defaultColourTable(), BuildColourTable(defaultColours(), errors));
    EXPECT_EQ(errors, QString());
}

TEST(ColourTable, TakesTheSlotsInTheirOrder)
{
    RichTextSettings s;
    s.BackColor = 0x00C0FFEE;
    s.CommentColor = 2;
    s.ConstantColor = 3;
    s.InputColor = 4;
    s.OutputColor = 5;
    s.ReservedWordColor = 6;
    s.VariableColor = 7;
    s.nviFPAColor = 8;
    s.nvoFPAColor = 9;
    QString errors;
    const QString table = BuildColourTable(s, errors);
    EXPECT_EQ(table, u"{\\colortbl ;\\red238\\green255\\blue192;\\red2\\green0\\blue0;"
                     "\\red3\\green0\\blue0;\\red4\\green0\\blue0;\\red5\\green0\\blue0;"
                     "\\red6\\green0\\blue0;\\red7\\green0\\blue0;\\red8\\green0\\blue0;}"_s);
    s.nvoFPAColor = 1234;
    EXPECT_EQ(BuildColourTable(s, errors), table);
}

TEST(ColourTable, WritesSystemColoursAsTheyAre)
{
    RichTextSettings s;
    s.BackColor = static_cast<qint32>(0x80000005);
    QString errors;
    EXPECT_TRUE(BuildColourTable(s, errors).startsWith(
        u"{\\colortbl ;\\red-251\\green-255\\blue-32767;"_s));
    EXPECT_EQ(errors, QString());
}

TEST(ColourTable, AColourThatCannotBeSplitIsBlackAndNamed)
{
    const QStringList names{u"BackColor"_s,     u"NoteColor"_s,   u"ConstantColor"_s,
                            u"InputColor"_s,    u"OutputColor"_s, u"ReservedWordColor"_s,
                            u"VariableColor"_s, u"NviFPAColor"_s};
    for (int bad = 0; bad < colourSlots; ++bad) {
        int slot = 0;
        const auto splitter = [&](qint32 colour) -> std::optional<SplitColours> {
            return slot++ == bad ? std::nullopt : SplitColour(colour);
        };
        RichTextSettings white;
        white.BackColor = white.CommentColor = white.ConstantColor = white.InputColor =
            white.OutputColor = white.ReservedWordColor = white.VariableColor = white.nviFPAColor =
                0x00FFFFFF;
        QString errors = u"earlier"_s;
        const QStringList entries = BuildColourTable(white, errors, splitter).split(u';');
        EXPECT_EQ(errors, u"earlier\r\nBad %1 for Editer of Code!"_s.arg(names[bad]));
        for (int i = 0; i < colourSlots; ++i)
            EXPECT_EQ(entries[i + 1],
                      i == bad ? u"\\red0\\green0\\blue0"_s : u"\\red255\\green255\\blue255"_s);
    }
}

TEST(ShownColour, KeepsItsPartsWithinAByte)
{
    EXPECT_EQ(shownColour(0x00123456), 0x00123456);
    EXPECT_EQ(shownColour(static_cast<qint32>(0x80000005)), 0);
    EXPECT_EQ(shownColour(0x7F000001), 0x00FF0001);
}

TEST(SplitColour, IsEqualInAllThreeBytes)
{
    expectEveryFieldCounts(
        SplitColours{1, 2, 3}, [](SplitColours &other) { other.Red = 0; },
        [](SplitColours &other) { other.Green = 0; }, [](SplitColours &other) { other.Blue = 0; });
}
