// Asking the box for its whole text: the second time beside the first, and after
// a key beside reading all of it.

#include "editor/code_editor.h"
#include "support/program.h"
#include "support/report.h"

#include <QtGui/QTextCursor>
#include <QtWidgets/QApplication>

using namespace ORVTListview;
using namespace ORVTListview::bench;
using namespace Qt::StringLiterals;

namespace {

void typeInTheMiddle(RichTextBox &box)
{
    box.setSelStart(box.TextLength() / 2);
    box.setSelText(u"x"_s);
}

void checkWork()
{
    RichTextBox box;
    QString expected = makeProgram(usualProgram).shown;
    box.setText(expected);
    checkEqual(u"the text is the program"_s, box.Text(), expected);
    checkEqual(u"and is again"_s, box.Text(), expected);
    typeInTheMiddle(box);
    expected.insert(box.SelStart() - 1, u'x');
    checkEqual(u"after a key it has the key"_s, box.Text(), expected);
}

// A box whose text is formatted anew reads all of it again.
void formatAnew(RichTextBox &box)
{
    QTextCursor all(box.document());
    all.select(QTextCursor::Document);
    all.mergeCharFormat(QTextCharFormat());
}

double askFor(int times, RichTextBox &box)
{
    formatAnew(box);
    return timed([&] {
        for (int i = 0; i < times; ++i)
            keep(box.Text());
    });
}

double askAfterKey(RichTextBox &box)
{
    keep(box.Text());
    typeInTheMiddle(box);
    return timed([&] { keep(box.Text()); });
}

void measure()
{
    CodeEditorFace usual(makeProgram(usualProgram).text);
    const Sides twice = sideBySide(
        21, [&] { return askFor(2, usual.box()); }, [&] { return askFor(1, usual.box()); });
    printRow({.name = u"Text of 1 MB, asked for twice"_s,
              .ours = medianOf(u"twice"_s, twice.ours),
              .peers = medianOf(u"once"_s, twice.peers),
              .bound = 1.5});

    CodeEditorFace large(makeProgram(largeProgram).text);
    const Sides afterKey = sideBySide(
        11, [&] { return askAfterKey(large.box()); }, [&] { return askFor(1, large.box()); });
    printRow({.name = u"Text of 10 MB after one key"_s,
              .ours = medianOf(u"after one key"_s, afterKey.ours),
              .peers = medianOf(u"all of it"_s, afterKey.peers)});
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return runBenchmark(argc, argv, checkWork, measure);
}
