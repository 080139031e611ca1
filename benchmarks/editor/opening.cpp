// A program of 10 MB opened in colours that come late: its first picture beside plain
// text of the same length in the toolkit's own edit, and how long anything stops the
// thread until all is in colours.

#include "editor/long_program.h"
#include "support/program.h"
#include "support/report.h"

#include <ORVTListview/CodeView.h>

#include <QtWidgets/QApplication>

#include <algorithm>

using namespace ORVTListview;
using namespace ORVTListview::bench;
using namespace Qt::StringLiterals;

namespace {

void checkWork()
{
    const QString program = makeProgram(usualProgram).text;
    ShownEditor editor(program);
    editor.timeAtOnce();
    const QString text = editor.widget().CodeText();
    const QString rtf = editor.widget().CodeTextRTF();
    editor.timeFirstPicture();
    check(u"the colours come late"_s, editor.view().isOpening());
    checkEqual(u"the text is there at once"_s, editor.widget().CodeText(), text);
    editor.stopsUntilWhole();
    check(u"the colours have come"_s, !editor.view().isOpening());
    checkEqual(u"they are those of opening at once"_s, editor.widget().CodeTextRTF(), rtf);
}

void measureOpening(const QString &program)
{
    constexpr int repetitions = 5;
    ShownEditor editor(program);
    PlainEdit plain(program);
    const Sides sides = sideBySide(
        repetitions, [&] { return editor.timeFirstPicture(); },
        [&] { return plain.timeFirstPicture(); });
    printRow({.name = u"10 MB opened, to the first picture"_s,
              .ours = medianOf(u"openProgram of codeView"_s, sides.ours),
              .peers = medianOf(u"QPlainTextEdit::setPlainText"_s, sides.peers),
              .bound = 1.2});
    const double beyond = std::max(0., sides.ours.median() - sides.peers.median());
    printRow({.name = u"… beyond plain text"_s,
              .ours = {u"our editor"_s, beyond, beyond, sides.ours.count()},
              .bound = 100 * milliseconds});
    editor.timeFirstPicture();
    printRow({.name = u"… the longest stop until all of it is in colours, at work"_s,
              .ours = slowestOf(u"our editor"_s, editor.stopsUntilWhole()),
              .bound = 50 * milliseconds});
    editor.timeFirstPicture();
    Times whole;
    whole.add(editor.timeUntilWhole());
    printRow({.name = u"… all those stops together"_s, .ours = medianOf(u"our editor"_s, whole)});
    printRow({.name = u"… in one go"_s,
              .ours = medianOf(u"openProgram of the control"_s,
                               repeated(1, [&] { return editor.timeAtOnce(); }))});
}

void measure()
{
    const QString program = makeProgram(largeProgram).text;
    measureOpening(program);
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return runBenchmark(argc, argv, checkWork, measure);
}
