#include "colour/CommandLine.h"
#include "colour/ProgramColouring.h"
#include "project/ProjectError.h"
#include "project/TextFile.h"
#include "rtf/RtfEscapes.h"

#include <QtCore/QFile>

#include <algorithm>
#include <cstdio>
#include <memory>

#ifdef Q_OS_WIN
#include <fcntl.h>
#include <io.h>
#endif

// There is no application object: the tool needs none of what it does, and it
// would comment on the locale.

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

enum ExitStatus { Done = 0, NotValid = 1, NotUsable = 2 };

void useBinaryStreams()
{
#ifdef Q_OS_WIN
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
#endif
}

// Whatever file names hold, it stays one line.
int fail(ExitStatus status, const QString &text)
{
    QString line = text;
    std::replace_if(
        line.begin(), line.end(), [](QChar c) { return c.category() == QChar::Other_Control; },
        u'?');
    std::fputs(("orvt-colour: " + line.toUtf8() + '\n').constData(), stderr);
    return status;
}

int write(const QByteArray &bytes)
{
    const auto size = static_cast<std::size_t>(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0)
        return fail(NotUsable, u"standard output cannot be written"_s);
    return Done;
}

QString readStandardInput()
{
    const QString name = u"standard input"_s;
    constexpr int descriptor = 0; // at the end of a pipe the toolkit takes a stream for broken
    QFile input;
    if (!input.open(descriptor, QIODevice::ReadOnly))
        throw Error(FileNotReadable, u"readStandardInput"_s,
                    u"%1: %2"_s.arg(name, input.errorString()));
    return decodeProgram(readDevice(input, name), name);
}

QString readProgram(const CommandLine &commandLine, const Project *project)
{
    if (!commandLine.program && project)
        return project->program();
    if (!commandLine.program || *commandLine.program == "-"_L1)
        return readStandardInput();
    return decodeProgram(readFile(*commandLine.program), *commandLine.program);
}

int run(const QStringList &arguments)
{
    const CommandLine commandLine = parseCommandLine(arguments);
    if (commandLine.help)
        return write(helpText().toUtf8());
    if (commandLine.version)
        return write("orvt-colour " ORVT_VERSION "\n");
    std::unique_ptr<const Project> project;
    if (commandLine.project)
        project = std::make_unique<Project>(*commandLine.project);
    const ProgramColouring colouring(commandLine, project.get());
    return write(sevenBitRtf(colouring.rtf(readProgram(commandLine, project.get()))));
}

} // namespace
} // namespace ORVTListview

int main(int argc, char *argv[])
{
    using namespace ORVTListview;
    useBinaryStreams();
    try {
        QStringList arguments;
        for (int i = 0; i < argc; ++i)
            arguments.append(QString::fromLocal8Bit(argv[i]));
        return run(arguments);
    } catch (const UsageError &error) {
        return fail(NotUsable, QString::fromUtf8(error.what()) + u" (see --help)"_s);
    } catch (const Error &error) {
        return fail(error.Number() == FileNotReadable ? NotUsable : NotValid, error.Description());
    } catch (const std::exception &error) {
        return fail(NotUsable, QString::fromUtf8(error.what()));
    }
}
