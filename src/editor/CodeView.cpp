#include <ORVTListview/CodeView.h>

#include "base/EventGuard.h"
#include "editor/CodeViewParts.h"
#include "editor/EditorUndo.h"
#include "editor/ProgramCommands.h"
#include "editor/ProgramOpening.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QMetaMethod>

namespace ORVTListview {

CodeView::CodeView(RichTextBox &box, const ProgramCommands &commands)
    : d(std::make_unique<CodeViewParts>(box, commands))
{
    connect(&d->commandsState, &CommandsState::changed, this, [this](bool enabled) {
        raiseEvent(*this, &CodeView::commandsEnabledChanged, enabled);
    });
    connect(&d->commands.opening, &ProgramOpening::progressed, this,
            [this](int percent) { raiseEvent(*this, &CodeView::openingProgress, percent); });
    connect(&d->marks, &MarkColumn::chosen, this, [this](const Problem &problem) {
        raiseEvent(*this, &CodeView::problemChosen, problem);
    });
    connect(&d->zoom, &Zoom::changed, this,
            [this] { raiseEvent(*this, &CodeView::zoomChanged, d->zoom.percent()); });
    d->hover.setHost(
        {.listens =
             [this] { return isSignalConnected(QMetaMethod::fromSignal(&CodeView::hoverAsked)); },
         .ask =
             [this](const QString &word, qint32 line, HoverAnswer *answer) {
                 raiseEvent(*this, &CodeView::hoverAsked, word, line, answer);
             }});
}

CodeView::~CodeView() = default;

void CodeView::openProgram(const QString &text)
{
    d->commands.opening.open(text);
}

void CodeView::cancelOpening()
{
    d->commands.opening.cancel();
}

bool CodeView::isOpening() const
{
    return d->commands.opening.isRunning();
}

bool CodeView::lineNumbersVisible() const
{
    return d->numbers.isShown();
}

void CodeView::setLineNumbersVisible(bool visible)
{
    if (visible == lineNumbersVisible())
        return;
    d->numbers.setShown(visible);
    d->caretLine.refresh();
    raiseEvent(*this, &CodeView::lineNumbersVisibleChanged, visible);
}

bool CodeView::currentLineShown() const
{
    return d->currentLine->isShown();
}

void CodeView::setCurrentLineShown(bool shown)
{
    if (shown == currentLineShown())
        return;
    d->currentLine->setOn(shown);
    raiseEvent(*this, &CodeView::currentLineShownChanged, shown);
}

bool CodeView::pairsShown() const
{
    return d->pairs->isShown();
}

void CodeView::setPairsShown(bool shown)
{
    if (shown == pairsShown())
        return;
    d->pairs->setOn(shown);
    d->wordUses->setOn(shown);
    raiseEvent(*this, &CodeView::pairsShownChanged, shown);
}

bool CodeView::foldingEnabled() const
{
    return d->folds.isOn();
}

void CodeView::setFoldingEnabled(bool enabled)
{
    if (enabled == foldingEnabled())
        return;
    d->folds.setOn(enabled);
    d->caretLine.refresh();
    raiseEvent(*this, &CodeView::foldingEnabledChanged, enabled);
}

void CodeView::foldAll()
{
    d->folds.foldAll();
}

void CodeView::unfoldAll()
{
    d->folds.unfoldAll();
}

bool CodeView::indentGuidesShown() const
{
    return d->indentGuides.isShown();
}

void CodeView::setIndentGuidesShown(bool shown)
{
    if (shown == indentGuidesShown())
        return;
    d->indentGuides.setOn(shown);
    raiseEvent(*this, &CodeView::indentGuidesShownChanged, shown);
}

bool CodeView::blanksShown() const
{
    return d->blanks.isShown();
}

void CodeView::setBlanksShown(bool shown)
{
    if (shown == blanksShown())
        return;
    d->blanks.setShown(shown);
    raiseEvent(*this, &CodeView::blanksShownChanged, shown);
}

bool CodeView::adaptsColours() const
{
    return d->readableColours.isOn();
}

void CodeView::setAdaptsColours(bool on)
{
    if (on == adaptsColours())
        return;
    d->readableColours.setOn(on);
    raiseEvent(*this, &CodeView::adaptsColoursChanged, on);
}

qint32 CodeView::zoom() const
{
    return d->zoom.percent();
}

void CodeView::setZoom(qint32 percent)
{
    d->zoom.setPercent(percent);
}

bool CodeView::liveValuesShown() const
{
    return d->liveValues.isShown();
}

void CodeView::setLiveValuesShown(bool shown)
{
    if (shown == liveValuesShown())
        return;
    d->liveValues.setOn(shown);
    raiseEvent(*this, &CodeView::liveValuesShownChanged, shown);
}

void CodeView::setLiveValues(const QHash<QString, QString> &values)
{
    d->liveValues.set(values);
    d->hover.renew(); // asks the host, who may do anything
}

void CodeView::setProblems(const QList<Problem> &problems)
{
    d->problems.set(problems);
}

QList<Problem> CodeView::problems() const
{
    return d->problems.list();
}

void CodeView::setMarks(const QList<MarginMark> &marks)
{
    d->hostMarks.set(marks);
}

QList<MarginMark> CodeView::marks() const
{
    return d->hostMarks.list();
}

bool CodeView::tellChosen(const std::optional<Problem> &problem)
{
    if (problem)
        raiseEvent(*this, &CodeView::problemChosen, *problem);
    return problem.has_value();
}

bool CodeView::nextProblem()
{
    return tellChosen(d->problems.goToNext());
}

bool CodeView::previousProblem()
{
    return tellChosen(d->problems.goToPrevious());
}

void CodeView::toggleBookmark()
{
    d->bookmarks.toggle();
}

bool CodeView::nextBookmark()
{
    return d->bookmarks.goToNext();
}

QList<qint32> CodeView::bookmarks() const
{
    return d->bookmarks.list();
}

void CodeView::setBookmarks(const QList<qint32> &lines)
{
    d->bookmarks.set(lines);
}

bool CodeView::commandsEnabled() const
{
    return d->box && mayChangeIn(*d->box);
}

void CodeView::goToLine(qint32 line)
{
    d->commands.caret.goToLine(line);
}

void CodeView::showGoToLine()
{
    if (!d->box)
        return;
    if (!d->goToLineBar)
        d->goToLineBar = new GoToLineBar(*d->box, d->commands.caret);
    d->goToLineBar->ask();
}

bool CodeView::goToPartner()
{
    return d->commands.caret.goToPartner();
}

void CodeView::moveLines(int by)
{
    d->commands.lines.move(by);
}

void CodeView::duplicateLines()
{
    d->commands.lines.duplicate();
}

void CodeView::deleteLines()
{
    d->commands.lines.remove();
}

void CodeView::joinLines()
{
    d->commands.lines.join();
}

void CodeView::sortLines()
{
    d->commands.lines.sort();
}

void CodeView::toggleComment()
{
    d->commands.texts.toggleComment();
}

void CodeView::upperCase()
{
    d->commands.texts.upperCase();
}

void CodeView::lowerCase()
{
    d->commands.texts.lowerCase();
}

void CodeView::tidy()
{
    d->commands.texts.tidy();
}

bool CodeView::findNext()
{
    return d->commands.finding.findAgain(ProgramFinding::Way::Forwards);
}

bool CodeView::findPrevious()
{
    return d->commands.finding.findAgain(ProgramFinding::Way::Backwards);
}

void CodeView::showFindBar()
{
    if (!d->box)
        return;
    if (!d->findBar)
        d->findBar = new FindBar(
            *d->box, d->found, {[this] { return findNext(); }, [this] { return findPrevious(); }});
    d->findBar->ask();
}

bool CodeView::findNextAtCaret()
{
    return d->commands.finding.findWordAtCaret(ProgramFinding::Way::Forwards);
}

bool CodeView::findPreviousAtCaret()
{
    return d->commands.finding.findWordAtCaret(ProgramFinding::Way::Backwards);
}

void CodeView::setHelp(bool &help, bool on, void (CodeView::*changed)(bool))
{
    if (on == help)
        return;
    help = on;
    raiseEvent(*this, changed, on);
}

bool CodeView::autoIndent() const
{
    return d->commands.typing.helps.autoIndent;
}

void CodeView::setAutoIndent(bool on)
{
    setHelp(d->commands.typing.helps.autoIndent, on, &CodeView::autoIndentChanged);
}

bool CodeView::smartHome() const
{
    return d->commands.typing.helps.smartHome;
}

void CodeView::setSmartHome(bool on)
{
    setHelp(d->commands.typing.helps.smartHome, on, &CodeView::smartHomeChanged);
}

bool CodeView::trimsBlanks() const
{
    return d->commands.typing.helps.trimsBlanks;
}

void CodeView::setTrimsBlanks(bool on)
{
    setHelp(d->commands.typing.helps.trimsBlanks, on, &CodeView::trimsBlanksChanged);
}

bool CodeView::wordListOpensItself() const
{
    return d->commands.words.opensItself();
}

void CodeView::setWordListOpensItself(bool on)
{
    if (on == wordListOpensItself())
        return;
    d->commands.words.setOpensItself(on);
    raiseEvent(*this, &CodeView::wordListOpensItselfChanged, on);
}

bool CodeView::keepsText() const
{
    return d->commands.undo.keepsText();
}

void CodeView::setKeepsText(bool on)
{
    if (on == keepsText())
        return;
    d->commands.undo.setKeepsText(on);
    raiseEvent(*this, &CodeView::keepsTextChanged, on);
}

bool CodeView::hasOwnUndo() const
{
    return d->commands.undo.hasOwnRing();
}

void CodeView::setHasOwnUndo(bool on)
{
    if (on == hasOwnUndo())
        return;
    d->commands.undo.setHasOwnRing(on);
    if (on == hasOwnUndo())
        raiseEvent(*this, &CodeView::hasOwnUndoChanged, on);
}

void CodeView::setUndoHistory(const std::optional<UndoHistory> &history)
{
    d->commands.undo.setHistory(history);
}

void CodeView::setWordDescriptions(const QHash<QString, QString> &descriptions)
{
    d->commands.words.setDescriptions(descriptions);
}

} // namespace ORVTListview
