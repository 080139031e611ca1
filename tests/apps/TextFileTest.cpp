#include "project/TextFile.h"

#include "ProjectFolder.h"
#include "project/ProjectError.h"
#include "support/DiskLimits.h"
#include "support/QtPrinters.h"
#include "support/Raised.h"

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QString decoded(const QByteArray &bytes)
{
    return decodeProgram(bytes, u"p"_s);
}

QString decodingError(const QByteArray &bytes)
{
    try {
        decodeProgram(bytes, u"p"_s);
    } catch (const Error &error) {
        EXPECT_EQ(error.Number(), TextNotUtf8);
        return error.Description();
    }
    return u"no error"_s;
}

} // namespace

TEST(ProgramText, EveryLineEndBecomesCrLf)
{
    EXPECT_EQ(decoded("A\nB"), u"A\r\nB"_s);
    EXPECT_EQ(decoded("A\r\nB"), u"A\r\nB"_s);
    EXPECT_EQ(decoded("A\rB"), u"A\r\nB"_s);
    EXPECT_EQ(decoded("A\n\r\n\rB"), u"A\r\n\r\n\r\nB"_s);
    EXPECT_EQ(decoded("A\r\r\nB"), u"A\r\n\r\nB"_s);
}

TEST(ProgramText, KeepsTheLineEndAfterTheLastLine)
{
    EXPECT_EQ(decoded("A\n"), u"A\r\n"_s);
    EXPECT_EQ(decoded("A\r"), u"A\r\n"_s);
    EXPECT_EQ(decoded("\n"), u"\r\n"_s);
    EXPECT_EQ(decoded(""), QString());
}

TEST(ProgramText, DropsAByteOrderMark)
{
    EXPECT_EQ(decoded("\xEF\xBB\xBF"
                      "A"),
              u"A"_s);
    EXPECT_EQ(decoded("\xEF\xBB\xBF"), QString());
    EXPECT_EQ(decoded("A\xEF\xBB\xBF"), u"A\uFEFF"_s);
}

TEST(ProgramText, WhatIsSavedComesBackWhateverItBeginsWith)
{
    for (const bool hasMark : {false, true}) {
        for (const QString &program : {u""_s, u"A"_s, u"\uFEFF"_s, u"\uFEFF\uFEFFA"_s}) {
            const QByteArray bytes = encodeProgram(program, {LineEnd::Lf, hasMark}, u"p"_s);
            EXPECT_EQ(decoded(bytes), program) << hasMark;
        }
    }
}

TEST(ProgramText, KeepsEveryOtherCharacter)
{
    EXPECT_EQ(decoded("\t\xC2\xA0 \xE2\x80\xA8 \xF0\x9F\x98\x80 \x01\x7F"),
              u"\t\u00A0 \u2028 \U0001F600 \u0001\u007F"_s);
    EXPECT_EQ(decoded(QByteArray("A\0B", 3)).size(), 3);
}

TEST(ProgramText, NamesTheLineThatIsNotUtf8)
{
    EXPECT_EQ(decodingError("\xE9"), u"p: line 1 is not valid UTF-8"_s);
    EXPECT_EQ(decodingError("A\nB\r\nC\rD\xFF\nE"), u"p: line 4 is not valid UTF-8"_s);
    EXPECT_EQ(decodingError("A\n\xC3"), u"p: line 2 is not valid UTF-8"_s);
    EXPECT_EQ(decodingError("\xC3\n\xA9"), u"p: line 1 is not valid UTF-8"_s);
    EXPECT_EQ(decodingError("\xC0\xAF"), u"p: line 1 is not valid UTF-8"_s);
    EXPECT_EQ(decodingError("\xED\xA0\x80"), u"p: line 1 is not valid UTF-8"_s);
}

TEST(ProgramFormat, HasTheMostFrequentLineEnd)
{
    EXPECT_EQ(programFormat("").lineEnd, LineEnd::Lf);
    EXPECT_EQ(programFormat("A").lineEnd, LineEnd::Lf);
    EXPECT_EQ(programFormat("A\nB\n").lineEnd, LineEnd::Lf);
    EXPECT_EQ(programFormat("A\r\nB").lineEnd, LineEnd::CrLf);
    EXPECT_EQ(programFormat("A\rB\r").lineEnd, LineEnd::Cr);
    EXPECT_EQ(programFormat("A\r\nB\r\nC\n").lineEnd, LineEnd::CrLf);
    EXPECT_EQ(programFormat("A\nB\nC\r\n").lineEnd, LineEnd::Lf);
    EXPECT_EQ(programFormat("A\r\nB\n").lineEnd, LineEnd::Lf);
    EXPECT_EQ(programFormat("A\r\nB\r").lineEnd, LineEnd::CrLf);
}

