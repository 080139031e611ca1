#pragma once

#include "base/MessageService.h"

#include <QtCore/QList>

namespace ORVTListview {

// The components' default service: a modal message box for each message, but one
// for equal messages of a batch.
class MessageBoxes final : public MessageService
{
public:
    void show(const Message &message) override;
    void beginBatch() override;
    void endBatch() override;

    // Makes a process-wide instance what Messages falls back to. Any number of
    // calls is one.
    static void installAsDefault();

private:
    int m_depth = 0;
    QList<Message> m_shown; // in the current batch
};

} // namespace ORVTListview
