#pragma once

#include "base/ThreadState.h"
#include "support/RecordedMessages.h"

#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

#include <memory>

// What every widget test does around each of its functions: a fresh thread state,
// messages kept instead of shown, and no warning unnoticed.
class WidgetTest : public QObject
{
    Q_OBJECT

protected:
    QList<ORVTListview::Message> &messages() { return m_messages.messages; }

    // A fresh state as if the library had just been loaded on this thread.
    void renewState()
    {
        m_state.reset();
        m_state = std::make_unique<ORVTListview::ThreadState::Fresh>();
        m_messages.messages.clear();
        ORVTListview::threadPart<ORVTListview::Messages>().install(&m_messages);
    }

protected Q_SLOTS:
    virtual void init()
    {
        // The off-screen platform has nobody to tell size hints to, and says so.
        QTest::failOnWarning(
            QRegularExpression(QStringLiteral("^(?!This plugin does not support)")));
        renewState();
    }
    virtual void cleanup() { m_state.reset(); }

private:
    RecordedMessages m_messages;
    std::unique_ptr<ORVTListview::ThreadState::Fresh> m_state;
};
