// Loading a coloured program of 1 MB into the box, beside QTextEdit::setHtml of
// the same text in the same colours.

#include "code_editor.h"
#include "painting.h"
#include "program.h"
#include "report.h"

#include "editor/ColourText.h"
#include "editor/ThreadColouring.h"
#include "platform/ColouredText.h"

#include <QtGui/QTextBlock>
#include <QtWidgets/QApplication>
#include <QtWidgets/QTextEdit>

using namespace ORVTListview;
using namespace ORVTListview::bench;
using namespace Qt::StringLiterals;

namespace {

QString htmlColour(qint32 colour)
{
    return QColor(colour & 0xff, colour >> 8 & 0xff, colour >> 16 & 0xff).name();
}

// As short as HTML for coloured lines gets.
QString htmlOf(const ColouredText &program)
{
    QString html = u"<pre>"_s;
    qsizetype from = 0;
    for (const ColouredText::Run &run : program.runs) {
        const QString words = program.text.sliced(from, run.length).toHtmlEscaped();
        from += run.length;
        html += run.colour == ColouredText::automatic
                    ? words
                    : u"<font color=%1>%2</font>"_s.arg(htmlColour(run.colour), words);
    }
    return html.replace(u"\r\n"_s, u"\n"_s) + u"</pre>"_s;
}

// How many characters, line ends not counted, have a colour of their own.
qsizetype colouredCharacters(const QTextDocument &document)
{
    qsizetype count = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (const auto &range : block.textFormats()) {
            if (range.format.hasProperty(QTextFormat::ForegroundBrush))
                count += range.length;
        }
    }
    return count;
}

qsizetype colouredCharacters(const ColouredText &program)
{
    qsizetype count = 0;
    qsizetype from = 0;
    for (const ColouredText::Run &run : program.runs) {
        const QStringView words = QStringView(program.text).sliced(from, run.length);
        from += run.length;
        if (run.colour != ColouredText::automatic)
            count += run.length - words.count(u'\r') - words.count(u'\n');
    }
    return count;
}

// The same program, in the forms that are loaded.
struct Forms
{
    Forms()
        : program(makeProgram(usualProgram))
        , face(QString())
        , coloured(colouredText(threadColouring(), program.text, false, appearance()))
        , rtf(face.widget().GetColorText(program.text))
        , html(htmlOf(coloured))
    {
    }

    Program program;
    CodeEditorFace face; // gives the document its head
    ColouredText coloured;
    QString rtf;
    QString html;
};

class ShownEditors
{
public:
    ShownEditors()
    {
        const QFont font(fontName(), fontSize);
        box.setFont(font);
        edit.setFont(font);
        edit.setLineWrapMode(QTextEdit::NoWrap); // as the box
        edit.setUndoRedoEnabled(false);          // as the box
        showForBenchmark(box);
        showForBenchmark(edit);
    }

    RichTextBox box;
    QTextEdit edit;
};

void checkWork()
{
    const Forms forms;
    ShownEditors shown;
    const qsizetype expected = colouredCharacters(forms.coloured);
    shown.box.setTextRTF(forms.rtf);
    checkEqual(u"the RTF read back is the program"_s, shown.box.Text(), forms.program.shown);
    checkEqual(u"in its colours"_s, colouredCharacters(*shown.box.document()), expected);
    shown.box.setColoured(forms.coloured);
    checkEqual(u"the coloured text is the program"_s, shown.box.Text(), forms.program.shown);
    checkEqual(u"in its colours, too"_s, colouredCharacters(*shown.box.document()), expected);

    shown.edit.setHtml(forms.html);
    QString text = forms.program.shown;
    text.replace(u"\r\n"_s, u"\n"_s).chop(1); // in HTML the last line ends of itself
    checkEqual(u"the HTML read back is the program"_s, shown.edit.toPlainText(), text);
    checkEqual(u"in the same colours"_s, colouredCharacters(*shown.edit.document()), expected);
}

// Into an empty box each time.
double loadRtf(RichTextBox &box, const QString &rtf)
{
    box.setText(QString());
    return timed([&] { box.setTextRTF(rtf); });
}

double loadColoured(RichTextBox &box, const ColouredText &text)
{
    box.setText(QString());
    return timed([&] { box.setColoured(text); });
}

double loadHtml(QTextEdit &edit, const QString &html)
{
    edit.clear();
    return timed([&] { edit.setHtml(html); });
}

void measure()
{
    const Forms forms;
    ShownEditors shown;
    const Contender rtf = [&] { return loadRtf(shown.box, forms.rtf); };
    const Contender coloured = [&] { return loadColoured(shown.box, forms.coloured); };
    const Contender html = [&] { return loadHtml(shown.edit, forms.html); };
    const Sides byRtf = sideBySide(7, rtf, html);
    printRow({.name = u"Loading a coloured program of 1 MB"_s,
              .ours = medianOf(u"setTextRTF"_s, byRtf.ours),
              .peers = medianOf(u"QTextEdit::setHtml"_s, byRtf.peers),
              .bound = 1.0 / 3});
    const Sides direct = sideBySide(7, coloured, html);
    printRow({.name = u"The same without the detour over RTF"_s,
              .ours = medianOf(u"setColoured"_s, direct.ours),
              .peers = medianOf(u"QTextEdit::setHtml"_s, direct.peers)});
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return runBenchmark(argc, argv, checkWork, measure);
}
