// A key from the event to the painted picture, in our editor and in QScintilla
// with a lexer, in the middle of the same program. Each editor repaints what it
// itself asks for.

#include "editor/code_editor.h"
#include "editor/typed_into.h"
#include "support/keys.h"
#include "support/program.h"
#include "support/report.h"
#include "support/scintilla.h"

#include "editor/rules/colouring/LineColouring.h"
#include "editor/rules/colouring/ThreadColouring.h"

#include <QtWidgets/QApplication>

using namespace ORVTListview;
using namespace ORVTListview::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype keysTyped = 300;
constexpr qsizetype keysInTurn = 25;
constexpr qsizetype keysInARow = 1000;

class BothEditors
{
public:
    explicit BothEditors(qsizetype size)
        : program(makeProgram(size))
        , m_face(program.text)
        , m_scintilla(program.shown)
        , m_place(placeToType(program.shown))
        , m_ours(m_face.box())
        , m_peers(m_scintilla.widget())
    {
        putCaret(box(), m_place);
        m_scintilla.putCaret(m_place);
    }

    Sides type(const Script &script)
    {
        Sides sides;
        for (qsizetype i = 0; i < script.keys.size(); i += keysInTurn) {
            const QList<Key> keys = script.keys.mid(i, keysInTurn);
            m_ours.timeKeys(keys, sides.ours);
            m_face.waitUntilIdle(); // so that nothing of ours runs in their time
            m_peers.timeKeys(keys, sides.peers);
        }
        return sides;
    }

    QString textWith(const QString &typed) const
    {
        return program.shown.first(m_place) + typed + program.shown.sliced(m_place);
    }
    RichTextBox &box() { return m_face.box(); }
    qsizetype wronglyColouredLines(const Script &script)
    {
        const qint32 first = box().GetLineFromChar(static_cast<qint32>(m_place)) + 1;
        const auto last = first + static_cast<qint32>(script.typed.count(u'\n')) - 1;
        qsizetype wrong = 0;
        for (qint32 line = first; line < last; ++line) {
            const QString text = box().lineText(line);
            wrong += box().coloured(box().lineStart(line), static_cast<qint32>(text.size())) !=
                     finishedLine(threadColouring(), text, appearance());
        }
        return wrong;
    }

    QString peersText() const { return m_scintilla.text(); }

    const Program program;

private:
    CodeEditorFace m_face;
    Scintilla m_scintilla;
    qsizetype m_place;
    TypedInto m_ours;
    TypedInto m_peers;
};

void checkWork()
{
    const Script script = writingScript(keysTyped);
    BothEditors editors(smallProgram);
    editors.type(script);
    const QString expected = editors.textWith(script.typed);
    checkEqual(u"QScintilla's text has what was typed"_s, editors.peersText(), expected);
    // Ours gives finished words their listed letter case.
    checkEqual(u"our text has what was typed"_s, editors.box().Text().toLower(),
               expected.toLower());
    checkEqual(u"in the colours of finished lines"_s, editors.wronglyColouredLines(script), 0);
}

struct Size
{
    QString name;
    qsizetype characters;
    double bound;
};

// Alone, since the other editor's own events would run within our keys; and one key
// after the other, so that all snapshots wait to be encoded.
Times keysWithoutRest(qsizetype characters)
{
    const Program program = makeProgram(characters);
    CodeEditorFace face(program.text);
    TypedInto ours(face.box());
    putCaret(face.box(), placeToType(program.shown));
    Times times;
    for (const qsizetype keys : {keysInTurn, keysInARow}) {
        times = Times();
        ours.timeKeysAtWork(writingScript(keys).keys, times);
    }
    return times;
}

Times measureAt(const Size &size, const Script &script)
{
    BothEditors editors(size.characters);
    editors.type({script.keys.first(keysInTurn), {}}); // to warm up
    const Sides sides = editors.type(script);
    printRow({.name = u"A key to the picture at %1"_s.arg(size.name),
              .ours = medianOf(u"our editor"_s, sides.ours),
              .peers = medianOf(u"QScintilla"_s, sides.peers),
              .bound = size.bound});
    printRow({.name = u"… within which 99 of 100 keys are"_s,
              .ours = percentile99Of(u"our editor"_s, sides.ours),
              .peers = percentile99Of(u"QScintilla"_s, sides.peers)});
    return sides.ours;
}

void measure()
{
    const Script script = writingScript(keysTyped);
    const Size smallSize{u"64 KB"_s, smallProgram, 1};
    const Size usualSize{u"1 MB"_s, usualProgram, 1.0 / 5};
    const Size largeSize{u"10 MB"_s, largeProgram, 1.0 / 20};
    const Times small = measureAt(smallSize, script);
    measureAt(usualSize, script);
    const Times large = measureAt(largeSize, script);
    printRow({.name = u"Our key at 10 MB beside 64 KB"_s,
              .ours = medianOf(u"at 10 MB"_s, large),
              .peers = medianOf(u"at 64 KB"_s, small),
              .bound = 2});
    for (const Size &size : {smallSize, usualSize, largeSize})
        printRow({.name = u"The slowest of 1,000 keys in a row at %1, at work"_s.arg(size.name),
                  .ours = slowestOf(u"our editor"_s, keysWithoutRest(size.characters)),
                  .bound = 8 * milliseconds});
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return runBenchmark(argc, argv, checkWork, measure);
}
