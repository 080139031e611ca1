// What nobody touched in a program is saved as it came, to the byte.

#include "project/ProgramFile.h"

#include "project/ProjectError.h"
#include "support/QtPrinters.h"
#include "support/Raised.h"
#include "support/RandomSeed.h"

#include <gtest/gtest.h>

#include <QtCore/QStringList>

#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const QByteArray mark = "\xEF\xBB\xBF";

QByteArray saved(const QByteArray &bytes, const QString &now)
{
    const ProgramFile file(bytes);
    return file.with(now, file.text(), u"p"_s);
}

QByteArray utf16(QStringView text, bool isBigEndian)
{
    QByteArray bytes;
    for (const QChar c : text) {
        const auto high = static_cast<char>(c.unicode() >> 8);
        const auto low = static_cast<char>(c.unicode() & 0xFF);
        bytes += isBigEndian ? high : low;
        bytes += isBigEndian ? low : high;
    }
    return bytes;
}

} // namespace

TEST(ProgramFile, ComesBackAsItWas)
{
    const QList<QByteArray> files{"",
                                  "A",
                                  "A\n",
                                  "A\r\nB\rC\nD",
                                  "\tA \t\n\n\r\n  \r",
                                  mark,
                                  mark + "A",
                                  mark + mark,
                                  "caf\xC3\xA9\n",
                                  "caf\xE9\nx\x81\x8D\n",
                                  "\xFF\xFE",
                                  "\xFE\xFF",
                                  "\xFF\xFE\x41",
                                  "A\xE2\x80\xA9"
                                  "B\n",
                                  QByteArray("A\0B\n", 4),
                                  "\xED\xA0\x80",
                                  "\xC0\x80",
                                  "A\vB\fC\n",
                                  utf16(u"\uFEFFA\r\nB\u00E9\n", false),
                                  utf16(u"\uFEFFA\r\nB\u00E9\n", true)};
    for (const QByteArray &bytes : files) {
        const ProgramFile file(bytes);
        EXPECT_EQ(file.bytes(), bytes);
        EXPECT_EQ(saved(bytes, file.text()), bytes);
        EXPECT_EQ(ProgramFile(bytes + "").text(), file.text());
        const QByteArray longer = saved(bytes, file.text() + u"x"_s);
        EXPECT_EQ(ProgramFile(longer).text(), file.text() + u"x"_s) << bytes.toHex().toStdString();
        if (ProgramFile(longer).encoding() == file.encoding()) {
            EXPECT_EQ(saved(longer, file.text()), bytes) << bytes.toHex().toStdString();
        }
    }
}

TEST(ProgramFile, KnowsItsEncoding)
{
    using enum ProgramFile::Encoding;
    EXPECT_EQ(ProgramFile("A\xC3\xA9").encoding(), Utf8);
    EXPECT_EQ(ProgramFile("A\xE9").encoding(), Windows1252);
    EXPECT_EQ(ProgramFile("A\x80\n").text(), u"A€\r\n"_s);
    EXPECT_EQ(ProgramFile(utf16(u"\uFEFFÄ\n", false)).encoding(), Utf16LittleEndian);
    EXPECT_EQ(ProgramFile(utf16(u"\uFEFFÄ\n", true)).text(), u"Ä\r\n"_s);
    EXPECT_EQ(ProgramFile(mark + "A").text(), u"A"_s);
}

// Bytes that would be read as another encoding next time.
TEST(ProgramFile, WhatIsSavedIsReadAsItWasTyped)
{
    const QString text = u"REM Ã©"_s;
    EXPECT_EQ(ProgramFile(saved("caf\xE9", text)).text(), text);
    EXPECT_EQ(ProgramFile(saved("caf\xE9", u"ÿþab"_s)).text(), u"ÿþab"_s);
}

