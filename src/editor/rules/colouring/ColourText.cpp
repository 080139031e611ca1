#include "editor/rules/colouring/ColourText.h"

#include "editor/rules/colouring/ColourTable.h"
#include "editor/rules/colouring/TextParts.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>
#include <vector>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// Gathers pieces, which are short, before they go to the text.
class RtfBody final : public ColourSink
{
public:
    explicit RtfBody(QString &target)
        : m_target(target)
    {
    }

    // To be called at the end.
    void flush()
    {
        m_target.append(QStringView(m_gathered.data(), m_end));
        m_end = m_gathered.data();
    }

    void run(const ColourRun &run) override
    {
        append(colourWord(run.colourIndex));
        append(run.shown);
    }
    void blank() override { append(u" "); }
    void tab() override { append(u"\\tab "); }
    void lineEnd() override { append(u"\r\n\\par "); }

private:
    qsizetype room() const { return m_gathered.data() + m_gathered.size() - m_end; }

    void append(QStringView piece)
    {
        if (piece.size() > room())
            flush();
        if (piece.size() > room())
            m_target.append(piece);
        else
            m_end = std::copy(piece.begin(), piece.end(), m_end);
    }

    static QStringView colourWord(qint32 index)
    {
        static constexpr std::array<QStringView, colourSlots + 1> words{
            u"\\cf0 ", u"\\cf1 ", u"\\cf2 ", u"\\cf3 ", u"\\cf4 ",
            u"\\cf5 ", u"\\cf6 ", u"\\cf7 ", u"\\cf8 "};
        return words[static_cast<std::size_t>(index)];
    }

    QString &m_target;
    std::array<QChar, 512> m_gathered;
    QChar *m_end = m_gathered.data();
};

class ColouredPartBuilder final : public ColourSink
{
public:
    explicit ColouredPartBuilder(const RichTextSettings &settings)
    {
        for (int slot = 1; slot <= colourSlots; ++slot)
            m_colours[static_cast<std::size_t>(slot)] = shownColour(colourOfSlot(slot, settings));
    }

    void run(const ColourRun &run) override
    {
        result.lastWord = m_colours[static_cast<std::size_t>(run.colourIndex)];
        append(run.shown);
    }
    void blank() override { append(u" "); }
    void tab() override { append(u"\t"); }
    void lineEnd() override { append(u"\r\n"); }

    ColouredPart result;

private:
    void append(QStringView text)
    {
        ColouredText &lines = result.lines;
        lines.text.append(text);
        lines.appendRun(text.size(), result.lastWord.value_or(ColouredText::automatic));
        if (!result.lastWord)
            result.beforeWord += text.size();
    }

    std::array<Colour, colourSlots + 1> m_colours{ColouredText::automatic};
};

// As if the lines behind had been coloured with those before.
void join(ColouredPart &lines, ColouredPart &&behind)
{
    const Colour colour = lines.lastWord.value_or(ColouredText::automatic);
    behind.goOnIn(colour);
    lines.lines.text.append(u"\r\n");
    lines.lines.appendRun(2, colour);
    lines.lines.text.append(behind.lines.text);
    for (const ColouredText::Run &run : std::as_const(behind.lines.runs))
        lines.lines.appendRun(run.length, run.colour);
    if (behind.lastWord)
        lines.lastWord = behind.lastWord;
}

} // namespace

QString ColourText(const ColourEngine &engine, QStringView Text, const QString &Header,
                   bool FirstLineIsComment)
{
    QString rtf;
    rtf.reserve(Header.size() + Text.size() * 5 / 2 + 1);
    rtf.append(Header);
    RtfBody body(rtf);
    engine.colourText(Text, FirstLineIsComment, body);
    body.flush();
    rtf.append(u'}');
    return rtf;
}

QString ColourLine(const ColourEngine &engine, QStringView Line)
{
    QString rtf;
    RtfBody body(rtf);
    engine.colourLine(Line, body);
    body.flush();
    return rtf;
}

QString ColourToken(const ColourEngine &engine, QStringView Token)
{
    QString rtf;
    RtfBody body(rtf);
    engine.colourToken(Token, 0, body);
    body.flush();
    return rtf;
}

void ColouredPart::goOnIn(Colour colour)
{
    if (beforeWord == 0 || colour == ColouredText::automatic)
        return;
    QList<ColouredText::Run> &runs = lines.runs; // the first has the blanks, as automatic
    if (runs.constFirst().length > beforeWord) {
        runs.first().length -= beforeWord;
        runs.prepend({beforeWord, colour});
        return;
    }
    runs.first().colour = colour;
    if (runs.size() > 1 && runs[1].colour == colour) {
        runs.first().length += runs[1].length;
        runs.removeAt(1);
    }
}

ColouredPart colouredPart(const ColourEngine &engine, QStringView lines, bool firstLineIsComment,
                          const RichTextSettings &settings)
{
    ColouredPartBuilder builder(settings);
    builder.result.lines.text.reserve(lines.size() * 9 / 8);
    engine.colourLines(lines, firstLineIsComment, builder);
    return std::move(builder.result);
}

ColouredText colouredText(const ColourEngine &engine, QStringView text, bool firstLineIsComment,
                          const RichTextSettings &settings)
{
    if (!engine.isForThreads()) {
        ColouredPartBuilder builder(settings);
        engine.colourText(text, firstLineIsComment, builder);
        return std::move(builder.result.lines);
    }
    const QList<QStringView> texts = partsOfLines(text);
    std::vector<ColouredPart> parts(static_cast<std::size_t>(texts.size()));
    atTheSameTime(texts.size(), [&](qsizetype part) {
        parts[static_cast<std::size_t>(part)] =
            colouredPart(engine, texts[part], firstLineIsComment && part == 0, settings);
    });
    for (ColouredPart &next : std::span(parts).subspan(1))
        join(parts.front(), std::move(next));
    return std::move(parts.front().lines);
}

} // namespace ORVTListview
