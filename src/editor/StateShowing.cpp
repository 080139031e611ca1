#include "editor/StateShowing.h"

#include "editor/LineStep.h"
#include "editor/rules/colouring/ColourText.h"
#include "editor/rules/colouring/LineColouring.h"
#include "editor/rules/language/CodeWordList.h"
#include "widgets/box/BoxText.h"
#include "widgets/box/LateColours.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QStringList>

#include <utility>

namespace ORVTListview {
namespace {

const QStringView lineEnd = u"\r\n";

bool isJoined(QStringView text, const QStringList &parts)
{
    bool isFirst = true;
    for (const QString &part : parts) {
        if (!std::exchange(isFirst, false)) {
            if (!text.startsWith(lineEnd))
                return false;
            text = text.sliced(lineEnd.size());
        }
        if (!text.startsWith(part))
            return false;
        text = text.sliced(part.size());
    }
    return text.isEmpty();
}

} // namespace

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

// Colouring adds nothing to lines but blanks.
void StateShowing::showWhole(const SharedText &text, Spelling spelling)
{
    const QString all = text.toString();
    const ColourEngine engine = m_thread.colouring();
    PartsInTurn parts(engine, all, partColouring(spelling));
    const bool suits = LateColours::suits(all);
    const bool isInTurn = suits && engine.isForThreads() && parts.differsMostlyFrom(shown());
    const bool isShown = isInTurn ? putInTurn(parts) : putAtOnce(all, spelling);
    unsettle();
    if (!isShown || !suits || spelling == Spelling::AsTyped)
        return;
    if (m_keepsText)
        settle();
    else
        settleColoured(text);
}

const SharedText &StateShowing::shown() const
{
    return BoxText::of(*m_box.document()).sharedText();
}

PartsInTurn::Colouring StateShowing::partColouring(Spelling spelling) const
{
    const bool isColoured = spelling == Spelling::Listed && !m_keepsText;
    return isColoured ? PartsInTurn::coloured(m_thread.settings())
                      : PartsInTurn::finished(m_thread.settings(), spelling);
}

bool StateShowing::putAtOnce(const QString &text, Spelling spelling)
{
    const ColouredText whole =
        spelling == Spelling::Listed ? coloured(text) : m_thread.finished(text, spelling);
    const LateColours::Allowed late(LateColours::of(*m_box.document()), LateColours::Lines::Former);
    m_box.setColoured(whole);
    return m_box.Text() == whole.text;
}

// The box takes one part while others are still coloured.
bool StateShowing::putInTurn(PartsInTurn &parts)
{
    const SharedText former = shown();
    QStringList texts;
    const auto next = [&] {
        auto part = parts.next();
        if (part)
            texts.append(part->text);
        return part;
    };
    try {
        const LateColours::Allowed late(LateColours::of(*m_box.document()),
                                        LateColours::Lines::New);
        m_box.setColoured(next);
    } catch (...) {
        m_box.setText(former.toString()); // uncoloured is better than lost
        throw;
    }
    return isJoined(m_box.Text(), texts);
}

void StateShowing::unsettle()
{
    m_settled.unsettleAll();
    m_source.forget();
}

void StateShowing::settle()
{
    m_settled.settleAll();
    m_settledBy = m_thread.finishedBy();
}

// Short ones are coloured anew for each step.
void StateShowing::settleColoured(const SharedText &text)
{
    if (text.size() < LateColours::shortest)
        return;
    settle();
    m_source.set(text);
}

// One that does not suit went in as another one.
void StateShowing::noteFinished(const QString &text)
{
    unsettle();
    if (LateColours::suits(text))
        settle();
}

void StateShowing::noteColoured(const QString &text)
{
    unsettle();
    if (LateColours::suits(text))
        settleColoured(SharedText(text));
}

bool StateShowing::prepare()
{
    if (m_thread.knownWords().index().isEmpty() || !isSettledByNow())
        return false;
    return m_source.check([this](const QString &lines) { return coloured(lines); });
}

} // namespace ORVTListview
