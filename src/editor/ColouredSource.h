#pragma once

#include "base/ColouredText.h"
#include "base/SharedText.h"

#include <functional>

namespace ORVTListview {

// The text that a box shows coloured as a whole, and whether colouring what is shown once
// more would change nothing, which is found out while the program is idle.
class ColouredSource
{
public:
    using Colour = std::function<ColouredText(const QString &lines)>;

    void set(const SharedText &text);
    void forget() { *this = {}; }
    bool isKnown() const { return m_isKnown; }
    const SharedText &text() const { return m_text; }

    // The text is another one, whose other lines are right or not.
    void become(const SharedText &text, bool otherLinesAreFixed);

    bool isFixed() const { return m_isKnown && m_isFixed && m_checked == m_text.size(); }

    // A slice of a few milliseconds; whether there is more to do.
    bool check(const Colour &colour);

    static bool staysSame(const ColouredText &coloured, const Colour &colour);

private:
    // Lines that colouring once more would change, and where they stand.
    struct Unfixed
    {
        QString lines;
        qsizetype start = 0;
    };

    QString nextLines() const;
    Unfixed unfixedIn(const QString &lines, const Colour &colour) const;
    bool findUnfixedAgain(const SharedText &text);

    SharedText m_text;
    bool m_isKnown = false;
    bool m_isFixed = false; // as far as it is checked
    qsizetype m_checked = 0;
    Unfixed m_unfixed; // where it is not
};

} // namespace ORVTListview
