#include "editor/rules/colouring/LineColouring.h"

#include "base/TextRules.h"
#include "base/TextSearch.h"
#include "editor/rules/colouring/ColourTable.h"
#include "editor/rules/colouring/TextParts.h"
#include "editor/rules/language/CodeText.h"

#include <array>
#include <span>
#include <utility>
#include <vector>

namespace ORVTListview {
namespace {

// Appends finished lines to a text.
class LineColours final : public ColourSink
{
public:
    LineColours(ColouredText &result, const RichTextSettings &settings, Spelling spelling)
        : m_result(result)
        , m_spelling(spelling)
    {
        for (int slot = 1; slot <= colourSlots; ++slot)
            m_colours[static_cast<std::size_t>(slot)] = shownColour(colourOfSlot(slot, settings));
    }

    void run(const ColourRun &run) override
    {
        colourUpTo(run.offset); // blanks continue in the colour before them
        m_colour = m_colours[static_cast<std::size_t>(run.colourIndex)];
        colourUpTo(run.offset + run.length);
        const QStringView typed = m_line.sliced(run.offset, run.length);
        // Only letter case may change, so a listed spelling of another length stays out.
        if (m_spelling == Spelling::Listed && typed.size() == run.shown.size() &&
            typed != run.shown && isSameWord(typed, run.shown))
            m_result.text.replace(m_start + run.offset, run.length, run.shown.data(),
                                  run.shown.size());
    }
    void blank() override {}
    void tab() override {}
    void lineEnd() override {}

    void append(const ColourEngine &engine, QStringView line)
    {
        m_line = line;
        m_start = m_result.text.size();
        m_result.text += line;
        m_coloured = 0;
        m_colour = ColouredText::automatic;
        if (IsCommentLine(line))
            run({0, line.size(), CommentColour, line});
        else
            engine.colourLine(line, *this);
        colourUpTo(line.size());
    }

    // A line end has a run of its own.
    void appendLineEnd()
    {
        m_result.text += QStringLiteral("\r\n");
        m_result.runs.append({2, ColouredText::automatic});
    }

private:
    void colourUpTo(qsizetype end)
    {
        if (end <= m_coloured)
            return;
        const qsizetype length = end - m_coloured;
        if (m_coloured > 0)
            m_result.appendRun(length, m_colour);
        else
            m_result.runs.append({length, m_colour});
        m_coloured = end;
    }

    ColouredText &m_result;
    const Spelling m_spelling;
    std::array<Colour, colourSlots + 1> m_colours{ColouredText::automatic};
    QStringView m_line;
    qsizetype m_start = 0; // of the line in the result
    qsizetype m_coloured = 0;
    Colour m_colour = ColouredText::automatic;
};

} // namespace

ColouredText finishedLine(const ColourEngine &engine, QStringView line,
                          const RichTextSettings &settings)
{
    ColouredText result;
    LineColours(result, settings, Spelling::Listed).append(engine, line);
    return result;
}

namespace {

ColouredText finishedPart(const ColourEngine &engine, QStringView text,
                          const RichTextSettings &settings, Spelling spelling)
{
    ColouredText result;
    result.text.reserve(text.size());
    LineColours lines(result, settings, spelling);
    qsizetype start = 0;
    for (qsizetype end = 0; (end = findCrLf(text, start)) >= 0; start = end + 2) {
        lines.append(engine, text.sliced(start, end - start));
        lines.appendLineEnd();
    }
    lines.append(engine, text.sliced(start));
    return result;
}

} // namespace

ColouredText finishedText(const ColourEngine &engine, QStringView text,
                          const RichTextSettings &settings, Spelling spelling)
{
    const QList<QStringView> parts =
        engine.isForThreads() ? partsOfLines(text) : QList<QStringView>{text};
    std::vector<ColouredText> finished(static_cast<std::size_t>(parts.size()));
    atTheSameTime(parts.size(), [&](qsizetype part) {
        finished[static_cast<std::size_t>(part)] =
            finishedPart(engine, parts[part], settings, spelling);
    });
    ColouredText result = std::move(finished.front());
    result.text.reserve(text.size());
    for (const ColouredText &next : std::span(finished).subspan(1)) {
        result.text += QStringLiteral("\r\n") + next.text;
        result.runs.append({2, ColouredText::automatic});
        result.runs += next.runs;
    }
    return result;
}

} // namespace ORVTListview
