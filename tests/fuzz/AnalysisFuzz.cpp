// Any program: each line is read to its end, its problems lie within it, and a program that
// changes is told of as one that is read anew.

#include "fuzz/FuzzBytes.h"

#include "apps/AnalysisWords.h"
#include "project/analysis/LineParser.h"

#include <algorithm>

using namespace ORVTListview;
using namespace ORVTListview::Fuzzing;

namespace {

void checkWithin(const TextPiece &place, qsizetype length, const char *promise)
{
    demand(place.start >= 0 && place.length > 0 && place.end() <= length, promise);
}

void checkLine(const QString &line, const ProgramWords &words)
{
    const ParsedLine parsed = parseLine(line, words);
    qint32 at = 0;
    for (const ProgramToken &token : parsed.tokens) {
        checkWithin(token.place, line.size(), "a word lies within its line");
        demand(token.place.start >= at, "words follow each other");
        at = token.place.end();
    }
    for (const LineProblem &problem : parsed.problems)
        checkWithin(problem.place, line.size(), "a problem lies within its line");
    qsizetype end = 0;
    for (const LineStatement &statement : parsed.statements) {
        demand(statement.first >= end && statement.end > statement.first &&
                   statement.end <= parsed.tokens.size(),
               "statements follow each other");
        end = statement.end;
    }
    for (const qsizetype written : parsed.written)
        demand(written < parsed.tokens.size(), "what is written is a word of the line");
}

QStringList linesOf(FuzzBytes &bytes)
{
    return bytes.text().replace(u'\r', u' ').split(u'\n');
}

void checkEdits(FuzzBytes &bytes, const ProgramWords &words)
{
    QStringList lines;
    ProgramAnalysis edited([&lines](qint32 line) { return lines[line]; });
    edited.setWords(words);
    edited.reset(0);
    while (!bytes.isEmpty()) {
        const qint32 first = bytes.below(static_cast<int>(lines.size()) + 1);
        const qint32 removed = bytes.below(static_cast<int>(lines.size()) - first + 1);
        const QStringList added = linesOf(bytes);
        lines = lines.first(first) + added + lines.sliced(first + removed);
        edited.replaceLines(first, removed, static_cast<qint32>(added.size()));
        edited.work(bytes.below(20));
    }
    edited.finish();
    demand(told(edited) == told(analysed(lines, words)), "a change is as good as a new program");
    for (const QString &line : std::as_const(lines))
        checkLine(line, words);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const AnalysisWords words;
    static const ProgramWords known = words.words();
    FuzzBytes bytes(data, size);
    checkEdits(bytes, known);
    return 0;
}
