#include "AnalysisWords.h"
#include "project/PointReferences.h"
#include "project/Project.h"
#include "support/QtPrinters.h"
#include "support/RandomText.h"
#include "support/Shrunk.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// A program that changes, and what is told of it.
struct EditedProgram
{
    explicit EditedProgram(const ProgramWords &words)
    {
        analysis.setWords(words);
        analysis.reset(static_cast<qint32>(lines.size()));
    }

    void replace(qsizetype first, qsizetype removed, const QStringList &added)
    {
        lines.remove(first, removed);
        for (qsizetype i = 0; i < added.size(); ++i)
            lines.insert(first + i, added[i]);
        analysis.replaceLines(static_cast<qint32>(first), static_cast<qint32>(removed),
                              static_cast<qint32>(added.size()));
    }

    QStringList lines{QString()};
    ProgramAnalysis analysis{[this](qint32 line) { return lines[line]; }};
};

struct Edit
{
    int first = 0;
    int removed = 0;
    QStringList added;
    int work = 0; // in lines, behind it
};

QString randomLine(RandomText &random)
{
    static const QStringList words{u"IF"_s,       u"ELSE"_s,     u"ENDIF"_s, u"Fan1"_s,  u"="_s,
                                   u"Temp1"_s,    u"Count"_s,    u"("_s,     u")"_s,     u"LIMIT"_s,
                                   u","_s,        u"3"_s,        u"tmep"_s,  u"+"_s,     u"-2"_s,
                                   u"Occupied"_s, u"Count = "_s, u"x=1"_s,   u"CLEAR"_s, u"REM"_s,
                                   u"=="_s,       u"NetTemp"_s};
    QStringList line;
    for (int i = random.number(8); i > 0; --i)
        line.append(random.number(20) == 0 ? random.text(4).remove(u'\r').remove(u'\n')
                                           : words[random.number(static_cast<int>(words.size()))]);
    return line.join(u' ');
}

Edit randomEdit(RandomText &random)
{
    Edit edit{random.number(40), random.number(4), {}, random.number(3) * random.number(40)};
    for (int i = random.number(random.number(30) == 0 ? 3000 : 5); i > 0; --i)
        edit.added.append(randomLine(random));
    return edit;
}

// Whether a program that was edited so is told of as one that is read anew; what differs.
QString difference(const std::vector<Edit> &edits, const ProgramWords &words)
{
    EditedProgram program(words);
    for (const Edit &edit : edits) {
        const qsizetype first = std::min<qsizetype>(edit.first, program.lines.size());
        const qsizetype removed = std::min<qsizetype>(edit.removed, program.lines.size() - first);
        program.replace(first, removed, edit.added);
        program.analysis.work(edit.work);
    }
    program.analysis.finish();
    const QString anew = told(analysed(program.lines, words));
    const QString found = told(program.analysis);
    return found == anew ? QString() : found + u"\nbut anew\n"_s + anew;
}

std::string described(const std::vector<Edit> &edits)
{
    std::string text;
    for (const Edit &edit : edits)
        text += "at " + std::to_string(edit.first) + " for " + std::to_string(edit.removed) + ": " +
                edit.added.join(u'|').toStdString() + '\n';
    return text;
}

} // namespace

TEST(ProgramAnalysis, FindsNothingInAnEmptyProgram)
{
    const AnalysisWords words;
    EXPECT_EQ(told(analysed({}, words.words())), QString());
    EXPECT_EQ(told(analysed({QString()}, words.words())), QString());
    EXPECT_EQ(told(analysed({u" \t "_s, QString(), u"REM"_s}, words.words())), QString());
}

TEST(ProgramAnalysis, FindsTheSameHoweverTheProgramCameToBe)
{
    const AnalysisWords words;
    const ProgramWords known = words.words();
    RandomText random;
    for (int i = randomSteps(60); i > 0; --i) {
        std::vector<Edit> edits;
        for (int step = random.number(30); step >= 0; --step)
            edits.push_back(randomEdit(random));
        if (difference(edits, known).isEmpty())
            continue;
        edits = shrunk(edits, [&](const std::vector<Edit> &fewer) {
            return !difference(fewer, known).isEmpty();
        });
        FAIL() << random.seed() << '\n'
               << described(edits) << difference(edits, known).toStdString();
    }
}

