// A file is a test: NAME.prog coloured with the arguments of NAME.options (one a
// line) gives NAME.rtf, by whatever way the program comes in. Without a program
// the arguments alone do. What differs is written to NAME.rtf.new beside the
// running test, to look at.

#include "ColourTool.h"
#include "support/QtPrinters.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QDir folder(QStringLiteral(ORVT_COLOUR_EXAMPLES));

QByteArray contents(const QString &name)
{
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

QStringList names()
{
    QStringList result = folder.entryList({u"*.rtf"_s}, QDir::Files, QDir::Name);
    for (QString &name : result)
        name.chop(4);
    return result;
}

QStringList options(const QString &name)
{
    if (!folder.exists(name + u".options"_s))
        return {};
    return QString::fromUtf8(contents(name + u".options"_s)).split(u'\n', Qt::SkipEmptyParts);
}

void expectResult(const ToolRun &run, const QString &name)
{
    const QByteArray expected = contents(name + u".rtf"_s);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, QByteArray());
    EXPECT_EQ(run.out, expected);
    if (run.out == expected)
        return;
    QFile file(name + u".rtf.new"_s);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(run.out);
}

QByteArray withLineEnds(QByteArray program, const QByteArray &end)
{
    return program.replace("\r\n", "\n").replace('\r', '\n').replace("\n", end);
}

} // namespace

TEST(ColourExamples, FromAFile)
{
    ASSERT_GE(names().size(), 10);
    for (const QString &name : names()) {
        SCOPED_TRACE(name.toStdString());
        QStringList arguments = options(name);
        if (folder.exists(name + u".prog"_s))
            arguments.append(name + u".prog"_s);
        expectResult(runColourTool(arguments), name);
    }
}

TEST(ColourExamples, FromStandardInputWithEveryLineEnd)
{
    for (const QString &name : names()) {
        if (!folder.exists(name + u".prog"_s))
            continue;
        SCOPED_TRACE(name.toStdString());
        const QByteArray program = contents(name + u".prog"_s);
        for (const QByteArray &end : {"\n"_ba, "\r\n"_ba, "\r"_ba})
            expectResult(runColourTool(options(name), withLineEnds(program, end)), name);
        expectResult(runColourTool(options(name) + QStringList{u"-"_s}, program), name);
        expectResult(runColourTool(options(name), "\xEF\xBB\xBF" + program), name);
    }
}

TEST(ColourExamples, FromAFileWithCrLf)
{
    const QTemporaryDir temporary;
    const QString path = temporary.filePath(u"program"_s);
    for (const QString &name : {u"worked_example"_s, u"tabs_and_blanks"_s}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(withLineEnds(contents(name + u".prog"_s), "\r\n"));
        file.close();
        expectResult(runColourTool(options(name) + QStringList{path}), name);
    }
}

TEST(ColourExamples, ShowEveryColourThatTheBodyUses)
{
    QByteArray all;
    for (const QString &name : names())
        all += contents(name + u".rtf"_s);
    for (const int colour : {0, 2, 3, 4, 5, 6, 7, 8})
        EXPECT_TRUE(all.contains("\\cf" + QByteArray::number(colour) + ' ')) << colour;
    EXPECT_FALSE(all.contains("\\cf1 ")); // the background is no word's colour
}

TEST(ColourExamples, AreSevenBitWithCrLfAndEndWithTheDocument)
{
    for (const QString &name : names()) {
        SCOPED_TRACE(name.toStdString());
        const QByteArray rtf = contents(name + u".rtf"_s);
        EXPECT_TRUE(rtf.endsWith('}'));
        EXPECT_EQ(rtf.count('\n'), rtf.count("\r\n"));
        EXPECT_EQ(rtf.count('\r'), rtf.count("\r\n"));
        EXPECT_TRUE(std::all_of(rtf.cbegin(), rtf.cend(), [](char c) { return c > 0; }));
    }
}
