#include "base/SystemFiles.h"

#include <QtCore/QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ORVTListview::SystemFiles {
namespace {

bool sync(int handle)
{
    return ::fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP;
}

} // namespace

std::filesystem::path linkTarget(const std::filesystem::path &place)
{
    std::error_code isNoLink;
    return std::filesystem::read_symlink(place, isNoLink);
}

bool isOneName(const QString &one, const QString &other)
{
    return one == other;
}

std::error_code syncToDisk(QFile &file)
{
    return sync(file.handle()) ? std::error_code()
                               : std::error_code(errno, std::generic_category());
}

void syncFolder(const QString &folder)
{
    const int handle = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_CLOEXEC);
    if (handle < 0)
        return;
    sync(handle);
    ::close(handle);
}

void copyOwner(const QString &from, QFile &to)
{
    struct stat old = {};
    if (::stat(QFile::encodeName(from).constData(), &old) == 0 &&
        ::fchown(to.handle(), old.st_uid, old.st_gid) != 0 &&
        ::fchown(to.handle(), static_cast<uid_t>(-1), old.st_gid) != 0) {
        // Only an administrator can keep another owner; the content matters more.
    }
}

std::error_code moveInPlace(const QString &from, const QString &to)
{
    std::error_code failure;
    std::filesystem::rename(QFileInfo(from).filesystemFilePath(),
                            QFileInfo(to).filesystemFilePath(), failure);
    return failure;
}

} // namespace ORVTListview::SystemFiles
