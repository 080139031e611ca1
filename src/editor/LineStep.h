#pragma once

#include "base/ColouredText.h"
#include "base/SharedText.h"
#include "editor/SettledLines.h"
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
    LineStep(RichTextBox &box, const SettledLines &settled);

    // Colours whole lines, each for itself; what is settled is as this leaves it.
    using Colour = std::function<ColouredText(const QString &lines)>;

    // False, and nothing is changed, when the text is to be set as a whole: too much
    // differs, or is not settled. To be called once.
    bool show(const SharedText &text, const Colour &colour);

private:
    using Range = SettledLines::Range;

    // Lines of the box, and the finished ones that come in their place.
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
    QList<Range> linesToShow(const Differences &differ) const;
    bool colourParts(const QList<Range> &ranges, const Differences &differ, const SharedText &text,
                     const Colour &colour);
    void giveLateColours() const;
    void replaceLines();
    void colourLines() const;

    RichTextBox &m_box;
    const SettledLines &m_settled;
    QList<Part> m_parts;
};

} // namespace ORVTListview
