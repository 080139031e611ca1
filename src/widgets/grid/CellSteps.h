#pragma once

#include "base/HostHistory.h"

#include <ORVTListview/CellChange.h>

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QQueue>

class QUndoStack;

namespace ORVTListview {

class CellWriter;

// The steps of undo of a grid's cells, on a stack of their own or on the host's; or what a
// host with a history of its own has in their place.
class CellSteps
{
public:
    explicit CellSteps(CellWriter &writer);
    ~CellSteps();
    Q_DISABLE_COPY_MOVE(CellSteps) // keeps for one writer

    QUndoStack &stack();
    void setStack(QUndoStack *host);

    void setHistory(const std::optional<UndoHistory> &history);
    bool hasHistory() const { return m_history.isSet(); }

    bool canUndo();
    bool canRedo();
    void undo();
    void redo();

    // No row of before is there any more.
    void forget();

private:
    void keep();
    void step(void (QUndoStack::*act)());

    CellWriter &m_writer;
    QPointer<QUndoStack> m_own; // made when it is first needed
    QPointer<QUndoStack> m_host;
    HostHistory m_history;
    QQueue<QList<CellChange>> m_unkept; // made while the stack was within a step
};

} // namespace ORVTListview
