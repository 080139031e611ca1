// box_probe names: prints the names of texts that a box may be given.
// box_probe ours|document NAME: shows one in a box, or holds it in a document of the toolkit
// whose first line alone is drawn, which is the least that a box needs; and prints by how
// many kilobytes the process has grown at most meanwhile.

#include "bounds/PeakMemory.h"

#include <ORVTListview/RichTextBox.h>

#include <QtGui/QPainter>
#include <QtGui/QTextBlock>
#include <QtGui/QTextLayout>
#include <QtWidgets/QApplication>

#include <iostream>
#include <string>
#include <vector>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct Text
{
    std::string name;
    QString given; // to our box again and again, as RTF if it begins with a backslash
    QString plain; // what each is
    int count;

    bool isRtf() const { return given.startsWith(u'\\'); }
};

std::vector<Text> texts()
{
    constexpr int many = 500'000;
    return {
        {"tabs", u"\\tab"_s, u"\t"_s, many},
        {"carriage returns", u"\r"_s, u"\n"_s, many},
        {"paragraphs", u"\\par"_s, u"\n"_s, many},
        {"letters in a line", u"x"_s, u"x"_s, many},
        {"words in a line", u"Temp1 "_s, u"Temp1 "_s, many / 6},
        // The toolkit's time grows as their square.
        {"soft hyphens", u"\\-"_s, QString(QChar::SoftHyphen), many / 2},
    };
}

long ours(const Text &text)
{
    const QString many = text.given.repeated(text.count);
    const QString given = text.isRtf() ? u"{\\rtf1 "_s + many + u'}' : many;
    RichTextBox box;
    box.resize(800, 600);
    box.show();
    box.viewport()->repaint();
    const PeakMemory peak;
    if (text.isRtf())
        box.setTextRTF(given);
    else
        box.setText(given);
    QCoreApplication::processEvents();
    box.viewport()->repaint();
    return peak.grown();
}

long documents(const Text &text)
{
    const QString many = text.plain.repeated(text.count);
    QTextDocument document;
    QTextOption option = document.defaultTextOption();
    option.setWrapMode(QTextOption::NoWrap);
    document.setDefaultTextOption(option);
    document.setUndoRedoEnabled(false);
    document.setDocumentLayout(new QPlainTextDocumentLayout(&document));
    QImage image(800, 600, QImage::Format_RGB32);
    image.fill(Qt::white);
    const PeakMemory peak;
    document.setPlainText(many);
    document.documentLayout()->blockBoundingRect(document.firstBlock());
    QPainter painter(&image);
    const QTextLayout &line = *document.firstBlock().layout();
    line.draw(&painter, {}, {}, image.rect());
    line.drawCursor(&painter, {}, 0);
    return peak.grown();
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const std::string task = argc > 1 ? argv[1] : "";
    for (const Text &text : texts()) {
        if (task == "names")
            std::cout << text.name << '\n';
        else if (argc == 3 && text.name == argv[2])
            std::cout << (task == "ours" ? ours(text) : documents(text)) << '\n';
    }
    return task.empty() ? 2 : 0;
}
