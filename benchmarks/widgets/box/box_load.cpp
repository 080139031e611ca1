// Loading a coloured program of 1 MB into the box, beside QTextEdit::setHtml of
// the same text in the same colours.

#include "editor/code_editor.h"
#include "support/painting.h"
#include "support/program.h"
#include "support/report.h"

#include "base/ColouredText.h"
#include "editor/rules/colouring/ColourText.h"
#include "editor/rules/colouring/ThreadColouring.h"

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

// What is written around the words of a colour, %1, and the words, %2: as other
// highlighters and Qt itself write it, and as short as it gets.
const auto styledSpan = u"<span style=\"color:%1\">%2</span>"_s;
const auto fontElement = u"<font color=%1>%2</font>"_s;

QString htmlOf(const ColouredText &program, const QString &element)
{
    QString html = u"<pre>"_s;
    qsizetype from = 0;
    for (const ColouredText::Run &run : program.runs) {
        const QString words = program.text.sliced(from, run.length).toHtmlEscaped();
        from += run.length;
        html += run.colour == ColouredText::automatic ? words
                                                      : element.arg(htmlColour(run.colour), words);
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
        , html(htmlOf(coloured, styledSpan))
        , shortHtml(htmlOf(coloured, fontElement))
    {
    }

    Program program;
    CodeEditorFace face; // gives the document its head
    ColouredText coloured;
    QString rtf;
    QString html;
    QString shortHtml;
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

    QString text = forms.program.shown;
    text.replace(u"\r\n"_s, u"\n"_s).chop(1); // in HTML the last line ends of itself
    for (const QString &html : {forms.html, forms.shortHtml}) {
        shown.edit.setHtml(html);
        checkEqual(u"the HTML read back is the program"_s, shown.edit.toPlainText(), text);
        checkEqual(u"in the same colours"_s, colouredCharacters(*shown.edit.document()), expected);
    }
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

void measureLoading(const QString &name, const Contender &ours, const QString &how,
                    ShownEditors &shown, const QString &html, std::optional<double> bound)
{
    const Sides sides = sideBySide(7, ours, [&] { return loadHtml(shown.edit, html); });
    printRow({.name = name,
              .ours = medianOf(how, sides.ours),
              .peers = medianOf(u"QTextEdit::setHtml"_s, sides.peers),
              .bound = bound});
}

void measure()
{
    const Forms forms;
    ShownEditors shown;
    const Contender rtf = [&] { return loadRtf(shown.box, forms.rtf); };
    const Contender coloured = [&] { return loadColoured(shown.box, forms.coloured); };
    measureLoading(u"Loading a coloured program of 1 MB"_s, rtf, u"setTextRTF"_s, shown, forms.html,
                   1.0 / 3);
    measureLoading(u"… beside the shortest HTML"_s, rtf, u"setTextRTF"_s, shown, forms.shortHtml,
                   {});
    measureLoading(u"… without the detour over RTF"_s, coloured, u"setColoured"_s, shown,
                   forms.html, {});
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return runBenchmark(argc, argv, checkWork, measure);
}
