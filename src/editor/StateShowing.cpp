#include "editor/StateShowing.h"

#include "editor/LineStep.h"
#include "editor/rules/colouring/ColourText.h"
#include "editor/rules/colouring/LineColouring.h"
#include "editor/rules/language/CodeWordList.h"
#include "widgets/box/BoxText.h"
#include "widgets/box/LateColours.h"
#include <ORVTListview/RichTextBox.h>

namespace ORVTListview {

StateShowing::StateShowing(RichTextBox &box, const EditorThread &thread)
    : m_box(box)
    , m_thread(thread)
    , m_settled(*box.document())
{
}

ColouredText StateShowing::coloured(const QString &text) const
{
    if (m_keepsText)
        return m_thread.finished(text, Spelling::Listed);
    return colouredText(m_thread.colouring(), text, false, m_thread.settings());
}

void StateShowing::show(const SharedText &text, Spelling spelling)
{
    if (!showLines(text, spelling))
        showWhole(text, spelling);
}

bool StateShowing::isSettledByNow() const
{
    return m_settledBy == m_thread.finishedBy();
}

bool StateShowing::showLines(const SharedText &text, Spelling spelling)
{
    if (!isSettledByNow())
        return false;
    if (m_keepsText)
        return !m_source.isKnown() && showFinishedLines(text, spelling);
    return m_source.isKnown() && spelling == Spelling::Listed && showColouredLines(text);
}

// The finished look of a line goes by that line alone.
bool StateShowing::showFinishedLines(const SharedText &text, Spelling spelling)
{
    const ShownSource source(BoxText::of(*m_box.document()));
    const auto finished = [&](const QString &lines) { return m_thread.finished(lines, spelling); };
    LineStep step(m_box, m_settled, source);
    if (!step.show(text, {finished}))
        return false;
    if (!step.isShown())
        unsettle();
    else if (spelling == Spelling::Listed)
        m_settled.settleAll();
    return true;
}

// Of the two texts that what is shown can be told to come from, one has most lines in common
// with the other state: the one that was coloured, and what has been typed into since.
bool StateShowing::showColouredLines(const SharedText &text)
{
    if (m_thread.knownWords().index().isEmpty())
        return false; // colouring tells the user so
    const BoxText &shown = BoxText::of(*m_box.document());
    return (m_source.isFixed() && showColouredLines(text, ShownSource(shown))) ||
           showColouredLines(text, FormerSource(m_source.text(), shown, m_settled));
}

bool StateShowing::showColouredLines(const SharedText &text, const StepSource &source)
{
    bool areFixed = true;
    const auto colour = [this](const QString &lines) { return coloured(lines); };
    const auto checked = [&](const QString &lines) {
        ColouredText result = coloured(lines);
        areFixed = areFixed && ColouredSource::staysSame(result, colour);
        return result;
    };
    LineStep step(m_box, m_settled, source);
    if (!step.show(text, {checked, true}))
        return false;
    if (!step.isShown()) {
        unsettle();
        return true;
    }
    m_settled.settleAll();
    m_source.become(text, areFixed);
    return true;
}

void StateShowing::showWhole(const SharedText &text, Spelling spelling)
{
    const bool isListed = spelling == Spelling::Listed;
    const QString all = text.toString();
    const ColouredText whole = isListed ? coloured(all) : m_thread.finished(all, spelling);
    {
        const LateColours::Allowed late(LateColours::of(*m_box.document()),
                                        LateColours::Lines::Former);
        m_box.setColoured(whole);
    }
    unsettle();
    if (m_box.Text() != whole.text)
        return; // somebody has put in another one meanwhile
    if (isListed && m_keepsText)
        noteFinished(all);
    else if (isListed)
        noteColoured(text, whole);
}

void StateShowing::unsettle()
{
    m_settled.unsettleAll();
    m_source.forget();
}

void StateShowing::noteFinished(const QString &text)
{
    unsettle();
    if (!LateColours::suits(text)) // it went in as another one
        return;
    m_settled.settleAll();
    m_settledBy = m_thread.finishedBy();
}

// Short ones are coloured anew for each step.
void StateShowing::noteColoured(const SharedText &text, const ColouredText &shown)
{
    unsettle();
    const bool isLong = text.size() >= LateColours::shortest;
    if (!isLong || !LateColours::suits(text.toString()) || !LateColours::suits(shown.text))
        return;
    m_settled.settleAll();
    m_settledBy = m_thread.finishedBy();
    m_source.set(text);
}

bool StateShowing::prepare()
{
    if (m_thread.knownWords().index().isEmpty() || !isSettledByNow())
        return false;
    return m_source.check([this](const QString &lines) { return coloured(lines); });
}

} // namespace ORVTListview
