// Undo and redo in a program of 10 MB: steps that change some lines, and states that differ
// throughout, which are put in as any text is, beside plain text of the same length that
// replaces another one in the toolkit's own edit.

#include "editor/full_view.h"
#include "editor/long_program.h"
#include "support/program.h"
#include "support/report.h"

#include "find/FindDialog.h"
#include "find/fFind.h"
#include <ORVTListview/CodeView.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QPushButton>

#include <algorithm>

using namespace ORVTListview;
using namespace ORVTListview::bench;
using namespace Qt::StringLiterals;

namespace {

const Key undoKey{Qt::Key_Z, Qt::ControlModifier, {}};
const Key redoKey{Qt::Key_Y, Qt::ControlModifier, {}};

constexpr int words = 9;

void typeInTheMiddle(ShownEditor &editor)
{
    editor.box().setSelStart(editor.box().TextLength() / 2);
    for (int i = 0; i < words; ++i)
        editor.type(u"x y "_s);
    editor.waitUntilIdle();
}

Times timeNextSteps(ShownEditor &editor)
{
    Times steps;
    for (int i = 1; i < words; ++i)
        steps.add(editor.timeKey(i % 4 == 3 ? redoKey : undoKey));
    return steps;
}

// The first step back changes brackets throughout the program, which opening leaves as
// they are; those behind it do not, and what is typed from then on has them set off.
void measureUndo(const QString &program)
{
    ShownEditor editor(program);
    editor.open();
    editor.waitUntilIdle();
    typeInTheMiddle(editor);
    editor.timeKey(undoKey);
    const Times behind = editor.stopsUntilWhole();
    const Times steps = timeNextSteps(editor);
    editor.waitUntilIdle();
    editor.rest(); // it looks whether colouring would change anything once more
    typeInTheMiddle(editor);
    const Times later = timeNextSteps(editor);
    printRow(
        {.name =
             u"Behind the first undo after opening 10 MB, the longest stop until what it brought "
             "back is in colours, at work"_s,
         .ours = slowestOf(u"our editor"_s, behind),
         .bound = 50 * milliseconds});
    printRow({.name = u"… the longest of the next steps, to the picture, at work"_s,
              .ours = slowestOf(u"our editor"_s, steps),
              .bound = 50 * milliseconds});
    printRow({.name = u"… and of those after typing on, at work"_s,
              .ours = slowestOf(u"our editor"_s, later),
              .bound = 50 * milliseconds});
}

// With all that is shown beside the text, and programs kept as they are typed.
void measureUndoOfAll(const QString &program)
{
    ShownEditor editor(program);
    showAll(editor.widget(), {.problems = 1000, .bookmarks = 100, .values = 10000});
    editor.open();
    editor.waitUntilIdle();
    Times steps;
    for (const int part : {2, 3, 4}) {
        editor.box().setSelStart(editor.box().TextLength() / part);
        for (int i = 0; i < words; ++i)
            editor.type(u"x y "_s);
        editor.waitUntilIdle();
        for (int i = 1; i < words; ++i)
            steps.add(editor.timeKey(i % 4 == 3 ? redoKey : undoKey));
        editor.waitUntilIdle();
    }
    printRow({.name = u"The longest undo or redo of 10 MB kept as typed, with all of it, at work"_s,
              .ours = slowestOf(u"our editor"_s, steps),
              .bound = 50 * milliseconds});
}

// What is typed near the top and near the end, in one step, which it is in the shared ring.
void measureUndoInFarPlaces(const QString &program)
{
    constexpr int steps = 9;
    ShownEditor editor(program);
    showAll(editor.widget(), {.problems = 1000, .bookmarks = 100, .values = 10000});
    editor.view().setHasOwnUndo(false);
    editor.open();
    editor.waitUntilIdle();
    const qint32 length = editor.box().TextLength();
    Times undone;
    Times redone;
    for (int i = 0; i < steps; ++i) {
        editor.box().setSelStart(length / 50 * (1 + i));
        editor.type(u"x"_s);
        editor.box().setSelStart(length / 50 * (49 - i));
        editor.type(u"y temp "_s);
        editor.waitUntilIdle();
        undone.add(editor.timeKey(undoKey));
        editor.waitUntilIdle();
        undone.add(editor.timeKey(undoKey));
        editor.waitUntilIdle();
        redone.add(editor.timeKey(redoKey));
        editor.waitUntilIdle();
    }
    printRow({.name = u"… of a step in two far places, at work"_s,
              .ours = slowestOf(u"our editor"_s, undone),
              .bound = 50 * milliseconds});
    printRow({.name = u"… brought back, at work"_s,
              .ours = slowestOf(u"our editor"_s, redone),
              .bound = 50 * milliseconds});
}

// On every line, from the find dialog.
void replaceInEveryLine(ShownEditor &editor)
{
    editor.widget().showFind(true);
    fFind &dialog = FindDialog::shared();
    dialog.findChild<QComboBox *>(u"Cbo0"_s)->setEditText(u" = "_s);
    dialog.findChild<QComboBox *>(u"Cbo1"_s)->setEditText(u" := "_s);
    QCoreApplication::processEvents();
    dialog.findChild<QPushButton *>(u"Cmd3"_s)->click();
    dialog.close();
}

// Two steps beside each other may have the same text.
double timeToOtherText(ShownEditor &editor, const Key &key)
{
    constexpr int most = 3;
    const qint32 length = editor.box().TextLength();
    for (int i = 0; i < most; ++i) {
        editor.waitUntilIdle();
        const double time = editor.timeKeyByTheClock(key);
        if (editor.box().TextLength() != length)
            return time;
    }
    qFatal("no step shows another text");
}

void printBesidePlainText(const QString &name, const Sides &sides)
{
    constexpr double most = 1.2;
    constexpr double mostOfAll = 1.35;
    const QString ours = u"our editor"_s;
    const QString peers = u"QPlainTextEdit::setPlainText"_s;
    printRow({.name = name,
              .ours = medianOf(ours, sides.ours),
              .peers = medianOf(peers, sides.peers),
              .bound = most});
    const double beyond = std::max(0., sides.ours.median() - sides.peers.median());
    printRow({.name = u"… beyond plain text"_s,
              .ours = {ours, beyond, beyond, sides.ours.count()},
              .bound = 50 * milliseconds});
    printRow({.name = u"… the slowest"_s,
              .ours = slowestOf(ours, sides.ours),
              .peers = slowestOf(peers, sides.peers),
              .bound = mostOfAll});
}

void measureOtherStates(const QString &program)
{
    constexpr int repetitions = 5;
    ShownEditor editor(program);
    PlainEdit plain(program);
    const auto timePlain = [&] { return plain.timeOtherText(); };
    const auto openAnd = [&](const std::function<void()> &change) {
        editor.open();
        editor.waitUntilIdle();
        change();
    };
    printBesidePlainText(u"The first undo after opening 10 MB, to the picture"_s,
                         sideBySide(
                             repetitions,
                             [&] {
                                 openAnd([&] { typeInTheMiddle(editor); });
                                 return timeToOtherText(editor, undoKey);
                             },
                             timePlain));
    const auto timeThereAndBack = [&](const Key &key, const Key &back) {
        const double time = timeToOtherText(editor, key);
        timeToOtherText(editor, back);
        return time;
    };
    for (const bool keepsText : {false, true}) {
        editor.view().setKeepsText(keepsText);
        const QString how = keepsText ? u", kept as typed"_s : QString();
        openAnd([&] { replaceInEveryLine(editor); });
        printBesidePlainText(
            u"The undo of Replace All in every line of 10 MB"_s + how,
            sideBySide(
                repetitions, [&] { return timeThereAndBack(undoKey, redoKey); }, timePlain));
        timeToOtherText(editor, undoKey);
        printBesidePlainText(
            u"… and its redo"_s + how,
            sideBySide(
                repetitions, [&] { return timeThereAndBack(redoKey, undoKey); }, timePlain));
    }
}

void checkWork()
{
    const QString program = makeProgram(usualProgram).text;
    ShownEditor editor(program);
    editor.view().setKeepsText(true);
    editor.open();
    editor.waitUntilIdle();
    const QString opened = editor.widget().CodeText();
    replaceInEveryLine(editor);
    QString replaced = opened;
    replaced.replace(u" = "_s, u" := "_s);
    checkEqual(u"every line is another one"_s, editor.widget().CodeText(), replaced);
    timeToOtherText(editor, undoKey);
    checkEqual(u"undo brings all of it back"_s, editor.widget().CodeText(), opened);
    timeToOtherText(editor, redoKey);
    checkEqual(u"redo does it again"_s, editor.widget().CodeText(), replaced);
}

void measure()
{
    const QString program = makeProgram(largeProgram).text;
    measureUndo(program);
    measureUndoOfAll(program);
    measureUndoInFarPlaces(program);
    measureOtherStates(program);
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return runBenchmark(argc, argv, checkWork, measure);
}
