#include "ColourTool.h"

#include <QtCore/QProcess>

namespace {

using namespace Qt::StringLiterals;

const QString tool = QStringLiteral(ORVT_COLOUR_TOOL);

ToolRun run(const QString &program, const QStringList &arguments, const QByteArray &standardInput)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"TOOL"_s, tool);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(QStringLiteral(ORVT_COLOUR_EXAMPLES));
    process.start(program, arguments);
    process.write(standardInput);
    process.closeWriteChannel();
    ToolRun result;
    if (process.waitForFinished() && process.exitStatus() == QProcess::NormalExit)
        result.status = process.exitCode();
    result.out = process.readAllStandardOutput();
    result.err = process.readAllStandardError().replace("\r\n", "\n"); // as Windows ends lines
    return result;
}

} // namespace

ToolRun runColourTool(const QStringList &arguments, const QByteArray &standardInput)
{
    return run(tool, arguments, standardInput);
}

ToolRun runInShell(const QString &script)
{
    return run(u"/bin/sh"_s, {u"-c"_s, script}, {});
}
