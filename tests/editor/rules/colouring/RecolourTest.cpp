// The same text by several routes gives one answer.

#include "base/TextRules.h"
#include "editor/rules/colouring/ColouringFixture.h"
#include "rtf/RtfReader.h"

#include "support/RandomSeed.h"

#include <QtCore/QRegularExpression>

#include <gtest/gtest.h>

#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// What a box shows of a document: its text, and where each colour begins.
class Shown final : public RtfSink
{
public:
    void text(QStringView text, const RtfFormat &format) override { append(text, format.colour); }
    void lineEnd() override { append(u"\r\n", m_colour); }

    ColouredText result;

private:
    void append(QStringView text, qint32 colour)
    {
        m_colour = colour;
        result.text.append(text);
        if (!result.runs.isEmpty() && result.runs.last().colour == colour)
            result.runs.last().length += text.size();
        else
            result.runs.append({text.size(), colour});
    }

    qint32 m_colour = ColouredText::automatic;
};

ColouredText shown(const QString &rtf)
{
    Shown sink;
    readRtf(rtf, sink);
    return sink.result;
}

// Program-like text without the characters that RTF keeps for itself, and
// without a tab directly behind anything but a blank or a tab.
QString randomProgram(std::mt19937 &random)
{
    static const QStringList pieces{
        u"if"_s,     u"IF"_s,     u"temp1"_s,      u"Fan1"_s, u"nettemp"_s, u"limit1"_s,
        u"x"_s,      u"12.5"_s,   u">="_s,         u"("_s,    u")"_s,       u"(("_s,
        u"))"_s,     u"f("_s,     u"rem"_s,        u"REM "_s, u"day"_s,     u"_"_s,
        u" "_s,      u"  "_s,     u"   "_s,        u"\t"_s,   u"\r\n"_s,    u"\r\n\r\n"_s,
        u"\u00e9"_s, u"\u00a0"_s, u"\U0001F321"_s, u"|"_s,    u"#"_s,       u"'"_s};
    QString text;
    for (unsigned i = 0; i < random() % 30; ++i) {
        const QString &piece = pieces[static_cast<qsizetype>(random() % pieces.size())];
        const bool afterBlank = text.isEmpty() || u" \t\n"_s.contains(text.back());
        if (piece != u"\t"_s || afterBlank)
            text += piece;
    }
    return text;
}

// "REM)" is no comment, but the blank set before the bracket makes it one.
bool becomesComment(const QString &program)
{
    static const QRegularExpression bracketAfterRem(u"^[ \\t]*REM\\)"_s,
                                                    QRegularExpression::CaseInsensitiveOption |
                                                        QRegularExpression::MultilineOption);
    return program.contains(bracketAfterRem);
}

} // namespace

TEST(Recolour, WhatTheBoxShowsGivesTheSameDocument)
{
    const unsigned seed = randomSeed(4711);
    std::mt19937 random(seed);
    Colouring colouring;
    const QString head = BuildRtfHeader(QString(), defaultColours(), colouring.messages).Header;
    const int rounds = randomSteps(10'000);
    for (int round = 0; round < rounds; ++round) {
        const QString program = randomProgram(random);
        if (becomesComment(program))
            continue;
        const QString once = ColourText(colouring.engine(), program, head, false);
        const QString twice = ColourText(colouring.engine(), shown(once).text, head, false);
        ASSERT_EQ(once, twice) << "seed " << seed << " round " << round << ": "
                               << program.toStdString();
    }
}

TEST(Recolour, ABracketDirectlyAfterRemMakesACommentOfIt)
{
    Colouring colouring;
    EXPECT_EQ(colouring.text(u"rem)"_s), u"\\cf0 rem\\cf0  )}"_s);
    EXPECT_EQ(colouring.text(u"rem )"_s), u"\\cf2 rem )}"_s);
}

TEST(Recolour, RunsAndRtfShowTheSame)
{
    const unsigned seed = randomSeed(4712);
    std::mt19937 random(seed);
    Colouring colouring;
    const QString head = BuildRtfHeader(QString(), defaultColours(), colouring.messages).Header;
    const int rounds = randomSteps(10'000);
    for (int round = 0; round < rounds; ++round) {
        const QString program = randomProgram(random);
        const ColouredText fromRtf = shown(ColourText(colouring.engine(), program, head, false));
        const ColouredText runs =
            colouredText(colouring.engine(), program, false, defaultColours());
        ASSERT_EQ(runs.text, fromRtf.text) << "seed " << seed << " round " << round;
        ASSERT_EQ(runs.runs, fromRtf.runs)
            << "seed " << seed << " round " << round << ": " << program.toStdString();
    }
}

TEST(Recolour, WholeTextAndLineByLineAgree)
{
    const unsigned seed = randomSeed(4713);
    std::mt19937 random(seed);
    Colouring colouring;
    const int rounds = randomSteps(10'000);
    for (int round = 0; round < rounds; ++round) {
        const QString program = randomProgram(random);
        QStringList bodies;
        if (!program.isEmpty()) {
            for (const QString &line : program.split(u"\r\n"_s))
                bodies << colouring.text(line).chopped(1);
        }
        ASSERT_EQ(colouring.text(program), bodies.join(u"\r\n\\par "_s) + u'}')
            << "seed " << seed << " round " << round;
    }
}

TEST(Recolour, LfAndCrLfAgreeOnceLineEndsAreCrLf)
{
    const unsigned seed = randomSeed(4714);
    std::mt19937 random(seed);
    Colouring colouring;
    const int rounds = randomSteps(10'000);
    for (int round = 0; round < rounds; ++round) {
        const QString program = randomProgram(random);
        QString withLf = program;
        withLf.replace(u"\r\n"_s, u"\n"_s);
        QString withCr = program;
        withCr.replace(u"\r\n"_s, u"\r"_s);
        ASSERT_EQ(colouring.text(withCrLf(withLf)), colouring.text(program));
        ASSERT_EQ(colouring.text(withCrLf(withCr)), colouring.text(program));
    }
}

TEST(Recolour, RunsKeepWhatRtfCannot)
{
    Colouring colouring;
    const ColouredText runs =
        colouredText(colouring.engine(), u"a\\b {if} if", false, defaultColours());
    EXPECT_EQ(runs.text, u"a\\b {if} IF"_s);
}

TEST(ColourRuns, TellWhereInTheLineTheyStand)
{
    struct Runs final : ColourSink
    {
        void run(const ColourRun &run) override
        {
            log << u"%1+%2:%3"_s.arg(run.offset).arg(run.length).arg(run.shown);
        }
        void blank() override {}
        void tab() override {}
        void lineEnd() override {}
        QStringList log;
    };
    Colouring colouring;
    Runs runs;
    colouring.engine().colourLine(u"\tif ((temp1  ) )", runs);
    EXPECT_EQ(runs.log, QStringList({u"1+2:IF"_s, u"4+1:( "_s, u"5+1:( "_s, u"6+5:Temp1"_s,
                                     u"13+1: )"_s, u"15+1: )"_s}));
}
