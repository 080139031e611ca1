// A key and a page scrolled, from the event to the painted picture, with all that the
// editor shows beside the text: compared with the same editor without it, and with
// QScintilla, which shows what it has of that.

#include "editor/code_editor.h"
#include "editor/full_view.h"
#include "editor/typed_into.h"
#include "support/program.h"
#include "support/report.h"
#include "support/scintilla.h"

#include <ORVTListview/CodeView.h>

#include <QtCore/QDeadlineTimer>
#include <QtCore/QEventLoop>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>

#include <algorithm>

using namespace ORVTListview;
using namespace ORVTListview::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype keysTyped = 300;
constexpr qsizetype keysInTurn = 50;
constexpr int pages = 1000;
constexpr ViewLoad usualLoad{.problems = 40, .bookmarks = 20, .values = 350};
constexpr ViewLoad heavyLoad{.problems = 1000, .bookmarks = 100, .values = 10000};

// One editor, so that it is the same program with and without.
class Editor
{
public:
    explicit Editor(const Program &program)
        : m_face(program.text)
        , m_typed(m_face.box())
    {
        putCaret(box(), placeToType(program.shown));
    }

    ORVListView &widget() { return m_face.widget(); }
    RichTextBox &box() { return m_face.box(); }
    TypedInto &typed() { return m_typed; }

    void timeWithAll(const ViewLoad &load, const QList<Key> &keys, Times &times)
    {
        showAll(widget(), load);
        settle();
        m_typed.timeKeys(keys, times);
        m_face.waitUntilIdle(); // so that nothing of ours runs in another's time
    }

    void timeWithout(const QList<Key> &keys, Times &times)
    {
        showNothing(widget());
        settle();
        m_typed.timeKeys(keys, times);
        m_face.waitUntilIdle();
    }

    // What is looked for while idle is looked for again behind each change.
    void settle()
    {
        constexpr int untilItBegins = 300;
        constexpr int linesAMillisecond = 200;
        QDeadlineTimer end(untilItBegins + box().document()->blockCount() / linesAMillisecond);
        while (!end.hasExpired())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        m_face.waitUntilIdle();
    }

private:
    CodeEditorFace m_face;
    TypedInto m_typed;
};

class ShownScintilla
{
public:
    explicit ShownScintilla(const Program &program)
        : m_scintilla(program.shown)
        , m_typed(m_scintilla.widget())
    {
        m_scintilla.putCaret(placeToType(program.shown));
    }

    void showAll(const ViewLoad &load) { m_scintilla.showAll(load.problems, load.bookmarks); }
    void timeKeys(const QList<Key> &keys, Times &times) { m_typed.timeKeys(keys, times); }

    const Scintilla &scintilla() const { return m_scintilla; }

private:
    Scintilla m_scintilla;
    TypedInto m_typed;
};

// Letter case and indents are the editors' own.
QString wordsOfLines(const QString &text)
{
    QStringList lines = text.toLower().split(u"\r\n"_s);
    for (QString &line : lines)
        line = line.trimmed();
    return lines.join(u'\n');
}

void checkWork()
{
    const Program program = makeProgram(smallProgram);
    const Script script = writingScript(keysTyped);
    Editor editor(program);
    const QImage bare = editor.box().grab().toImage();
    Times times;
    editor.timeWithAll(usualLoad, script.keys, times);
    const qsizetype place = placeToType(program.shown);
    check(u"all of the code view is on"_s, whatIsOff(editor.widget()).isEmpty(),
          whatIsOff(editor.widget()));
    checkEqual(u"with its problems"_s, editor.widget().codeView()->problems().size(),
               usualLoad.problems);
    check(u"and it is seen"_s, editor.box().grab().toImage() != bare);
    checkEqual(
        u"our text has what was typed"_s, wordsOfLines(editor.box().Text()),
        wordsOfLines(program.shown.first(place) + script.typed + program.shown.sliced(place)));
    ShownScintilla peer(program);
    peer.showAll(usualLoad);
    peer.timeKeys(script.keys, times);
    check(u"QScintilla folds"_s, peer.scintilla().foldDepthAt(placeToType(program.shown)) > 0);
    checkEqual(u"and has its problems"_s, peer.scintilla().problems(), usualLoad.problems);
}

struct Size
{
    QString name;
    qsizetype characters;
    double peerBound;
};

void measureKeys(const Size &size)
{
    constexpr double mostForAll = 1.3;
    const QList<Key> keys = writingScript(keysTyped).keys;
    const Program program = makeProgram(size.characters);
    Editor editor(program);
    ShownScintilla peer(program);
    peer.showAll(usualLoad);
    Times without;
    Times usual;
    Times heavy;
    Times peers;
    for (qsizetype i = -keysInTurn; i < keys.size(); i += keysInTurn) {
        if (i == 0) // what came before was to warm up
            without = usual = heavy = peers = Times();
        const QList<Key> turn = keys.mid(std::max<qsizetype>(i, 0), keysInTurn);
        editor.timeWithout(turn, without);
        editor.timeWithAll(usualLoad, turn, usual);
        editor.timeWithAll(heavyLoad, turn, heavy);
        peer.timeKeys(turn, peers);
    }
    const auto all = u"with all beside the text"_s;
    const auto none = u"with none of it"_s;
    printRow({.name = u"A key with all that is shown beside the text at %1"_s.arg(size.name),
              .ours = medianOf(all, usual),
              .peers = medianOf(none, without),
              .bound = mostForAll});
    printRow({.name = u"… and 1,000 problems and 10,000 values"_s,
              .ours = medianOf(all, heavy),
              .peers = medianOf(none, without),
              .bound = mostForAll});
    printRow({.name = u"… beside QScintilla with margins, folds and marks at %1"_s.arg(size.name),
              .ours = medianOf(all, usual),
              .peers = medianOf(u"QScintilla"_s, peers),
              .bound = size.peerBound});
    printRow({.name = u"… within which 99 of 100 keys are"_s,
              .ours = percentile99Of(all, usual),
              .peers = percentile99Of(u"QScintilla"_s, peers)});
}

void measureScrolling()
{
    Editor editor(makeProgram(largeProgram));
    for (const ViewLoad &load : {usualLoad, heavyLoad}) {
        showAll(editor.widget(), load);
        editor.box().verticalScrollBar()->setValue(0);
        editor.settle();
        Times times;
        Times atWork;
        for (int i = 0; i < pages; ++i)
            atWork.add(timedAtWork([&] {
                times.add(timed([&] {
                    if (!editor.typed().scrollOn())
                        qFatal("the program has too few pages");
                }));
            }));
        const QString name = load.problems == usualLoad.problems
                                 ? u"A page of 10 MB scrolled with all of it"_s
                                 : u"… and 1,000 problems and 10,000 values"_s;
        printRow(
            {.name = name, .ours = medianOf(u"our editor"_s, times), .bound = 8 * milliseconds});
        printRow({.name = u"… the slowest of 1,000, at work"_s,
                  .ours = slowestOf(u"our editor"_s, atWork),
                  .bound = 16 * milliseconds});
    }
}

void measure()
{
    measureKeys({u"64 KB"_s, smallProgram, 0.8});
    measureKeys({u"1 MB"_s, usualProgram, 0.15});
    measureKeys({u"10 MB"_s, largeProgram, 0.02});
    measureScrolling();
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return runBenchmark(argc, argv, checkWork, measure);
}
