// Replace All from the find dialog: 10,000 matches in a program of 1 MB, in colours,
// beside a plain loop that finds and inserts in a document of the same text.

#include "editor/code_editor.h"
#include "support/program.h"
#include "support/report.h"

#include "base/ThreadState.h"
#include "editor/rules/undo/UndoStore.h"
#include "find/FindDialog.h"
#include "find/fFind.h"

#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QPushButton>

using namespace ORVTListview;
using namespace ORVTListview::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype matches = 10'000;
const QString wanted = u"Zmatch"_s; // which no program holds by itself
const QString replacement = u"IF"_s;

// The program with the text wanted spread over it, a word by itself each time.
QString programWithMatches()
{
    const QString program = makeProgram(usualProgram).shown;
    const qsizetype step = program.size() / matches;
    QString result;
    qsizetype from = 0;
    for (qsizetype i = 1; i <= matches; ++i) {
        const qsizetype blank = program.indexOf(u' ', i * step - step / 2);
        const qsizetype end = blank < 0 ? program.size() : blank;
        result += program.sliced(from, end - from) + u' ' + wanted;
        from = end;
    }
    return result + program.sliced(from);
}

class Dialog
{
public:
    explicit Dialog(const QString &program)
        : m_program(program)
        , m_face(QString())
    {
        showForBenchmark();
        load();
    }

    void load()
    {
        m_face.show(m_program);
        m_face.widget().showFind(true);
        control<QComboBox>(u"Cbo0"_s).setEditText(wanted);
        control<QComboBox>(u"Cbo1"_s).setEditText(replacement);
        QCoreApplication::processEvents();
        m_face.waitUntilIdle();
    }

    double timeReplaceAll()
    {
        load();
        return timed([this] { control<QPushButton>(u"Cmd3"_s).click(); });
    }

    QString text() { return m_face.box().Text(); }

private:
    void showForBenchmark()
    {
        m_face.widget().resize(900, 600);
        m_face.widget().show();
        QCoreApplication::processEvents();
    }
    template <typename Widget>
    Widget &control(const QString &name)
    {
        return *FindDialog::shared().findChild<Widget *>(name);
    }

    QString m_program;
    CodeEditorFace m_face;
};

qsizetype replaceInDocument(QTextDocument &document)
{
    qsizetype count = 0;
    QTextCursor found = document.find(wanted);
    while (!found.isNull()) {
        found.insertText(replacement);
        ++count;
        found = document.find(wanted, found);
    }
    return count;
}

double timeDocument(QTextDocument &document, const QString &program)
{
    document.setPlainText(program);
    return timed([&] { replaceInDocument(document); });
}

void checkWork()
{
    const QString program = programWithMatches();
    QString expected = program;
    expected.replace(wanted, replacement);
    checkEqual(u"the program holds the text wanted"_s, program.count(wanted), matches);

    Dialog dialog(program);
    const QString shown = dialog.text();
    const qint16 before = threadPart<UndoStore>().UndoCurrent();
    dialog.timeReplaceAll();
    QString replaced = shown;
    replaced.replace(wanted, replacement);
    checkEqual(u"the dialog replaces all"_s, dialog.text(), replaced);
    checkEqual(u"after one snapshot"_s, threadPart<UndoStore>().UndoCurrent() - before, 1);

    QTextDocument document;
    document.setUndoRedoEnabled(false);
    document.setPlainText(program);
    checkEqual(u"the loop replaces all"_s, replaceInDocument(document), matches);
    checkEqual(u"and nothing else"_s, document.toPlainText().replace(u"\n"_s, u"\r\n"_s), expected);
}

void measure()
{
    const QString program = programWithMatches();
    Dialog dialog(program);
    QTextDocument document;
    document.setUndoRedoEnabled(false);
    const Sides sides = sideBySide(
        7, [&] { return dialog.timeReplaceAll(); },
        [&] { return timeDocument(document, program); });
    printRow({.name = u"Replace All, 1 MB, 10,000 matches"_s,
              .ours = medianOf(u"find dialog"_s, sides.ours),
              .peers = medianOf(u"QTextDocument, plain loop"_s, sides.peers),
              .bound = 4.0});
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return runBenchmark(argc, argv, checkWork, measure);
}
