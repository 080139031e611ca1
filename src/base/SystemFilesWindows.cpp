#include "base/SystemFiles.h"

#include "base/SystemPathWindows.h"

#include <QtCore/QThread>

#include <windows.h>

namespace ORVTListview::SystemFiles {
namespace {

std::error_code lastError()
{
    return {static_cast<int>(GetLastError()), std::system_category()};
}

// Who looks through all files, for viruses or for words, has each open for a moment.
bool isOpenElsewhere(DWORD error)
{
    return error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED ||
           error == ERROR_LOCK_VIOLATION;
}

} // namespace

std::filesystem::path linkTarget(const std::filesystem::path &place)
{
    const QFileInfo file(place);
    return file.isSymbolicLink() ? QFileInfo(file.symLinkTarget()).filesystemFilePath()
                                 : std::filesystem::path();
}

bool isOneName(const QString &one, const QString &other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

// By a second handle: the toolkit does not give its own away.
std::error_code syncToDisk(QFile &file)
{
    HANDLE handle = CreateFileW(systemPath(file.fileName()).c_str(), GENERIC_WRITE,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return lastError();
    const std::error_code failure = FlushFileBuffers(handle) ? std::error_code() : lastError();
    CloseHandle(handle);
    return failure;
}

// Moving waits for the disk.
void syncFolder(const QString &) {}

// A new file belongs to who makes it, and has the rights of its folder.
void copyOwner(const QString &, QFile &) {}

std::error_code moveInPlace(const QString &from, const QString &to)
{
    constexpr int attempts = 25;
    constexpr unsigned long pause = 20; // milliseconds
    const std::wstring source = systemPath(from);
    const std::wstring target = systemPath(to);
    for (int i = 1;; ++i) {
        if (MoveFileExW(source.c_str(), target.c_str(),
                        MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            return {};
        if (!isOpenElsewhere(GetLastError()) || i == attempts)
            return lastError();
        QThread::msleep(pause);
    }
}

} // namespace ORVTListview::SystemFiles
