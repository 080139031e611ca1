#include <ORVTListview/CodeView.h>

#include "base/EventGuard.h"
#include "editor/CodeViewParts.h"

namespace ORVTListview {

CodeView::CodeView(RichTextBox &box)
    : d(std::make_unique<CodeViewParts>(box))
{
    connect(&d->marks, &MarkColumn::chosen, this, [this](const Problem &problem) {
        raiseEvent(*this, &CodeView::problemChosen, problem);
    });
    connect(&d->zoom, &Zoom::changed, this,
            [this] { raiseEvent(*this, &CodeView::zoomChanged, d->zoom.percent()); });
}

CodeView::~CodeView() = default;

bool CodeView::lineNumbersVisible() const
{
    return d->numbers.isShown();
}

void CodeView::setLineNumbersVisible(bool visible)
{
    if (visible == lineNumbersVisible())
        return;
    d->numbers.setShown(visible);
    raiseEvent(*this, &CodeView::lineNumbersVisibleChanged, visible);
}

bool CodeView::currentLineShown() const
{
    return d->currentLine.isShown();
}

void CodeView::setCurrentLineShown(bool shown)
{
    if (shown == currentLineShown())
        return;
    d->currentLine.setOn(shown);
    raiseEvent(*this, &CodeView::currentLineShownChanged, shown);
}

bool CodeView::pairsShown() const
{
    return d->pairs.isShown();
}

void CodeView::setPairsShown(bool shown)
{
    if (shown == pairsShown())
        return;
    d->pairs.setOn(shown);
    d->wordUses.setOn(shown);
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
    d->indentGuides.setShown(shown);
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

qint32 CodeView::zoom() const
{
    return d->zoom.percent();
}

void CodeView::setZoom(qint32 percent)
{
    d->zoom.setPercent(percent);
}

void CodeView::setProblems(const QList<Problem> &problems)
{
    d->problems.set(problems);
}

QList<Problem> CodeView::problems() const
{
    return d->problems.list();
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

} // namespace ORVTListview
