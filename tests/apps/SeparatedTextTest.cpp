#include "project/importing/SeparatedText.h"

#include "grid/rules/CellTexts.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

TEST(SeparatedText, EncodingIsGuessed)
{
    EXPECT_EQ(guessedEncoding("\xEF\xBB\xBFname"), TextEncoding::Utf8);
    EXPECT_EQ(guessedEncoding("W\xC3\xA4rme"), TextEncoding::Utf8);
    EXPECT_EQ(guessedEncoding("W\xE4rme"), TextEncoding::Windows1252);
    EXPECT_EQ(guessedEncoding(QByteArray("\xFF\xFEn\0", 4)), TextEncoding::Utf16LittleEndian);
    EXPECT_EQ(guessedEncoding(QByteArray("\xFE\xFF\0n", 4)), TextEncoding::Utf16BigEndian);
    EXPECT_EQ(guessedEncoding({}), TextEncoding::Utf8);
}

TEST(SeparatedText, MarksAreNoText)
{
    EXPECT_EQ(decodedText("\xEF\xBB\xBFname", TextEncoding::Utf8), u"name"_s);
    EXPECT_EQ(decodedText(QByteArray("\xFF\xFEn\0", 4), TextEncoding::Utf16LittleEndian), u"n"_s);
    EXPECT_EQ(decodedText("W\xE4rme", TextEncoding::Windows1252), u"Wärme"_s);
}

TEST(SeparatedText, SeparatorIsGuessed)
{
    EXPECT_EQ(guessedSeparator(u"a,b\nc,d\n"_s), QChar(u','));
    EXPECT_EQ(guessedSeparator(u"a;b\n1,5;2,5\n3,5;4,5\n"_s), QChar(u';'));
    EXPECT_EQ(guessedSeparator(u"a\tb\n1\t2,5\n"_s), QChar(u'\t'));
    EXPECT_EQ(guessedSeparator(u"\"a;b\",c\n\"d;e;f\",g\n"_s), QChar(u','));
    EXPECT_EQ(guessedSeparator(QString()), QChar(u','));
}

TEST(SeparatedText, CellsAreReadAsTheyAreWritten)
{
    const CellBlock cells{
        {u"a,b"_s, u"say \"no\""_s}, {u"two\nlines"_s, QString()}, {u"x"_s, u"y"_s}};
    EXPECT_EQ(separatedCells(commaText(cells), u','), cells);
}

TEST(SeparatedText, AnyLineEndAndAnyRowIsTaken)
{
    const QList<QStringList> cells{{u"a"_s, u"b"_s}, {u"c"_s}, {u"d"_s, u"e"_s}};
    EXPECT_EQ(separatedCells(u"a,b\r\nc\n\n\rd,e"_s, u','), cells);
    EXPECT_EQ(separatedCells(u"\"open, never shut\nb"_s, u','),
              (QList<QStringList>{{u"open, never shut\nb"_s}}));
    EXPECT_EQ(separatedCells(u"\"a\"b,c"_s, u','), (QList<QStringList>{{u"ab"_s, u"c"_s}}));
    EXPECT_TRUE(separatedCells(QString(), u',').isEmpty());
}
