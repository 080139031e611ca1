#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>
#include <stdexcept>

namespace ORVTListview {

// What the user asked for cannot be done as it is asked.
class UsageError : public std::runtime_error
{
public:
    explicit UsageError(const QString &text)
        : std::runtime_error(text.toStdString())
    {
    }
};

struct CommandLine
{
    bool help = false;
    bool version = false;
    QStringList constants;
    QStringList variables;
    QStringList inputs;
    QStringList outputs;
    QStringList nvis;
    QStringList indexed;
    bool sqrt = false;
    std::optional<QString> project;
    std::optional<QString> program; // "-" is standard input
};

// The arguments begin with the program's own name. Raises UsageError.
CommandLine parseCommandLine(const QStringList &arguments);

QString helpText();

} // namespace ORVTListview
