#include "editor/rules/colouring/ColourText.h"

#include "editor/rules/colouring/ColourTable.h"
#include "editor/rules/colouring/TextParts.h"

#include <algorithm>
#include <array>
#include <span>
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

class ColouredTextBuilder final : public ColourSink
{
public:
    explicit ColouredTextBuilder(const RichTextSettings &settings)
    {
        for (int slot = 1; slot <= colourSlots; ++slot)
            m_colours[static_cast<std::size_t>(slot)] = shownColour(colourOfSlot(slot, settings));
    }

    void run(const ColourRun &run) override
    {
        m_hasRun = true;
        m_colour = m_colours[static_cast<std::size_t>(run.colourIndex)];
        append(run.shown);
    }
    void blank() override { append(u" "); }
    void tab() override { append(u"\t"); }
    void lineEnd() override { append(u"\r\n"); }

    ColouredText result;

    // Adds what is made of the lines behind. What stands before their first word continues
    // in the colour here.
    void join(const ColouredTextBuilder &next)
    {
        lineEnd();
        qsizetype before = next.m_beforeRuns;
        result.text.append(next.result.text);
        result.appendRun(before, m_colour);
        for (const ColouredText::Run &run : next.result.runs) {
            const qsizetype taken = std::min(before, run.length);
            before -= taken;
            result.appendRun(run.length - taken, run.colour);
        }
        if (next.m_hasRun)
            m_colour = next.m_colour;
    }

private:
    void append(QStringView text)
    {
        result.text.append(text);
        result.appendRun(text.size(), m_colour);
        if (!m_hasRun)
            m_beforeRuns += text.size();
    }

    std::array<Colour, colourSlots + 1> m_colours{ColouredText::automatic};
    Colour m_colour = ColouredText::automatic;
    bool m_hasRun = false;
    qsizetype m_beforeRuns = 0;
};

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

ColouredText colouredText(const ColourEngine &engine, QStringView text, bool firstLineIsComment,
                          const RichTextSettings &settings)
{
    if (!engine.isForThreads()) {
        ColouredTextBuilder builder(settings);
        engine.colourText(text, firstLineIsComment, builder);
        return builder.result;
    }
    const QList<QStringView> parts = partsOfLines(text);
    std::vector<ColouredTextBuilder> builders(static_cast<std::size_t>(parts.size()),
                                              ColouredTextBuilder(settings));
    atTheSameTime(parts.size(), [&](qsizetype part) {
        ColouredTextBuilder &builder = builders[static_cast<std::size_t>(part)];
        builder.result.text.reserve(parts[part].size() * 9 / 8);
        engine.colourLines(parts[part], firstLineIsComment && part == 0, builder);
    });
    for (const ColouredTextBuilder &next : std::span(builders).subspan(1))
        builders.front().join(next);
    return builders.front().result;
}

} // namespace ORVTListview
