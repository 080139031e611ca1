#include "editor/rules/colouring/LineColouring.h"

#include "base/TextRules.h"
#include "editor/rules/colouring/ColourTable.h"
#include "editor/rules/language/CodeText.h"

namespace ORVTListview {
namespace {

class LineColours final : public ColourSink
{
public:
    LineColours(QStringView line, const RichTextSettings &settings)
        : m_settings(settings)
    {
        m_result.text = line.toString();
    }

    void run(const ColourRun &run) override
    {
        colourUpTo(run.offset); // blanks continue in the colour before them
        m_colour = run.colourIndex == AutomaticColour
                       ? ColouredText::automatic
                       : shownColour(colourOfSlot(run.colourIndex, m_settings));
        colourUpTo(run.offset + run.length);
        const QStringView typed = QStringView(m_result.text).sliced(run.offset, run.length);
        // Only letter case may change, so a listed spelling of another length stays out.
        if (typed.size() == run.shown.size() && isSameWord(typed, run.shown))
            m_result.text.replace(run.offset, run.length, run.shown.data(), run.shown.size());
    }
    void blank() override {}
    void tab() override {}
    void lineEnd() override {}

    ColouredText finish()
    {
        colourUpTo(m_result.text.size());
        return std::move(m_result);
    }

private:
    void colourUpTo(qsizetype end)
    {
        if (end <= m_coloured)
            return;
        m_result.appendRun(end - m_coloured, m_colour);
        m_coloured = end;
    }

    const RichTextSettings &m_settings;
    ColouredText m_result;
    qsizetype m_coloured = 0;
    Colour m_colour = ColouredText::automatic;
};

} // namespace

ColouredText finishedLine(const ColourEngine &engine, QStringView line,
                          const RichTextSettings &settings)
{
    LineColours colours(line, settings);
    if (IsCommentLine(line))
        colours.run({0, line.size(), CommentColour, line});
    else
        engine.colourLine(line, colours);
    return colours.finish();
}

ColouredText finishedText(const ColourEngine &engine, QStringView text,
                          const RichTextSettings &settings, Spelling spelling)
{
    ColouredText result;
    result.text.reserve(text.size());
    const QList<QStringView> lines = text.split(u"\r\n");
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (i > 0) {
            result.text += QStringLiteral("\r\n");
            result.runs.append({2, ColouredText::automatic});
        }
        const ColouredText line = finishedLine(engine, lines[i], settings);
        result.text += spelling == Spelling::Listed ? QStringView(line.text) : lines[i];
        result.runs += line.runs;
    }
    return result;
}

} // namespace ORVTListview
