#include "editor/rules/colouring/ColourText.h"

#include "editor/rules/colouring/ColourTable.h"

#include <array>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

class RtfBody final : public ColourSink
{
public:
    explicit RtfBody(QString &target)
        : m_target(target)
    {
    }

    void run(const ColourRun &run) override
    {
        m_target.append(colourWord(run.colourIndex));
        m_target.append(run.shown);
    }
    void blank() override { m_target.append(u' '); }
    void tab() override { m_target.append(QStringView(u"\\tab ")); }
    void lineEnd() override { m_target.append(QStringView(u"\r\n\\par ")); }

private:
    static QStringView colourWord(qint32 index)
    {
        static constexpr std::array<QStringView, colourSlots + 1> words{
            u"\\cf0 ", u"\\cf1 ", u"\\cf2 ", u"\\cf3 ", u"\\cf4 ",
            u"\\cf5 ", u"\\cf6 ", u"\\cf7 ", u"\\cf8 "};
        return words[static_cast<std::size_t>(index)];
    }

    QString &m_target;
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
        m_colour = m_colours[static_cast<std::size_t>(run.colourIndex)];
        append(run.shown);
    }
    void blank() override { append(u" "); }
    void tab() override { append(u"\t"); }
    void lineEnd() override { append(u"\r\n"); }

    ColouredText result;

private:
    void append(QStringView text)
    {
        result.text.append(text);
        result.appendRun(text.size(), m_colour);
    }

    std::array<Colour, colourSlots + 1> m_colours{ColouredText::automatic};
    Colour m_colour = ColouredText::automatic;
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
    rtf.append(u'}');
    return rtf;
}

QString ColourLine(const ColourEngine &engine, QStringView Line)
{
    QString rtf;
    RtfBody body(rtf);
    engine.colourLine(Line, body);
    return rtf;
}

QString ColourToken(const ColourEngine &engine, QStringView Token)
{
    QString rtf;
    RtfBody body(rtf);
    engine.colourToken(Token, 0, body);
    return rtf;
}

ColouredText colouredText(const ColourEngine &engine, QStringView text, bool firstLineIsComment,
                          const RichTextSettings &settings)
{
    ColouredTextBuilder builder(settings);
    builder.result.text.reserve(text.size() * 9 / 8);
    engine.colourText(text, firstLineIsComment, builder);
    return builder.result;
}

} // namespace ORVTListview