TEST(ProgramFile, AChangedLineLeavesTheOthers)
{
    const QByteArray bytes = mark + "Y=LIMIT(A,0,100)\r\nA\tB  \n\tif x\rEND";
    EXPECT_EQ(saved(bytes, u"Y=LIMIT(A,0,100)\r\nC\r\n\tif x\r\nEND"_s),
              mark + "Y=LIMIT(A,0,100)\r\nC\n\tif x\rEND");
    EXPECT_EQ(saved(bytes, u"A\tB  \r\n\tif x\r\nEND"_s), mark + "A\tB  \n\tif x\rEND");
    EXPECT_EQ(saved("A\rB\rC", u"A\r\nx\r\ny\r\nB\r\nC\r\nz"_s), "A\rx\ry\rB\rC\rz");
    EXPECT_EQ(saved("A\r\nB\r\nC\n", u"C\r\n"_s), "C\n");
    EXPECT_EQ(saved("A\nB", u"B"_s), "B");
    EXPECT_EQ(saved("A\nB", u"B\r\nA"_s), "B\nA");
}

// An editor shows listed words in their letter case.
TEST(ProgramFile, ALineThatWasOnlyShownOtherwiseStays)
{
    const ProgramFile file("if temp1 > 3\nfan1 = on\nendif\n");
    const QString shown = u"IF Temp1 > 3\r\nFan1 = ON\r\nENDIF\r\n"_s;
    EXPECT_EQ(file.with(shown, shown, u"p"_s), file.bytes());
    EXPECT_EQ(file.with(u"IF Temp1 > 3\r\nFan1 = OFF\r\nENDIF\r\n"_s, shown, u"p"_s),
              "if temp1 > 3\nFan1 = OFF\nendif\n");
    EXPECT_EQ(file.with(u"REM\r\n"_s + shown, shown, u"p"_s), "REM\n" + file.bytes());
}

TEST(ProgramFile, TellsWhatItsEncodingLacks)
{
    const auto missing = raisedBy([] { saved("A\n\xE9\n", u"A\r\nx\r\ny Ω z"_s); });
    ASSERT_TRUE(missing);
    EXPECT_EQ(missing->Number(), TextNotEncodable);
    EXPECT_EQ(missing->Description(),
              u"p: line 3 holds \"Ω\", which the file's encoding (Windows-1252) does not have"_s);
    const ProgramFile utf8 = ProgramFile("A\n\xE9\r\n").inUtf8();
    EXPECT_EQ(utf8.bytes(), "A\n\xC3\xA9\r\n");
    EXPECT_EQ(utf8.with(u"A\r\né\r\nΩ"_s, utf8.text(), u"p"_s), "A\n\xC3\xA9\r\n\xCE\xA9");
}

TEST(ProgramFile, RandomEditsChangeTheirLinesOnly)
{
    std::mt19937 random(randomSeed());
    const auto below = [&random](qsizetype n) {
        return static_cast<qsizetype>(random() % static_cast<unsigned>(n));
    };
    const QByteArrayList ends{"\n", "\r\n", "\r"};
    const QByteArrayList texts{"A", "B\t", " if(x )", "", "0,100)", "REM caf\xC3\xA9"};
    for (int round = 0; round < 500; ++round) {
        QByteArrayList lines;
        for (qsizetype i = below(30); i >= 0; --i)
            lines.append(texts[below(texts.size())] + QByteArray::number(below(4)) +
                         ends[below(ends.size())]);
        const QByteArray bytes = lines.join() + "end";
        const qsizetype at = below(lines.size());
        QStringList now = ProgramFile(bytes).text().split(u"\r\n"_s);
        now[at] = u"changed"_s;
        QByteArrayList expected = lines;
        const bool isPair = lines[at].endsWith("\r\n");
        expected[at] = "changed" + lines[at].last(isPair ? 2 : 1);
        ASSERT_EQ(saved(bytes, now.join(u"\r\n"_s)), expected.join() + "end") << round;
        now.removeAt(at);
        expected.removeAt(at);
        ASSERT_EQ(ProgramFile(saved(bytes, now.join(u"\r\n"_s))).text(), now.join(u"\r\n"_s))
            << round;
    }
}
