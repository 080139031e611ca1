#include "base/MessageService.h"
#include "support/KeptLog.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

Message message(const QString &text)
{
    return {Message::Icon::None, QString(), text};
}

class Recorded final : public MessageService
{
public:
    void show(const Message &message) override { told += message.text; }
    void beginBatch() override { told += u'<'; }
    void endBatch() override { told += u'>'; }

    QString told;
};

} // namespace

TEST(MessagesLater, WaitInTheirOrderAndNumberAndComeAsOneBatch)
{
    Recorded shown;
    Messages messages;
    messages.install(&shown);
    {
        const MessagesLater later(messages);
        for (const QString &text : {u"a"_s, u"b"_s, u"b"_s, u"a"_s})
            messages.service().show(message(text));
        const MessageBatch batch(messages.service());
        messages.service().show(message(u"c"_s));
        EXPECT_EQ(shown.told, QString());
    }
    EXPECT_EQ(shown.told, u"<abbac>"_s);
    messages.service().show(message(u"d"_s));
    EXPECT_EQ(shown.told, u"<abbac>d"_s);
}

TEST(MessagesLater, WaitForTheOutermost)
{
    Recorded shown;
    Messages messages;
    messages.install(&shown);
    {
        const MessagesLater outer(messages);
        {
            const MessagesLater inner(messages);
            messages.service().show(message(u"a"_s));
        }
        EXPECT_EQ(shown.told, QString());
    }
    EXPECT_EQ(shown.told, u"<a>"_s);
    {
        const MessagesLater silent(messages);
    }
    EXPECT_EQ(shown.told, u"<a>"_s);
}

TEST(MessagesLater, GoToTheServiceThatIsInForceThen)
{
    Recorded first;
    Recorded second;
    Messages messages;
    messages.install(&first);
    {
        const MessagesLater later(messages);
        messages.service().show(message(u"a"_s));
        EXPECT_EQ(messages.install(&second), &first);
        messages.service().show(message(u"b"_s));
    }
    EXPECT_EQ(first.told, QString());
    EXPECT_EQ(second.told, u"<ab>"_s);
}

TEST(MessagesLater, AreToldThoughTheOperationFails)
{
    Recorded shown;
    Messages messages;
    messages.install(&shown);
    const auto operation = [&messages] {
        const MessagesLater later(messages);
        messages.service().show(message(u"a"_s));
        throw std::runtime_error("failed");
    };
    EXPECT_THROW(operation(), std::runtime_error);
    EXPECT_EQ(shown.told, u"<a>"_s);
}

TEST(Messages, GoToTheLogWhereThereIsNoService)
{
    Messages::setDefaultService(nullptr);
    Messages messages;
    const KeptLog log;
    messages.service().show({Message::Icon::Exclamation, u"Boiler"_s, u"The disk is full"_s});
    {
        const MessageBatch batch(messages.service());
        messages.service().show(message(u"Once more"_s));
    }
    EXPECT_EQ(log.lines, QStringList({u"orvtlistview.messages: Boiler The disk is full"_s,
                                      u"orvtlistview.messages:  Once more"_s}));
}

TEST(Messages, GoToTheInstalledServiceBeforeTheDefault)
{
    Recorded usual;
    Recorded own;
    Messages::setDefaultService(&usual);
    Messages messages;
    messages.service().show(message(u"a"_s));
    EXPECT_EQ(messages.install(&own), nullptr);
    messages.service().show(message(u"b"_s));
    EXPECT_EQ(messages.install(nullptr), &own);
    messages.service().show(message(u"c"_s));
    Messages::setDefaultService(nullptr);
    EXPECT_EQ(usual.told, u"ac"_s);
    EXPECT_EQ(own.told, u"b"_s);
}
