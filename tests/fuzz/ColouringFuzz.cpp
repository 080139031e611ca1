// Any program text: the colours cover it, the line that was typed has those of the
// whole, and the document has the text and colours of the screen.

#include "fuzz/FuzzBytes.h"

#include "base/TextRules.h"
#include "editor/rules/colouring/ColouringFixture.h"
#include "editor/rules/colouring/LineColouring.h"
#include "editor/rules/colouring/ReplacedLines.h"
#include "rtf/RtfReader.h"

#include <algorithm>

using namespace ORVTListview;
using namespace ORVTListview::Fuzzing;

namespace {

void checkCovered(const ColouredText &coloured)
{
    qsizetype length = 0;
    for (const ColouredText::Run &run : coloured.runs) {
        demand(run.length > 0, "no run is empty");
        length += run.length;
    }
    demand(length == coloured.text.size(), "the runs cover the text");
}

// What is neither blank nor line end, each with its colour.
QString colouredCharacters(const ColouredText &coloured)
{
    QString result;
    qsizetype at = 0;
    for (const ColouredText::Run &run : coloured.runs) {
        for (qsizetype i = 0; i < run.length; ++i, ++at) {
            const QChar c = coloured.text[at];
            if (!isBlank(c) && c != u'\r' && c != u'\n')
                result += c + QString::number(run.colour, 16) + u' ';
        }
    }
    return result;
}

void checkLine(const ColourEngine &engine, QStringView line)
{
    const ColouredText typed = finishedLine(engine, line, defaultColours());
    checkCovered(typed);
    demand(typed.text.size() == line.size(), "a line that is typed keeps its length");
    demand(line.compare(typed.text, Qt::CaseInsensitive) == 0, "only its letter case changes");
    demand(finishedLine(engine, typed.text, defaultColours()) == typed, "it is finished once");
}

void checkLines(const ColourEngine &engine, const QString &text)
{
    const ColouredText whole = finishedText(engine, text, defaultColours());
    checkCovered(whole);
    QStringList lines;
    for (const QString &line : text.split(QStringLiteral("\r\n"))) {
        checkLine(engine, line);
        lines.append(finishedLine(engine, line, defaultColours()).text);
    }
    demand(whole.text == lines.join(QStringLiteral("\r\n")), "lines make the whole");
    const ColouredText asTyped = finishedText(engine, text, defaultColours(), Spelling::AsTyped);
    demand(asTyped.text == text && asTyped.runs == whole.runs, "as typed it has the colours alone");
    demand(colouredCharacters(whole) ==
               colouredCharacters(colouredText(engine, text, false, defaultColours())),
           "words typed line by line have the colours of the whole text");
}

class Reading final : public RtfSink
{
public:
    void text(QStringView text, const RtfFormat &format) override
    {
        read.text += text;
        read.appendRun(text.size(), format.colour);
    }
    void lineEnd() override
    {
        read.text += u"\r\n";
        read.appendRun(2, read.runs.isEmpty() ? Colour(ColouredText::automatic)
                                              : read.runs.constLast().colour);
    }

    ColouredText read;
};

// A document is made of the text as it is, so only of one without signs of RTF.
void checkDocument(const ColourEngine &engine, const QString &text, bool isComment)
{
    const bool isPlain = std::all_of(text.cbegin(), text.cend(), [](QChar c) {
        return (c >= u' ' && c != u'\\' && c != u'{' && c != u'}') || c == u'\t';
    });
    const QStringList lines = text.split(QStringLiteral("\r\n"));
    if (!isPlain && lines.size() < 2)
        return;
    const ColouredText shown = colouredText(engine, text, isComment, defaultColours());
    checkCovered(shown);
    if (!isPlain)
        return;
    Reading reading;
    const QString head = QStringLiteral("{\\rtf1") + defaultColourTable();
    readRtf(ColourText(engine, text, head, isComment), reading);
    demand(reading.read.text == shown.text, "the document has the text of the screen");
    demand(colouredCharacters(reading.read) == colouredCharacters(shown), "and its colours");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static Colouring colouring;
    FuzzBytes bytes(data, size);
    const bool isComment = bytes.coin();
    const QString text = bytes.restText();
    const ColourEngine engine = colouring.engine();
    checkLines(engine, text);
    checkDocument(engine, text, isComment);
    colouring.messages.messages.clear();
    return 0;
}
