// A program of 10 MB opened in colours that come late: its first picture beside plain
// text of the same length in the toolkit's own edit, and how long anything stops the
// thread until all is in colours; then undo and redo in it.

#include "editor/code_editor.h"
#include "editor/full_view.h"
#include "support/keys.h"
#include "support/painting.h"
#include "support/program.h"
#include "support/report.h"

#include "base/ThreadState.h"
#include "editor/rules/undo/UndoStore.h"
#include "widgets/box/LateColours.h"
#include <ORVTListview/CodeView.h>

#include <QtCore/QDeadlineTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPlainTextEdit>

#include <algorithm>

using namespace ORVTListview;
using namespace ORVTListview::bench;
using namespace Qt::StringLiterals;

namespace {

const Key undoKey{Qt::Key_Z, Qt::ControlModifier, {}};
const Key redoKey{Qt::Key_Y, Qt::ControlModifier, {}};

class ShownEditor
{
public:
    explicit ShownEditor(const QString &program)
        : m_program(program)
        , m_face(QString())
        , m_watch(*box().viewport())
    {
        showForBenchmark(m_face.widget());
        box().setFocus();
    }

    double timeFirstPicture()
    {
        box().setText(QString());
        return timed([this] { open(); });
    }

    // The text is in the box already when this begins.
    Times stopsUntilWhole()
    {
        Times stops;
        while (LateColours::of(*box().document()).areWaiting())
            stops.add(timedAtWork([] { QCoreApplication::processEvents(); }));
        return stops;
    }

    double timeUntilWhole()
    {
        return timedAtWork([this] { stopsUntilWhole(); });
    }

    double timeAtOnce()
    {
        box().setText(QString());
        return timed([this] { m_face.widget().openProgram(m_program); });
    }

    double timeKey(const Key &key)
    {
        m_watch.forget();
        return timedAtWork([&] {
            sendKey(box(), key);
            m_watch.finishPainting();
        });
    }

    void type(const QString &text)
    {
        for (const QChar c : text)
            sendKey(box(), keyOf(c));
    }

    void open()
    {
        m_watch.forget();
        view().openProgram(m_program);
        if (!m_watch.finishPainting())
            qFatal("the program was not painted");
    }

    void waitUntilIdle()
    {
        stopsUntilWhole();
        m_face.waitUntilIdle();
    }

    void rest()
    {
        constexpr int longest = 3000; // milliseconds
        const QDeadlineTimer end(longest);
        while (!end.hasExpired())
            QCoreApplication::processEvents();
    }

    CodeView &view() { return *m_face.widget().codeView(); }
    RichTextBox &box() { return m_face.box(); }
    ORVListView &widget() { return m_face.widget(); }

private:
    QString m_program;
    CodeEditorFace m_face;
    PaintWatch m_watch;
};

class PlainEdit
{
public:
    explicit PlainEdit(const QString &program)
        : m_program(program)
        , m_watch(*m_edit.viewport())
    {
        m_edit.setFont(QFont(fontName(), fontSize));
        m_edit.setLineWrapMode(QPlainTextEdit::NoWrap); // as the box
        m_edit.setUndoRedoEnabled(false);               // as the box
        showForBenchmark(m_edit);
    }

    double timeFirstPicture()
    {
        m_edit.clear();
        m_watch.forget();
        return timed([this] {
            m_edit.setPlainText(m_program);
            if (!m_watch.finishPainting())
                qFatal("the text was not painted");
        });
    }

private:
    QString m_program;
    QPlainTextEdit m_edit;
    PaintWatch m_watch;
};

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
    Times first;
    first.add(editor.timeKey(undoKey));
    const Times behind = editor.stopsUntilWhole();
    const Times steps = timeNextSteps(editor);
    editor.waitUntilIdle();
    editor.rest(); // it looks whether colouring would change anything once more
    typeInTheMiddle(editor);
    const Times later = timeNextSteps(editor);
    printRow({.name = u"The first undo after opening 10 MB, to the picture, at work"_s,
              .ours = slowestOf(u"our editor"_s, first)});
    printRow({.name = u"… the longest stop until what it brought back is in colours, at work"_s,
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

// What is typed near the top and near the end, in one step.
void measureUndoInFarPlaces(const QString &program)
{
    constexpr int steps = 9;
    ShownEditor editor(program);
    showAll(editor.widget(), {.problems = 1000, .bookmarks = 100, .values = 10000});
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

void measure()
{
    const QString program = makeProgram(largeProgram).text;
    measureOpening(program);
    measureUndo(program);
    measureUndoOfAll(program);
    measureUndoInFarPlaces(program);
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return runBenchmark(argc, argv, checkWork, measure);
}
