#pragma once

#include <QtCore/QFile>
#include <QtCore/QString>

#include <filesystem>
#include <system_error>

// What the systems do with files, each in its own way.
namespace ORVTListview::SystemFiles {

// Where a link leads; empty for what is no link.
std::filesystem::path linkTarget(const std::filesystem::path &place);

// Whether a folder takes both for the name of one file.
bool isOneName(const QString &one, const QString &other);

// Waits until what was written to the open file is on the disk.
std::error_code syncToDisk(QFile &file);

// Waits until the names in the folder are on the disk, too, as far as the system can.
void syncFolder(const QString &folder);

// As far as this user may.
void copyOwner(const QString &from, QFile &to);

// Whoever looks for the second file finds it whole all the time.
std::error_code moveInPlace(const QString &from, const QString &to);

} // namespace ORVTListview::SystemFiles
