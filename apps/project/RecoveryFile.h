#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QStringList>

#include <optional>

namespace ORVTListview {

// What of a project was not saved, as a text that can be read without the workbench.
struct RecoveredWork
{
    QString projectFile;
    QDateTime when; // to the second
    QByteArray json;
    QStringList programs; // in the order of the project file, lines separated by CR LF

    friend bool operator==(const RecoveredWork &, const RecoveredWork &) = default;
};

QByteArray recoveryText(const RecoveredWork &work);

// Nothing for a file that is none or has lost a part.
std::optional<RecoveredWork> readRecovery(const QByteArray &text);

} // namespace ORVTListview
