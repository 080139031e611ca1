#include <ORVTListview/CodeView.h>

#include "base/EventGuard.h"
#include "editor/CodeViewParts.h"

namespace ORVTListview {

CodeView::CodeView(RichTextBox &box)
    : d(std::make_unique<CodeViewParts>(box))
{
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

} // namespace ORVTListview
