#pragma once

#include <QtCore/QProcess>

namespace ORVTListview::bench {

// A peer that runs as a process of its own and answers a line with a line. A
// process that cannot be started, fails or falls silent ends the benchmark.
class PeerProcess
{
public:
    explicit PeerProcess(const QStringList &command);
    ~PeerProcess();

    void writeLine(const QByteArray &line);
    QByteArray readLine();

private:
    QProcess m_process;
};

// Runs a command to its end.
QByteArray outputOf(const QStringList &command);

// The nanoseconds from starting it to its end, its output thrown away.
double runTime(const QStringList &command);

} // namespace ORVTListview::bench
