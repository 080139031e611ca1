#pragma once

#include "base/HouseExport.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <exception>
#include <memory>

namespace ORVTListview {

struct Message
{
    enum class Icon { None, Exclamation };

    Icon icon = Icon::None;
    QString title; // empty: the application's name
    QString text;

    friend bool operator==(const Message &, const Message &) = default;
};

// Where every message to the user goes. The service in force is told of each
// message and decides what is shown; one that shows boxes can use a batch to
// show equal messages of one operation once.
class ORVT_HOUSE_EXPORT MessageService
{
public:
    MessageService() = default;
    Q_DISABLE_COPY_MOVE(MessageService) // its address is what is installed
    virtual ~MessageService();

    virtual void show(const Message &message) = 0;
    virtual void beginBatch() {}
    virtual void endBatch() {}
};

// The service of one user-interface thread. Never null: without an installed
// service messages go to the log.
class ORVT_HOUSE_EXPORT Messages
{
public:
    Messages();
    ~Messages();
    Q_DISABLE_COPY_MOVE(Messages) // messages may wait in it

    MessageService &service() const;

    // The caller keeps the service and keeps it alive; null goes back to the
    // default. Returns the one in force before, null for the default.
    MessageService *install(MessageService *service);

    // What install(nullptr) goes back to; the components set it to message boxes.
    static void setDefaultService(MessageService *service);

private:
    friend class MessagesLater;
    class Waiting;

    MessageService &inForce() const;
    void showWaiting();

    MessageService *m_installed = nullptr;
    std::unique_ptr<Waiting> m_waiting;
    int m_delays = 0;
};

// Messages that come while one of these lives are shown when the outermost ends, in a
// batch. A message box runs the event loop, in which the user and the host may do
// anything: around what holds a text, or a place in it, stands one of these, made
// before any other guard.
class ORVT_HOUSE_EXPORT MessagesLater
{
public:
    explicit MessagesLater(Messages &messages);
    ~MessagesLater() noexcept(false);  // what the service throws
    Q_DISABLE_COPY_MOVE(MessagesLater) // one begin, one end

private:
    Messages &m_messages;
    int m_failures = std::uncaught_exceptions();
};

// Equal messages shown while one of these lives may be merged by the service.
class ORVT_HOUSE_EXPORT MessageBatch
{
public:
    explicit MessageBatch(MessageService &service);
    ~MessageBatch();
    Q_DISABLE_COPY_MOVE(MessageBatch) // one begin, one end

private:
    MessageService &m_service;
};

} // namespace ORVTListview
