// What undo costs: the snapshot that a blank takes before it is typed, and a step
// back until it is painted.

#include "editor/code_editor.h"
#include "support/keys.h"
#include "support/painting.h"
#include "support/program.h"
#include "support/report.h"

#include "base/ThreadState.h"
#include "editor/rules/undo/UndoStore.h"

#include <QtWidgets/QApplication>

using namespace ORVTListview;
using namespace ORVTListview::bench;
using namespace Qt::StringLiterals;

namespace {

const Key undoKey{Qt::Key_Z, Qt::ControlModifier, {}};

class ShownEditor
{
public:
    explicit ShownEditor(qsizetype size)
        : m_program(makeProgram(size).text)
        , m_face(m_program)
        , m_watch(*box().viewport())
    {
        showForBenchmark(m_face.widget());
        box().setFocus();
        caretToTheMiddle();
    }

    void loadAgain()
    {
        m_face.show(m_program);
        caretToTheMiddle();
    }

    RichTextBox &box() { return m_face.box(); }

    // Nothing but the handling of the key.
    double timeBlankAfterLetter()
    {
        sendText(box(), u"x"_s);
        QCoreApplication::processEvents();
        return timed([&] { sendText(box(), u" "_s); });
    }

    double timeUndo()
    {
        m_watch.forget();
        return timed([&] {
            sendKey(box(), undoKey);
            if (!m_watch.finishPainting())
                qFatal("undo was not painted");
        });
    }

    void waitUntilIdle() { m_face.waitUntilIdle(); }

private:
    void caretToTheMiddle() { box().setSelStart(box().TextLength() / 2); }

    QString m_program;
    CodeEditorFace m_face;
    PaintWatch m_watch;
};

void checkWork()
{
    ShownEditor editor(smallProgram);
    auto &store = threadPart<UndoStore>();
    const qint16 before = store.UndoCurrent();
    const QString text = editor.box().Text();
    editor.timeBlankAfterLetter();
    editor.timeBlankAfterLetter();
    checkEqual(u"each blank after a letter takes a snapshot"_s, store.UndoCurrent() - before, 2);
    editor.waitUntilIdle();
    editor.timeUndo();
    QString expected = text;
    expected.insert(text.size() / 2, u'x');
    checkEqual(u"undo shows the first snapshot"_s, editor.box().Text(), expected);
}

void measureSnapshot()
{
    ShownEditor editor(usualProgram);
    printRow({.name = u"A blank that takes a snapshot at 1 MB"_s,
              .ours = medianOf(u"our editor"_s,
                               repeated(101, [&] { return editor.timeBlankAfterLetter(); })),
              .bound = 2 * milliseconds});
    const auto first = [&] {
        editor.loadAgain();
        return editor.timeBlankAfterLetter();
    };
    printRow({.name = u"The first one after loading"_s,
              .ours = medianOf(u"our editor"_s, repeated(11, first)),
              .bound = 2 * milliseconds});
}

void measureUndo()
{
    constexpr int steps = 40;
    ShownEditor editor(smallProgram);
    for (int i = 0; i <= steps + 1; ++i)
        editor.timeBlankAfterLetter();
    editor.waitUntilIdle();
    printRow({.name = u"An undo step to the picture at 64 KB"_s,
              .ours = medianOf(u"our editor"_s, repeated(steps, [&] { return editor.timeUndo(); })),
              .bound = 30 * milliseconds});
}

void measure()
{
    measureSnapshot();
    measureUndo();
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return runBenchmark(argc, argv, checkWork, measure);
}
