// What the tool says and how it ends when it is not given a good program.

#include "ColourTool.h"
#include "support/QtPrinters.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString sample = QStringLiteral(ORVT_SAMPLES_DIR "/air-handling-unit/air-handling-unit.json");

// One line on standard error, nothing on standard output.
void expectFailure(const ToolRun &run, int status, const QByteArray &line)
{
    EXPECT_EQ(run.status, status);
    EXPECT_EQ(run.out, QByteArray());
    EXPECT_EQ(run.err, "orvt-colour: " + line + '\n');
}

QString write(const QTemporaryDir &folder, const QString &name, const QByteArray &bytes)
{
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes), bytes.size());
    return file.fileName();
}

QStringList longOptions(const QString &text)
{
    QStringList found;
    const QRegularExpression option(u"--[a-z]+"_s);
    for (auto it = option.globalMatch(text); it.hasNext();)
        found.append(it.next().captured());
    found.removeDuplicates();
    found.sort();
    return found;
}

} // namespace

TEST(ColourCommandLine, UnknownAndIncompleteOptions)
{
    expectFailure(runColourTool({u"--bogus"_s}), 2, "Unknown option 'bogus' (see --help)");
    expectFailure(runColourTool({u"--bogus"_s, u"--other"_s, u"--help"_s}), 2,
                  "Unknown options: bogus, other (see --help)");
    expectFailure(runColourTool({u"-x"_s}), 2, "Unknown option 'x' (see --help)");
    expectFailure(runColourTool({u"--input"_s}), 2, "Missing value after '--input' (see --help)");
    expectFailure(runColourTool({u"--sqrt=1"_s}), 2,
                  "Unexpected value after '--sqrt' (see --help)");
    expectFailure(runColourTool({u"a"_s, u"b"_s}), 2, "only one PROGRAM can be given (see --help)");
    expectFailure(runColourTool({u"--project"_s, u"a"_s, u"--project"_s, u"b"_s}), 2,
                  "only one --project can be given (see --help)");
}

TEST(ColourCommandLine, EmptyNames)
{
    for (const QString &kind :
         {u"constant"_s, u"variable"_s, u"input"_s, u"output"_s, u"nvi"_s, u"indexed"_s})
        expectFailure(runColourTool({u"--"_s + kind, u" "_s}), 2,
                      "--" + kind.toUtf8() + " needs a name (see --help)");
    expectFailure(runColourTool({u""_s}), 2, "PROGRAM needs a file name (see --help)");
    expectFailure(runColourTool({u"--project"_s, u""_s}), 2,
                  "--project needs a file name (see --help)");
}

TEST(ColourCommandLine, ANameGivenTwice)
{
    expectFailure(runColourTool({u"--input"_s, u"Temp1"_s, u"--input"_s, u"TEMP1"_s}), 2,
                  "\"TEMP1\" is twice among the inputs (see --help)");
    expectFailure(runColourTool({u"--project"_s, sample, u"--output"_s, u"coolingvalve"_s}), 2,
                  "\"coolingvalve\" is twice among the outputs (see --help)");
}

TEST(ColourCommandLine, FilesThatCannotBeRead)
{
    expectFailure(runColourTool({u"missing"_s}), 2, "missing: No such file or directory");
    expectFailure(runColourTool({u"."_s}), 2, ".: file to open is a directory");
    expectFailure(runColourTool({u"--project"_s, u"missing"_s}), 2,
                  "missing: No such file or directory");
    expectFailure(runColourTool({u"two\nlines\x1b"_s}), 2, "two?lines?: No such file or directory");
}

TEST(ColourCommandLine, StandardInputThatCannotBeRead)
{
    expectFailure(runInShell(u"exec \"$TOOL\" <&-"_s), 2, "standard input: Bad file descriptor");
    expectFailure(runInShell(u"exec \"$TOOL\" < ."_s), 2, "standard input: Is a directory");
}

TEST(ColourCommandLine, StandardOutputThatCannotBeWritten)
{
    if (!QFile::exists(u"/dev/full"_s))
        GTEST_SKIP() << "no device that is always full";
    const QByteArray line = "standard output cannot be written";
    expectFailure(runInShell(u"echo IF | \"$TOOL\" > /dev/full"_s), 2, line);
    expectFailure(runInShell(u"\"$TOOL\" --help > /dev/full"_s), 2, line);
}

