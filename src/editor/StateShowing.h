#pragma once

#include "editor/ColouredSource.h"
#include "editor/EditorThread.h"
#include "editor/SettledLines.h"

namespace ORVTListview {

class RichTextBox;
class StepSource;

// How the states of a program come into its box: where it can be told which lines differ,
// these alone.
// Why it is so: docs/decisions/undo.md.
class StateShowing
{
public:
    StateShowing(RichTextBox &box, const EditorThread &thread);

    // Whether a text that is coloured as a whole keeps blanks, tabs and brackets.
    bool keepsText() const { return m_keepsText; }
    void setKeepsText(bool on) { m_keepsText = on; }

    ColouredText coloured(const QString &text) const;

    // As typed, a text is shown without what colouring does to it.
    void show(const SharedText &text, Spelling spelling);

    // The box was just given a text that was finished, or coloured, as a whole.
    void noteFinished(const QString &text);
    void noteColoured(const SharedText &text, const ColouredText &shown);

    // What makes later steps short, a slice while idle; whether there is more to do.
    bool prepare();

private:
    bool showLines(const SharedText &text, Spelling spelling);
    bool showFinishedLines(const SharedText &text, Spelling spelling);
    bool showColouredLines(const SharedText &text);
    bool showColouredLines(const SharedText &text, const StepSource &source);
    void showWhole(const SharedText &text, Spelling spelling);
    bool isSettledByNow() const;
    void unsettle();

    RichTextBox &m_box;
    const EditorThread &m_thread;
    bool m_keepsText = false;
    SettledLines m_settled;
    FinishedBy m_settledBy;
    ColouredSource m_source; // of what is settled, where that is coloured and not finished
};

} // namespace ORVTListview
