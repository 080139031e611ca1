// ColourText itself: what it costs beside a plain copy of its output, and whether
// a character of a large program costs what one of a usual program costs.

#include "support/points.h"
#include "support/program.h"
#include "support/report.h"

#include "editor/rules/colouring/ColourText.h"
#include "editor/rules/colouring/ThreadColouring.h"

using namespace ORVTListview;
using namespace ORVTListview::bench;
using namespace Qt::StringLiterals;

namespace {

// How many colour words of an index the body of a coloured document has.
qsizetype coloured(const QString &rtf, qint32 colour)
{
    return rtf.count(u"\\cf%1 "_s.arg(colour));
}

void checkWork()
{
    Points points;
    points.teachThread();
    const Program program = makeProgram(usualProgram);
    const QString rtf = ColourText(threadColouring(), program.text, QString(), false);
    for (qint32 colour = CommentColour; colour <= NviColour; ++colour)
        checkEqual(u"ColourText gives all words of colour %1 their colour"_s.arg(colour),
                   coloured(rtf, colour), program.words[static_cast<std::size_t>(colour)]);
    const ColouredText direct = colouredText(threadColouring(), program.text, false, {});
    checkEqual(u"the coloured text is the program in its listed spelling"_s, direct.text,
               program.shown);
}

void measureAgainstCopy(const Program &program)
{
    const ColourEngine engine = threadColouring();
    const QString rtf = ColourText(engine, program.text, QString(), false);
    const auto colour = [&] {
        return timed([&] { keep(ColourText(engine, program.text, QString(), false)); });
    };
    const auto copy = [&] { return timed([&] { keep(QString(rtf.constData(), rtf.size())); }); };
    const Sides sides = sideBySide(41, colour, copy);
    printRow({.name = u"ColourText, 1 MB"_s,
              .ours = medianOf(u"ColourText"_s, sides.ours),
              .peers = medianOf(u"one copy of its output"_s, sides.peers),
              .bound = 60});
}

void measureGrowth(const Program &usual)
{
    const ColourEngine engine = threadColouring();
    const Program large = makeProgram(largeProgram);
    const auto colour = [&](const Program &program) {
        return timed([&] { keep(ColourText(engine, program.text, QString(), false)); });
    };
    const Sides sides = sideBySide(
        11, [&] { return colour(large); }, [&] { return colour(usual); });
    printRow({.name = u"ColourText, one character of 10 MB"_s,
              .ours = medianOf(u"of 10 MB"_s, sides.ours, large.text.size()),
              .peers = medianOf(u"of 1 MB"_s, sides.peers, usual.text.size()),
              .bound = 1.2,
              .unit = Unit::TimeEach});
}

void measure()
{
    Points points;
    points.teachThread();
    const Program usual = makeProgram(usualProgram);
    measureAgainstCopy(usual);
    measureGrowth(usual);
}

} // namespace

int main(int argc, char **argv)
{
    return runBenchmark(argc, argv, checkWork, measure);
}