TEST(ProgramAnalysis, ReadsOnlyTheLineThatHasChanged)
{
    const AnalysisWords words;
    EditedProgram program(words.words());
    program.replace(0, 1, QStringList(5000, u"Fan1 = Temp1"_s));
    program.analysis.finish();
    const quint64 before = program.analysis.linesRead();
    program.replace(2500, 1, {u"Fan1 = tmep"_s});
    program.analysis.finish();
    EXPECT_EQ(program.analysis.linesRead() - before, 1U);
    EXPECT_EQ(told(program.analysis), u"2501:7+4 UnknownName tmep"_s);
    program.replace(10, 1, {QString(), QString()});
    program.analysis.finish();
    EXPECT_EQ(program.analysis.linesRead() - before, 3U);
    EXPECT_EQ(told(program.analysis), u"2502:7+4 UnknownName tmep"_s);
}

TEST(ProgramAnalysis, WorksInSlices)
{
    const AnalysisWords words;
    EditedProgram program(words.words());
    program.replace(0, 1, QStringList(100, u"Temp1"_s));
    EXPECT_FALSE(program.analysis.work(60));
    EXPECT_EQ(program.analysis.linesRead(), 60U);
    EXPECT_FALSE(program.analysis.work(60)); // 40 to read, 20 of 100 to look at
    EXPECT_FALSE(program.analysis.work(60));
    EXPECT_TRUE(program.analysis.problems().isEmpty());
    EXPECT_TRUE(program.analysis.work(60));
    EXPECT_EQ(program.analysis.problems().size(), 100);
}

TEST(ProgramAnalysis, KeepsWhatItFoundUntilItHasFoundAnew)
{
    const AnalysisWords words;
    EditedProgram program(words.words());
    program.replace(0, 1, {u"Temp1"_s});
    program.analysis.finish();
    program.replace(0, 1, {QString()});
    EXPECT_FALSE(program.analysis.isDone());
    EXPECT_EQ(told(program.analysis), u"1:0+5 NoStatement Temp1"_s);
    program.analysis.finish();
    EXPECT_TRUE(program.analysis.isDone());
    EXPECT_EQ(told(program.analysis), QString());
}

TEST(ProgramAnalysis, CountsUsesUpAndDown)
{
    const AnalysisWords words;
    EditedProgram program(words.words());
    program.replace(0, 1, {u"Count = 3"_s, u"Fan1 = Count"_s});
    program.analysis.finish();
    EXPECT_EQ(told(program.analysis), QString());
    program.replace(1, 1, {});
    program.analysis.finish();
    EXPECT_EQ(told(program.analysis), u"1:0+5 NeverRead Count"_s);
    program.replace(0, 1, {u"Fan1 = count"_s, u"Fan2 = Count"_s});
    program.analysis.finish();
    EXPECT_EQ(told(program.analysis), u"1:7+5 NeverWritten count"_s);
    program.analysis.setOtherUses({.read = {}, .written = {u"count"_s}});
    program.analysis.finish();
    EXPECT_EQ(told(program.analysis), QString());
}

TEST(ProgramAnalysis, KnowsEveryUseOfAName)
{
    const AnalysisWords words;
    EditedProgram program(words.words());
    program.replace(0, 1, {u"REM Count"_s, u"Count = COUNT + 1"_s, QString(), u"IF count"_s});
    program.analysis.finish();
    const QList<UsePlace> expected = {{2, {0, 5}, true}, {2, {8, 5}, false}, {4, {3, 5}, false}};
    EXPECT_EQ(program.analysis.usesOf(u"count"), expected);
    EXPECT_TRUE(program.analysis.usesOf(u"Fan1").isEmpty());
    EXPECT_TRUE(program.analysis.usesOf(u"nobody").isEmpty());
}

