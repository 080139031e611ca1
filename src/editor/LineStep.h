#pragma once

#include "base/ColouredText.h"
#include "base/SharedText.h"
#include "editor/SettledLines.h"
#include "editor/StepSource.h"
#include "widgets/box/ColouredLines.h"

#include <QtCore/QList>

#include <functional>
#include <optional>

namespace ORVTListview {

class BoxText;
class RichTextBox;

// Shows another state of a program by changing the lines that differ, where the others are
// settled: the box then shows what it would if all were set anew, in a time that goes by
// what differs.
// Why it is so: docs/decisions/undo.md.
class LineStep
{
public:
    LineStep(RichTextBox &box, const SettledLines &settled, const StepSource &source);

    // Colours whole lines; what is settled is as this leaves it. Each is for itself, or the
    // blanks that a line begins with go on in the colour of the last word before it.
    struct Colour
    {
        std::function<ColouredText(const QString &lines)> lines;
        bool goesOn = false;
    };

    // False, and nothing is changed, when the text is to be set as a whole: too much
    // differs, or is not settled. To be called once.
    bool show(const SharedText &text, const Colour &colour);

    // Whether it is what is shown now: nobody has changed the box while it did.
    bool isShown() const { return m_isShown; }

private:
    using Range = SettledLines::Range;

    // Lines of the box, and the coloured ones that come in their place.
    struct Part
    {
        Range lines;
        ColouredLines text;
        bool differs = false; // as it was

        std::optional<Range> toReplace(const BoxText &box) const;
    };

    const BoxText &boxText() const;
    bool mayKeepLines() const;
    using Differences = QList<SharedText::Difference>;
    Differences differing(const SharedText &text) const;
    QList<Range> linesToShow(const Differences &differ, bool goOn) const;
    int withNextWord(int line) const;
    std::optional<ColouredLines> coloured(const QString &part, int line,
                                          const Colour &colour) const;
    bool colourParts(const QList<Range> &ranges, const Differences &differ, const SharedText &text,
                     const Colour &colour);
    void giveLateColours() const;
    void replaceLines();
    void colourLines() const;

    RichTextBox &m_box;
    const SettledLines &m_settled;
    const StepSource &m_source;
    QList<Part> m_parts;
    bool m_isShown = false;
};

} // namespace ORVTListview
