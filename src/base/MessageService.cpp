#include "base/MessageService.h"

#include "base/EventGuard.h"

#include <QtCore/QLoggingCategory>

#include <utility>

namespace ORVTListview {
namespace {

Q_LOGGING_CATEGORY(messagesLog, "orvtlistview.messages")

class LoggingMessages final : public MessageService
{
public:
    void show(const Message &message) override
    {
        qCWarning(messagesLog).noquote() << message.title << message.text;
    }
};

MessageService *&defaultService()
{
    static MessageService *service = nullptr;
    return service;
}

} // namespace

MessageService::~MessageService() = default;

class Messages::Waiting final : public MessageService
{
public:
    void show(const Message &message) override
    {
        if (!messages.isEmpty() && messages.constLast().message == message)
            ++messages.last().times;
        else
            messages.append({message, 1});
    }

    struct Counted
    {
        Message message;
        qsizetype times = 0; // in a row
    };
    QList<Counted> messages;
};

Messages::Messages() = default;
Messages::~Messages() = default;

MessageService &Messages::service() const
{
    return m_delays > 0 ? *m_waiting : inForce();
}

MessageService &Messages::inForce() const
{
    static LoggingMessages logging;
    if (m_installed)
        return *m_installed;
    return defaultService() ? *defaultService() : logging;
}

void Messages::showWaiting()
{
    const auto waiting = std::exchange(m_waiting->messages, {});
    if (waiting.isEmpty())
        return;
    MessageService &service = inForce();
    const MessageBatch oneBox(service);
    for (const Waiting::Counted &counted : waiting) {
        for (qsizetype i = 0; i < counted.times; ++i)
            service.show(counted.message);
    }
}

MessageService *Messages::install(MessageService *service)
{
    MessageService *before = m_installed;
    m_installed = service;
    return before;
}

void Messages::setDefaultService(MessageService *service)
{
    defaultService() = service;
}

MessageBatch::MessageBatch(MessageService &service)
    : m_service(service)
{
    m_service.beginBatch();
}

MessageBatch::~MessageBatch()
{
    m_service.endBatch();
}

MessagesLater::MessagesLater(Messages &messages)
    : m_messages(messages)
{
    if (!m_messages.m_waiting)
        m_messages.m_waiting = std::make_unique<Messages::Waiting>();
    ++m_messages.m_delays;
}

MessagesLater::~MessagesLater() noexcept(false)
{
    if (--m_messages.m_delays > 0)
        return;
    if (std::uncaught_exceptions() == m_failures)
        m_messages.showWaiting();
    else // the operation has failed, and that is to be told
        EventGuard::run([this] {
            m_messages.showWaiting();
            return true;
        });
}

} // namespace ORVTListview
