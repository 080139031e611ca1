#pragma once

#include <QtCore/QMap>
#include <QtCore/QProcess>
#include <QtCore/QStringList>

namespace ORVTListview {

// The helper program as another process; its commands stand in SettingsHelper.cpp.
class SettingsProcess
{
public:
    explicit SettingsProcess(const QStringList &commands,
                             const QMap<QString, QString> &environment = {})
    {
        QProcessEnvironment full = QProcessEnvironment::systemEnvironment();
        full.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        full.remove(QStringLiteral("ORVT_SETTINGS_FILE"));
        for (auto it = environment.cbegin(); it != environment.cend(); ++it)
            full.insert(it.key(), it.value());
        m_process.setProcessEnvironment(full);
        m_process.start(QStringLiteral(ORVT_SETTINGS_HELPER), commands);
    }

    ~SettingsProcess()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    void kill() { m_process.kill(); }

    bool isRunning()
    {
        m_process.waitForFinished(0);
        return m_process.state() != QProcess::NotRunning;
    }

    bool waitForOutput() { return m_process.waitForReadyRead(60000); }

    // Waits for its end.
    int exitCode()
    {
        m_process.waitForFinished(60000);
        return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }

    // Waits for its end; every whole line that it has printed, as its system ends lines.
    QStringList lines()
    {
        m_process.waitForFinished(60000);
        m_output += m_process.readAllStandardOutput();
        QStringList lines = QString::fromUtf8(m_output).remove(u'\r').split(u'\n');
        lines.removeLast();
        return lines;
    }

    QString errors() { return QString::fromUtf8(m_process.readAllStandardError()); }

private:
    QProcess m_process;
    QByteArray m_output;
};

} // namespace ORVTListview
