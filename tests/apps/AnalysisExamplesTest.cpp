// A file is a test: NAME.prog has the problems of NAME.problems, one a line: its place,
// the fault and the word. What differs is written to NAME.problems.new beside the running
// test, to look at.

#include "AnalysisWords.h"
#include "project/TextFile.h"
#include "support/QtPrinters.h"

#include <QtCore/QDir>

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const QDir folder(QStringLiteral(ORVT_ANALYSIS_EXAMPLES));

QString contents(const QString &name)
{
    return QString::fromUtf8(readFile(folder.filePath(name)));
}

QStringList names()
{
    QStringList result = folder.entryList({u"*.prog"_s}, QDir::Files, QDir::Name);
    for (QString &name : result)
        name.chop(5);
    return result;
}

} // namespace

TEST(AnalysisExamples, HaveTheirProblems)
{
    ASSERT_GE(names().size(), 6);
    const AnalysisWords words;
    for (const QString &name : names()) {
        SCOPED_TRACE(name.toStdString());
        const QString expected = contents(name + u".problems"_s);
        const QString found =
            told(analysed(contents(name + u".prog"_s).split(u'\n'), words.words())) + u'\n';
        EXPECT_EQ(found.split(u'\n'), expected.split(u'\n'));
        if (found != expected)
            writeFile(name + u".problems.new"_s, found.toUtf8());
    }
}

TEST(AnalysisExamples, ShowEveryFault)
{
    QString all;
    for (const QString &name : names())
        all += contents(name + u".problems"_s);
    for (int i = 0; i <= static_cast<int>(Fault::NeverRead); ++i) {
        const QString fault = faultName(static_cast<Fault>(i));
        EXPECT_TRUE(fault == u"TooDeep"_s || all.contains(u' ' + fault + u' '))
            << fault.toStdString();
    }
}