TEST(ProgramFormat, KnowsAByteOrderMark)
{
    EXPECT_TRUE(programFormat("\xEF\xBB\xBF").hasByteOrderMark);
    EXPECT_TRUE(programFormat("\xEF\xBB\xBF"
                              "A\n")
                    .hasByteOrderMark);
    EXPECT_FALSE(programFormat("").hasByteOrderMark);
    EXPECT_FALSE(programFormat("A\xEF\xBB\xBF").hasByteOrderMark);
}

TEST(ProgramFormat, BringsAProgramBackAsItWas)
{
    for (const QByteArray &bytes :
         {QByteArray(), QByteArray("\n"), QByteArray("A\nB\n"), QByteArray("A\r\n\r\nB"),
          QByteArray("A\r\rB\r"), QByteArray("\xEF\xBB\xBF\xC2\xB0\r\n\xF0\x9F\x98\x80")})
        EXPECT_EQ(encodeProgram(decoded(bytes), programFormat(bytes), u"p"_s), bytes);
}

TEST(ProgramFormat, RefusesHalfACharacter)
{
    const auto error =
        raisedBy([] { encodeProgram(u"A\r\nB\xD83D\r\nC"_s, ProgramFormat(), u"p"_s); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), TextNotUtf8);
    EXPECT_EQ(error->Description(), u"p: line 2 holds half a character"_s);
    const auto marked = raisedBy([] { encodeProgram(u"\xD83D"_s, ProgramFormat(), u"%2%1"_s); });
    ASSERT_TRUE(marked);
    EXPECT_EQ(marked->Description(), u"%2%1: line 1 holds half a character"_s);
}

TEST(WriteFile, PutsBytesInPlaceOfTheOldOnes)
{
    const ProjectFolder folder;
    const QString file = folder.write(u"f"_s, "a longer text");
    writeFile(file, QByteArray("\0\r\n", 3));
    EXPECT_EQ(readFile(file), QByteArray("\0\r\n", 3));
    writeFile(folder.path(u"new"_s), {});
    EXPECT_EQ(readFile(folder.path(u"new"_s)), QByteArray());
}

TEST(WriteFile, SaysWhyNot)
{
    const ProjectFolder folder;
    const QString file = folder.path(u"missing/f"_s);
    const auto error = raisedBy([&] { writeFile(file, "text"); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), FileNotWritable);
    EXPECT_TRUE(error->Description().startsWith(file + u": "_s));
    EXPECT_GT(error->Description().size(), file.size() + 5);
}

// A full disk, as far as one can be had: a limit on the size of files.
TEST(WriteFile, KeepsTheFileThatItCannotReplace)
{
    const ProjectFolder folder;
    const QString file = folder.write(u"f"_s, "as it was");
    const auto error = [&] {
        const DiskLimits::FileLimit limit(1000);
        return raisedBy([&] { writeFile(file, QByteArray(100'000, 'x')); });
    }();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), FileNotWritable);
    EXPECT_EQ(readFile(file), "as it was");
}

TEST(ReadFile, GivesTheBytes)
{
    const ProjectFolder folder;
    const QByteArray bytes = QByteArray("\0\r\n\xFF", 4).repeated(50000);
    EXPECT_EQ(readFile(folder.write(u"f"_s, bytes)), bytes);
    EXPECT_EQ(readFile(folder.write(u"e"_s, {})), QByteArray());
}

TEST(ReadFile, SaysWhyNot)
{
    const ProjectFolder folder;
    for (const QString &name : {folder.path(u"missing"_s), folder.path(u"."_s)}) {
        try {
            readFile(name);
            ADD_FAILURE() << name.toStdString() << " was read";
        } catch (const Error &error) {
            EXPECT_EQ(error.Number(), FileNotReadable);
            EXPECT_TRUE(error.Description().startsWith(name + u": "_s));
            EXPECT_GT(error.Description().size(), name.size() + 5);
        }
    }
}
