#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <utility>

// While it lives, warnings come to it, each as "category: text", and nowhere else.
class KeptLog
{
public:
    KeptLog()
        : m_former(std::exchange(s_lines, &lines))
        , m_handler(qInstallMessageHandler(keep))
    {
    }
    ~KeptLog()
    {
        qInstallMessageHandler(m_handler);
        s_lines = m_former;
    }
    Q_DISABLE_COPY_MOVE(KeptLog) // its address is known

    QStringList lines;

private:
    static void keep(QtMsgType, const QMessageLogContext &context, const QString &text)
    {
        s_lines->append(QString::fromLatin1(context.category) + QStringLiteral(": ") + text);
    }

    static inline QStringList *s_lines = nullptr;

    QStringList *m_former;
    QtMessageHandler m_handler;
};
