#pragma once

#include "editor/ColouredSource.h"
#include "editor/EditorThread.h"
#include "editor/SettledLines.h"
#include "editor/rules/colouring/PartsInTurn.h"

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

    // The box was just given what comes of a text finished, or coloured, as a whole.
    void noteFinished(const QString &text);
    void noteColoured(const QString &text);

    // What makes later steps short, a slice while idle; whether there is more to do.
    bool prepare();

private:
    bool showLines(const SharedText &text, Spelling spelling);
    bool showFinishedLines(const SharedText &text, Spelling spelling);
    bool showColouredLines(const SharedText &text);
    bool showColouredLines(const SharedText &text, const StepSource &source);
    void showWhole(const SharedText &text, Spelling spelling);
    const SharedText &shown() const;
    PartsInTurn::Colouring partColouring(Spelling spelling) const;

    // Whether it is what is shown then: whoever hears of it may put in another one.
    bool putAtOnce(const QString &text, Spelling spelling);
    bool putInTurn(PartsInTurn &parts);

    bool isSettledByNow() const;
    void settle();
    void settleColoured(const SharedText &text);
    void unsettle();

    RichTextBox &m_box;
    const EditorThread &m_thread;
    bool m_keepsText = false;
    SettledLines m_settled;
    FinishedBy m_settledBy;
    ColouredSource m_source; // of what is settled, where that is coloured and not finished
};

} // namespace ORVTListview
