#include "support/peer_process.h"

#include "support/measure.h"

namespace ORVTListview::bench {
namespace {

constexpr int patience = 120 * 1000; // milliseconds

[[noreturn]] void fail(const QProcess &process)
{
    qFatal("%s: %s", qPrintable(process.program()), qPrintable(process.errorString()));
}

void start(QProcess &process, const QStringList &command)
{
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(command.first(), command.sliced(1));
}

void finish(QProcess &process)
{
    if (!process.waitForFinished(patience) || process.exitCode() != 0)
        fail(process);
}

} // namespace

PeerProcess::PeerProcess(const QStringList &command)
{
    start(m_process, command);
}

PeerProcess::~PeerProcess()
{
    m_process.closeWriteChannel();
    m_process.waitForFinished(patience);
}

void PeerProcess::writeLine(const QByteArray &line)
{
    m_process.write(line + '\n');
    if (!m_process.waitForBytesWritten(patience))
        fail(m_process);
}

QByteArray PeerProcess::readLine()
{
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead(patience))
            fail(m_process);
    }
    return m_process.readLine();
}

QByteArray outputOf(const QStringList &command)
{
    QProcess process;
    start(process, command);
    finish(process);
    return process.readAllStandardOutput();
}

double runTime(const QStringList &command)
{
    return timed([&] {
        QProcess process;
        process.setStandardOutputFile(QProcess::nullDevice());
        start(process, command);
        finish(process);
    });
}

} // namespace ORVTListview::bench