TEST(ProgramAnalysis, OtherWordsMakeOtherProblems)
{
    AnalysisWords words;
    EditedProgram program(words.words());
    program.replace(0, 1, {u"tmep = 3"_s, u"Fan1 = tmep"_s});
    program.analysis.finish();
    EXPECT_EQ(program.analysis.problems().size(), 2);
    words.variables.Add(u"Tmep"_s);
    program.analysis.setWords(words.words());
    program.analysis.finish();
    EXPECT_EQ(told(program.analysis), QString());
}

TEST(ProgramAnalysis, ListsSoManyProblemsAndCountsTheRest)
{
    const AnalysisWords words;
    const ProgramAnalysis analysis = analysed(QStringList(5000, u"tmep"_s), words.words());
    EXPECT_EQ(analysis.problems().size(), ProgramAnalysis::mostProblems);
    EXPECT_EQ(analysis.problemCount(), 5000);
    EXPECT_EQ(analysed(QStringList(5000, u"IF Temp1"_s), words.words()).problemCount(), 5000);
}

TEST(ProgramAnalysis, TakesRangesBeyondTheProgram)
{
    const AnalysisWords words;
    EditedProgram program(words.words());
    program.lines = {QString(), QString()};
    program.analysis.replaceLines(7, 4, 1);
    program.analysis.finish();
    EXPECT_EQ(program.analysis.lineCount(), 2);
    program.lines = {QString()};
    program.analysis.replaceLines(0, 99, 1);
    program.analysis.finish();
    EXPECT_EQ(program.analysis.lineCount(), 1);
    program.lines = {};
    program.analysis.replaceLines(-3, 1, -3);
    program.analysis.finish();
    EXPECT_EQ(program.analysis.lineCount(), 0);
}

TEST(ProgramAnalysis, EndsWithLinesOfAnyLength)
{
    const AnalysisWords words;
    const qsizetype many = 100'000;
    for (const QString &piece :
         {u"("_s, u" ( "_s, u")"_s, u"- "_s, u"IF "_s, u"LIMIT("_s, u"=,"_s, u"SQRT ( "_s,
          u"CLEAR "_s, u"ENDIF "_s, u"a= "_s, u"Fan1 = 3 "_s}) {
        SCOPED_TRACE(piece.toStdString());
        const QString line = u"Fan1 = "_s + piece.repeated(many);
        EXPECT_GT(analysed({line}, words.words()).problemCount(), piece.startsWith(u'F') ? -1 : 0);
    }
    QString unknown;
    for (qsizetype i = 0; i < many; ++i)
        unknown += u" x"_s + QString::number(i);
    EXPECT_EQ(analysed({unknown}, words.words()).problemCount(), many);
}

TEST(ProgramAnalysis, FindsWhatIsTrueOfTheSample)
{
    Project project(QStringLiteral(ORVT_SAMPLES_DIR "/air-handling-unit/air-handling-unit.json"));
    AnalysisWords words;
    words.vocabulary.setCollections({.variables = project.points(dsVariable),
                                     .constants = project.points(dsConst),
                                     .inputs = project.points(dsInput),
                                     .outputs = project.points(dsOutput),
                                     .nvis = project.points(dsNvi)});
    words.vocabulary.setIndexedNames(project.indexedNames());
    const QStringList lines = project.program().split(u"\r\n"_s);
    ProgramAnalysis analysis([&](qint32 line) { return lines[line]; });
    analysis.setWords(words.words());
    analysis.setOtherUses(otherUsesOf(project));
    analysis.reset(static_cast<qint32>(lines.size()));
    analysis.finish();
    QStringList found;
    for (const ProgramProblem &problem : analysis.problems())
        found.append(faultName(problem.found.fault) + u' ' + problem.found.word);
    // A point that is to come, and one that is there to be looked at.
    EXPECT_EQ(found, (QStringList{u"UnknownName DuctHumidity"_s, u"NeverRead MeanAirTemp"_s}));
}
