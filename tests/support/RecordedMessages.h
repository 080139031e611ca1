#pragma once

#include "base/MessageService.h"

#include <QtCore/QList>

// Keeps what would have been shown.
class RecordedMessages final : public ORVTListview::MessageService
{
public:
    void show(const ORVTListview::Message &message) override { messages.append(message); }

    QList<ORVTListview::Message> messages;
};
