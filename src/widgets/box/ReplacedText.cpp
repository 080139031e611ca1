#include "widgets/box/ReplacedText.h"

#include "base/EventGuard.h"

#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtWidgets/QPlainTextEdit>

namespace ORVTListview {
namespace {

bool hasSelection(const QPlainTextEdit &box)
{
    return box.textCursor().hasSelection();
}

} // namespace

ReplacedText::ReplacedText(const QPlainTextEdit &former)
    : m_lines(former.blockCount())
    , m_isModified(former.document()->isModified())
    , m_couldUndo(former.document()->isUndoAvailable())
    , m_couldRedo(former.document()->isRedoAvailable())
    , m_wasSelected(hasSelection(former))
{
}

// In the toolkit's order. What a receiver does is told by its own signals.
void ReplacedText::tellFrom(QPlainTextEdit &box) const
{
    using Box = QPlainTextEdit;
    const int lines = box.blockCount();
    const bool isModified = box.document()->isModified();
    const bool canUndo = box.document()->isUndoAvailable();
    const bool canRedo = box.document()->isRedoAvailable();
    const bool isSelected = hasSelection(box);
    bool isThere = raiseEvent(box, &Box::updateRequest, box.viewport()->rect(), 0);
    if (isThere && canUndo != m_couldUndo)
        isThere = raiseEvent(box, &Box::undoAvailable, canUndo);
    if (isThere && canRedo != m_couldRedo)
        isThere = raiseEvent(box, &Box::redoAvailable, canRedo);
    if (isThere && lines != m_lines)
        isThere = raiseEvent(box, &Box::blockCountChanged, lines);
    isThere = isThere && raiseEvent(box, &Box::textChanged);
    if (isThere && isModified != m_isModified)
        isThere = raiseEvent(box, &Box::modificationChanged, isModified);
    if (isThere && isSelected != m_wasSelected)
        isThere = raiseEvent(box, &Box::copyAvailable, isSelected);
    if (isThere && (isSelected || m_wasSelected))
        isThere = raiseEvent(box, &Box::selectionChanged);
    if (isThere)
        raiseEvent(box, &Box::cursorPositionChanged);
}

} // namespace ORVTListview