TEST(ColourCommandLine, InvalidUtf8)
{
    const QTemporaryDir folder;
    const QString path = write(folder, u"program"_s, "IF\r\nREM \xE9t\xE9\r\n");
    expectFailure(runColourTool({path}), 1, path.toUtf8() + ": line 2 is not valid UTF-8");
    const QString marked = write(folder, u"x%2y%1.txt"_s, "\xE9");
    expectFailure(runColourTool({marked}), 1, marked.toUtf8() + ": line 1 is not valid UTF-8");
    expectFailure(runColourTool({}, "\xC3"), 1, "standard input: line 1 is not valid UTF-8");
}

TEST(ColourCommandLine, ProjectsWithAnError)
{
    const QTemporaryDir folder;
    const QString json = write(folder, u"p.json"_s, "{\"format\": 1, \"name\": 7}");
    expectFailure(runColourTool({u"--project"_s, json}), 1,
                  json.toUtf8() + ": name: a text is expected");
    write(folder, u"q.json"_s, R"({"format": 1, "name": "Q", "program": "none"})");
    expectFailure(runColourTool({u"--project"_s, folder.filePath(u"q.json"_s)}), 2,
                  folder.filePath(u"none"_s).toUtf8() + ": No such file or directory");
}

TEST(ColourCommandLine, SaysNothingAboutTheLocale)
{
    const ToolRun run = runInShell(u"printf 'REM \\303\\251' | LC_ALL=C LANG=C \"$TOOL\""_s);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, QByteArray());
    EXPECT_TRUE(run.out.endsWith("\\cf2 REM \\u233?}"));
}

TEST(ColourCommandLine, AProjectGivesNamesToAnotherProgram)
{
    const ToolRun run = runColourTool({u"--project"_s, sample, u"--constant"_s, u"Extra"_s, u"-"_s},
                                      "supplytemp = sqrt ( extra ) + tmr15");
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(run.out.endsWith(" \\cf4 SupplyTemp \\cf6 = \\cf6 SQRT \\cf0 ( "
                                 "\\cf3 Extra\\cf0  ) \\cf6 + \\cf6 Tmr15}"))
        << run.out.toStdString();
}

TEST(ColourCommandLine, APathAfterTwoDashesIsAProgram)
{
    expectFailure(runColourTool({u"--"_s, u"--sqrt"_s}), 2, "--sqrt: No such file or directory");
}

TEST(ColourCommandLine, VersionAndHelp)
{
    for (const QString &option : {u"--version"_s, u"-v"_s}) {
        const ToolRun run = runColourTool({option});
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.out, QByteArray("orvt-colour " ORVT_VERSION "\n"));
        EXPECT_EQ(run.err, QByteArray());
    }
    const ToolRun help = runColourTool({u"--help"_s});
    EXPECT_EQ(help.status, 0);
    EXPECT_TRUE(help.out.startsWith("Usage: orvt-colour "));
    EXPECT_EQ(help.err, QByteArray());
    EXPECT_EQ(runColourTool({u"-h"_s}).out, help.out);
    for (const QByteArray &line : help.out.split('\n'))
        EXPECT_LE(line.size(), 80) << line.toStdString();
}

TEST(ColourCommandLine, HelpAndManualNameTheSameOptions)
{
    QFile page(QStringLiteral(ORVT_COLOUR_MANUAL));
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const QString manual = QString::fromUtf8(page.readAll()).replace(u"\\-"_s, u"-"_s);
    const QStringList expected = {u"--constant"_s, u"--help"_s,   u"--indexed"_s, u"--input"_s,
                                  u"--nvi"_s,      u"--output"_s, u"--project"_s, u"--sqrt"_s,
                                  u"--variable"_s, u"--version"_s};
    EXPECT_EQ(longOptions(manual), expected);
    EXPECT_EQ(longOptions(QString::fromUtf8(runColourTool({u"-h"_s}).out)), expected);
}
