#include "colour/CommandLine.h"

#include <QtCore/QCommandLineParser>

#include <utility>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

constexpr auto usage = R"(Usage: orvt-colour [OPTION]... [PROGRAM | -]
Writes a controller program as RTF, every word in the colour of its class.

  --constant NAME   NAME is a constant
  --variable NAME   NAME is a variable
  --input NAME      NAME is an input
  --output NAME     NAME is an output
  --nvi NAME        NAME is a network variable input
  --indexed NAME    NAME is an indexed name
  --sqrt            SQRT is a function
  --project FILE    take the names of a project file, and its program when no
                    PROGRAM is given
  -h, --help        show this help and exit
  -v, --version     show the version and exit

PROGRAM is a text in UTF-8. With "-", or with neither PROGRAM nor --project,
standard input is read. The options with a NAME may be repeated.

Exit status: 0 done, 1 what was read is not valid, 2 wrong use or a file that
cannot be read.
)"_L1;

void declareOptions(QCommandLineParser &parser)
{
    for (const QString &name : {u"constant"_s, u"variable"_s, u"input"_s, u"output"_s, u"nvi"_s,
                                u"indexed"_s, u"project"_s})
        parser.addOption({name, {}, u"value"_s});
    parser.addOption(QCommandLineOption(u"sqrt"_s));
    parser.addOption(QCommandLineOption(QStringList{u"h"_s, u"help"_s}));
    parser.addOption(QCommandLineOption(QStringList{u"v"_s, u"version"_s}));
}

QStringList namesOf(const QCommandLineParser &parser, const QString &option)
{
    QStringList names = parser.values(option);
    for (const QString &name : std::as_const(names)) {
        if (name.trimmed().isEmpty())
            throw UsageError(u"--%1 needs a name"_s.arg(option));
    }
    return names;
}

// At most one, and not an empty text.
std::optional<QString> fileOf(const QStringList &given, const QString &what)
{
    if (given.isEmpty())
        return std::nullopt;
    if (given.size() > 1)
        throw UsageError(u"only one %1 can be given"_s.arg(what));
    if (given.constFirst().isEmpty())
        throw UsageError(u"%1 needs a file name"_s.arg(what));
    return given.constFirst();
}

} // namespace

CommandLine parseCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    declareOptions(parser);
    if (!parser.parse(arguments))
        throw UsageError(parser.errorText().chopped(1)); // a full stop
    return {
        .help = parser.isSet(u"help"_s),
        .version = parser.isSet(u"version"_s),
        .constants = namesOf(parser, u"constant"_s),
        .variables = namesOf(parser, u"variable"_s),
        .inputs = namesOf(parser, u"input"_s),
        .outputs = namesOf(parser, u"output"_s),
        .nvis = namesOf(parser, u"nvi"_s),
        .indexed = namesOf(parser, u"indexed"_s),
        .sqrt = parser.isSet(u"sqrt"_s),
        .project = fileOf(parser.values(u"project"_s), u"--project"_s),
        .program = fileOf(parser.positionalArguments(), u"PROGRAM"_s),
    };
}

QString helpText()
{
    return usage;
}

} // namespace ORVTListview
