#include "base/MessageService.h"

#include <QtCore/QLoggingCategory>

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

MessageService &Messages::service() const
{
    static LoggingMessages logging;
    if (m_installed)
        return *m_installed;
    return defaultService() ? *defaultService() : logging;
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

} // namespace ORVTListview
