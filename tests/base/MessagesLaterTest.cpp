#include "base/MessageService.h"
#include "support/RecordedMessages.h"

#include <gtest/gtest.h>

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
